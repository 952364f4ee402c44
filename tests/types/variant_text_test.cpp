// Text in a variant: as numbers, as truth values, as text of another width.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

#include <quor/quor.hpp>

#include "reference/str_to_number_reference.hpp"

namespace {

using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor::types::int32;
using quor::types::int64;
using quor::types::uint32;
using quor::types::uint64;
using quor::types::utf32_char;
using quor::types::variant;
using quor::types::wide_char;
using quor::types::wide_string;

// An ASCII text in a holder of each of the five text types.
std::vector<variant> in_every_text_holder(ustring8 const &text) {
	return {variant(text), variant(std::string(text)), variant(ustring16(text.begin(), text.end())),
	        variant(wide_string(text.begin(), text.end())), variant(ustring32(text.begin(), text.end()))};
}

// A number as the slow reader finds it, clipped where it is beyond the range.
template <class Result, class Text>
Result read_by_reference(Text const &text) {
	using base = std::basic_string<typename Text::value_type, typename Text::traits_type>;
	std::vector<std::int64_t> units;
	for (auto const unit : static_cast<base const &>(text)) {
		units.push_back(static_cast<std::int64_t>(unit));
	}
	units.push_back(0);
	quor_reference::number_type const type{static_cast<int>(sizeof(Result) * 8), std::is_signed_v<Result>};
	return static_cast<Result>(quor_reference::str_to_number(units, text.size(), 0, false, type).value);
}

template <class Text>
void expect_reference_numbers(Text const &text) {
	variant const value(text);
	EXPECT_EQ(value.as_int(), read_by_reference<int>(text));
	EXPECT_EQ(value.as_uint(), static_cast<unsigned int>(read_by_reference<int>(text)));
	EXPECT_EQ(value.as_short(), read_by_reference<short>(text));
	EXPECT_EQ(value.as_ushort(), static_cast<unsigned short>(read_by_reference<short>(text)));
	EXPECT_EQ(value.as_long(), read_by_reference<int32>(text));
	EXPECT_EQ(value.as_ulong(), static_cast<uint32>(read_by_reference<int32>(text)));
	EXPECT_EQ(value.as_int8(), read_by_reference<signed char>(text));
	EXPECT_EQ(value.as_int16(), read_by_reference<short>(text));
	EXPECT_EQ(value.as_int32(), read_by_reference<int32>(text));
	EXPECT_EQ(value.as_int64(), read_by_reference<int64>(text));
	EXPECT_EQ(value.as_uint8(), read_by_reference<unsigned char>(text));
	EXPECT_EQ(value.as_uint16(), read_by_reference<unsigned short>(text));
	EXPECT_EQ(value.as_uint32(), read_by_reference<uint32>(text));
	EXPECT_EQ(value.as_uint64(), read_by_reference<uint64>(text));
}

TEST(variant_text, integers_are_read_with_the_radix_of_their_prefix) {
	struct {
		char const *text;
		int value;
	} const rows[] = {
	    {"", 0},      {"0", 0},    {"42", 42},         {"0x10", 16},  {"0X1f", 31}, {"010", 8},
	    {"0b101", 5}, {"\\10", 8}, {"\\x1F", 31},      {"12abc", 12}, {"abc", 0},   {"  42  ", 42},
	    {"+7", 7},    {"-7", -7},  {"\t\n-0x10", -16}, {"09", 0},     {"1.9", 1},   {"1e3", 1},
	    {"yes", 0},   {"- 5", 0},  {"0x", 0},
	};
	for (auto const &row : rows) {
		SCOPED_TRACE(row.text);
		for (variant const &value : in_every_text_holder(row.text)) {
			EXPECT_EQ(value.as_int(), row.value);
			EXPECT_EQ(value.as_long(), row.value);
			EXPECT_EQ(value.as_int64(), row.value);
			EXPECT_EQ(value.as_uint32(), row.value < 0 ? 0U : static_cast<uint32>(row.value));
		}
	}
}

TEST(variant_text, narrow_signed_results_clip_negative_text_at_its_first_digit) {
	for (char const *const text : {"-1", "-00", "-5", "-0x1", "-128"}) {
		SCOPED_TRACE(text);
		for (variant const &value : in_every_text_holder(text)) {
			EXPECT_EQ(value.as_int8(), -128);
			EXPECT_EQ(value.as_int16(), -32768);
			EXPECT_EQ(value.as_short(), -32768);
			EXPECT_EQ(value.as_ushort(), 32768);
		}
	}
	EXPECT_EQ(variant("-0").as_int8(), 0) << "the text ends with its prefix, before any digit";
}

TEST(variant_text, all_integers_of_random_text_agree_with_the_reference) {
	std::mt19937_64 random(4);
	char const alphabet[] = "0123456789-+ xXbB\\aAfFzZ09876543211";
	for (int i = 0; i != 4000; ++i) {
		ustring8 text;
		for (auto size = random() % 24; size != 0; --size) {
			text.push_back(alphabet[random() % (sizeof alphabet - 1)]);
		}
		SCOPED_TRACE(text);
		expect_reference_numbers(text);
		expect_reference_numbers(std::string(text));
		expect_reference_numbers(ustring16(text.begin(), text.end()));
		expect_reference_numbers(wide_string(text.begin(), text.end()));
		expect_reference_numbers(ustring32(text.begin(), text.end()));
	}
}

TEST(variant_text, random_decimal_numbers_around_every_limit_agree_with_the_reference) {
	std::mt19937_64 random(5);
	for (int bits : {7, 8, 15, 16, 31, 32, 63, 64}) {
		for (int offset = -3; offset != 4; ++offset) {
			quor_reference::whole const limit = quor_reference::power_of_two(bits) + offset;
			for (char const *const sign : {"", "-", "+", " -"}) {
				for (char const *const tail : {"", "0", "5", "x"}) {
					ustring8 const text = sign + ustring8(quor_reference::digits_of(limit, 10)) + tail;
					SCOPED_TRACE(text);
					expect_reference_numbers(text);
					expect_reference_numbers(ustring16(text.begin(), text.end()));
				}
			}
		}
	}
}

TEST(variant_text, wide_units_are_compared_by_their_full_value) {
	// 0x130 is no "0", 0x120 no blank, 0x131 no "1", although their low bytes are.
	ustring16 const digits{wide_char(0x131), wide_char('2')};
	EXPECT_EQ(variant(digits).as_int(), 0);
	ustring32 const blank{utf32_char(0x120), utf32_char('5')};
	EXPECT_EQ(variant(blank).as_int(), 0);
	ustring16 const yes{wide_char(0x0179), wide_char('e'), wide_char('s')};
	EXPECT_FALSE(variant(yes).as_bool());
	EXPECT_FALSE(variant(ustring32{utf32_char(0x14F), utf32_char('n')}).as_bool());
	EXPECT_FALSE(variant("\xD9"
	                     "es")
	                 .as_bool());
}

TEST(variant_text, truth_is_a_word_or_a_number) {
	struct {
		char const *text;
		bool value;
	} const rows[] = {
	    {"yes", true},
	    {"YES", true},
	    {"yEs", true},
	    {"on", true},
	    {"On", true},
	    {"ON", true},
	    {"true", true},
	    {"TRUE", true},
	    {"False", false},
	    {"off", false},
	    {"no", false},
	    {"", false},
	    {"0", false},
	    {"1", true},
	    {"2", true},
	    {"-1", true},
	    {"12abc", true},
	    {"0x1", true},
	    {"0x0", false},
	    {" yes", false},
	    {"yes ", false},
	    {"ye", false},
	    {"yess", false},
	    {"tru", false},
	    {"o", false},
	    {"y", false},
	    {" 7", true},
	    {"00", false},
	    {"abc", false},
	    {"4294967296", true},
	    {"TR\xC3\x9C"
	     "E",
	     false},
	};
	for (auto const &row : rows) {
		SCOPED_TRACE(row.text);
		EXPECT_EQ(variant(row.text).as_bool(), row.value);
		EXPECT_EQ(variant(std::string(row.text)).as_bool(), row.value);
		EXPECT_EQ(variant(quor::strings::utf8_to_utf16(row.text)).as_bool(), row.value);
		EXPECT_EQ(variant(wide_string(quor::strings::utf8_to_utf16(row.text))).as_bool(), row.value);
		EXPECT_EQ(variant(quor::strings::utf8_to_utf32(row.text)).as_bool(), row.value);
	}
	EXPECT_FALSE(variant(std::string("yes\0", 4)).as_bool()) << "the whole text counts";
	EXPECT_FALSE(variant(ustring8("on\0x", 4)).as_bool());
	EXPECT_TRUE(variant(std::string("1\0x", 3)).as_bool());
}

TEST(variant_text, floating_numbers_are_read_as_decimals) {
	double const infinity = std::numeric_limits<double>::infinity();
	struct {
		char const *text;
		double value;
	} const rows[] = {
	    {"", 0.0},
	    {"1.5", 1.5},
	    {" \t-2.25x", -2.25},
	    {"+3", 3.0},
	    {"1e3", 1000.0},
	    {"1e", 1.0},
	    {".5", 0.5},
	    {"5.", 5.0},
	    {"0x10", 0.0},
	    {"abc", 0.0},
	    {"-", 0.0},
	    {"1e400", infinity},
	    {"-1e400", -infinity},
	    {"1e-400", 0.0},
	    {"inf", infinity},
	    {"-INF", -infinity},
	    {"010", 10.0},
	    {"1.7976931348623157e308", 1.7976931348623157e308},
	    {"4.9e-324", 4.9e-324},
	    {"1,5", 1.0},
	    {"1 2", 1.0},
	};
	for (auto const &row : rows) {
		SCOPED_TRACE(row.text);
		for (variant const &value : in_every_text_holder(row.text)) {
			EXPECT_EQ(value.as_double(), row.value);
			EXPECT_EQ(value.as_long_double(), static_cast<long double>(row.value));
			EXPECT_EQ(value.as_float(), static_cast<float>(row.value));
		}
	}
	EXPECT_TRUE(std::isnan(variant("nan").as_double()));
	EXPECT_EQ(variant(std::string("1\0005", 3)).as_double(), 1.0);
}

TEST(variant_text, float_rounds_the_double_that_was_read) {
	// Just above the middle of two floats, but its double is the middle, a tie to even.
	char const text[] = "1.00000005960464477539062500000001";
	EXPECT_EQ(variant(text).as_double(), 1.000000059604644775390625);
	EXPECT_EQ(variant(text).as_float(), 1.0F);
	EXPECT_EQ(variant("0.1").as_long_double(), static_cast<long double>(0.1));
}

TEST(variant_text, random_decimals_read_as_the_correctly_rounded_number) {
	std::mt19937_64 random(6);
	for (int i = 0; i != 1000; ++i) {
		std::string const text = std::to_string(random()) + "." + std::to_string(random()) + "e" +
		                         std::to_string(static_cast<int>(random() % 600) - 310);
		SCOPED_TRACE(text);
		EXPECT_EQ(variant(text).as_double(), std::strtod(text.c_str(), nullptr));
	}
}

TEST(variant_text, malformed_wide_text_reads_as_minus_one_through_its_transcoding) {
	ustring16 const lone(1, wide_char(0xD800));
	EXPECT_EQ(variant(lone).as_double(), -1.0);
	EXPECT_EQ(variant(lone).as_string(), "-1");
	EXPECT_EQ(variant(lone).as_int(), 0) << "integers are read unit by unit";
	EXPECT_EQ(variant(lone).as_utf16(), lone);
	EXPECT_EQ(variant(wide_string(lone)).as_float(), -1.0F);
	ustring32 const surrogate(1, utf32_char(0xD800));
	EXPECT_EQ(variant(surrogate).as_double(), -1.0);
	EXPECT_EQ(variant(surrogate).as_wstring(), ustring16(QUOR_W("-1")));
}

TEST(variant_text, texts_convert_through_the_transcoders) {
	std::vector<ustring8> const rows = {
	    "", "plain", "caf\xC3\xA9", "\xE2\x82\xAC", "\xF0\x90\x80\x80", ustring8("a\0b", 3), "\xED\xA0\x80"};
	for (ustring8 const &text : rows) {
		SCOPED_TRACE(text);
		ustring16 const wide = quor::strings::utf8_to_utf16(text);
		ustring32 const code_points = quor::strings::utf8_to_utf32(text);
		for (variant const &value : {variant(text), variant(std::string(text))}) {
			EXPECT_EQ(value.as_string(), text);
			EXPECT_EQ(value.as_utf8(), text);
			EXPECT_EQ(value.as_wstring(), wide);
			EXPECT_EQ(value.as_ustring(), wide);
			EXPECT_EQ(value.as_utf16(), wide);
			EXPECT_EQ(value.as_utf32(), code_points);
		}
		for (variant const &value : {variant(wide), variant(wide_string(wide))}) {
			EXPECT_EQ(value.as_string(), quor::strings::utf16_to_utf8(wide));
			EXPECT_EQ(value.as_utf8(), quor::strings::utf16_to_utf8(wide));
			EXPECT_EQ(value.as_wstring(), wide);
			EXPECT_EQ(value.as_ustring(), wide);
			EXPECT_EQ(value.as_utf16(), wide);
			EXPECT_EQ(value.as_utf32(), quor::strings::utf16_to_utf32(wide));
		}
		variant const value(code_points);
		EXPECT_EQ(value.as_string(), quor::strings::utf32_to_utf8(code_points));
		EXPECT_EQ(value.as_utf8(), quor::strings::utf32_to_utf8(code_points));
		EXPECT_EQ(value.as_wstring(), quor::strings::utf32_to_utf16(code_points));
		EXPECT_EQ(value.as_ustring(), quor::strings::utf32_to_utf16(code_points));
		EXPECT_EQ(value.as_utf16(), quor::strings::utf32_to_utf16(code_points));
		EXPECT_EQ(value.as_utf32(), code_points);
	}
	EXPECT_EQ(variant(variant("\xF0\x9F\x98\x80").as_utf16()).as_utf8(), "\xF0\xAF\x98\x80") << "a pair moves up";
}

TEST(variant_text, malformed_utf8_ends_at_once) {
	EXPECT_EQ(variant("\xFF").as_utf32(), ustring32(1, utf32_char(63)));
	EXPECT_THROW(variant("a\xFF").as_utf32(), std::length_error);
	EXPECT_EQ(variant("a\xFF").as_utf16(), ustring16(QUOR_W("-1")));
	EXPECT_EQ(variant("a\xFF").as_string(), "a\xFF");
}

} // namespace
