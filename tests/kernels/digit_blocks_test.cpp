// Blocks of digits, in words and in vectors: each agrees with reading digit by digit, whichever
// of them this processor's library is made of.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "generic/convert/digit_values.hpp"
#include "kernels/kernels.hpp"

namespace {

namespace blocks = QUOR_2_9::kernels::digits;
namespace convert = QUOR_2_9::generic::convert::detail;
namespace types = QUOR_2_9::types;
using blocks::block_reading;

using text = std::vector<std::uint32_t>;

block_reading slowly(text const &units, std::uint32_t radix) {
	block_reading result{0, true};
	for (std::uint32_t const unit : units) {
		std::uint32_t value = 99;
		if (unit >= '0' && unit <= '9') {
			value = unit - '0';
		} else if (unit >= 'a' && unit <= 'z') {
			value = unit - 'a' + 10;
		} else if (unit >= 'A' && unit <= 'Z') {
			value = unit - 'A' + 10;
		}
		result.known = result.known && value < radix;
		result.value = result.value * radix + value;
	}
	return result;
}

std::string told(text const &units) {
	std::string result;
	for (std::uint32_t const unit : units) {
		result += std::to_string(unit) + ' ';
	}
	return result;
}

void expect(char const *what, block_reading const &read, text const &units, std::uint32_t radix) {
	block_reading const expected = slowly(units, radix);
	ASSERT_EQ(read.known, expected.known) << what << ": " << told(units);
	if (expected.known) {
		ASSERT_EQ(read.value, expected.value) << what << ": " << told(units);
	}
}

// The units in a block of their own, so that the sanitizers see a read beyond either end.
template <class Unit>
void check(text const &units) {
	std::size_t const size = units.size();
	std::unique_ptr<Unit[]> const place(new Unit[size]);
	text kept;
	for (std::size_t i = 0; i != size; ++i) {
		place[i] = static_cast<Unit>(units[i]);
		kept.push_back(static_cast<std::uint32_t>(static_cast<std::make_unsigned_t<Unit>>(place[i])));
	}
	Unit const *const at = place.get();
	if (size <= 3) {
		expect("few decimal", convert::read_few(at, size, 10), kept, 10);
		expect("few hexadecimal", convert::read_few(at, size, 16), kept, 16);
	}
	if (size <= 8) {
		expect("decimal in a word", blocks::read_decimal(at, size), kept, 10);
		expect("hexadecimal in a word", blocks::read_hexadecimal(at, size), kept, 16);
	}
	if (size >= 9) {
		expect("long in words", blocks::read_long(at, size), kept, 10);
	}
#ifdef __SSE2__
	if (size >= 4 && size <= 8) {
		expect("decimal in a vector", blocks::vectors::read_decimal(at, size), kept, 10);
		expect("hexadecimal in a vector", blocks::vectors::read_hexadecimal(at, size), kept, 16);
	}
	if (size >= 9) {
		expect("long in vectors", blocks::vectors::read_long(at, size), kept, 10);
	}
#endif
}

void check_widths(text const &units) {
	check<char>(units);
	check<types::wide_char>(units);
	check<types::utf32_char>(units);
}

text digits_of_size(std::mt19937 &random, std::size_t size, char const *digits, std::uint32_t count) {
	text units(size);
	std::generate(units.begin(), units.end(),
	              [&] { return static_cast<std::uint32_t>(digits[static_cast<std::uint32_t>(random()) % count]); });
	return units;
}

TEST(digit_blocks, numbers_of_every_size_agree_with_reading_digit_by_digit) {
	std::mt19937 random(1);
	for (std::size_t size = 1; size <= blocks::most_digits; ++size) {
		check_widths(text(size, '0'));
		check_widths(text(size, '9'));
		check_widths(text(size, 'f'));
		for (int round = 0; round != 500; ++round) {
			check_widths(digits_of_size(random, size, "0123456789", 10));
			check_widths(digits_of_size(random, size, "0123456789abcdefABCDEF", 22));
		}
	}
}

TEST(digit_blocks, a_unit_of_any_value_at_every_place_agrees_with_reading_digit_by_digit) {
	std::mt19937 random(2);
	for (std::size_t size = 1; size <= blocks::most_digits; ++size) {
		for (std::size_t place = 0; place != size; ++place) {
			for (std::uint32_t unit = 0; unit != 0x400; ++unit) {
				text units = digits_of_size(random, size, "0123456789abcdef", unit % 2 == 0 ? 10 : 16);
				units[place] = unit;
				check_widths(units);
			}
			// Those that come near digits where only a part of them is looked at.
			for (std::uint32_t const high :
			     {0x100U, 0x7F00U, 0x8000U, 0xFF00U, 0x10000U, 0x7FFF0000U, 0x80000000U, 0xFFFF0000U, 0xFFFFFF00U}) {
				for (std::uint32_t const low : {0x00U, 0x2FU, 0x30U, 0x39U, 0x3AU, 0x41U, 0x61U, 0x66U, 0xFFU}) {
					text units = digits_of_size(random, size, "0123456789abcdef", low % 2 == 0 ? 10 : 16);
					units[place] = high + low;
					check_widths(units);
				}
			}
		}
	}
}

} // namespace
