#include <quor/quor.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include "support/comma_locale.hpp"
#include "support/str_to_x_family.hpp"

namespace {

namespace convert = QUOR_2_9::generic::convert;
namespace exceptions = QUOR_2_9::exceptions;
namespace types = QUOR_2_9::types;
using quor_reference::failure;
using quor_reference::outcome;
using quor_test::member_named;
using types::radix_t;

constexpr std::int64_t smallest32 = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t largest32 = std::numeric_limits<std::int32_t>::max();

struct row {
	char const *function;
	std::string text;
	types::uint32 length;
	std::uint32_t radix;
	bool throwing;
	outcome expected;
};

outcome gives(std::int64_t value) {
	return {failure::none, 0, value};
}

outcome throws(failure error, unsigned int line) {
	return {error, line, 0};
}

std::string described(row const &r) {
	return std::string(r.function) + "(" + testing::PrintToString(r.text) + ", " + std::to_string(r.length) + ", " +
	       std::to_string(r.radix) + ", " + (r.throwing ? "true)" : "false)");
}

void expect_outcome(outcome const &found, outcome const &expected) {
	EXPECT_EQ(static_cast<int>(found.error), static_cast<int>(expected.error));
	EXPECT_EQ(found.line, expected.line);
	EXPECT_EQ(found.value, expected.value);
}

// Each row in the three text widths.
void check(std::vector<row> const &rows) {
	for (row const &r : rows) {
		SCOPED_TRACE(described(r));
		auto const &function = member_named(r.function);
		auto const wide = quor_test::widened<types::wide_string>(r.text);
		auto const utf32 = quor_test::widened<types::utf32_string>(r.text);
		expect_outcome(outcome_of(function, r.text.c_str(), r.length, r.radix, r.throwing), r.expected);
		expect_outcome(outcome_of(function, wide.c_str(), r.length, r.radix, r.throwing), r.expected);
		expect_outcome(outcome_of(function, utf32.c_str(), r.length, r.radix, r.throwing), r.expected);
	}
}

TEST(str_to_x, results_have_the_told_types) {
	static_assert(std::is_same_v<decltype(convert::str_to_long("", 0, 0, true)), types::int32>);
	static_assert(std::is_same_v<decltype(convert::str_to_int("", 0, 0, true)), int>);
	static_assert(std::is_same_v<decltype(convert::str_to_short("", 0, 0, true)), short>);
	static_assert(std::is_same_v<decltype(convert::str_to_signed("", 0, 0, true)), int>);
	static_assert(std::is_same_v<decltype(convert::str_to_unsigned("", 0, 0, true)), unsigned int>);
	static_assert(std::is_same_v<decltype(convert::str_to_int8("", 0, 0, true)), signed char>);
	static_assert(std::is_same_v<decltype(convert::str_to_int16("", 0, 0, true)), short>);
	static_assert(std::is_same_v<decltype(convert::str_to_int32("", 0, 0, true)), types::int32>);
	static_assert(std::is_same_v<decltype(convert::str_to_int64("", 0, 0, true)), types::int64>);
	static_assert(std::is_same_v<decltype(convert::str_to_uint8("", 0, 0, true)), unsigned char>);
	static_assert(std::is_same_v<decltype(convert::str_to_uint16("", 0, 0, true)), unsigned short>);
	static_assert(std::is_same_v<decltype(convert::str_to_uint32("", 0, 0, true)), types::uint32>);
	static_assert(std::is_same_v<decltype(convert::str_to_uint64("", 0, 0, true)), types::uint64>);
	EXPECT_EQ(std::size(quor_test::family), 13U);
}

TEST(str_to_x, plain_literals_and_enumerators_are_radices) {
	EXPECT_EQ(convert::str_to_int("42", 0, 0, true), 42);
	EXPECT_EQ(convert::str_to_int("42", 0, 16, true), 0x42);
	EXPECT_EQ(convert::str_to_int("42", 0, 16U, true), 0x42);
	EXPECT_EQ(convert::str_to_int("42", 0, 16L, true), 0x42);
	EXPECT_EQ(convert::str_to_int("42", 0, std::size_t(16), true), 0x42);
	EXPECT_EQ(convert::str_to_int("42", 0, static_cast<unsigned char>(16), true), 0x42);
	EXPECT_EQ(convert::str_to_int("42", 0, radix_t::hexadecimal, true), 0x42);
	EXPECT_EQ(convert::str_to_int("42", 0, radix_t::base(7), true), 30);
	EXPECT_EQ(convert::str_to_int(QUOR_W("42"), 0, 0, true), 42);
	EXPECT_EQ(convert::str_to_int(QUOR_W("42"), 0, radix_t::octal, true), 34);
	EXPECT_EQ(convert::str_to_int(QUOR_U32("42"), 0, 10, true), 42);
	EXPECT_EQ(convert::str_to_uint8(QUOR_U32("101"), 3, radix_t::binary, true), 5);
	char mutable_text[] = "42";
	EXPECT_EQ(convert::str_to_int(mutable_text, 0, 10, true), 42);
	QUOR_2_9::strings::ustring8 const text("42");
	EXPECT_EQ(convert::str_to_int(text.c_str(), 2, 0, false), 42);
}

TEST(str_to_x, blanks_sign_digits_and_trailing_text) {
	check({
	    {"str_to_int", "  +42xyz", 0, 0, true, gives(42)},
	    {"str_to_int", "\t\n\v\f\r 42", 0, 0, true, gives(42)},
	    {"str_to_int", "\b42", 0, 0, true, gives(0)},
	    {"str_to_int",
	     "\x0E"
	     "42",
	     0, 0, true, gives(0)},
	    {"str_to_int", "-42", 0, 0, true, gives(-42)},
	    {"str_to_int", "--42", 0, 0, true, gives(0)},
	    {"str_to_int", "+-42", 0, 0, true, gives(0)},
	    {"str_to_int", "- 42", 0, 0, true, gives(0)},
	    {"str_to_int", "42", 1, 10, true, gives(4)},
	    {"str_to_int", "42 ", 3, 10, true, gives(42)},
	    {"str_to_int", "4.2", 0, 10, true, gives(4)},
	    {"str_to_int", "1,000", 0, 10, true, gives(1)},
	    {"str_to_int", "", 0, 10, true, gives(0)},
	    {"str_to_int", "", 0, 0, true, gives(0)},
	    {"str_to_int", "abc", 0, 10, true, gives(0)},
	    {"str_to_int", "-", 0, 10, true, gives(0)},
	    {"str_to_int", "+", 0, 10, true, gives(0)},
	    {"str_to_int", "-x", 0, 10, true, gives(0)},
	    {"str_to_int", "   ", 0, 10, true, gives(0)},
	    {"str_to_int",
	     std::string("12\0"
	                 "34",
	                 5),
	     5, 10, true, gives(12)},
	    {"str_to_int",
	     std::string("\0"
	                 "34",
	                 3),
	     3, 10, true, gives(0)},
	    {"str_to_int", "\xB2\xB3", 0, 10, true, gives(0)},
	    {"str_to_int",
	     "\xA0"
	     "5",
	     0, 10, true, gives(0)},
	    {"str_to_int", "5\xB2", 0, 10, true, gives(5)},
	});
}

TEST(str_to_x, detection_reads_prefixes) {
	check({
	    {"str_to_int", "0x1F", 0, 0, true, gives(31)},   {"str_to_int", "0X1f", 0, 0, true, gives(31)},
	    {"str_to_int", "\\x1F", 0, 0, true, gives(31)},  {"str_to_int", "\\X1F", 0, 0, true, gives(31)},
	    {"str_to_int", "0b101", 0, 0, true, gives(5)},   {"str_to_int", "0B101", 0, 0, true, gives(5)},
	    {"str_to_int", "\\b101", 0, 0, true, gives(5)},  {"str_to_int", "\\B101", 0, 0, true, gives(5)},
	    {"str_to_int", "0b102", 0, 0, true, gives(2)},   {"str_to_int", "017", 0, 0, true, gives(15)},
	    {"str_to_int", "\\17", 0, 0, true, gives(15)},   {"str_to_int", "09", 0, 0, true, gives(0)},
	    {"str_to_int", "019", 0, 0, true, gives(1)},     {"str_to_int", "0", 0, 0, true, gives(0)},
	    {"str_to_int", "\\", 0, 0, true, gives(0)},      {"str_to_int", "00", 0, 0, true, gives(0)},
	    {"str_to_int", "0x", 0, 0, true, gives(0)},      {"str_to_int", "0b", 0, 0, true, gives(0)},
	    {"str_to_int", "\\\\17", 0, 0, true, gives(0)},  {"str_to_int", "0xx1", 0, 0, true, gives(0)},
	    {"str_to_int", "0x-1", 0, 0, true, gives(0)},    {"str_to_int", "0o17", 0, 0, true, gives(0)},
	    {"str_to_int", "-0x1F", 0, 0, true, gives(-31)}, {"str_to_int", " +\\x1F", 0, 0, true, gives(31)},
	    {"str_to_int", "10", 0, 0, true, gives(10)},     {"str_to_int", "x10", 0, 0, true, gives(0)},
	    {"str_to_int", "0x10", 1, 0, true, gives(0)},    {"str_to_int", "0x10", 2, 0, true, gives(0)},
	    {"str_to_int", "0x10", 3, 0, true, gives(1)},    {"str_to_int", "0b11", 3, 0, true, gives(1)},
	    {"str_to_int", "-0", 0, 0, true, gives(0)},      {"str_to_uint32", "0x10", 4, 0, true, gives(16)},
	    {"str_to_uint32", "0", 0, 0, true, gives(0)},    {"str_to_uint32", "\\x10", 4, 0, true, gives(16)},
	});
}

TEST(str_to_x, given_radix_skips_no_prefix) {
	check({
	    {"str_to_int", "0x1F", 0, 16, true, gives(0)},   {"str_to_int", "0b1", 0, 2, true, gives(0)},
	    {"str_to_int", "0b1", 0, 16, true, gives(0xB1)}, {"str_to_int", "\\x1F", 0, 16, true, gives(0)},
	    {"str_to_int", "017", 0, 10, true, gives(17)},   {"str_to_int", "017", 0, 8, true, gives(15)},
	    {"str_to_int", "zZ", 0, 36, true, gives(1295)},  {"str_to_int", "Zz", 0, 36, true, gives(1295)},
	    {"str_to_int", "z", 0, 35, true, gives(0)},      {"str_to_int", "yY", 0, 35, true, gives(34 * 35 + 34)},
	    {"str_to_int", "102", 0, 2, true, gives(2)},     {"str_to_int", "fFgG", 0, 16, true, gives(0xFF)},
	    {"str_to_int", "1/", 0, 10, true, gives(1)},     {"str_to_int", "1:", 0, 36, true, gives(1)},
	    {"str_to_int", "1@", 0, 36, true, gives(1)},     {"str_to_int", "1[", 0, 36, true, gives(1)},
	    {"str_to_int", "1`", 0, 36, true, gives(1)},     {"str_to_int", "1{", 0, 36, true, gives(1)},
	    {"str_to_int", "9A", 0, 11, true, gives(109)},   {"str_to_int", "9a", 0, 11, true, gives(109)},
	    {"str_to_int", "9B", 0, 11, true, gives(9)},     {"str_to_int", "A", 0, 10, true, gives(0)},
	});
}

TEST(str_to_x, bad_radix_throws_unless_the_text_ended_first) {
	outcome const bad_signed = throws(failure::bad_radix, 132);
	outcome const bad_unsigned = throws(failure::bad_radix, 257);
	check({
	    {"str_to_int", "1", 0, 1, true, bad_signed},
	    {"str_to_int", "1", 0, 1, false, bad_signed},
	    {"str_to_int", "1", 0, 37, true, bad_signed},
	    {"str_to_int", "1", 0, 36, true, gives(1)},
	    {"str_to_int", "1", 0, 2, true, gives(1)},
	    {"str_to_int", "1", 0, 0xFFFFFFFF, true, bad_signed},
	    {"str_to_int", "1", 0, 0x80000000, true, bad_signed},
	    {"str_to_int", "", 0, 99, true, bad_signed},
	    {"str_to_int", std::string(3, '\0'), 3, 99, true, bad_signed},
	    {"str_to_int", std::string(" \0 ", 3), 3, 99, true, bad_signed},
	    {"str_to_int", "   ", 0, 99, true, gives(0)},
	    {"str_to_int", "   ", 3, 99, true, gives(0)},
	    {"str_to_int", "   1", 3, 99, true, gives(0)},
	    {"str_to_int", "-", 0, 99, true, gives(0)},
	    {"str_to_int", "-x", 0, 99, true, bad_signed},
	    {"str_to_int8", "1", 0, 1, true, bad_signed},
	    {"str_to_int64", "1", 0, 40, true, bad_signed},
	    {"str_to_uint32", "1", 1, 1, true, bad_unsigned},
	    {"str_to_uint32", "1", 1, 37, false, bad_unsigned},
	    {"str_to_uint32", "", 0, 37, true, bad_unsigned},
	    {"str_to_uint32", " ", 0, 37, true, gives(0)},
	    {"str_to_uint32", "-", 0, 37, true, gives(0)},
	    {"str_to_uint64", "1", 1, 99, true, bad_unsigned},
	});
}

TEST(str_to_x, radix_as_plain_integer_outside_32_bits_is_bad) {
	EXPECT_THROW(convert::str_to_int("1", 0, -1, true), exceptions::invalid_argument_value);
	EXPECT_THROW(convert::str_to_int("1", 0, -10, true), exceptions::invalid_argument_value);
	EXPECT_THROW(convert::str_to_int("1", 0, std::numeric_limits<int>::min(), true),
	             exceptions::invalid_argument_value);
	EXPECT_THROW(convert::str_to_int("1", 0, (1LL << 32) + 10, true), exceptions::invalid_argument_value);
	EXPECT_THROW(convert::str_to_int("1", 0, static_cast<signed char>(-1), true), exceptions::invalid_argument_value);
	EXPECT_THROW(convert::str_to_uint32("1", 1, -10, true), exceptions::invalid_argument_value);
	EXPECT_THROW(convert::str_to_int("1", 0, radix_t::base(1), true), exceptions::invalid_argument_value);
}

TEST(str_to_x, signed_range_in_32_bits) {
	for (char const *const function : {"str_to_long", "str_to_int", "str_to_signed", "str_to_int32"}) {
		check({
		    {function, "2147483647", 0, 10, true, gives(largest32)},
		    {function, "2147483648", 0, 10, true, throws(failure::too_large, 175)},
		    {function, "2147483648", 0, 10, false, gives(largest32)},
		    {function, "99999999999", 0, 10, false, gives(largest32)},
		    {function, "+2147483648", 0, 10, true, throws(failure::too_large, 175)},
		    {function, "-2147483647", 0, 10, true, gives(-largest32)},
		    {function, "-2147483648", 0, 10, true, gives(smallest32)},
		    {function, "-2147483649", 0, 10, true, throws(failure::too_small, 174)},
		    {function, "-2147483649", 0, 10, false, gives(smallest32)},
		    {function, "-99999999999", 0, 10, false, gives(smallest32)},
		    {function, "7fffffff", 0, 16, true, gives(largest32)},
		    {function, "80000000", 0, 16, true, throws(failure::too_large, 175)},
		    {function, "-80000000", 0, 16, true, gives(smallest32)},
		    {function, "zik0zj", 0, 36, true, gives(largest32)},
		    {function, "zik0zk", 0, 36, true, throws(failure::too_large, 175)},
		});
	}
}

TEST(str_to_x, digits_behind_the_smallest_value_go_on_and_wrap) {
	check({
	    {"str_to_int", "-21474836480", 0, 10, true, gives(0)},
	    {"str_to_int", "-21474836485", 0, 10, true, gives(-5)},
	    {"str_to_int", "-21474836485", 0, 10, false, gives(-5)},
	    {"str_to_int", "-214748364812", 0, 10, true, gives(-12)},
	    {"str_to_int", "-800000001", 0, 16, true, gives(-1)},
	    {"str_to_int64", "-92233720368547758080", 0, 10, true, gives(0)},
	    {"str_to_int64", "-92233720368547758087", 0, 10, true, gives(-7)},
	    {"str_to_int16", "-11222211221", 0, 3, true, gives(32767)},
	});
}

TEST(str_to_x, narrow_negatives_in_common_radices_are_out_of_range_at_the_first_digit) {
	for (std::uint32_t const radix : {2U, 4U, 8U, 10U, 16U}) {
		for (char const *const text : {"-1", "-0", "-00", "-101"}) {
			check({
			    {"str_to_int16", text, 0, radix, true, throws(failure::too_small, 174)},
			    {"str_to_int16", text, 0, radix, false, gives(-32768)},
			    {"str_to_short", text, 0, radix, true, throws(failure::too_small, 174)},
			    {"str_to_short", text, 0, radix, false, gives(-32768)},
			    {"str_to_int8", text, 0, radix, true, throws(failure::too_small, 174)},
			    {"str_to_int8", text, 0, radix, false, gives(-128)},
			    {"str_to_int", text, 0, radix, true, gives(convert::str_to_int64(text, 0, radix, true))},
			});
		}
	}
	check({
	    {"str_to_int16", "-", 0, 10, true, gives(0)},
	    {"str_to_int16", "-x", 0, 10, true, gives(0)},
	    {"str_to_int8", "-1", 0, 0, false, gives(-128)},
	    {"str_to_int8", "-0x1", 0, 0, false, gives(-128)},
	    {"str_to_int8", "-0", 0, 0, true, gives(0)},
	    {"str_to_int8", "-00", 0, 0, false, gives(-128)},
	});
}

TEST(str_to_x, narrow_negatives_in_other_radices_follow_the_narrowed_bound) {
	check({
	    {"str_to_int16", "-1", 0, 3, true, gives(-1)},
	    {"str_to_int16", "-1122221121", 0, 3, true, gives(-32767)},
	    {"str_to_int16", "-1122221122", 0, 3, true, gives(-32768)},
	    {"str_to_int16", "-1122221200", 0, 3, true, throws(failure::too_small, 174)},
	    {"str_to_int8", "-242", 0, 7, true, gives(-128)},
	    {"str_to_int8", "-243", 0, 7, true, throws(failure::too_small, 174)},
	    {"str_to_int8", "-3n", 0, 35, true, gives(-128)},
	    {"str_to_int8", "-3o", 0, 35, true, throws(failure::too_small, 174)},
	    // The bound lies beyond the type's own: the value wraps.
	    {"str_to_int8", "-108", 0, 11, true, gives(127)},
	    {"str_to_int8", "-4o", 0, 33, true, gives(100)},
	    {"str_to_int8", "-1", 0, 6, true, throws(failure::too_small, 174)},
	});
}

TEST(str_to_x, narrow_positives_have_their_ordinary_range) {
	check({
	    {"str_to_int16", "32767", 0, 10, true, gives(32767)},
	    {"str_to_int16", "32768", 0, 10, true, throws(failure::too_large, 175)},
	    {"str_to_int16", "32768", 0, 10, false, gives(32767)},
	    {"str_to_short", "+32767", 0, 10, true, gives(32767)},
	    {"str_to_int8", "127", 0, 10, true, gives(127)},
	    {"str_to_int8", "128", 0, 10, true, throws(failure::too_large, 175)},
	    {"str_to_int8", "128", 0, 10, false, gives(127)},
	    {"str_to_int64", "9223372036854775807", 0, 10, true, gives(std::numeric_limits<std::int64_t>::max())},
	    {"str_to_int64", "9223372036854775808", 0, 10, true, throws(failure::too_large, 175)},
	    {"str_to_int64", "-9223372036854775808", 0, 10, true, gives(std::numeric_limits<std::int64_t>::min())},
	    {"str_to_int64", "-9223372036854775809", 0, 10, true, throws(failure::too_small, 174)},
	    {"str_to_int64", "-9223372036854775809", 0, 10, false, gives(std::numeric_limits<std::int64_t>::min())},
	});
}

TEST(str_to_x, unsigned_range) {
	check({
	    {"str_to_uint8", "255", 3, 10, true, gives(255)},
	    {"str_to_uint8", "256", 3, 10, true, throws(failure::too_large, 301)},
	    {"str_to_uint8", "256", 3, 10, false, gives(255)},
	    {"str_to_uint8", "00000000000255", 14, 10, true, gives(255)},
	    {"str_to_uint16", "65535", 5, 10, true, gives(65535)},
	    {"str_to_uint16", "65536", 5, 10, true, throws(failure::too_large, 301)},
	    {"str_to_uint32", "4294967295", 10, 10, true, gives(4294967295)},
	    {"str_to_uint32", "4294967296", 10, 10, true, throws(failure::too_large, 301)},
	    {"str_to_unsigned", "4294967295", 10, 10, true, gives(4294967295)},
	    {"str_to_unsigned", "4294967296", 10, 10, false, gives(4294967295)},
	    {"str_to_uint64", "18446744073709551615", 20, 10, true, gives(-1)},
	    {"str_to_uint64", "18446744073709551616", 20, 10, true, throws(failure::too_large, 301)},
	    {"str_to_uint64", "18446744073709551616", 20, 10, false, gives(-1)},
	    {"str_to_uint64", "ffffffffffffffff", 16, 16, true, gives(-1)},
	});
}

TEST(str_to_x, unsigned_functions_take_a_sign_and_refuse_negatives) {
	check({
	    {"str_to_uint32", "+5", 2, 10, true, gives(5)},
	    {"str_to_uint32", "-5", 2, 10, false, gives(0)},
	    {"str_to_uint32", "-5", 2, 10, true, throws(failure::too_small, 316)},
	    {"str_to_uint32", "-0", 2, 10, true, gives(0)},
	    {"str_to_uint32", "-0", 2, 10, false, gives(0)},
	    {"str_to_uint32", "-x", 2, 10, true, gives(0)},
	    {"str_to_uint32", "-99999999999", 12, 10, false, gives(0)},
	    {"str_to_uint32", "-99999999999", 12, 10, true, throws(failure::too_small, 300)},
	    {"str_to_uint8", "-256", 4, 10, true, throws(failure::too_small, 300)},
	    {"str_to_uint8", "-255", 4, 10, true, throws(failure::too_small, 316)},
	    {"str_to_uint8", "-255", 4, 10, false, gives(0)},
	});
}

TEST(str_to_x, length_zero_measures_in_signed_functions_alone) {
	check({
	    {"str_to_int32", "123", 0, 10, true, gives(123)},
	    {"str_to_uint32", "123", 0, 10, true, gives(1)},
	    {"str_to_uint8", "9", 0, 0, true, gives(9)},
	    {"str_to_uint8", "0x1F", 0, 0, true, gives(0)},
	    {"str_to_uint32", " 123", 0, 10, true, gives(0)},
	    {"str_to_uint32", "+123", 0, 10, true, gives(0)},
	    {"str_to_uint32", "-123", 0, 10, true, gives(0)},
	    {"str_to_uint32", "", 0, 10, true, gives(0)},
	    {"str_to_uint64", "ff", 0, 16, true, gives(15)},
	});
}

TEST(str_to_x, text_is_read_no_further_than_its_length) {
	// A block of exactly the text's size, so that a sanitizer sees one unit too many.
	for (std::string const text : {"1", "12", "  ", "-", "+", "0", "0x", "\\b", " -0", "12345678901234567890"}) {
		SCOPED_TRACE(text);
		std::vector<char> const block(text.begin(), text.end());
		auto const length = static_cast<types::uint32>(block.size());
		for (auto const &function : quor_test::family) {
			for (std::uint32_t const radix : {0U, 10U}) {
				outcome const whole = outcome_of(function, text.c_str(), length, radix, false);
				EXPECT_EQ(outcome_of(function, block.data(), length, radix, false), whole) << function.name;
			}
		}
	}
}

TEST(str_to_x, wide_units_count_by_their_whole_value) {
	// 0x130 is no "0", 0x120 no blank, 0x12D no "-", 0x131 no "1", 0x15C no backslash.
	types::wide_char const no_digit[] = {'1', 0x131, 0};
	types::wide_char const no_blank[] = {0x120, '5', 0};
	types::wide_char const no_sign[] = {0x12D, '5', 0};
	types::wide_char const no_prefix[] = {0x130, 'x', '5', 0};
	types::wide_char const no_backslash[] = {0x15C, 'x', '5', 0};
	types::wide_char const no_letter[] = {'0', 0x178, '5', 0};
	types::wide_char const wide_blank[] = {0x3000, '5', 0};
	EXPECT_EQ(convert::str_to_int(no_digit, 0, 10, true), 1);
	for (auto const *const text : {no_blank, no_sign, no_prefix, no_backslash, no_letter, wide_blank}) {
		EXPECT_EQ(convert::str_to_int(text, 0, 0, true), 0);
	}
	types::utf32_char const high_digit[] = {'1', 0x80000031, 0};
	types::utf32_char const high_blank[] = {0x10020, '5', 0};
	types::utf32_char const all_ones[] = {0xFFFFFFFF, '5', 0};
	EXPECT_EQ(convert::str_to_int(high_digit, 0, 10, true), 1);
	EXPECT_EQ(convert::str_to_int(high_blank, 0, 10, true), 0);
	EXPECT_EQ(convert::str_to_int(all_ones, 0, 10, true), 0);
	// 0x85 and 0xA0 are blanks of some character sets, and none here.
	for (types::wide_char const unit : {types::wide_char(0x85), types::wide_char(0xA0)}) {
		types::wide_char const text[] = {unit, '5', 0};
		EXPECT_EQ(convert::str_to_int(text, 0, 10, true), 0);
	}
}

TEST(str_to_x, a_locale_with_a_decimal_comma_changes_nothing) {
	quor_test::comma_locale const locale;
	check({
	    {"str_to_int", "1.234", 0, 10, true, gives(1)},
	    {"str_to_int", "1,234", 0, 10, true, gives(1)},
	    {"str_to_int", " \t-1234567", 0, 0, true, gives(-1234567)},
	    {"str_to_int",
	     "\xA0"
	     "5",
	     0, 0, true, gives(0)},
	    {"str_to_uint64", "18446744073709551615", 20, 10, true, gives(-1)},
	});
}

TEST(str_to_x, long_text_of_zeros_and_digits) {
	std::string const zeros(100000, '0');
	EXPECT_EQ(convert::str_to_int((zeros + "7").c_str(), 0, 10, true), 7);
	std::string const nines(100000, '9');
	EXPECT_EQ(convert::str_to_uint64(nines.c_str(), 100000, 10, false), std::numeric_limits<std::uint64_t>::max());
}

} // namespace
