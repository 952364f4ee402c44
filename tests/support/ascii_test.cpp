#include "support/ascii.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <string>

#include <quor/types/widths.hpp>

namespace {

namespace support = QUOR_2_9::support;
namespace types = QUOR_2_9::types;

std::string const blanks = " \t\n\v\f\r";
std::string const digits = "0123456789";
std::string const lower = "abcdefghijklmnopqrstuvwxyz";
std::string const upper = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";

// Whether the unit is the character at some place of `characters`; npos for none.
template <class Unit>
std::size_t place(std::string const &characters, Unit unit) {
	for (std::size_t i = 0; i != characters.size(); ++i) {
		if (unit == static_cast<Unit>(characters[i])) {
			return i;
		}
	}
	return std::string::npos;
}

template <class Unit>
void expect_classes(Unit unit) {
	auto const is_in = [unit](std::string const &characters) { return place(characters, unit) != std::string::npos; };
	ASSERT_EQ(support::is_blank(unit), is_in(blanks));
	ASSERT_EQ(support::is_digit(unit), is_in(digits));
	ASSERT_EQ(support::is_hex_digit(unit), is_in(digits + "abcdefABCDEF"));
	ASSERT_EQ(support::is_lower(unit), is_in(lower));
	ASSERT_EQ(support::is_upper(unit), is_in(upper));
	ASSERT_EQ(support::is_letter(unit), is_in(lower + upper));
	ASSERT_EQ(support::to_lower(unit), is_in(upper) ? static_cast<Unit>(lower[place(upper, unit)]) : unit);
	ASSERT_EQ(support::to_upper(unit), is_in(lower) ? static_cast<Unit>(upper[place(lower, unit)]) : unit);
	ASSERT_EQ(support::is_letter_in_any_case(unit, 'k'), is_in("kK"));
}

template <class Unit>
class ascii : public testing::Test {};
using every_unit = testing::Types<char, signed char, unsigned char, types::wide_char, types::utf32_char, std::int64_t>;
TYPED_TEST_SUITE(ascii, every_unit, );

TYPED_TEST(ascii, classes_and_case_of_every_unit) {
	auto const lowest = static_cast<std::int64_t>(std::numeric_limits<TypeParam>::min());
	auto const highest = static_cast<std::int64_t>(std::numeric_limits<TypeParam>::max());
	for (std::int64_t value = std::max<std::int64_t>(lowest, -300); value <= std::min<std::int64_t>(highest, 0x10000);
	     ++value) {
		SCOPED_TRACE(value);
		expect_classes(static_cast<TypeParam>(value));
	}
}

TYPED_TEST(ascii, units_with_an_ascii_low_byte_are_none) {
	for (std::int64_t const base : {std::int64_t(0x100), std::int64_t(0xFF00), std::int64_t(0x10000),
	                                std::int64_t(0xFFFFFF00), std::int64_t(0x100000000)}) {
		for (std::int64_t low = 0; low != 0x100; ++low) {
			std::int64_t const value = base + low;
			SCOPED_TRACE(value);
			auto const unit = static_cast<TypeParam>(value);
			if (static_cast<std::int64_t>(unit) == value) {
				ASSERT_FALSE(support::is_blank(unit) || support::is_letter(unit) || support::is_hex_digit(unit));
				ASSERT_EQ(support::to_lower(unit), unit);
				ASSERT_EQ(support::to_upper(unit), unit);
			}
		}
	}
}

} // namespace
