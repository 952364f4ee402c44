#ifndef QUOR_TESTS_CONFIG_LISTED_ITEMS_HPP
#define QUOR_TESTS_CONFIG_LISTED_ITEMS_HPP

// A dispatch that sets up items which the test made itself, and nothing else:
//
//     quor_test::listed_items sources;
//     sources.add().set("a", 1, 0);              // a user item, the first of the list
//     sources.add_null();                        // a null pointer, which managers pass over
//     manager.init(sources);

#include <cstddef>

#include <quor/config/config_dispatch.hpp>
#include <quor/config/user_item.hpp>
#include <quor/generic/abilities/alloc_detection_ability.hpp>

namespace quor_test {

class listed_items : public QUOR_2_9::config::config_dispatch {
public:
	using item_pointer = QUOR_2_9::memory::pointers::rc_pointer<QUOR_2_9::config::base_config_item>;

	// Appends an item; clones of the dispatch share it.
	QUOR_2_9::config::user_item &add() {
		auto *const item = QUOR_2_9::generic::abilities::create_dynamic<QUOR_2_9::config::user_item>();
		m_items.push_back(item);
		return *item;
	}
	void add(item_pointer const &item) { m_items.push_back(item); }
	void add_null() { m_items.emplace_back(); }

	void setup(item_list &items) const override { items.insert(items.end(), m_items.begin(), m_items.end()); }
	listed_items *clone() const override { return new listed_items(*this); }

private:
	item_list m_items;
};

} // namespace quor_test

#endif
