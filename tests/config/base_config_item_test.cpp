#include <quor/config/base_config_item.hpp>

#include <iomanip>
#include <sstream>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <quor/types/nil.hpp>
#include <quor/types/widths.hpp>

#include "support/config_sources.hpp"
#include "support/open_config_item.hpp"

namespace {

using QUOR_2_9::config::base_config_item;
using QUOR_2_9::config::config_token;
using QUOR_2_9::config::config_tree;
using QUOR_2_9::generic::argument;
using QUOR_2_9::generic::varg_list;
using QUOR_2_9::strings::ustring8;
using QUOR_2_9::types::nil;
using QUOR_2_9::types::variant;
using quor_test::config_entry;
using quor_test::head;
using quor_test::listing_of;
using quor_test::open_config_item;
using quor_test::passage;
using quor_test::value;
using namespace std::string_literals;
using entries = std::vector<config_entry>;
using pointer = QUOR_2_9::memory::pointers::rc_pointer<base_config_item>;

struct assignment_row {
	std::string line;
	config_token::tok_types stop;
	std::string key;
	std::string value;
};

std::vector<assignment_row> assignments() {
	using t = config_token;
	return {
	    {"", t::T_EQ, "", ""},
	    {"a = b c", t::T_EQ, "a", "bc"},
	    {"a.b = 1 2", t::T_EQ, "a.b", "12"},
	    {"flag", t::T_EQ, "flag", ""},
	    {"flag\nmore", t::T_EQ, "flagmore", ""},
	    {"a=", t::T_EQ, "a", ""},
	    {"=b", t::T_EQ, "", "b"},
	    {"=", t::T_EQ, "", ""},
	    {" a\tb\r\nc = \t d\te ", t::T_EQ, "abc", "de"},
	    {"a=b\nc=d", t::T_EQ, "a", "b"},
	    {"a=b\r\nc=d", t::T_EQ, "a", "b"},
	    {"a=\nb", t::T_EQ, "a", ""},
	    {"a=b\rc", t::T_EQ, "a", "b\rc"},
	    {"a\rb=c", t::T_EQ, "a\rb", "c"},
	    {"a = \"b  c\" d", t::T_EQ, "a", "b  cd"},
	    {"a = \"b\nc\" d\ne", t::T_EQ, "a", "b\ncd"},
	    {"\"a b\" = c", t::T_EQ, "a b", "c"},
	    {"\"a=b\" = c", t::T_EQ, "a=b", "c"},
	    {"a = \"b", t::T_EQ, "a", "b"},
	    {"a = \"b\\", t::T_EQ, "a", "b\\\0"s},
	    {"a = \"b\\\"c\"", t::T_EQ, "a", "b\\\"c"},
	    {"a=b=c", t::T_EQ, "a", "b=c"},
	    {"a==b", t::T_EQ, "a==b", ""},
	    {"a==b=c", t::T_EQ, "a==b", "c"},
	    {"a+=b", t::T_EQ, "a+=b", ""},
	    {"a:=b", t::T_EQ, "a:=b", ""},
	    {"a= =b", t::T_EQ, "a", "=b"},
	    {"a = b // c # d", t::T_EQ, "a", "b//c#d"},
	    {"a = C:\\dir\\file name", t::T_EQ, "a", "C:\\dir\\filename"},
	    {"\xC3\xA4 = \xE4\0"s, t::T_EQ, "\xC3\xA4", "\xE4\0"s},
	    {"a\0b=c\0d"s, t::T_EQ, "a\0b"s, "c\0d"s},
	    {"a:b=c", t::T_COLON, "a", "b=c"},
	    {"a*/b//c", t::T_FSFS, "a*/b", "c"},
	    {"a*/b//c", t::T_COMMENT_CLOSE, "a", "b//c"},
	    {"a b\tc\nd", t::T_SPACE, "a", "bc"},
	    {"a b\tc d", t::T_TABCHAR, "ab", "cd"},
	    {"a b\nc d\ne", t::T_NEWLINE, "ab", "cd"},
	    {"a=b\nc", t::T_END, "a=bc", ""},
	    {"x1y", t::T_NUM, "x", "y"},
	    {"a \"b\" c", t::T_STRING, "a", "c"},
	};
}

TEST(base_config_item, make_key_value_reads_assignments) {
	open_config_item const item;
	for (assignment_row const &row : assignments()) {
		std::pair<ustring8, variant> const result = item.make_key_value(row.line, row.stop);
		EXPECT_EQ(result.first, row.key) << row.line;
		EXPECT_EQ(result.second.as_string(), row.value) << row.line;
		EXPECT_EQ(result.second.type(), typeid(ustring8)) << row.line;
	}
}

TEST(base_config_item, set_of_a_value_stores_it) {
	open_config_item item;
	item.set("A.b", 5, 0);
	item.set("t", "text", 4);
	item.set("n", nil, 2);
	item.set(std::make_pair(ustring8("p"), variant(1.5)), 8);
	item.set(std::make_pair("q", true), 0);
	EXPECT_EQ(
	    listing_of(item),
	    (entries{passage("a"), value("a.b", "5"), head("n"), {"p", 9, "1.5"}, value("q", "1"), {"t", 5, "text"}}));
	EXPECT_EQ(item.get_value("a.b")->second.type(), typeid(int));
	EXPECT_EQ(item.get_value("a/B"), item.item_tree.get_node("a.b"));
	EXPECT_EQ(item.get_value("a.c"), nullptr);
}

TEST(base_config_item, set_of_two_arguments_reads_an_assignment) {
	open_config_item item;
	item.set("a.b = 1 2", 0);
	item.set("flag", 1);
	item.set("ref = a.b", 4);
	item.set("", 0);
	EXPECT_EQ(listing_of(item),
	          (entries{value("", ""), passage("a"), value("a.b", "12"), value("flag", ""), {"ref", 5, "a.b"}}));
	EXPECT_EQ(item.get_value("a.b")->second.type(), typeid(ustring8));
}

TEST(base_config_item, set_array_stores_a_head_and_elements) {
	open_config_item item;
	item.set_array("L.m", varg_list("x", 2, 3.5), varg_list());
	EXPECT_EQ(listing_of(item),
	          (entries{passage("l"), head("l.m"), value("l.m.0", "x"), value("l.m.1", "2"), value("l.m.2", "3.5")}));
	EXPECT_EQ(item.get_value("l.m.0")->second.type(), typeid(ustring8));
	EXPECT_EQ(item.get_value("l.m.1")->second.type(), typeid(int));
	EXPECT_EQ(item.get_value("l.m.2")->second.type(), typeid(double));
	config_tree::value_pair_array out;
	item.get_array("l/M", out);
	ASSERT_EQ(out.size(), 3u);
	EXPECT_EQ(out[2].first, "2");
}

TEST(base_config_item, set_array_of_nothing_stores_a_head) {
	for (varg_list const &flags : {varg_list(), varg_list(4)}) {
		open_config_item item;
		item.set_array("l.", varg_list(), flags);
		EXPECT_EQ(listing_of(item), (entries{head("l")}));
	}
}

TEST(base_config_item, set_array_with_flags_makes_numbers_behind_them) {
	open_config_item item;
	varg_list values("a", "b", "-4", "0x10y");
	values.push_back("", "99999999999");
	values.push_back("", 3.9);
	values.push_back("", nil);
	values.push_back("", -1);
	item.set_array("l", values, varg_list(4, "0x20"));
	EXPECT_EQ(listing_of(item), (entries{head("l"),
	                                     {"l.0", 5, "a"},
	                                     {"l.1", 33, "b"},
	                                     value("l.2", "0"),
	                                     value("l.3", "16"),
	                                     value("l.4", "4294967295"),
	                                     value("l.5", "3"),
	                                     value("l.6", "0"),
	                                     value("l.7", "4294967295")}));
	for (char const *key : {"l.2", "l.3", "l.4", "l.5", "l.6", "l.7"}) {
		EXPECT_EQ(item.get_value(key)->second.type(), typeid(QUOR_2_9::types::ulong_t)) << key;
	}
	EXPECT_EQ(item.get_value("l.1")->second.type(), typeid(ustring8));
}

TEST(base_config_item, set_array_ignores_flags_behind_the_values) {
	open_config_item item;
	varg_list const flags(4, -1, 8);
	item.set_array("l", varg_list("a", "b"), flags);
	EXPECT_EQ(listing_of(item), (entries{head("l"), {"l.0", 5, "a"}, {"l.1", 0xFFFFFFFF, "b"}}));
}

TEST(base_config_item, set_array_takes_named_and_nil_arguments) {
	open_config_item item;
	varg_list values(argument("name", "a"), argument("other", 2));
	values.push_back(nil);
	item.set_array("l", values, varg_list());
	EXPECT_EQ(listing_of(item), (entries{head("l"), value("l.0", "a"), value("l.1", "2"), {"l.2", 1, std::nullopt}}));
}

TEST(base_config_item, set_array_leaves_older_elements) {
	open_config_item item;
	item.set_array("l", varg_list("a", "b", "c"), varg_list());
	item.set("l.0.below", 1, 0);
	item.set_array("l", varg_list("x"), varg_list());
	EXPECT_EQ(listing_of(item),
	          (entries{head("l"), value("l.0", "x"), value("l.0.below", "1"), value("l.1", "b"), value("l.2", "c")}));
	config_tree::value_pair_array out;
	item.get_array("l", out);
	EXPECT_EQ(out.size(), 3u);
}

struct array_key_row {
	char const *key;
	std::string head;
	std::string first;
};

TEST(base_config_item, set_array_keys_that_end_in_a_separator_have_other_elements) {
	array_key_row const rows[] = {
	    {"l", "l", "l.0"}, {"l.", "l", "l..0"},  {"l..", "l.", "l...0"},     {"", "", ".0"},
	    {".", "", "..0"},  {"..", "..", "...0"}, {"a/l\\", "a.l", "a.l..0"}, {".l", ".l", ".l.0"},
	};
	for (array_key_row const &row : rows) {
		open_config_item item;
		item.set_array(row.key, varg_list("x", "y"), varg_list());
		quor_reference::config_node expected;
		expected.set_array(row.key, {"x", "y"});
		entries lines;
		expected.list(lines);
		EXPECT_EQ(listing_of(item), lines) << row.key;
		config_tree::node_value const *const found = item.get_value(row.key);
		ASSERT_NE(found, nullptr);
		EXPECT_EQ(found->first, 3u) << row.key;
		ASSERT_NE(item.get_value(row.first), nullptr) << row.key;
		EXPECT_EQ(item.get_value(row.first)->second.as_string(), "x") << row.key;
		config_tree::value_pair_array out;
		item.get_array(row.key, out);
		bool const below_head =
		    config_tree(item.item_tree).get_node(ustring8(row.key) + ".0") != nullptr &&
		    (*row.key == '\0' || ustring8(row.key).find_last_of("./\\") != ustring8(row.key).size() - 1);
		EXPECT_EQ(out.size(), below_head ? 2u : 0u) << row.key;
	}
}

TEST(base_config_item, everyday_arguments_need_no_casts) {
	open_config_item item;
	std::string const key("plain");
	item.set(key, key + "!", 0);
	item.set(key + ".literal", "text", 0);
	item.set("long", 1L, 0);
	item.set("flag", true, config_tree::flag_reference);
	item.set(key + ".line = 1", 0);
	item.set(item.make_key_value("colon: 2", config_token::T_COLON), 0);
	item.set_array(key + ".list", {"a", 2}, {});
	item.set_array("none", {}, {});
	EXPECT_EQ(listing_of(std::as_const(item)), (entries{value("colon", "2"),
	                                                    {"flag", 5, "1"},
	                                                    value("long", "1"),
	                                                    head("none"),
	                                                    value("plain", "plain!"),
	                                                    value("plain.line", "1"),
	                                                    head("plain.list"),
	                                                    value("plain.list.0", "a"),
	                                                    value("plain.list.1", "2"),
	                                                    value("plain.literal", "text")}));
}

TEST(base_config_item, listings_begin_below_the_key) {
	open_config_item item;
	item.set("a.b.c", 1, 0);
	config_tree::value_pair_array out;
	item.get_value_pair_array("a", out, false);
	ASSERT_EQ(out.size(), 1u);
	EXPECT_EQ(out[0].first, "b");
	item.get_value_pair_array("a", out, true);
	ASSERT_EQ(out.size(), 3u);
	EXPECT_EQ(out[2].first, "b.c");
	item.get_value_pair_array("", out, true);
	ASSERT_EQ(out.size(), 6u);
	EXPECT_EQ(out[5].first, "a.b.c");
}

TEST(base_config_item, dump_writes_id_and_tree) {
	open_config_item item;
	std::ostringstream out;
	item.dump(out);
	EXPECT_EQ(out.str(), "object : \n|---------------\\\n|\t\tend\nend\n");
	item.item_id = "my \0item"s;
	item.set("a.b", 1, 0);
	std::ostringstream second;
	second << std::hex << std::setw(40);
	EXPECT_EQ(&(second << item), &second);
	EXPECT_EQ(second.str(), "object : my \0item\n"
	                        "|---------------\\\n"
	                        "|\t\ta : true\n"
	                        "|\t\t|---------------\\\n"
	                        "|\t\t|\t\tb : 1 1\n"
	                        "|\t\t|\t\t|\n"
	                        "|\t\t|\t\tend\n"
	                        "|\t\tend\n"
	                        "end\n"s);
}

TEST(base_config_item, the_base_does_nothing_and_says_so) {
	open_config_item item;
	item.set("a", 1, 0);
	EXPECT_EQ(item.get_id(), "");
	EXPECT_TRUE(item.load());
	EXPECT_TRUE(item.load({}));
	EXPECT_TRUE(item.save());
	EXPECT_TRUE(item.save({}));
	item.unload();
	EXPECT_EQ(listing_of(item), (entries{value("a", "1")}));
}

// Counts the forms without a list.
class counting_item : public base_config_item {
public:
	using base_config_item::load;
	using base_config_item::save;
	bool load() override {
		++loads;
		return false;
	}
	bool save() override {
		++saves;
		return false;
	}
	counting_item *clone() const override { return nullptr; }

