// Trees of outside input: what they ask of the heap and the call stack, and what is left
// when memory runs out.

#include <limits>
#include <ostream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include <quor/config/config_tree.hpp>
#include <quor/types/nil.hpp>

#include "config/token_scanner.hpp"
#include "support/allocation_counter.hpp"
#include "support/open_config_item.hpp"

namespace {

using QUOR_2_9::config::config_token;
using QUOR_2_9::config::config_tree;
using QUOR_2_9::generic::varg_list;
using QUOR_2_9::strings::ustring8;
using QUOR_2_9::types::variant;
using quor_test::allocation_counter;
using quor_test::allocation_failure;

constexpr std::size_t million = 1000000;

std::string dump_of(config_tree const &tree) {
	std::ostringstream out;
	out << tree;
	return out.str();
}

TEST(config_tree_growth, look_ups_allocate_nothing) {
	config_tree tree;
	tree.set_node("A section.with a rather long name/of the key", 1, 0);
	for (ustring8 const &key :
	     {ustring8("a SECTION.with a rather long name/of the key"), ustring8("a section"), ustring8("missing"),
	      ustring8("a section.missing"), ustring8(256, '.'), ustring8(256, 'x')}) {
		allocation_counter const counter;
		config_tree::node_value const *const node = tree.get_node(key);
		EXPECT_EQ(counter.count(), 0u) << key;
		EXPECT_EQ(node != nullptr, key.size() < 256 && key.find("missing") == ustring8::npos) << key;
	}
	ustring8 const longer(257, 'x');
	allocation_counter const counter;
	tree.get_node(longer);
	EXPECT_LE(counter.count(), 1u);
}

TEST(config_tree_growth, replacing_a_value_allocates_nothing) {
	config_tree tree;
	tree.set_node("a.b.c", 1, 0);
	ustring8 const key("A.b.C");
	variant const value(2);
	allocation_counter const counter;
	tree.set_node(key, value, 0);
	EXPECT_EQ(counter.count(), 0u);
}

TEST(config_tree_growth, destruction_allocates_nothing) {
	allocation_counter const whole;
	{
		config_tree tree;
		for (int i = 0; i != 200; ++i) {
			tree.set_node(std::to_string(i % 7) + '.' + std::to_string(i % 11) + '.' + std::to_string(i), i, 0);
		}
		tree.set_node(ustring8(1000, '.'), 1, 0);
		allocation_counter const counter;
		tree.erase();
		EXPECT_EQ(counter.count(), 0u);
	}
	EXPECT_EQ(whole.live(), 0);
}

TEST(config_tree_growth, tokens_with_short_texts_allocate_nothing) {
	quor_test::open_config_item const item;
	ustring8 const text("key[] = 12, \"a string\" // rest of it\r\n");
	config_token token;
	unsigned int pos = 0;
	allocation_counter const counter;
	while (item.get_token(text, pos, token) != config_token::T_END) {
	}
	EXPECT_EQ(counter.count(), 0u);
}

TEST(config_tree_growth, a_failing_set_node_changes_nothing) {
	config_tree source;
	source.set_node("a.b", "value", 0);
	source.set_node("z", "value", 0);
	for (char const *const key :
	     {"a.b", "a", "a.new", "new", "a.b.new/with a name that is long.and.more.of.it", "...."}) {
		config_tree expected(source);
		expected.set_node(key, "another value that is long enough", 2);
		for (std::size_t index = 0;; ++index) {
			config_tree tree(source);
			allocation_counter const counter;
			bool failed = false;
			{
				ustring8 const text(key);
				variant const value("another value that is long enough");
				allocation_failure const failure(index);
				try {
					tree.set_node(text, value, 2);
				} catch (std::bad_alloc const &) {
					failed = true;
				}
			}
			EXPECT_EQ(dump_of(tree), dump_of(failed ? source : expected)) << key << index;
			if (!failed) {
				break;
			}
			EXPECT_EQ(counter.live(), 0) << key << index;
		}
	}
}

TEST(config_tree_growth, a_failing_copy_leaks_nothing) {
	config_tree source;
	source.set_node("a.b.c", "value", 0);
	source.set_node("a name that needs memory of its own.x", 1, 0);
	source.set_node(ustring8(20, '.'), 1, 0);
	config_tree target;
	target.set_node("old.key", 1, 0);
	std::string const before = dump_of(target);
	for (std::size_t index = 0;; ++index) {
		allocation_counter const counter;
		bool failed = false;
		{
			allocation_failure const failure(index);
			try {
				target = source;
			} catch (std::bad_alloc const &) {
				failed = true;
			}
		}
		if (!failed) {
			EXPECT_GT(index, 20u);
			break;
		}
		EXPECT_EQ(counter.live(), 0) << index;
		EXPECT_EQ(dump_of(target), before) << index;
	}
	EXPECT_EQ(dump_of(target), dump_of(source));
}

TEST(config_tree_growth, a_null_child_leaks_nothing) {
	config_tree source;
	source.set_node("a.b.c", "value", 0);
	source.set_node(ustring8(100, '.'), 1, 0);
	source.children["a"]->children["z"] = nullptr;
	allocation_counter const counter;
	EXPECT_THROW(config_tree{source}, char const *);
	EXPECT_LE(counter.live(), 0);
}

// What was copied before the null child goes, and is as deep as the tree.
TEST(config_tree_growth, copies_that_fail_below_many_levels_take_no_call_stack) {
	config_tree source;
	ustring8 const key(million / 4, '.');
	source.set_node(key + "x", 1, 0);
	config_tree *last = &source;
	while (!last->children.empty()) {
		last = last->children.begin()->second.get();
	}
	last->children["null"] = nullptr;
	EXPECT_THROW(config_tree{source}, char const *);
	config_tree target(1, "kept");
	EXPECT_THROW(target = source, char const *);
	EXPECT_EQ(target.node_data.second.as_string(), "kept");
}

// Discards what is written and counts it.
class counting_buffer : public std::streambuf {
public:
	std::size_t written = 0;

protected:
	int_type overflow(int_type unit) override {
		++written;
		return traits_type::not_eof(unit);
	}
	std::streamsize xsputn(char const * /*units*/, std::streamsize count) override {
		written += static_cast<std::size_t>(count);
		return count;
	}
};

TEST(config_tree_growth, keys_of_a_million_components_take_no_call_stack) {
	config_tree tree;
	ustring8 const key(million, '.');
	tree.set_node(key, "deep", 0);
	tree.set_node(key + "x", "deeper", 0);
	ASSERT_NE(tree.get_node(ustring8(million, '/')), nullptr);
	EXPECT_EQ(tree.get_node(key)->second.as_string(), "deep");
	EXPECT_EQ(tree.get_node(ustring8(million + 1, '.')), nullptr);
	config_tree::value_pair_array out;
	tree.get_array(key, out);
	EXPECT_TRUE(out.empty());
	tree.get_value_pair_array(key + ".", out, true, "");
	ASSERT_EQ(out.size(), 0u);
	tree.get_value_pair_array(ustring8(million - 1, '\\'), out, true, "");
	ASSERT_EQ(out.size(), 2u);
	EXPECT_EQ(out[1].first, "x");
	{
		// NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the copy is tested
		config_tree const copy(tree);
		EXPECT_EQ(copy.get_node(key)->second.as_string(), "deep");
	}
	config_tree part;
	part = *tree.children.begin()->second->children.begin()->second;
	EXPECT_EQ(part.get_node(ustring8(million - 2, '.'))->second.as_string(), "deep");
	tree = *tree.children.begin()->second;
	tree.erase();
	EXPECT_TRUE(tree.children.empty());
}

TEST(config_tree_growth, nodes_that_their_parents_hold_twice_take_no_call_stack) {
	using node_pointer = QUOR_2_9::memory::pointers::rc_pointer<config_tree>;
	config_tree tree;
	config_tree *last = &tree;
	for (std::size_t level = 0; level != million / 4; ++level) {
		node_pointer const node(QUOR_2_9::generic::abilities::create_dynamic<config_tree>());
		last->children["a"] = node;
		last->children["b"] = node;
		last = node.get();
	}
	node_pointer const held = tree.children["a"];
	tree.erase();
	EXPECT_EQ(held->get_ref_count(), 1u);
	EXPECT_EQ(held->children.size(), 2u) << "somebody else holds it";
}

// Names of the empty components add nothing, so the listing is as long as the tree.
TEST(config_tree_growth, listings_of_a_million_levels_take_no_call_stack) {
	config_tree tree;
	tree.set_node(ustring8(million, '.') + "x", 1, 0);
	config_tree::value_pair_array out;
	tree.get_value_pair_array("", out, true, "");
	ASSERT_EQ(out.size(), million + 1);
	EXPECT_EQ(out.back().first, "x");
}

// Each level is indented one step more, so the output grows with the square of the depth.
TEST(config_tree_growth, dumps_of_many_levels_take_no_call_stack) {
	constexpr std::size_t depth = 20000;
	config_tree tree;
	tree.set_node(ustring8(depth - 1, '.') + "x", 1, 0);
	counting_buffer buffer;
	std::ostream out(&buffer);
	tree.dump(out, 0);
	// Three bars for each level, of three bytes for each step.
	std::size_t const bars = 3 * 3 * (depth * (depth - 1) / 2);
	std::string const passage = " : true\n|---------------\\\nend\n";
	std::string const last = "x : 1 1\n|\nend\n";
	EXPECT_EQ(buffer.written, bars + (depth - 1) * passage.size() + last.size());
}

TEST(config_tree_growth, a_million_keys_are_found) {
	config_tree tree;
	for (std::size_t i = 0; i != million; ++i) {
		tree.set_node(std::to_string(i), static_cast<int>(i), 0);
	}
	EXPECT_EQ(tree.children.size(), million);
	EXPECT_EQ(tree.get_node("777777")->second.as_int(), 777777);
	config_tree const copy(tree);
	config_tree::value_pair_array out;
	copy.get_value_pair_array("", out, true, "");
	EXPECT_EQ(out.size(), million);
}

TEST(config_tree_growth, an_array_with_a_long_key_is_linear) {
	varg_list values;
	for (std::size_t i = 0; i != million / 10; ++i) {
		values.push_back("", static_cast<int>(i));
	}
	ustring8 key;
	for (int i = 0; i != 50000; ++i) {
		key += "ab.";
	}
	quor_test::open_config_item item;
	item.set_array(key, values, varg_list());
	item.set_array("list", values, varg_list());
	config_tree::value_pair_array out;
	item.get_array("list", out);
	ASSERT_EQ(out.size(), values.count());
	EXPECT_EQ(out.back().first, std::to_string(values.count() - 1));
	EXPECT_EQ(item.get_value(key + ".77777")->second.as_int(), 77777);
}

TEST(config_tree_growth, texts_of_megabytes_are_scanned_in_one_pass) {
	quor_test::open_config_item const item;
	std::size_t const size = 8 * million;
	for (char const *const unit : {"\"", "\\", "a", " ", "=", "\r", ",", "*/", "a=\"\\"}) {
		std::string line;
		while (line.size() < size) {
			line += unit;
		}
		auto const result = item.make_key_value(line, config_token::T_EQ);
		EXPECT_LE(result.first.size() + result.second.as_string().size(), line.size() + 1) << unit;
	}
	ustring8 blanks("k = \"");
	blanks.append(size, ' ');
	auto const result = item.make_key_value(blanks, config_token::T_EQ);
	EXPECT_EQ(result.second.as_string().size(), size);
}

TEST(config_tree_growth, texts_that_positions_can_not_span_have_no_tokens) {
	using QUOR_2_9::config::detail::is_too_long_to_scan;
	static_assert(!is_too_long_to_scan(0) && !is_too_long_to_scan(0xFFFFFFFD));
	static_assert(is_too_long_to_scan(0xFFFFFFFE) && is_too_long_to_scan(0xFFFFFFFF));
	static_assert(is_too_long_to_scan(std::numeric_limits<std::size_t>::max()));
}

} // namespace
