#include <quor/strings/gh2/utf8_sequence.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <type_traits>
#include <vector>

namespace {

namespace gh2 = QUOR_2_9::strings::gh2;

static_assert(gh2::get_utf8_length("\xC3\xA9", 2) == 2 && gh2::validate_utf8("\xC3\xA9", 2));
static_assert(std::is_same_v<decltype(gh2::get_utf8_length("", 0)), unsigned int> &&
              std::is_same_v<decltype(gh2::validate_utf8("", 0)), bool>);
static_assert(noexcept(gh2::get_utf8_length("", 0)) &&noexcept(gh2::validate_utf8("", 0)));

// The bytes in a block of exactly their size, so that a read beyond them is found.
template <class Byte>
std::vector<Byte> block(std::string const &text) {
	return std::vector<Byte>(text.begin(), text.end());
}

unsigned int length_of(std::string const &text) {
	auto const narrow = block<char>(text);
	auto const bytes = block<unsigned char>(text);
	auto const size = static_cast<unsigned int>(text.size());
	unsigned int const result = gh2::get_utf8_length(narrow.data(), size);
	EXPECT_EQ(gh2::get_utf8_length(bytes.data(), size), result);
	return result;
}

bool is_valid(std::string const &text) {
	auto const narrow = block<char>(text);
	auto const bytes = block<unsigned char>(text);
	auto const size = static_cast<unsigned int>(text.size());
	bool const result = gh2::validate_utf8(narrow.data(), size);
	EXPECT_EQ(gh2::validate_utf8(bytes.data(), size), result);
	return result;
}

// By ranges of the first byte, the way the published table has them.
unsigned int expected_length(unsigned int lead) {
	return lead < 0x80 ? 1 : lead < 0xC0 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF8 ? 4 : 0;
}

TEST(get_utf8_length, looks_at_the_first_byte_alone) {
	for (unsigned int lead = 0; lead != 256; ++lead) {
		std::string const first(1, static_cast<char>(lead));
		EXPECT_EQ(length_of(first), expected_length(lead)) << lead;
		EXPECT_EQ(length_of(first + "\xFF\xFF\xFF"), expected_length(lead)) << lead;
	}
}

TEST(get_utf8_length, no_text_is_0) {
	EXPECT_EQ(gh2::get_utf8_length(static_cast<char const *>(nullptr), 5), 0U);
	EXPECT_EQ(gh2::get_utf8_length(static_cast<unsigned char const *>(nullptr), 5), 0U);
	EXPECT_EQ(gh2::get_utf8_length(nullptr, 5), 0U);
	EXPECT_EQ(gh2::get_utf8_length("a", 0), 0U);
	EXPECT_EQ(gh2::get_utf8_length(static_cast<char const *>(nullptr), 0), 0U);
}

TEST(validate_utf8, no_text_is_not_valid) {
	EXPECT_FALSE(gh2::validate_utf8(static_cast<char const *>(nullptr), 5));
	EXPECT_FALSE(gh2::validate_utf8(static_cast<unsigned char const *>(nullptr), 5));
	EXPECT_FALSE(gh2::validate_utf8(nullptr, 5));
	EXPECT_FALSE(gh2::validate_utf8("a", 0));
}

TEST(validate_utf8, checks_the_form_of_the_first_sequence_alone) {
	struct row {
		char const *name;
		std::string text;
		bool expected;
	};
	std::vector<row> const rows{
	    {"zero", std::string(1, '\0'), true},
	    {"ASCII, then no lead byte", "A\xFF", true},
	    {"two bytes", "\xC3\xA9", true},
	    {"three bytes", "\xE2\x82\xAC", true},
	    {"four bytes", "\xF0\x9F\x98\x80", true},
	    {"two bytes, one there", "\xC3", false},
	    {"three bytes, one there", "\xE2", false},
	    {"three bytes, two there", "\xE2\x82", false},
	    {"four bytes, three there", "\xF0\x9F\x98", false},
	    {"continuation first", "\x80\x80", false},
	    {"0xF8", "\xF8\x80\x80\x80\x80", false},
	    {"0xFF", "\xFF\x80\x80\x80", false},
	    {"second byte too low", "\xC3\x7F", false},
	    {"second byte too high", "\xC3\xC0", false},
	    {"third byte too low", "\xE2\x82\x2C", false},
	    {"third byte a lead", "\xE2\x82\xC2", false},
	    {"fourth byte bad", "\xF0\x9F\x98\x40", false},
	    {"second of four bad", "\xF0\x41\x98\x80", false},
	    {"overlong zero", "\xC0\x80", true},
	    {"overlong of three", "\xE0\x80\x80", true},
	    {"surrogate", "\xED\xA0\x80", true},
	    {"above U+10FFFF", "\xF7\xBF\xBF\xBF", true},
	    {"bad second sequence", "\xC3\xA9\xC3", true},
	};
	for (row const &r : rows) {
		EXPECT_EQ(is_valid(r.text), r.expected) << r.name;
	}
}

TEST(validate_utf8, every_pair_of_bytes_and_every_length) {
	for (unsigned int lead = 0; lead != 256; ++lead) {
		for (unsigned int next = 0; next != 256; ++next) {
			std::string text{static_cast<char>(lead), static_cast<char>(next), '\x80', '\xBF'};
			unsigned int const size = expected_length(lead);
			bool const continues = next >= 0x80 && next < 0xC0;
			for (unsigned int length = 1; length != 5; ++length) {
				bool const expected = size == 1 || (size > 1 && length >= size && continues);
				ASSERT_EQ(is_valid(text.substr(0, length)), expected) << lead << ' ' << next << ' ' << length;
			}
		}
	}
}

// The loop of the header's banner.
bool well_formed(char const *text, unsigned int length) {
	while (length != 0 && gh2::validate_utf8(text, length)) {
		unsigned int const size = gh2::get_utf8_length(text, length);
		text += size;
		length -= size;
	}
	return length == 0;
}

TEST(validate_utf8, walks_a_text) {
	std::string const text("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80z");
	auto const size = static_cast<unsigned int>(text.size());
	EXPECT_TRUE(well_formed(text.data(), size));
	EXPECT_TRUE(well_formed(text.data(), 0));
	for (unsigned int cut : {2U, 4U, 5U, 7U, 8U, 9U}) {
		EXPECT_FALSE(well_formed(text.data(), cut)) << cut;
	}
	EXPECT_FALSE(well_formed("ab\xFF", 3));
}

} // namespace