	int loads = 0;
	int saves = 0;
};

TEST(base_config_item, load_with_a_list_loads_and_save_with_a_list_does_not_save) {
	counting_item item;
	EXPECT_FALSE(item.load({}));
	EXPECT_EQ(item.loads, 1);
	EXPECT_TRUE(item.save({}));
	EXPECT_EQ(item.saves, 0);
}

TEST(base_config_item, copies_are_deep_and_held_by_nobody) {
	pointer const held(QUOR_2_9::generic::abilities::create_dynamic<open_config_item>());
	auto &source = static_cast<open_config_item &>(*held);
	source.item_id = "mine";
	source.set("a.b", 1, 0);
	open_config_item copy(source);
	EXPECT_EQ(copy.get_ref_count(), 0u);
	EXPECT_FALSE(copy.is_created_dynamic());
	EXPECT_EQ(copy.get_id(), "mine");
	source.set("a.b", 2, 0);
	EXPECT_EQ(listing_of(copy), (entries{passage("a"), value("a.b", "1")}));
	pointer const clone(source.clone());
	EXPECT_EQ(clone->get_ref_count(), 1u);
	EXPECT_TRUE(clone->is_created_dynamic());
	EXPECT_EQ(listing_of(*clone), (entries{passage("a"), value("a.b", "2")}));
}

TEST(base_config_item, assignment_keeps_count_and_mark) {
	pointer const held(QUOR_2_9::generic::abilities::create_dynamic<open_config_item>());
	open_config_item source;
	source.item_id = "source";
	source.set("k", 1, 0);
	auto &target = static_cast<open_config_item &>(*held);
	target.set("old", 1, 0);
	target = source;
	EXPECT_EQ(held->get_ref_count(), 1u);
	EXPECT_TRUE(held->is_created_dynamic());
	EXPECT_EQ(held->get_id(), "source");
	EXPECT_EQ(listing_of(target), (entries{value("k", "1")}));
	open_config_item const &self = target;
	target = self;
	EXPECT_EQ(listing_of(target), (entries{value("k", "1")}));
	EXPECT_EQ(target.get_id(), "source");
}

TEST(base_config_item, a_failing_assignment_changes_nothing) {
	open_config_item source;
	source.item_id = "source";
	source.item_tree.children["null"] = nullptr;
	open_config_item target;
	target.item_id = "target";
	target.set("k", 1, 0);
	EXPECT_THROW(target = source, char const *);
	EXPECT_EQ(target.get_id(), "target");
	EXPECT_EQ(listing_of(target), (entries{value("k", "1")}));
	EXPECT_THROW(open_config_item{source}, char const *);
}

TEST(base_config_item, queries_are_const) {
	open_config_item const item;
	config_tree::value_pair_array out;
	std::ostringstream os;
	item.get_array("a", out);
	item.get_value_pair_array("", out, true);
	item.dump(os);
	EXPECT_TRUE(item.get_id().empty() && out.empty() && item.get_value("a") == nullptr);
	static_assert(std::is_abstract_v<base_config_item> && std::has_virtual_destructor_v<base_config_item>);
}

} // namespace
