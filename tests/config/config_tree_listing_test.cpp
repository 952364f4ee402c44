// Arrays, listings and dumps of the tree of keys.

#include <iomanip>
#include <locale>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <quor/config/config_tree.hpp>
#include <quor/types/nil.hpp>

#include "support/comma_locale.hpp"

namespace {

using QUOR_2_9::config::config_tree;
using QUOR_2_9::strings::ustring8;
using QUOR_2_9::types::nil;
using namespace std::string_literals;

// "name flags value" of each entry; nil is "-".
std::vector<std::string> lines_of(config_tree::value_pair_array const &entries) {
	std::vector<std::string> lines;
	for (auto const &[name, data] : entries) {
		std::string const value = data.second == nil ? "-" : data.second.as_string();
		lines.push_back(name + ' ' + std::to_string(data.first) + ' ' + value);
	}
	return lines;
}

using lines = std::vector<std::string>;

lines array_of(config_tree const &tree, ustring8 const &key) {
	config_tree::value_pair_array out;
	tree.get_array(key, out);
	return lines_of(out);
}

lines pairs_of(config_tree const &tree, ustring8 const &key, bool recursive, ustring8 const &prefix = "") {
	config_tree::value_pair_array out;
	tree.get_value_pair_array(key, out, recursive, prefix);
	return lines_of(out);
}

config_tree array_tree(int count) {
	config_tree tree;
	tree.set_node("a.list", nil, 2);
	for (int i = 0; i != count; ++i) {
		tree.set_node("a.list." + std::to_string(i), i * 10, 0);
	}
	return tree;
}

TEST(get_array, elements_come_in_numeric_order) {
	lines expected;
	config_tree const tree = array_tree(12);
	for (int i = 0; i != 12; ++i) {
		expected.push_back(std::to_string(i) + " 1 " + std::to_string(i * 10));
	}
	EXPECT_EQ(array_of(tree, "a.list"), expected);
	EXPECT_EQ(array_of(tree, "A/LIST/"), expected);
}

TEST(get_array, the_first_gap_ends_the_array) {
	config_tree tree = array_tree(2);
	tree.set_node("a.list.3", "behind the gap", 0);
	EXPECT_EQ(array_of(tree, "a.list"), (lines{"0 1 0", "1 1 10"}));
	tree.set_node("a.list.2", "in the gap", 0);
	EXPECT_EQ(array_of(tree, "a.list"), (lines{"0 1 0", "1 1 10", "2 1 in the gap", "3 1 behind the gap"}));
}

TEST(get_array, an_array_begins_at_zero) {
	config_tree tree;
	tree.set_node("l", nil, 2);
	EXPECT_EQ(array_of(tree, "l"), lines{});
	for (char const *name : {"l.1", "l.00", "l.+0", "l. 0", "l.0x0"}) {
		tree.set_node(name, 1, 0);
		EXPECT_EQ(array_of(tree, "l"), lines{}) << name;
	}
	tree.set_node("l.0", 5, 4);
	EXPECT_EQ(array_of(tree, "l"), (lines{"0 5 5", "1 1 1"}));
}

TEST(get_array, only_array_heads_have_elements) {
	for (unsigned int flags : {0u, 1u, 4u, 5u, 8u, 0xFFFFFFFDu}) {
		config_tree tree = array_tree(2);
		tree.set_node("a.list", nil, flags);
		EXPECT_EQ(array_of(tree, "a.list"), lines{}) << flags;
	}
	for (unsigned int flags : {2u, 3u, 6u, 0xFFFFFFFFu}) {
		config_tree tree = array_tree(2);
		tree.set_node("a.list", "not nil", flags);
		EXPECT_EQ(array_of(tree, "a.list").size(), 2u) << flags;
	}
}

TEST(get_array, missing_keys_and_the_root_add_nothing) {
	config_tree tree = array_tree(2);
	tree.node_data.first = 3;
	tree.set_node("0", "root", 0);
	for (char const *key : {"", ".", "b", "a", "a.list.0", "a.list.x", "a.list..", "a..list"}) {
		EXPECT_EQ(array_of(tree, key), lines{}) << key;
	}
}

TEST(get_array, elements_may_be_passages_or_have_children) {
	config_tree tree;
	tree.set_node("l", nil, 2);
	tree.set_node("l.0.name", "below", 0);
	tree.set_node("l.1", 7, 2);
	EXPECT_EQ(array_of(tree, "l"), (lines{"0 0 -", "1 3 7"}));
}

TEST(get_array, entries_are_appended) {
	config_tree const tree = array_tree(2);
	config_tree::value_pair_array out;
	tree.get_array("a.list", out);
	tree.get_array("a.list", out);
	out.emplace_back("a.list", config_tree::node_value(0, nil));
	tree.get_array(out.back().first, out);
	EXPECT_EQ(out.size(), 7u);
	EXPECT_EQ(out[6].first, "1");
	EXPECT_EQ(out[0].second.second.as_int(), 0);
}

TEST(get_value_pair_array, children_come_in_the_order_of_their_names) {
	config_tree const tree = array_tree(12);
	lines const expected = {"0 1 0",  "1 1 10", "10 1 100", "11 1 110", "2 1 20", "3 1 30",
	                        "4 1 40", "5 1 50", "6 1 60",   "7 1 70",   "8 1 80", "9 1 90"};
	EXPECT_EQ(pairs_of(tree, "a.list", false), expected);
}

config_tree section_tree() {
	config_tree tree;
	tree.set_node("server.log.level", 3, 0);
	tree.set_node("server.host", "alpha", 0);
	tree.set_node("server.log", "file", 0);
	tree.set_node("top", 1, 4);
	return tree;
}

TEST(get_value_pair_array, names_are_relative_to_the_node) {
	config_tree const tree = section_tree();
	EXPECT_EQ(pairs_of(tree, "", false), (lines{"server 0 -", "top 5 1"}));
	EXPECT_EQ(pairs_of(tree, "", true),
	          (lines{"server 0 -", "server.host 1 alpha", "server.log 1 file", "server.log.level 1 3", "top 5 1"}));
	EXPECT_EQ(pairs_of(tree, "server", false), (lines{"host 1 alpha", "log 1 file"}));
	EXPECT_EQ(pairs_of(tree, "SERVER/", true), (lines{"host 1 alpha", "log 1 file", "log.level 1 3"}));
	EXPECT_EQ(pairs_of(tree, "server.log", true), (lines{"level 1 3"}));
	EXPECT_EQ(pairs_of(tree, "server.log.level", true), lines{});
}

TEST(get_value_pair_array, missing_nodes_add_nothing) {
	config_tree const tree = section_tree();
	for (char const *key : {"x", "server.x", "server.log.level.x", ".", "..", "server..", "top.."}) {
		EXPECT_EQ(pairs_of(tree, key, true), lines{}) << key;
	}
	EXPECT_EQ(pairs_of(config_tree(), "", true), lines{});
}

TEST(get_value_pair_array, a_prefix_counts_for_the_empty_key_alone) {
	config_tree const tree = section_tree();
	EXPECT_EQ(pairs_of(tree, "", false, "p"), (lines{"p.server 0 -", "p.top 5 1"}));
	EXPECT_EQ(pairs_of(tree, "", true, "P.q."),
	          (lines{"P.q..server 0 -", "P.q..server.host 1 alpha", "P.q..server.log 1 file",
	                 "P.q..server.log.level 1 3", "P.q..top 5 1"}));
	EXPECT_EQ(pairs_of(tree, "server.log", true, "p"), (lines{"level 1 3"}));
}

TEST(get_value_pair_array, children_of_an_empty_name_have_bare_names) {
	config_tree tree;
	tree.set_node(".a.b", 1, 0);
	tree.set_node("..c", 2, 0);
	tree.set_node("d..e", 3, 0);
	EXPECT_EQ(pairs_of(tree, "", true),
	          (lines{" 0 -", " 0 -", "c 1 2", "a 0 -", "a.b 1 1", "d 0 -", "d. 0 -", "d..e 1 3"}));
	EXPECT_EQ(pairs_of(tree, "", true, "p"),
	          (lines{"p. 0 -", "p.. 0 -", "p...c 1 2", "p..a 0 -", "p..a.b 1 1", "p.d 0 -", "p.d. 0 -", "p.d..e 1 3"}));
	EXPECT_EQ(pairs_of(tree, ".", true), (lines{" 0 -", "c 1 2", "a 0 -", "a.b 1 1"}));
	EXPECT_EQ(pairs_of(tree, "d", true), (lines{" 0 -", "e 1 3"}));
}

TEST(get_value_pair_array, entries_are_appended) {
	config_tree const tree = section_tree();
	config_tree::value_pair_array out;
	tree.get_value_pair_array("server", out, false, "");
	tree.get_value_pair_array("", out, false, out[0].first);
	EXPECT_EQ(lines_of(out), (lines{"host 1 alpha", "log 1 file", "host.server 0 -", "host.top 5 1"}));
}

std::string dump_of(config_tree const &tree, int indent) {
	std::ostringstream out;
	tree.dump(out, indent);
	return out.str();
}

TEST(dump, a_tree_of_two_levels_is_as_told) {
	config_tree tree;
	tree.set_node("a.b", 1, 0);
	tree.set_node("c", 2, 0);
	std::string const expected = "a : true\n"
	                             "|---------------\\\n"
	                             "|\t\tb : 1 1\n"
	                             "|\t\t|\n"
	                             "|\t\tend\n"
	                             "c : 1 2\n"
	                             "|\n"
	                             "end\n";
	EXPECT_EQ(dump_of(tree, 0), expected);
	std::ostringstream out;
	EXPECT_EQ(&(out << tree), &out);
	EXPECT_EQ(out.str(), expected);
}

TEST(dump, each_line_is_indented) {
	config_tree tree;
	tree.set_node("a.b", 1, 0);
	EXPECT_EQ(dump_of(tree, 2), "|\t\t|\t\ta : true\n"
	                            "|\t\t|\t\t|---------------\\\n"
	                            "|\t\t|\t\t|\t\tb : 1 1\n"
	                            "|\t\t|\t\t|\t\t|\n"
	                            "|\t\t|\t\t|\t\tend\n"
	                            "|\t\t|\t\tend\n");
}

TEST(dump, negative_indents_are_counted_up_to_the_first_bar) {
	config_tree tree;
	tree.set_node("a.b.c", 1, 0);
	std::string const head = "|---------------\\\n";
	EXPECT_EQ(dump_of(tree, -1), "a : true\n" + head + "b : true\n" + head +
	                                 "|\t\tc : 1 1\n"
	                                 "|\t\t|\n"
	                                 "|\t\tend\n"
	                                 "end\n"
	                                 "end\n");
	std::string const flat = "a : true\n" + head + "b : true\n" + head + "c : 1 1\n|\nend\nend\nend\n";
	EXPECT_EQ(dump_of(tree, -2), flat);
	EXPECT_EQ(dump_of(tree, -2147483647 - 1), flat);
}

TEST(dump, an_empty_tree_is_its_end) {
	struct row {
		int indent;
		std::string bar;
	};
	for (row const &each :
	     {row{0, ""}, row{1, "|\t\t"}, row{3, "|\t\t|\t\t|\t\t"}, row{-1, ""}, row{-2147483647, ""}}) {
		EXPECT_EQ(dump_of(config_tree(3, "own"), each.indent), each.bar + "end\n") << each.indent;
	}
	std::string bars;
	for (int indent = 0; indent != 40; ++indent, bars += "|\t\t") {
		EXPECT_EQ(dump_of(config_tree(), indent), bars + "end\n") << indent;
	}
}

TEST(dump, flags_and_values_are_written_as_texts) {
	config_tree tree;
	tree.set_node("array", nil, 2);
	tree.set_node("array.0", "x", 0);
	tree.set_node("big", 1.5, 0xFFFFFFFE);
	tree.set_node("empty", "", 0);
	tree.set_node("ref", "array", 4);
	EXPECT_EQ(dump_of(tree, 0), "array : 3 \n"
	                            "|---------------\\\n"
	                            "|\t\t0 : 1 x\n"
	                            "|\t\t|\n"
	                            "|\t\tend\n"
	                            "big : 4294967295 1.5\n"
	                            "|\n"
	                            "empty : 1 \n"
	                            "|\n"
	                            "ref : 5 array\n"
	                            "|\n"
	                            "end\n");
}

TEST(dump, names_and_values_are_written_in_full_length) {
	config_tree tree;
	tree.set_node("n\0m"s, ustring8("v\0w\nx", 5), 0);
	EXPECT_EQ(dump_of(tree, 0), "n\0m : 1 v\0w\nx\n|\nend\n"s);
}

TEST(dump, format_and_locale_of_the_stream_play_no_part) {
	config_tree tree;
	tree.set_node("n", 123456, 1233);
	std::ostringstream out;
	out.imbue(std::locale(std::locale::classic(), new quor_test::comma_punctuation));
	out << std::hex << std::showbase << std::setw(30) << std::setfill('*');
	tree.dump(out, 1);
	EXPECT_EQ(out.str(), "|\t\tn : 1233 123456\n|\t\t|\n|\t\tend\n");
}

} // namespace
