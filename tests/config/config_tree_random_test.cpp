// Trees filled with random keys, compared with the reference after each step.

#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <quor/config/config_tree.hpp>
#include <quor/types/nil.hpp>

#include "reference/config_node.hpp"
#include "support/config_sources.hpp"
#include "support/open_config_item.hpp"

namespace {

using QUOR_2_9::config::config_tree;
using QUOR_2_9::types::nil;
using quor_reference::config_entry;
using quor_reference::config_node;
using quor_test::entries_of;
using entries = std::vector<config_entry>;

class random_trees {
public:
	explicit random_trees(unsigned int seed) : m_random(seed) {}

	std::string key() {
		static std::string const units("abAB012./\\..\xE4\x80");
		std::string result(m_random() % 7, '\0');
		for (char &unit : result) {
			unit = units[m_random() % units.size()];
		}
		return result;
	}

	void step(quor_test::open_config_item &item, config_node &expected) {
		std::string const where = key();
		unsigned int const flags = m_random() % 8;
		switch (m_random() % 8) {
		case 0: {
			QUOR_2_9::generic::varg_list values;
			std::vector<std::string> texts(m_random() % 13);
			for (std::string &text : texts) {
				text = key();
				values.push_back("", text);
			}
			item.set_array(where, values, QUOR_2_9::generic::varg_list());
			expected.set_array(where, texts);
			return;
		}
		case 1:
			item.set(where, nil, flags);
			expected.set(where, std::nullopt, flags);
			return;
		default: {
			std::string const text = key();
			item.set(where, text, flags);
			expected.set(where, text, flags);
		}
		}
	}

	void compare(config_tree const &tree, config_node const &expected) {
		for (int i = 0; i != 8; ++i) {
			std::string const where = key();
			SCOPED_TRACE(testing::PrintToString(where));
			config_tree::node_value const *const node = tree.get_node(where);
			std::optional<config_entry> const told = expected.get(where);
			ASSERT_EQ(node != nullptr, told.has_value());
			if (node != nullptr) {
				ASSERT_EQ(entries_of({{"", *node}}), entries{*told});
			}
			config_tree::value_pair_array out;
			entries lines;
			tree.get_array(where, out);
			expected.array(where, lines);
			ASSERT_EQ(entries_of(out), lines);
			std::string const prefix = m_random() % 2 == 0 ? std::string() : key();
			bool const recursive = m_random() % 2 == 0;
			tree.get_value_pair_array(where, out, recursive, prefix);
			expected.list(where, lines, recursive, prefix);
			ASSERT_EQ(entries_of(out), lines);
		}
		std::ostringstream out;
		int const indent = static_cast<int>(m_random() % 6) - 3;
		tree.dump(out, indent);
		ASSERT_EQ(out.str(), expected.dump(indent));
	}

private:
	std::mt19937 m_random;
};

TEST(config_tree_random, trees_are_like_the_reference) {
	for (unsigned int seed = 0; seed != 300; ++seed) {
		SCOPED_TRACE(seed);
		random_trees trees(seed);
		quor_test::open_config_item item;
		config_node expected;
		for (int i = 0; i != 30; ++i) {
			trees.step(item, expected);
			trees.compare(item.item_tree, expected);
			if (testing::Test::HasFatalFailure()) {
				return;
			}
		}
		config_tree copy(item.item_tree);
		item.item_tree.erase();
		trees.compare(copy, expected);
		item.item_tree = copy;
		copy.erase();
		trees.compare(item.item_tree, expected);
		trees.compare(copy, config_node());
	}
}

} // namespace
