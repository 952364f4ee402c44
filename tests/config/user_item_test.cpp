#include <gtest/gtest.h>

#include <list>
#include <vector>

#include <quor/quor.hpp>

#include "support/config_sources.hpp"

namespace {

using quor::config::base_config_item;
using quor::config::user_item;
using quor::generic::varg_list;
using quor_test::config_entry;
using quor_test::head;
using quor_test::listing_of;
using quor_test::passage;
using quor_test::value;

using entries = std::vector<config_entry>;

TEST(user_item, is_filled_by_hand) {
	user_item item;
	EXPECT_EQ(item.get_id(), "user item");
	EXPECT_EQ(listing_of(item), entries());
	item.set("server.port", 8080, 0);
	item.set("server.host = local host", 0);
	item.set("switch", 1);
	item.set_array("list", varg_list("a", "b"), varg_list());
	EXPECT_EQ(listing_of(item),
	          (entries{head("list"), value("list.0", "a"), value("list.1", "b"), passage("server"),
	                   value("server.host", "localhost"), value("server.port", "8080"), value("switch", "")}));
	EXPECT_EQ(item.get_value("server.port")->second.as_int(), 8080);
}

TEST(user_item, load_save_and_unload_change_nothing) {
	user_item item;
	item.set("a", "1", 0);
	base_config_item &base = item;
	std::list<quor::memory::pointers::rc_pointer<base_config_item>> const items;
	EXPECT_TRUE(base.load());
	EXPECT_TRUE(base.load(items));
	EXPECT_TRUE(base.save());
	EXPECT_TRUE(base.save(items));
	base.unload();
	EXPECT_EQ(listing_of(item), entries{value("a", "1")});
	EXPECT_EQ(item.get_id(), "user item");
}

TEST(user_item, copies_and_clones_have_an_id_of_their_own) {
	user_item const made;
	user_item const copy(made);
	EXPECT_EQ(copy.get_id(), "user_item");
	EXPECT_EQ(user_item(copy).get_id(), "user_item");
	base_config_item const &base = made;
	quor::memory::pointers::rc_pointer<base_config_item> const clone(base.clone());
	EXPECT_EQ(clone->get_id(), "user_item");
	EXPECT_EQ(made.get_id(), "user item");
	ASSERT_NE(dynamic_cast<user_item *>(clone.get()), nullptr);
}

TEST(user_item, assignment_copies_the_id) {
	user_item made;
	user_item copy(made);
	copy = made;
	EXPECT_EQ(copy.get_id(), "user item");
	user_item const other(made);
	made = other;
	EXPECT_EQ(made.get_id(), "user_item");
}

TEST(user_item, copies_are_deep_and_start_fresh) {
	quor::memory::pointers::rc_pointer<user_item> const source(quor::generic::abilities::create_dynamic<user_item>());
	source->set("a.b", "1", 0);
	user_item copy(*source);
	EXPECT_EQ(copy.get_ref_count(), 0U);
	EXPECT_FALSE(copy.is_created_dynamic());
	copy.set("a.b", "2", 0);
	EXPECT_EQ(listing_of(*source), (entries{passage("a"), value("a.b", "1")}));

	quor::memory::pointers::rc_pointer<user_item> const clone(copy.clone());
	EXPECT_TRUE(clone->is_created_dynamic());
	EXPECT_EQ(clone->get_ref_count(), 1U);
	EXPECT_EQ(listing_of(*clone), (entries{passage("a"), value("a.b", "2")}));

	EXPECT_EQ(&(*source = *clone), source.get());
	EXPECT_EQ(source->get_ref_count(), 1U);
	EXPECT_TRUE(source->is_created_dynamic());
	clone->set("a.b", "3", 0);
	EXPECT_EQ(listing_of(*source), (entries{passage("a"), value("a.b", "2")}));
	auto const &same = *source;
	*source = same;
	EXPECT_EQ(listing_of(*source), (entries{passage("a"), value("a.b", "2")}));
}

} // namespace
