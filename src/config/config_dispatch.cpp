#include <quor/config/config_dispatch.hpp>

namespace QUOR_2_9::config {

namespace {

template <class Operation>
void for_each_item(config_dispatch::item_list const &items, Operation operation) {
	for (auto const &item : items) {
		if (item) {
			operation(*item);
		}
	}
}

} // namespace

config_dispatch::~config_dispatch() = default;

void config_dispatch::load(item_list &items) const {
	for_each_item(items, [&items](base_config_item &item) { item.load(items); });
}

void config_dispatch::unload(item_list &items) const {
	for_each_item(items, [](base_config_item &item) { item.unload(); });
}

void config_dispatch::save(item_list &items) const {
	for_each_item(items, [&items](base_config_item &item) { item.save(items); });
}

} // namespace QUOR_2_9::config
