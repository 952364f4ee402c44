#include <gtest/gtest.h>

#include <list>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "support/config_sources.hpp"
#include "support/cout_capture.hpp"

namespace {

using quor::config::base_config_item;
using quor::config::enviroment_item;
using quor_test::config_entry;
using quor_test::listing_of;
using quor_test::passage;
using quor_test::string_block;
using quor_test::value;

using entries = std::vector<config_entry>;

struct row {
	std::vector<std::string> strings;
	entries expected;
};

TEST(enviroment_item, strings_are_assignments) {
	for (auto const &[strings, expected] : std::vector<row>{
	         {{}, {}},
	         {{"NAME=value"}, {value("name", "value")}},
	         {{"A=1", "B=2"}, {value("a", "1"), value("b", "2")}},
	         {{"A=1", "a=2"}, {value("a", "2")}},
	         {{"A="}, {value("a", "")}},
	         {{"A"}, {value("a", "")}},
	         {{""}, {value("", "")}},
	         {{"=A"}, {value("", "A")}},
	         {{"=C:=C:\\dir"}, {value("", "C:=C:\\dir")}},
	         {{"A=b=c"}, {value("a", "b=c")}},
	         {{"A=b,c"}, {value("a", "b,c")}},
	         {{"A.B=1"}, {passage("a"), value("a.b", "1")}},
	         {{"A\\B/C=1"}, {passage("a"), passage("a.b"), value("a.b.c", "1")}},
	         {{"A_B-C=1"}, {value("a_b-c", "1")}},
	         {{"ProgramFiles(x86)=x"}, {value("programfiles(x86)", "x")}},
	         // Blanks and tabs outside quotes vanish, and so do the quotes.
	         {{"P=C:\\Program Files\\x"}, {value("p", "C:\\ProgramFiles\\x")}},
	         {{"P=/usr/bin:/bin"}, {value("p", "/usr/bin:/bin")}},
	         {{"A B = c d"}, {value("ab", "cd")}},
	         {{"A=b\tc"}, {value("a", "bc")}},
	         {{"A=\"b c\""}, {value("a", "b c")}},
	         {{"\"A=B\"=c"}, {value("a=b", "c")}},
	         {{"A=\"b"}, {value("a", "b")}},
	         {{"A=\"b\\"}, {value("a", std::string("b\\\0", 3))}},
	         // The value ends with the line, the key takes it in.
	         {{"A=b\nc"}, {value("a", "b")}},
	         {{"A=b\r\nc"}, {value("a", "b")}},
	         {{"A=b\rc"}, {value("a", "b\rc")}},
	         {{"A=\"b\nc\""}, {value("a", "b\nc")}},
	         {{"A=\nb"}, {value("a", "")}},
	         {{"A\nB=c"}, {value("ab", "c")}},
	         // These signs hold no "=" of their own.
	         {{"A==b"}, {value("a==b", "")}},
	         {{"A+=b"}, {value("a+=b", "")}},
	         {{"A:=b"}, {value("a:=b", "")}},
	         {{"A/=b"}, {passage("a"), value("a.=b", "")}},
	         {{"A===b"}, {value("a==", "b")}},
	         {{"\xC3\x84=\xC3\x84"}, {value("\xC3\x84", "\xC3\x84")}},
	     }) {
		SCOPED_TRACE(testing::PrintToString(strings));
		string_block block(strings);
		enviroment_item item(block.pointers());
		quor_test::cout_capture const capture;
		EXPECT_TRUE(item.load());
		EXPECT_EQ(listing_of(item), expected);
		EXPECT_EQ(capture.text(), "");
		EXPECT_EQ(item.get_envp(), block.pointers());
	}
}

TEST(enviroment_item, nothing_is_read_behind_the_null_pointer) {
	string_block block({"A=1", "B=2", "C=3"});
	block.pointers()[1] = nullptr;
	enviroment_item item(block.pointers());
	item.load();
	EXPECT_EQ(listing_of(item), entries{value("a", "1")});
}

TEST(enviroment_item, null_block_stores_nothing) {
	enviroment_item item(nullptr);
	EXPECT_TRUE(item.load());
	EXPECT_EQ(listing_of(item), entries());
	EXPECT_EQ(item.get_envp(), nullptr);
}

TEST(enviroment_item, block_of_main_needs_no_cast) {
	char entry[] = "A=1";
	char *envp[] = {entry, nullptr};
	enviroment_item item(envp);
	item.load();
	EXPECT_EQ(item.get_value("a")->second.as_int(), 1);
}

TEST(enviroment_item, load_keeps_what_is_there_and_unload_empties) {
	string_block block({"A=1"});
	enviroment_item item(block.pointers());
	EXPECT_EQ(item.get_id(), "enviroment");
	EXPECT_EQ(listing_of(item), entries());
	item.set("a", "old", 0);
	item.set("hand", "kept", 0);
	entries const expected{value("a", "1"), value("hand", "kept")};
	item.load();
	EXPECT_EQ(listing_of(item), expected);
	item.load();
	EXPECT_EQ(listing_of(item), expected);
	item.unload();
	EXPECT_EQ(listing_of(item), entries());
	EXPECT_EQ(item.get_id(), "enviroment");
	EXPECT_EQ(item.get_envp(), block.pointers());
}

TEST(enviroment_item, base_operations_reach_it) {
	string_block block({"A=1"});
	enviroment_item item(block.pointers());
	base_config_item &base = item;
	std::list<quor::memory::pointers::rc_pointer<base_config_item>> const items;
	EXPECT_TRUE(base.load(items));
	EXPECT_NE(base.get_value("a"), nullptr);
	base.unload();
	EXPECT_EQ(base.get_value("a"), nullptr);
	EXPECT_TRUE(item.load(items));
	EXPECT_TRUE(base.save());
	EXPECT_TRUE(base.save(items));
	EXPECT_NE(item.get_value("a"), nullptr);
}

TEST(enviroment_item, copies_are_deep_and_start_fresh) {
	string_block block({"A=1"});
	quor::memory::pointers::rc_pointer<enviroment_item> const source(
	    quor::generic::abilities::create_dynamic<enviroment_item>(block.pointers()));
	source->load();
	enviroment_item copy(*source);
	EXPECT_EQ(copy.get_ref_count(), 0U);
	EXPECT_FALSE(copy.is_created_dynamic());
	EXPECT_EQ(copy.get_id(), "enviroment");
	EXPECT_EQ(copy.get_envp(), block.pointers());
	copy.set("a", "2", 0);
	EXPECT_EQ(source->get_value("a")->second.as_utf8(), "1");

	base_config_item const &base = copy;
	quor::memory::pointers::rc_pointer<base_config_item> const clone(base.clone());
	EXPECT_TRUE(clone->is_created_dynamic());
	EXPECT_EQ(clone->get_ref_count(), 1U);
	EXPECT_EQ(clone->get_id(), "enviroment");
	EXPECT_EQ(listing_of(*clone), entries{value("a", "2")});
	auto *const typed = dynamic_cast<enviroment_item *>(clone.get());
	ASSERT_NE(typed, nullptr);
	EXPECT_EQ(typed->get_envp(), block.pointers());
}

TEST(enviroment_item, assignment_replaces_all_but_count_and_mark) {
	string_block block({"A=1"});
	enviroment_item source(block.pointers());
	source.load();
	quor::memory::pointers::rc_pointer<enviroment_item> const target(
	    quor::generic::abilities::create_dynamic<enviroment_item>(nullptr));
	target->set("old", "x", 0);
	EXPECT_EQ(&(*target = source), target.get());
	EXPECT_EQ(target->get_ref_count(), 1U);
	EXPECT_TRUE(target->is_created_dynamic());
	EXPECT_EQ(target->get_envp(), block.pointers());
	source.set("a", "2", 0);
	EXPECT_EQ(listing_of(*target), entries{value("a", "1")});
	auto const &same = *target;
	*target = same;
	EXPECT_EQ(listing_of(*target), entries{value("a", "1")});
}

} // namespace
