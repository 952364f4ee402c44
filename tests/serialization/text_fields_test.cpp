// The fields of texts at positions that only texts of gigabytes reach, and in parts of texts.

#include "serialization/text_fields.hpp"

#include <cstddef>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "generic/convert/decimal_digits.hpp"
#include "serialization/contents.hpp"

#include <quor/generic/convert/ltoa.hpp>

#include <limits>

namespace {

namespace detail = QUOR_2_9::serialization::detail;
namespace convert = QUOR_2_9::generic::convert;
using QUOR_2_9::types::int32;
using QUOR_2_9::types::int64;
using QUOR_2_9::types::uint32;
using QUOR_2_9::types::uint64;

TEST(text_fields, positions_never_come_back_to_the_start) {
	struct row {
		uint32 position;
		int32 count;
		uint32 expected;
	};
	constexpr int32 most = 0x7FFFFFFF;
	row const rows[] = {{0xFFFFFFFF, 0, 0xFFFFFFFF},
	                    {0xFFFFFFFF, 5, 0xFFFFFFFF},
	                    {0xFFFFFFFF, -5, 0xFFFFFFFF},
	                    {0xFFFFFFFE, 0, 0xFFFFFFFF},
	                    {0xFFFFFFFE, 1, 0xFFFFFFFF},
	                    {0xFFFFFFFD, 0, 0xFFFFFFFE},
	                    {0xFFFFFFF0, 100, 0xFFFFFFFF},
	                    {0x7FFFFFFE, most, 0xFFFFFFFE},
	                    {0x7FFFFFFF, most, 0xFFFFFFFF},
	                    {0x80000000, most, 0xFFFFFFFF},
	                    {3, -5, 0xFFFFFFFF},
	                    {3, -6, 0xFFFFFFFE},
	                    {3, -4, 0},
	                    {3, -most - 1, 0x80000004}};
	for (row const &r : rows) {
		SCOPED_TRACE(std::to_string(r.position) + " and " + std::to_string(r.count));
		uint32 position = r.position;
		EXPECT_EQ(detail::take_framed("ab", position, r.count), "");
		EXPECT_EQ(position, r.expected);
	}
}

TEST(text_fields, binary_positions_stay_behind_all) {
	EXPECT_EQ(detail::advanced(0, 0), 0U);
	EXPECT_EQ(detail::advanced(0, 0xFFFFFFFE), 0xFFFFFFFEU);
	EXPECT_EQ(detail::advanced(0, 0xFFFFFFFF), 0xFFFFFFFFU);
	EXPECT_EQ(detail::advanced(1, 0xFFFFFFFF), 0xFFFFFFFFU);
	EXPECT_EQ(detail::advanced(0xFFFFFFFA, 4), 0xFFFFFFFEU);
	EXPECT_EQ(detail::advanced(0xFFFFFFFB, 4), 0xFFFFFFFFU);
	EXPECT_EQ(detail::advanced(0xFFFFFFFF, 0), 0xFFFFFFFFU);
	EXPECT_EQ(detail::advanced(0xFFFFFFFF, 8), 0xFFFFFFFFU);
}

// Contents of which only the size is asked.
TEST(text_fields, no_position_is_the_end_of_all_contents) {
	if constexpr (sizeof(std::size_t) > 4) {
		std::string_view const large("", std::size_t(0xFFFFFFFF) + 2);
		EXPECT_TRUE(detail::is_at_end(large, detail::no_position));
		EXPECT_FALSE(detail::is_at_end(large, detail::no_position - 1));
	}
	EXPECT_TRUE(detail::is_at_end("", 0));
	EXPECT_FALSE(detail::is_at_end("a", 0));
	EXPECT_TRUE(detail::is_at_end("a", 1));
	EXPECT_TRUE(detail::is_at_end("a", detail::no_position));
}

TEST(text_fields, part_of_a_text_is_not_left) {
	std::string const text("12345\x01");
	uint32 position = 1;
	EXPECT_EQ(detail::take_int32(std::string_view(text).substr(0, 3), position), 23);
	EXPECT_EQ(position, detail::no_position);
	position = 2;
	EXPECT_EQ(detail::take_framed(std::string_view("2\x01"
	                                               "abcd")
	                                  .substr(0, 4),
	                              position, 3),
	          "ab");
	EXPECT_EQ(position, 6U);
	position = 3;
	EXPECT_EQ(detail::take_field("abc", position), "");
	EXPECT_EQ(position, detail::no_position);
	position = 4;
	EXPECT_EQ(detail::take_field("abc", position), "");
	EXPECT_EQ(position, detail::no_position);
}

template <class Number>
void check_digits(Number value, void (*write)(Number, char *, unsigned int) noexcept) {
	char expected[66];
	write(value, expected, 10);
	char digits[convert::detail::decimal_digits_size];
	EXPECT_EQ(std::string(digits, convert::detail::decimal_digits(value, digits)), expected);
}

TEST(text_fields, decimal_digits_are_those_of_the_conversions) {
	for (int shift = 0; shift != 64; ++shift) {
		for (int offset = -2; offset != 3; ++offset) {
			uint64 const bits = (uint64(1) << shift) + static_cast<uint64>(offset);
			check_digits(static_cast<int32>(bits), convert::ltoa);
			check_digits(static_cast<uint32>(bits), convert::ultoa);
			check_digits(static_cast<int64>(bits), convert::lltoa);
			check_digits(bits, convert::ulltoa);
		}
	}
	check_digits(std::numeric_limits<int64>::min(), convert::lltoa);
}

} // namespace
