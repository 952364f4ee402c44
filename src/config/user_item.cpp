#include <quor/config/user_item.hpp>

namespace QUOR_2_9::config {

user_item::user_item() {
	item_id = "user item";
}

user_item::user_item(user_item const &other) : base_config_item(other) {
	item_id = "user_item";
}

user_item::~user_item() = default;

user_item &user_item::operator=(user_item const &other) = default;

user_item *user_item::clone() const {
	return generic::abilities::create_dynamic<user_item>(*this);
}

} // namespace QUOR_2_9::config
