#include <quor/types/widths.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <limits>
#include <string>
#include <type_traits>

#include <quor/quor.hpp>

namespace {

namespace types = quor::types;

using types::int32;
using types::long_t;
using types::uint32;
using types::ulong_t;

TEST(widths, units_and_numbers_have_their_widths_everywhere) {
	EXPECT_EQ(sizeof(types::wide_char), 2U);
	EXPECT_EQ(sizeof(types::utf32_char), 4U);
	EXPECT_EQ(sizeof(int32), 4U);
	EXPECT_EQ(sizeof(uint32), 4U);
	EXPECT_EQ(sizeof(long_t), 4U);
	EXPECT_EQ(sizeof(ulong_t), 4U);
	EXPECT_EQ(sizeof(types::int64), 8U);
	EXPECT_EQ(sizeof(types::uint64), 8U);
	EXPECT_EQ(sizeof(types::address_id), sizeof(void *));
	EXPECT_EQ(static_cast<uint32>(-1), 0xFFFFFFFFU);
}

TEST(widths, long_t_converts_both_ways) {
	for (int32 const value :
	     {int32(0), int32(1), int32(-1), std::numeric_limits<int32>::min(), std::numeric_limits<int32>::max()}) {
		long_t const held = value;
		int32 const back = held;
		EXPECT_EQ(back, value);
	}
	for (uint32 const value : {0U, 1U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
		ulong_t const held = value;
		uint32 const back = held;
		EXPECT_EQ(back, value);
	}
	long_t const held = 5;
	EXPECT_EQ(held + 1, 6);
	EXPECT_TRUE(held < 6);
	EXPECT_EQ(long_t(), 0);
	EXPECT_EQ(ulong_t(), 0U);
}

TEST(widths, held_numbers_are_types_of_their_own) {
	static_assert(!std::is_same_v<long_t, int> && !std::is_same_v<ulong_t, unsigned int>);
	static_assert(!std::is_same_v<long_t, types::int64> && !std::is_same_v<ulong_t, types::uint64>);
	static_assert(!std::is_same_v<long_t, types::native_long64> && !std::is_same_v<ulong_t, types::native_ulong64>);
	static_assert(std::is_trivially_copyable_v<long_t> && std::is_trivially_copyable_v<ulong_t>);
	SUCCEED();
}

TEST(widths, native_long64_is_long_where_it_has_64_bits) {
	EXPECT_EQ((std::is_same_v<types::native_long64, long>), sizeof(long) == 8);
	EXPECT_EQ((std::is_same_v<types::native_ulong64, unsigned long>), sizeof(long) == 8);
}

TEST(widths, literals_have_the_units_of_the_target) {
	static_assert(std::is_same_v<std::decay_t<decltype(QUOR_W("x"))>, types::wide_char const *>);
	static_assert(std::is_same_v<decltype(QUOR_W('x')), types::wide_char>);
	auto const utf32 = QUOR_U32("a\U0001F600");
	static_assert(std::is_convertible_v<decltype(utf32), types::utf32_char const *>);
	EXPECT_EQ(utf32[0], 0x61U);
	EXPECT_EQ(utf32[1], 0x1F600U);
	EXPECT_EQ(utf32[2], 0U);
	EXPECT_EQ(QUOR_W("a\u20AC")[1], 0x20AC);
	EXPECT_EQ(QUOR_U32('\u20AC'), 0x20ACU);
}

// The traits for targets whose 32-bit unit has none in the standard, on every target:
// a type of 32 bits that is no character.
using traits = types::detail::unit_traits<unsigned int>;
using number_string = std::basic_string<unsigned int, traits>;

TEST(unit_traits, compares_by_value) {
	std::array<unsigned int, 3> const one{1, 2, 3};
	std::array<unsigned int, 3> const other{1, 0xFFFFFFFF, 0};
	EXPECT_EQ(traits::compare(one.data(), one.data(), 3), 0);
	EXPECT_EQ(traits::compare(one.data(), other.data(), 0), 0);
	EXPECT_EQ(traits::compare(one.data(), other.data(), 1), 0);
	EXPECT_LT(traits::compare(one.data(), other.data(), 2), 0);
	EXPECT_GT(traits::compare(other.data(), one.data(), 3), 0);
	EXPECT_TRUE(traits::lt(1, 0xFFFFFFFF));
	EXPECT_FALSE(traits::lt(1, 1));
	EXPECT_TRUE(traits::eq(7, 7));
	EXPECT_FALSE(traits::eq(7, 8));
}

TEST(unit_traits, measures_finds_and_fills) {
	std::array<unsigned int, 5> text{5, 6, 7, 0, 8};
	EXPECT_EQ(traits::length(text.data()), 3U);
	EXPECT_EQ(traits::length(text.data() + 3), 0U);
	EXPECT_EQ(traits::find(text.data(), 5, 7), text.data() + 2);
	EXPECT_EQ(traits::find(text.data(), 2, 7), nullptr);
	EXPECT_EQ(traits::find(text.data(), 0, 5), nullptr);
	EXPECT_EQ(traits::assign(text.data(), 2, 9), text.data());
	EXPECT_EQ(text, (std::array<unsigned int, 5>{9, 9, 7, 0, 8}));
	traits::assign(text[4], 1);
	EXPECT_EQ(text[4], 1U);
}

TEST(unit_traits, moves_overlapping_units_either_way) {
	std::array<unsigned int, 5> text{1, 2, 3, 4, 5};
	traits::move(text.data() + 1, text.data(), 4);
	EXPECT_EQ(text, (std::array<unsigned int, 5>{1, 1, 2, 3, 4}));
	text = {1, 2, 3, 4, 5};
	traits::move(text.data(), text.data() + 1, 4);
	EXPECT_EQ(text, (std::array<unsigned int, 5>{2, 3, 4, 5, 5}));
	traits::move(text.data(), text.data(), 5);
	EXPECT_EQ(text, (std::array<unsigned int, 5>{2, 3, 4, 5, 5}));
}

TEST(unit_traits, end_of_file_is_no_unit) {
	for (unsigned int const unit : {0U, 1U, 0xFFFFU, 0xFFFFFFFEU, 0xFFFFFFFFU}) {
		EXPECT_FALSE(traits::eq_int_type(traits::to_int_type(unit), traits::eof())) << unit;
		EXPECT_EQ(traits::to_char_type(traits::to_int_type(unit)), unit);
		EXPECT_EQ(traits::not_eof(traits::to_int_type(unit)), traits::to_int_type(unit));
	}
	EXPECT_FALSE(traits::eq_int_type(traits::not_eof(traits::eof()), traits::eof()));
}

TEST(unit_traits, carry_a_whole_standard_string) {
	number_string text(3, 0x80000001);
	text += 5U;
	text.insert(text.begin() + 1, 7U);
	text.append(number_string(20, 9));
	EXPECT_EQ(text.size(), 25U);
	EXPECT_EQ(text.find(5U), 4U);
	EXPECT_EQ(text.rfind(9U), 24U);
	text.replace(0, 2, number_string(1, 1));
	EXPECT_EQ(text.front(), 1U);
	EXPECT_EQ(text.size(), 24U);
	EXPECT_TRUE(number_string(1, 1) < number_string(1, 0x80000000));
	EXPECT_EQ(text.substr(3, 1), number_string(1, 5));
	EXPECT_EQ(text.c_str()[text.size()], 0U);
}

} // namespace
