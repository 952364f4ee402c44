#include <quor/config/config_manager.hpp>

#include <iterator>
#include <memory>
#include <ostream>
#include <unordered_set>
#include <utility>
#include <vector>

#include <quor/generic/abilities/alloc_detection_ability.hpp>
#include <quor/generic/abilities/reference_count_pointer_ability.hpp>
#include <quor/types/nil.hpp>

#include "config/item_access.hpp"
#include "config/key_path.hpp"

namespace QUOR_2_9::config {

using strings::ustring8;
using types::variant;

namespace {

using item_list = config_dispatch::item_list;
using detail::find_child;

constexpr unsigned int array_flags = config_tree::flag_set | config_tree::flag_array;

/// A node and the item that has it; both null where nothing was found.
struct found_node {
	base_config_item const *item = nullptr;
	config_tree const *node = nullptr;

	bool is_array() const noexcept { return node != nullptr && (node->node_data.first & array_flags) == array_flags; }
	bool is_reference() const noexcept {
		return node != nullptr && !is_array() && (node->node_data.first & config_tree::flag_reference) != 0;
	}
};

/// The node of the first item that has one at the key and for which `fits` is true.
template <class Condition>
found_node find_first(item_list const &items, ustring8 const &key, Condition fits) {
	detail::key_path path(key);
	for (auto const &item : items) {
		if (item) {
			found_node const found{item.get(), detail::find_node(detail::item_access::tree(*item), path)};
			if (found.node != nullptr && fits(found)) {
				return found;
			}
		}
	}
	return {};
}

found_node find_first(item_list const &items, ustring8 const &key) {
	return find_first(items, key, [](found_node const & /*found*/) { return true; });
}

found_node find_first_array(item_list const &items, ustring8 const &key) {
	return find_first(items, key, [](found_node const &found) { return found.is_array(); });
}

/// The node at `name` + ".0", which for a name that ends in a separator lies one level deeper
/// than the elements.
config_tree const *first_element(config_tree const &array, ustring8 const &name) {
	config_tree const *parent = &array;
	if (!name.empty() && is_key_separator(name.back())) {
		parent = find_child(array, "");
	}
	return parent != nullptr ? find_child(*parent, "0") : nullptr;
}

/// The value of what was found at a name, if it is no reference to follow.
variant value_of(found_node const &found, ustring8 const &name) {
	config_tree const *const node = found.is_array() ? first_element(*found.node, name) : found.node;
	return node != nullptr ? node->node_data.second : variant();
}

/// The value at the end of a chain of references that begins with the one found at `key`.
variant follow(item_list const &items, ustring8 const &key, found_node found) {
	std::unordered_set<ustring8> visited{key};
	ustring8 const *name = &key;
	while (found.is_reference()) {
		variant const &value = found.node->node_data.second;
		auto const [target, is_new] = visited.insert(value.as_string());
		if (!is_new) {
			return value;
		}
		name = &*target;
		found = find_first(items, *name);
	}
	return value_of(found, *name);
}

/// Appends what `part` takes from each entry, or nothing if memory is short.
template <class Out, class Entries, class Part>
void append(std::vector<Out> &out, Entries entries, Part part) {
	std::vector<Out> values;
	values.reserve(entries.size());
	for (auto &entry : entries) {
		values.push_back(part(entry));
	}
	out.insert(out.end(), std::make_move_iterator(values.begin()), std::make_move_iterator(values.end()));
}

} // namespace

/// A dispatch that managers share; it goes with the last of them.
class config_manager::shared_dispatch
    : public generic::abilities::reference_count_pointer_ability<config_manager::shared_dispatch> {
public:
	explicit shared_dispatch(std::unique_ptr<config_dispatch const> dispatch) noexcept
	    : m_dispatch(std::move(dispatch)) {}

	config_dispatch const *operator->() const noexcept { return m_dispatch.get(); }

private:
	std::unique_ptr<config_dispatch const> m_dispatch;
};

config_manager::config_manager() = default;

config_manager::config_manager(config_manager const &) = default;

config_manager &config_manager::operator=(config_manager const &other) {
	if (this != &other) {
		item_list items = other.m_items;
		auto dispatch = other.m_dispatch;
		m_items.swap(items);
		m_dispatch.swap(dispatch);
	}
	return *this;
}

config_manager::~config_manager() = default;

void config_manager::init(config_dispatch const &dispatch) {
	item_list items;
	memory::pointers::rc_pointer<shared_dispatch> shared;
	if (std::unique_ptr<config_dispatch const> copy(dispatch.clone()); copy) {
		copy->setup(items);
		shared = generic::abilities::create_dynamic<shared_dispatch>(std::move(copy));
	}
	m_items.swap(items);
	m_dispatch.swap(shared);
}

bool config_manager::load() {
	if (m_dispatch) {
		(*m_dispatch)->load(m_items);
	}
	return !m_dispatch.empty();
}

bool config_manager::save() {
	if (m_dispatch) {
		(*m_dispatch)->save(m_items);
	}
	return !m_dispatch.empty();
}

bool config_manager::unload() {
	if (m_dispatch) {
		(*m_dispatch)->unload(m_items);
	}
	return !m_dispatch.empty();
}

variant config_manager::get_value(ustring8 const &key) const {
	found_node const found = find_first(m_items, key);
	return found.is_reference() ? follow(m_items, key, found) : value_of(found, key);
}

bool config_manager::value_exist(ustring8 const &key) const {
	return get_value(key) != types::nil;
}

bool config_manager::is_array(ustring8 const &key) const {
	return find_first_array(m_items, key).item != nullptr;
}

void config_manager::get_array(ustring8 const &key, std::vector<variant> &out) const {
	found_node const found = find_first_array(m_items, key);
	if (found.item != nullptr) {
		config_tree::value_pair_array elements;
		found.item->get_array(key, elements);
		append(out, std::move(elements), [](auto &element) { return element.second.second; });
	}
}

void config_manager::get_key_value_array(ustring8 const &key, std::vector<std::pair<ustring8, variant>> &out,
                                         bool recursive) const {
	found_node const found = find_first(m_items, key);
	if (found.item != nullptr) {
		config_tree::value_pair_array entries;
		found.item->get_value_pair_array(key, entries, recursive);
		append(out, std::move(entries),
		       [](auto &entry) { return std::pair(std::move(entry.first), entry.second.second); });
	}
}

memory::pointers::rc_pointer<base_config_item> config_manager::get_config_item(ustring8 const &id) const {
	for (auto const &item : m_items) {
		if (item && item->get_id() == id) {
			return item;
		}
	}
	return {};
}

void config_manager::dump(std::ostream &stream) const {
	stream << "config_manager:\n";
	for (auto const &item : m_items) {
		if (item) {
			stream << "\nconfig_item:\n";
			item->dump(stream);
		}
	}
	stream << "\nno more config_items!\n\nending output\n";
}

std::ostream &operator<<(std::ostream &stream, config_manager const &manager) {
	manager.dump(stream);
	return stream;
}

} // namespace QUOR_2_9::config
