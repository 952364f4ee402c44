// The steps from byte to byte against slow ones that look at each byte.

#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "parser/xml_scan.hpp"

namespace {

namespace detail = QUOR_2_9::parser::detail;
namespace kernels = QUOR_2_9::kernels;

bool is_space(char c) {
	return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

std::size_t slow_end_of_text(std::string const &text, std::size_t at) {
	for (; at != text.size(); ++at) {
		bool const pair = at + 1 != text.size() && is_space(text[at]) && is_space(text[at + 1]);
		if (text[at] == '<' || text[at] == '&' || pair) {
			break;
		}
	}
	return at;
}

std::size_t slow_end_of_value(std::string const &text, std::size_t at, char quote) {
	while (at != text.size() && text[at] != '<' && text[at] != '&' && text[at] != quote) {
		++at;
	}
	return at;
}

std::size_t slow_end_of_comment(std::string const &text, std::size_t at) {
	for (; at + 3 <= text.size(); ++at) {
		if (text[at] == '-' && text[at + 1] == '-' && text[at + 2] == '>') {
			return at;
		}
	}
	return text.size();
}

std::size_t slow_end_of_space(std::string const &text, std::size_t at) {
	while (at != text.size() && is_space(text[at])) {
		++at;
	}
	return at;
}

std::size_t slow_end_of_name(std::string const &text, std::size_t at) {
	static std::string const of_names = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_";
	while (at != text.size() && of_names.find(text[at]) != std::string::npos) {
		++at;
	}
	return at;
}

// The steps that look at blocks of one kind.
template <class Block>
void compare_blocks(std::string const &text, std::size_t at, char const *first, char const *end) {
	auto const offset = [at, first](char const *to) { return at + static_cast<std::size_t>(to - first); };
	EXPECT_EQ(offset(detail::end_of_text<Block>(first, end)), slow_end_of_text(text, at));
	EXPECT_EQ(offset(detail::end_of_value<Block>(first, end, '"')), slow_end_of_value(text, at, '"'));
	EXPECT_EQ(offset(detail::end_of_value<Block>(first, end, '\'')), slow_end_of_value(text, at, '\''));
}

// All steps from one position. The text stands in a block of its own size, so that a look
// behind its end is found.
void compare(std::string const &text, std::size_t at) {
	std::vector<char> const block(text.begin(), text.end());
	char const *const first = block.data() + at;
	char const *const end = block.data() + block.size();
	auto const offset = [&block](char const *to) { return static_cast<std::size_t>(to - block.data()); };
	compare_blocks<kernels::byte_block>(text, at, first, end);
	compare_blocks<kernels::byte_word>(text, at, first, end);
	EXPECT_EQ(offset(detail::end_of_comment(first, end)), slow_end_of_comment(text, at));
	EXPECT_EQ(offset(detail::end_of_name(first, end)), slow_end_of_name(text, at));
	QUOR_2_9::types::uint32 lines = 5;
	std::size_t const behind = slow_end_of_space(text, at);
	EXPECT_EQ(offset(detail::end_of_space(first, end, lines)), behind);
	std::size_t feeds = 0;
	for (std::size_t i = at; i != behind; ++i) {
		feeds += text[i] == '\n' ? 1U : 0U;
	}
	EXPECT_EQ(lines, 5 + feeds);
}

TEST(xml_scan, all_steps_at_every_length_with_every_end_agree) {
	for (std::size_t size = 0; size <= 300; ++size) {
		SCOPED_TRACE(size);
		compare(std::string(size, 'x'), 0);
		for (char const *const piece :
		     {"<", "&", "\"", "'", " ", "  ", "\n", "\t\x01", "\x01 ", "-->", "-", "\xBC\xA6"}) {
			compare(std::string(size, 'x') + piece, 0);
			compare(std::string(size, 'x') + piece + "xyz", 0);
		}
	}
}

TEST(xml_scan, all_steps_at_every_position_of_a_word_agree) {
	// Two interesting bytes anywhere in three words or one and a half vectors, from each alignment.
	for (char const first : {'<', '&', '"', ' ', '\n', '\x1F', '\0', '\x80', '\xA0', '\xBC'}) {
		for (char const second : {'<', '\'', ' ', '\t', '!', '\x8A'}) {
			for (std::size_t i = 0; i != 24; ++i) {
				for (std::size_t j = 0; j != 24; ++j) {
					std::string text(24, 'n');
					text[i] = first;
					text[j] = second;
					for (std::size_t at = 0; at != 9; ++at) {
						compare(text, at);
					}
				}
			}
			if (HasFailure()) {
				return;
			}
		}
	}
}

TEST(xml_scan, all_steps_over_every_byte_agree) {
	for (int value = 0; value != 256; ++value) {
		SCOPED_TRACE(value);
		for (int next = 0; next != 256; ++next) {
			std::string text(20, 'n');
			text[3] = static_cast<char>(value);
			text[4] = static_cast<char>(next);
			compare(text, 0);
			compare(text, 3);
		}
	}
}

TEST(xml_scan, all_steps_over_random_texts_agree) {
	std::mt19937 random(7);
	std::string const bytes = "nnnnnnnn  \t\r\n<&\"'->-\x01\x80\xBC";
	for (int round = 0; round != 20000; ++round) {
		std::string text(random() % 40, ' ');
		for (char &c : text) {
			c = bytes[random() % bytes.size()];
		}
		compare(text, text.empty() ? 0 : random() % text.size());
		if (HasFailure()) {
			return;
		}
	}
}

} // namespace
