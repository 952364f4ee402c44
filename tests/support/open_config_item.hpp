#ifndef QUOR_TESTS_SUPPORT_OPEN_CONFIG_ITEM_HPP
#define QUOR_TESTS_SUPPORT_OPEN_CONFIG_ITEM_HPP

// The least that a configuration source can be, with all of the base class in reach.

#include <quor/config/base_config_item.hpp>
#include <quor/generic/abilities/alloc_detection_ability.hpp>

namespace quor_test {

class open_config_item : public QUOR_2_9::config::base_config_item {
public:
	using base_config_item::get_token;
	using base_config_item::item_id;
	using base_config_item::item_tree;

	open_config_item *clone() const override {
		return QUOR_2_9::generic::abilities::create_dynamic<open_config_item>(*this);
	}
};

} // namespace quor_test

#endif
