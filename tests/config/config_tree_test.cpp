#include <quor/config/config_tree.hpp>

#include <string>
#include <typeinfo>
#include <vector>

#include <gtest/gtest.h>

#include <quor/types/nil.hpp>

namespace {

using QUOR_2_9::config::config_tree;
using QUOR_2_9::strings::ustring8;
using QUOR_2_9::types::nil;
using namespace std::string_literals;

ustring8 text_at(config_tree const &tree, ustring8 const &key) {
	config_tree::node_value const *const node = tree.get_node(key);
	return node != nullptr ? node->second.as_string() : ustring8("no such node");
}

TEST(config_tree, a_new_tree_is_an_empty_node) {
	config_tree const tree;
	EXPECT_TRUE(tree.children.empty());
	EXPECT_EQ(tree.node_data.first, 0u);
	EXPECT_TRUE(tree.node_data.second == nil);
	EXPECT_EQ(tree.get_ref_count(), 0u);
	EXPECT_FALSE(tree.is_created_dynamic());
	EXPECT_EQ(tree.get_node(""), nullptr);
	EXPECT_EQ(tree.get_node("a"), nullptr);
}

TEST(config_tree, a_node_can_be_made_with_its_contents) {
	config_tree const node(6, "text");
	EXPECT_EQ(node.node_data.first, 6u);
	EXPECT_EQ(node.node_data.second.as_string(), "text");
	EXPECT_TRUE(node.children.empty());
}

// Keys, each with the names of the nodes on its path.
struct path_row {
	std::string key;
	std::vector<std::string> names;
};

std::vector<path_row> paths() {
	return {
	    {"", {""}},
	    {".", {""}},
	    {"/", {""}},
	    {"\\", {""}},
	    {"..", {"", ""}},
	    {"...", {"", "", ""}},
	    {"a", {"a"}},
	    {"a.", {"a"}},
	    {"a/", {"a"}},
	    {"a..", {"a", ""}},
	    {"a...", {"a", "", ""}},
	    {".a", {"", "a"}},
	    {"..a", {"", "", "a"}},
	    {"a..b", {"a", "", "b"}},
	    {"a.b\\c/d", {"a", "b", "c", "d"}},
	    {"A.Bc.DEF", {"a", "bc", "def"}},
	    {"AZ[@`{az09", {"az[@`{az09"}},
	    {"\xC3\x84.\xE4\xFF", {"\xC3\x84", "\xE4\xFF"}},
	    {" a . b ", {" a ", " b "}},
	    {"list[0]=1", {"list[0]=1"}},
	    {"a\0b.\0"s, {"a\0b"s, "\0"s}},
	};
}

TEST(config_tree, keys_address_the_path_that_they_spell) {
	for (path_row const &row : paths()) {
		config_tree tree;
		tree.set_node(row.key, "value", 8);
		config_tree const *node = &tree;
		for (std::size_t i = 0; i != row.names.size(); ++i) {
			ASSERT_EQ(node->children.size(), 1u) << testing::PrintToString(row.key);
			EXPECT_EQ(node->children.begin()->first, row.names[i]) << testing::PrintToString(row.key);
			node = node->children.begin()->second.get();
			bool const last = i + 1 == row.names.size();
			EXPECT_EQ(node->node_data.first, last ? 9u : 0u);
			EXPECT_EQ(node->node_data.second == nil, !last);
			EXPECT_EQ(node->get_ref_count(), 1u);
			EXPECT_TRUE(node->is_created_dynamic());
		}
		EXPECT_TRUE(node->children.empty());
		EXPECT_EQ(tree.get_node(row.key), &node->node_data);
	}
}

// Around the size up to which a look-up takes no memory.
TEST(config_tree, keys_of_any_length_are_found) {
	for (std::size_t size : {254u, 255u, 256u, 257u, 1000u}) {
		ustring8 const upper(size, 'X');
		ustring8 const lower(size, 'x');
		config_tree tree;
		tree.set_node(upper + ".", 1, 0);
		tree.set_node(upper + ".Y", 2, 0);
		ASSERT_EQ(tree.children.size(), 1u) << size;
		EXPECT_EQ(tree.children.begin()->first, lower) << size;
		EXPECT_EQ(text_at(tree, lower), "1") << size;
		EXPECT_EQ(text_at(tree, lower + "/y"), "2") << size;
		EXPECT_EQ(tree.get_node(lower + "x"), nullptr) << size;
		EXPECT_EQ(tree.get_node(lower.substr(1)), nullptr) << size;
	}
}

TEST(config_tree, look_ups_know_neither_case_nor_separators) {
	config_tree tree;
	tree.set_node("A.B", "v", 0);
	config_tree::node_value const *const node = tree.get_node("a.b");
	ASSERT_NE(node, nullptr);
	EXPECT_EQ(node->first, 1u);
	for (char const *key : {"a/b", "a\\b", "A.B", "a.B/", "A/b\\"}) {
		EXPECT_EQ(tree.get_node(key), node) << key;
	}
	for (char const *key : {"", "b", ".", "a.", "a..b", "a.b.", "a.b..", ".a.b", "ab", "a.bc", "a b", "a:b"}) {
		bool const found = key == "a."s || key == "a.b."s;
		EXPECT_EQ(tree.get_node(key) != nullptr, found) << key;
	}
	EXPECT_EQ(tree.get_node("a")->first, 0u);
	EXPECT_TRUE(tree.get_node("a")->second == nil);
}

TEST(config_tree, letters_beyond_ascii_keep_their_case) {
	config_tree tree;
	tree.set_node("\xC3\x84", 1, 0);
	EXPECT_NE(tree.get_node("\xC3\x84"), nullptr);
	EXPECT_EQ(tree.get_node("\xC3\xA4"), nullptr);
	EXPECT_EQ(tree.get_node("\xE3\x84"), nullptr);
}

TEST(config_tree, set_node_always_turns_the_set_flag_on) {
	struct row {
		unsigned int passed;
		unsigned int stored;
	};
	for (row const &each : {row{0, 1}, row{1, 1}, row{2, 3}, row{3, 3}, row{4, 5}, row{6, 7}, row{8, 9},
	                        row{0xFFFFFFFE, 0xFFFFFFFF}, row{0xFFFFFFFF, 0xFFFFFFFF}}) {
		config_tree tree;
		tree.set_node("x", "v", each.passed);
		EXPECT_EQ(tree.get_node("x")->first, each.stored) << each.passed;
	}
}

TEST(config_tree, set_node_replaces_flags_and_value_and_keeps_children) {
	config_tree tree;
	tree.set_node("a", "old", 6);
	tree.set_node("a.b", "below", 0);
	config_tree::node_value const *const node = tree.get_node("a");
	tree.set_node("A", 7, 0);
	EXPECT_EQ(tree.get_node("a"), node);
	EXPECT_EQ(node->first, 1u);
	EXPECT_EQ(node->second.type(), typeid(int));
	EXPECT_EQ(text_at(tree, "a.b"), "below");
	tree.set_node("a", nil, 2);
	EXPECT_EQ(node->first, 3u);
	EXPECT_TRUE(node->second == nil);
	EXPECT_EQ(text_at(tree, "a.b"), "below");
}

TEST(config_tree, set_node_gives_passage_nodes_a_value) {
	config_tree tree;
	tree.set_node("a.b.c", 1, 0);
	tree.set_node("a.b", 2, 0);
	EXPECT_EQ(tree.get_node("a")->first, 0u);
	EXPECT_EQ(tree.get_node("a.b")->first, 1u);
	EXPECT_EQ(text_at(tree, "a.b"), "2");
	EXPECT_EQ(text_at(tree, "a.b.c"), "1");
}

TEST(config_tree, nodes_keep_their_addresses) {
	config_tree tree;
	tree.set_node("m.m", "first", 0);
	config_tree::node_value const *const node = tree.get_node("m.m");
	for (int i = 0; i != 1000; ++i) {
		tree.set_node(std::to_string(i), i, 0);
		tree.set_node("m." + std::to_string(i), i, 0);
		tree.set_node("m.m." + std::to_string(i), i, 0);
	}
	EXPECT_EQ(tree.get_node("m.m"), node);
	EXPECT_EQ(node->second.as_string(), "first");
}

TEST(config_tree, set_node_takes_values_of_its_own) {
	config_tree tree;
	tree.set_node("k", "a text that is longer than a small string", 0);
	tree.set_node("k", tree.get_node("k")->second, 4);
	EXPECT_EQ(tree.get_node("k")->first, 5u);
	EXPECT_EQ(text_at(tree, "k"), "a text that is longer than a small string");
	tree.set_node("k.below", tree.get_node("k")->second, tree.get_node("k")->first);
	EXPECT_EQ(text_at(tree, "k.below"), "a text that is longer than a small string");
	tree.set_node(tree.children.begin()->first, 1, 0);
	EXPECT_EQ(text_at(tree, "k"), "1");
}

TEST(config_tree, children_are_in_the_order_of_unsigned_bytes) {
	config_tree tree;
	std::vector<std::string> const sorted = {"",     "\0"s, "\0\0"s, "0", "1", "10",   "2",    "_",    "a",
	                                         "a\0"s, "a1",  "aa",    "b", "z", "\x7F", "\x80", "\xFF", "\xFF\x61"};
	for (auto it = sorted.rbegin(); it != sorted.rend(); ++it) {
		tree.set_node(*it, 1, 0);
	}
	std::vector<std::string> names;
	for (auto const &child : tree.children) {
		names.push_back(child.first);
	}
	EXPECT_EQ(names, sorted);
}

TEST(config_tree, erase_removes_children_and_keeps_the_own_value) {
	config_tree tree(5, "own");
	tree.erase();
	tree.set_node("a.b", 1, 0);
	tree.set_node("c", 2, 0);
	tree.erase();
	EXPECT_TRUE(tree.children.empty());
	EXPECT_EQ(tree.node_data.first, 5u);
	EXPECT_EQ(tree.node_data.second.as_string(), "own");
	EXPECT_EQ(tree.get_node("a"), nullptr);
	tree.set_node("a", 3, 0);
	EXPECT_EQ(text_at(tree, "a"), "3");
}

TEST(config_tree, a_null_child_is_a_missing_node) {
	config_tree tree;
	tree.set_node("a", 1, 0);
	tree.children["null"] = nullptr;
	EXPECT_EQ(tree.get_node("null"), nullptr);
	EXPECT_EQ(tree.get_node("null.x"), nullptr);
	config_tree::value_pair_array out;
	tree.get_value_pair_array("", out, true, "");
	EXPECT_EQ(out.size(), 1u);
	tree.set_node("null.x", 2, 0);
	EXPECT_EQ(text_at(tree, "null.x"), "2");
	tree.children["last"] = nullptr;
	tree.set_node("last", 3, 0);
	EXPECT_EQ(text_at(tree, "last"), "3");
	tree.children["last"] = nullptr;
	tree.erase();
	EXPECT_TRUE(tree.children.empty());
}

struct split_row {
	std::string key;
	std::string head;
	std::string tail;
};

TEST(config_tree, parse_string_cuts_at_the_first_separator) {
	config_tree const tree;
	split_row const rows[] = {
	    {"", "", ""},           {"a", "a", ""},      {"A.B.C", "a", "B.C"},     {"a/B\\c", "a", "B\\c"},
	    {"Ab\\", "ab", ""},     {".", "", ""},       {".A", "", "A"},           {"..", "", "."},
	    {"a..", "a", "."},      {"a./b", "a", "/b"}, {"\xC4Z.x", "\xC4z", "x"}, {"A\0B.C\0D"s, "a\0b"s, "C\0D"s},
	    {"a,b;c", "a,b;c", ""},
	};
	for (split_row const &row : rows) {
		ustring8 head("old head");
		ustring8 tail("old tail");
		tree.parse_string(row.key, head, tail);
		EXPECT_EQ(head, row.head) << row.key;
		EXPECT_EQ(tail, row.tail) << row.key;
	}
}

TEST(config_tree, parse_string_may_write_over_its_key) {
	config_tree const tree;
	ustring8 other;
	ustring8 key("Head.Tail.More");
	tree.parse_string(key, key, other);
	EXPECT_EQ(key, "head");
	EXPECT_EQ(other, "Tail.More");
	key = "Head.Tail.More";
	tree.parse_string(key, other, key);
	EXPECT_EQ(other, "head");
	EXPECT_EQ(key, "Tail.More");
}

TEST(config_tree, values_are_stored_with_their_types) {
	config_tree tree;
	tree.set_node("t", "text", 0);
	tree.set_node("i", 5, 0);
	tree.set_node("d", 1.5, 0);
	tree.set_node("b", true, 0);
	EXPECT_EQ(tree.get_node("t")->second.type(), typeid(ustring8));
	EXPECT_EQ(tree.get_node("i")->second.type(), typeid(int));
	EXPECT_EQ(tree.get_node("d")->second.type(), typeid(double));
	EXPECT_EQ(tree.get_node("b")->second.type(), typeid(bool));
}

} // namespace
