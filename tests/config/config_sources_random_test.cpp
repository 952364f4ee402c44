// Random command lines and environments, compared with a slow second reading of the rules.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "reference/config_sources.hpp"
#include "support/config_sources.hpp"
#include "support/cout_capture.hpp"

namespace {

using quor_test::listing_of;
using quor_test::string_block;

std::string const nasty[] = {
    "-",  "/",     "--",   "=",     "==",   ":",        ":=",   "+=", "-=", "*=", "/=", ">=",   "<=", ">",  "<",
    "$",  "\"$\"", ",",    "\",\"", " ",    " ",        "  ",   "\"", "\"", "\\", ".",  "\\\"", "*/", "/*", "//",
    "#",  "[]",    "[",    "]",     "a",    "B",        "ab",   "Z",  "1",  "0",  "10", "_",    "!",  "\t", "\n",
    "\r", "\r\n",  "\x01", "\x7F",  "\x80", "\xC3\x84", "\xFF", "*",  "+",  "%",  "(",  ";",
};

class random_texts {
public:
	explicit random_texts(std::mt19937::result_type seed) : m_engine(seed) {}

	std::size_t below(std::size_t bound) { return m_engine() % bound; }

	std::string text(std::size_t pieces) {
		std::string result;
		for (std::size_t count = below(pieces + 1); count != 0; --count) {
			result += nasty[below(std::size(nasty))];
		}
		return result;
	}

	// Most arguments begin as a key does, or as values do.
	std::string argument() {
		static char const *const starts[] = {"-", "-", "-k", "/", "-a=", "-A.b$", "-l:=", "v", "", " "};
		return starts[below(std::size(starts))] + text(7);
	}

private:
	std::mt19937 m_engine;
};

template <class Item>
void expect_same(Item &item, quor_reference::config_node const &tree) {
	std::vector<quor_test::config_entry> expected;
	tree.list(expected);
	ASSERT_EQ(listing_of(item), expected);
}

TEST(commandline_item, random_arguments_are_read_as_the_slow_reading_does) {
	random_texts random(20240817);
	for (int round = 0; round != 30000; ++round) {
		std::vector<std::string> texts{random.text(6)};
		// Where its path is cut depends on the system.
		texts[0].erase(std::remove(texts[0].begin(), texts[0].end(), '/'), texts[0].end());
		for (std::size_t count = random.below(7); count != 0; --count) {
			texts.push_back(random.argument());
		}
		SCOPED_TRACE(testing::PrintToString(texts));
		string_block block(texts);
		quor::config::commandline_item item(block.count(), block.pointers());
		quor_reference::config_node tree;
		quor_reference::config_command_line reading(texts, true);
		// Twice, as what is there stays.
		for (int time = 0; time != 2; ++time) {
			quor_test::cout_capture const capture;
			ASSERT_TRUE(item.load());
			ASSERT_EQ(capture.text(), reading.load(tree));
			ASSERT_NO_FATAL_FAILURE(expect_same(item, tree));
		}
	}
}

TEST(enviroment_item, random_strings_are_read_as_the_slow_reading_does) {
	random_texts random(20240818);
	for (int round = 0; round != 30000; ++round) {
		std::vector<std::string> texts;
		for (std::size_t count = random.below(6); count != 0; --count) {
			texts.push_back(random.text(10));
		}
		SCOPED_TRACE(testing::PrintToString(texts));
		string_block block(texts);
		quor::config::enviroment_item item(block.pointers());
		quor_reference::config_node tree;
		quor_reference::load_environment(tree, texts);
		ASSERT_TRUE(item.load());
		ASSERT_NO_FATAL_FAILURE(expect_same(item, tree));
	}
}

} // namespace
