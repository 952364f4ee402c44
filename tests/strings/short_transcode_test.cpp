// Short texts, which have ways of their own: all ASCII, or but for one unit.

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>

#include <quor/quor.hpp>

#include "reference/text.hpp"
#include "strings/transcode_units.hpp"

namespace {

namespace reference = quor_reference;
namespace strings = quor::strings;

using quor_test::expect_same;
using quor_test::expect_utf8_to_utf32_agrees;
using reference::number;
using reference::numbers;
using strings::ustring16;
using strings::ustring32;
using strings::ustring8;

numbers ascii(std::size_t size) {
	numbers units(size);
	for (std::size_t i = 0; i != size; ++i) {
		units[i] = static_cast<number>((i * 31 + size) % 128);
	}
	return units;
}

void expect_all_agree(numbers const &units8, numbers const &units16, numbers const &units32) {
	expect_same(quor_test::utf8_to_utf16_units(units8), reference::utf8_to_utf16(units8), units8);
	expect_utf8_to_utf32_agrees(units8);
	expect_same(quor_test::utf16_to_utf8_units(units16), reference::utf16_to_utf8(units16), units16);
	expect_same(quor_test::utf16_to_utf32_units(units16), reference::utf16_to_utf32(units16), units16);
	expect_same(quor_test::utf32_to_utf8_units(units32), reference::utf32_to_utf8(units32), units32);
	expect_same(quor_test::utf32_to_utf16_units(units32), reference::utf32_to_utf16(units32), units32);
}

TEST(short_transcode, ascii_of_every_length_agrees_with_the_reference) {
	for (std::size_t size = 0; size <= 300; ++size) {
		numbers const units = ascii(size);
		expect_all_agree(units, units, units);
	}
}

TEST(short_transcode, one_other_unit_at_every_place_agrees_with_the_reference) {
	struct {
		number unit8;
		number unit16;
		number unit32;
	} const others[] = {{0xC3, 0xE9, 0xE9}, {0x80, 0xD83D, 0xD83D}, {0xF0, 0xDE00, 0x1F600}, {0xFF, 0xFFFF, 0x110000}};
	for (std::size_t size = 1; size <= 136; size += size == 70 ? 50 : 1) {
		for (std::size_t place = 0; place != size; ++place) {
			for (auto const &other : others) {
				numbers units8 = ascii(size);
				numbers units16 = units8;
				numbers units32 = units8;
				units8[place] = other.unit8;
				units16[place] = other.unit16;
				units32[place] = other.unit32;
				expect_all_agree(units8, units16, units32);
			}
			if (HasFailure()) {
				return;
			}
		}
	}
}

TEST(short_transcode, results_are_reserved_by_the_units_of_the_text) {
	for (std::size_t size = 1; size <= 300; ++size) {
		SCOPED_TRACE(size);
		for (bool const is_ascii : {true, false}) {
			ustring16 text16(size, QUOR_W('a'));
			ustring32 text32(size, QUOR_U32('a'));
			ustring8 text8(size, 'a');
			if (!is_ascii) {
				text16[0] = QUOR_W('\u00E9');
				text32[0] = QUOR_U32('\u00E9');
				text8.replace(0, text8.size() / 3 * 3, "");
				for (std::size_t i = 0; i != size / 3; ++i) {
					text8 += "\xE2\x82\xAC";
				}
			}
			EXPECT_GE(strings::utf16_to_utf8(text16).capacity(), 2 * size);
			EXPECT_GE(strings::utf32_to_utf8(text32).capacity(), 2 * size);
			EXPECT_GE(strings::utf8_to_utf16(text8).capacity(), size / 2);
		}
	}
}

// Static objects of a program may convert text.
std::size_t const before_main = strings::utf8_to_utf32(ustring8(200, 'a')).size();

TEST(short_transcode, text_can_be_converted_before_main) {
	EXPECT_EQ(before_main, 200U);
}

} // namespace
