// The text-to-number functions against the slow reference: every number of 8 and 16 bits
// and some beyond, in every radix, and texts made at random.

#include <quor/quor.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "support/str_to_x_family.hpp"

namespace {

namespace types = QUOR_2_9::types;
using quor_reference::outcome;
using quor_test::family_member;
using quor_test::member_named;

// One text in the three widths, so that widening is paid for once.
struct widths {
	explicit widths(std::string const &text)
	    : narrow(text), wide(quor_test::widened<types::wide_string>(text)),
	      utf32(quor_test::widened<types::utf32_string>(text)), units(quor_reference::units_of(text)) {}

	std::string narrow;
	types::wide_string wide;
	types::utf32_string utf32;
	std::vector<std::int64_t> units;
};

// Whether the three widths give what the reference gives.
bool agrees(family_member const &function, widths const &text, types::uint32 length, std::uint32_t radix,
            bool throwing) {
	outcome const expected = quor_reference::str_to_number(text.units, length, radix, throwing, function.type);
	return outcome_of(function, text.narrow.c_str(), length, radix, throwing) == expected &&
	       outcome_of(function, text.wide.c_str(), length, radix, throwing) == expected &&
	       outcome_of(function, text.utf32.c_str(), length, radix, throwing) == expected;
}

std::string described(family_member const &function, widths const &text, types::uint32 length, std::uint32_t radix,
                      bool throwing) {
	return std::string(function.name) + "(" + testing::PrintToString(text.narrow) + ", " + std::to_string(length) +
	       ", " + std::to_string(radix) + ", " + (throwing ? "true)" : "false)");
}

// Exceptions cost microseconds each, so the loops that meet them at every second
// text ask for them at some of the texts alone.
void check_numbers(char const *name, int first, int last, int step, int throwing_every) {
	family_member const &function = member_named(name);
	for (int radix = 2; radix <= 36; ++radix) {
		for (int number = first + radix % step; number <= last; number += step) {
			widths const text(quor_reference::digits_of(number, radix));
			auto const size = static_cast<types::uint32>(text.narrow.size());
			auto const given = static_cast<std::uint32_t>(radix);
			ASSERT_TRUE(agrees(function, text, size, given, false)) << described(function, text, size, given, false);
			if (number % throwing_every == 0) {
				ASSERT_TRUE(agrees(function, text, size, given, true)) << described(function, text, size, given, true);
			}
		}
	}
}

TEST(str_to_x_reference, every_number_of_8_bits_in_every_radix) {
	check_numbers("str_to_int8", -700, 700, 1, 5);
	check_numbers("str_to_uint8", -700, 700, 1, 5);
}

TEST(str_to_x_reference, every_number_of_16_bits_in_every_radix) {
	check_numbers("str_to_int16", -140000, 140000, 3, 97);
	check_numbers("str_to_uint16", -140000, 140000, 3, 97);
}

// Texts of three 8-bit digits and more say all about the bounds of 8 bits.
TEST(str_to_x_reference, every_short_text_in_every_radix) {
	std::string const alphabet("-+0179afzxB \\");
	for (char const *const name : {"str_to_int8", "str_to_uint8", "str_to_int"}) {
		family_member const &function = member_named(name);
		for (std::size_t code = 0; code != alphabet.size() * alphabet.size() * alphabet.size(); ++code) {
			std::string units;
			for (std::size_t rest = code; rest != 0; rest /= alphabet.size()) {
				units.push_back(alphabet[rest % alphabet.size()]);
			}
			widths const text(units);
			auto const size = static_cast<types::uint32>(units.size());
			for (std::uint32_t radix = 0; radix <= 40; radix += radix < 2 ? 1 : 1 + static_cast<unsigned>(code % 3)) {
				bool const throwing = code % 8 == 0;
				ASSERT_TRUE(agrees(function, text, size, radix, throwing))
				    << described(function, text, size, radix, throwing);
			}
			ASSERT_TRUE(agrees(function, text, 0, 0, false)) << described(function, text, 0, 0, false);
		}
	}
}

TEST(str_to_x_reference, numbers_around_the_bounds_of_all_widths_in_every_radix) {
	for (family_member const &function : quor_test::family) {
		quor_reference::whole const power = quor_reference::power_of_two(function.type.bits);
		for (int radix = 2; radix <= 36; ++radix) {
			for (quor_reference::whole const middle : {power / 2, power, power * radix / 2}) {
				for (int offset = -2; offset <= 2; ++offset) {
					for (int sign : {-1, 1}) {
						widths const text(quor_reference::digits_of(sign * (middle + offset), radix));
						auto const size = static_cast<types::uint32>(text.narrow.size());
						auto const given = static_cast<std::uint32_t>(radix);
						for (bool const throwing : {false, true}) {
							ASSERT_TRUE(agrees(function, text, size, given, throwing))
							    << described(function, text, size, given, throwing);
						}
					}
				}
			}
		}
	}
}

TEST(str_to_x_reference, random_texts) {
	std::mt19937 random(20250901);
	std::string const alphabet("00112345678999--++ \t\\xXbBaAfFgGzZ{/:@[`");
	auto const pick = [&random](std::size_t count) { return static_cast<std::size_t>(random()) % count; };
	for (int round = 0; round != 60000; ++round) {
		std::string units(pick(4), ' ');
		units.append(pick(3) == 0 ? "-" : "");
		for (std::size_t count = pick(24); count != 0; --count) {
			units.push_back(pick(50) == 0 ? static_cast<char>(pick(256))
			                              : alphabet[pick(pick(2) != 0 ? 14 : alphabet.size())]);
		}
		widths const text(units);
		family_member const &function = quor_test::family[pick(std::size(quor_test::family))];
		auto const radix = pick(3) == 0 ? 0U : static_cast<std::uint32_t>(pick(41));
		auto const length =
		    static_cast<types::uint32>(pick(units.size() + 2) > units.size() ? 0 : pick(units.size() + 1));
		bool const throwing = pick(4) == 0;
		ASSERT_TRUE(agrees(function, text, length, radix, throwing))
		    << described(function, text, length, radix, throwing);
	}
}

// The text alone in memory of its own, so that a sanitizer sees a look behind its end.
template <class Unit>
outcome outcome_of_block(family_member const &function, std::vector<std::int64_t> const &units, std::uint32_t radix,
                         bool throwing) {
	std::vector<Unit> block;
	block.reserve(units.size());
	for (std::int64_t const unit : units) {
		block.push_back(static_cast<Unit>(unit));
	}
	return outcome_of(function, block.data(), static_cast<types::uint32>(block.size()), radix, throwing);
}

// Narrow texts whose units are ASCII or not, in the three widths.
void check_block(std::string const &text, std::uint32_t radix, bool throwing) {
	std::vector<std::int64_t> units;
	for (char const unit : text) {
		units.push_back(static_cast<signed char>(unit));
	}
	for (char const *const name : {"str_to_int", "str_to_uint32", "str_to_int64", "str_to_uint64", "str_to_uint16"}) {
		family_member const &function = member_named(name);
		outcome const expected = quor_reference::str_to_number(units, units.size(), radix, throwing, function.type);
		ASSERT_TRUE(outcome_of_block<char>(function, units, radix, throwing) == expected)
		    << name << " of " << testing::PrintToString(text) << " in " << radix;
		ASSERT_TRUE(outcome_of_block<types::wide_char>(function, units, radix, throwing) == expected)
		    << name << " of " << testing::PrintToString(text) << " in " << radix << ", 16 bits";
		ASSERT_TRUE(outcome_of_block<types::utf32_char>(function, units, radix, throwing) == expected)
		    << name << " of " << testing::PrintToString(text) << " in " << radix << ", 32 bits";
	}
}

TEST(str_to_x_reference, a_unit_that_is_no_digit_at_every_place_of_every_length) {
	// The neighbours of the digits, and the units that come nearest to them in a wider sum.
	std::string const bad("/:@GZ`g{ -+.\x76\x80\xB0\xB9\xFF\0", 19);
	std::mt19937 random(3);
	for (std::size_t size = 1; size <= 24; ++size) {
		for (std::size_t place = 0; place <= size; ++place) {
			for (char const unit : bad) {
				std::string text;
				for (std::size_t i = 0; i != size; ++i) {
					text.push_back("1234567890abcdefABCDEF"[random() % (place % 2 == 0 ? 10 : 22)]);
				}
				if (place != size) {
					text[place] = unit;
				}
				for (std::uint32_t const radix : {0U, 10U, 16U}) {
					check_block(text, radix, false);
					check_block("-" + text, radix, false);
				}
			}
		}
	}
}

TEST(str_to_x_reference, nothing_is_read_behind_what_comes_before_digits) {
	for (char const *const text : {"-", "+", " ", " -", "0", "\\", "0x", "-0", "-0x", "-\\b"}) {
		for (std::uint32_t const radix : {0U, 2U, 8U, 10U, 16U, 36U}) {
			check_block(text, radix, false);
		}
	}
}

TEST(str_to_x_reference, every_length_up_to_300) {
	std::mt19937 random(4);
	for (std::size_t size = 1; size <= 300; ++size) {
		std::string digits;
		while (digits.size() != size) {
			digits.push_back(static_cast<char>('0' + random() % 10));
		}
		// Numbers beyond all bounds, and ones that zeros make long.
		std::string zeros(size, '0');
		zeros.replace(size - std::min<std::size_t>(size, 1 + random() % 20), 20,
		              digits.substr(0, std::min<std::size_t>(size, 1 + random() % 20)));
		for (std::uint32_t const radix : {0U, 2U, 8U, 10U, 16U, 36U}) {
			for (std::string const &text : {digits, "-" + digits, zeros, "-" + zeros, "  +" + zeros, "0x" + digits}) {
				check_block(text, radix, size % 8 == 0);
			}
		}
	}
}

TEST(str_to_x_reference, random_wide_units) {
	std::mt19937 random(7);
	std::vector<std::uint32_t> const units{'0', '1',   '9',   'x',   'a',   'z',    '-',
	                                       ' ', 0x130, 0x131, 0x12D, 0x120, 0xFF10, 0xD800};
	for (int round = 0; round != 20000; ++round) {
		types::wide_string wide;
		types::utf32_string utf32;
		for (std::uint32_t count = static_cast<std::uint32_t>(random()) % 6; count != 0; --count) {
			std::uint32_t const unit = units[random() % units.size()];
			wide.push_back(static_cast<types::wide_char>(unit));
			utf32.push_back(static_cast<types::utf32_char>(random() % 4 == 0 ? unit | 0x80000000U : unit));
		}
		auto const length = static_cast<types::uint32>(wide.size());
		family_member const &function = quor_test::family[random() % std::size(quor_test::family)];
		std::uint32_t const radix = static_cast<std::uint32_t>(random()) % 37;
		if (radix == 1) {
			continue;
		}
		std::vector<std::int64_t> wide_units(wide.begin(), wide.end());
		std::vector<std::int64_t> utf32_units(utf32.begin(), utf32.end());
		wide_units.push_back(0);
		utf32_units.push_back(0);
		ASSERT_EQ(outcome_of(function, wide.c_str(), length, radix, false).value,
		          quor_reference::str_to_number(wide_units, length, radix, false, function.type).value)
		    << function.name << " round " << round;
		ASSERT_EQ(outcome_of(function, utf32.c_str(), length, radix, false).value,
		          quor_reference::str_to_number(utf32_units, length, radix, false, function.type).value)
		    << function.name << " round " << round;
	}
}

} // namespace
