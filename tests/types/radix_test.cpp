#include <quor/quor.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <type_traits>

namespace {

using QUOR_2_9::types::radix_t;

TEST(radix, enumerators_have_their_radix_as_value) {
	static_assert(std::is_enum_v<radix_t::base>);
	static_assert(std::is_same_v<std::underlying_type_t<radix_t::base>, unsigned int>);
	EXPECT_EQ(static_cast<int>(radix_t::detect), 0);
	EXPECT_EQ(static_cast<int>(radix_t::binary), 2);
	EXPECT_EQ(static_cast<int>(radix_t::octal), 8);
	EXPECT_EQ(static_cast<int>(radix_t::decimal), 10);
	EXPECT_EQ(static_cast<int>(radix_t::hexadecimal), 16);
	EXPECT_EQ(static_cast<int>(radix_t::largest), 36);
	EXPECT_EQ(radix_t::base(), radix_t::detect);
}

TEST(radix, of_keeps_what_32_unsigned_bits_hold) {
	static_assert(radix_t::of(16) == radix_t::hexadecimal);
	for (unsigned int value = 0; value != 50; ++value) {
		EXPECT_EQ(static_cast<unsigned int>(radix_t::of(value)), value);
		EXPECT_EQ(static_cast<unsigned int>(radix_t::of(static_cast<short>(value))), value);
		EXPECT_EQ(static_cast<unsigned int>(radix_t::of(static_cast<long long>(value))), value);
	}
	EXPECT_EQ(static_cast<unsigned int>(radix_t::of(0xFFFFFFFEU)), 0xFFFFFFFEU);
	EXPECT_EQ(static_cast<unsigned int>(radix_t::of(0xFFFFFFFELL)), 0xFFFFFFFEU);
}

TEST(radix, of_turns_anything_else_into_the_largest_value) {
	constexpr unsigned int all_ones = std::numeric_limits<unsigned int>::max();
	EXPECT_EQ(static_cast<unsigned int>(radix_t::of(-1)), all_ones);
	EXPECT_EQ(static_cast<unsigned int>(radix_t::of(std::numeric_limits<int>::min())), all_ones);
	EXPECT_EQ(static_cast<unsigned int>(radix_t::of(static_cast<signed char>(-10))), all_ones);
	EXPECT_EQ(static_cast<unsigned int>(radix_t::of(std::numeric_limits<long long>::min())), all_ones);
	EXPECT_EQ(static_cast<unsigned int>(radix_t::of((1LL << 32) + 10)), all_ones);
	EXPECT_EQ(static_cast<unsigned int>(radix_t::of((1ULL << 32) + 10)), all_ones);
	EXPECT_EQ(static_cast<unsigned int>(radix_t::of(std::numeric_limits<unsigned long long>::max())), all_ones);
}

} // namespace
