// Any bytes as UTF-8, UTF-16 and UTF-32 through every transcoder: the results are those
// of the slow versions, round trips come back where they should, and decoding one
// character at a time agrees with decoding the whole text.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <stdexcept>

#include <quor/quor.hpp>

#include "reference/text.hpp"
#include "support/fuzz_units.hpp"

namespace {

namespace reference = quor_reference;

using quor::strings::from_native_wide;
using quor::strings::to_native_wide;
using quor::strings::unichar;
using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor::strings::utf16_to_utf32;
using quor::strings::utf16_to_utf8;
using quor::strings::utf32_to_utf16;
using quor::strings::utf32_to_utf8;
using quor::strings::utf8_to_utf16;
using quor::strings::utf8_to_utf32;
using quor::types::uint32;
using quor_test::units_from;
using reference::number;
using reference::numbers;
using reference::text_of;
using reference::units_of;

#define CHECK(condition)                                                                                               \
  do {                                                                                                                 \
	if (!(condition)) {                                                                                                \
	  std::cerr << __FILE__ << ':' << __LINE__ << ": does not hold: " #condition "\n";                                 \
	  std::abort();                                                                                                    \
	}                                                                                                                  \
  } while (false)

constexpr std::size_t longest = 4096;

// Most random 32-bit units are no code points; the lower bits of these are.
number tamed(number unit) {
	return unit >> 24 == 0xFF ? unit : unit % 0x110400;
}

template <class Text, class Read>
void check_unichar(Text const &text, numbers const &units, Read read) {
	auto const size = static_cast<uint32>(units.size());
	for (uint32 at = 0; at <= size; ++at) {
		uint32 consumed = 0;
		uint32 const code_point = unichar(text.data(), size, at, consumed);
		CHECK((reference::decoded{code_point, consumed} == reference::unichar(units, at, read)));
	}
}

void check_utf8(numbers const &units) {
	auto const text = text_of<ustring8>(units);
	check_unichar(text, units, reference::read_utf8);
	ustring16 const utf16 = utf8_to_utf16(text);
	numbers const expected16 = reference::utf8_to_utf16(units);
	CHECK(units_of(utf16) == expected16);

	bool const refused = expected16 == reference::minus_one() && units != reference::minus_one() &&
	                     text.find_first_of("\xC0\xE0\xF0") == ustring8::npos;
	bool const bad_start = !units.empty() && reference::read_utf8(units, 0).units == 0;
	try {
		ustring32 const utf32 = utf8_to_utf32(text);
		if (bad_start) {
			CHECK(units_of(utf32) == numbers{'?'});
			return;
		}
		CHECK(!refused);
		numbers expected;
		for (std::size_t at = 0; at != units.size();) {
			reference::character const next = reference::read_utf8(units, at);
			CHECK(next.units != 0);
			expected.push_back(next.code_point);
			at += next.units;
		}
		CHECK(units_of(utf32) == expected);
	} catch (std::length_error const &) {
		CHECK(!bad_start);
		CHECK(expected16 == reference::minus_one());
	}
}

void check_utf16(numbers const &units) {
	auto const text = text_of<ustring16>(units);
	check_unichar(text, units, reference::read_utf16);
	ustring8 const utf8 = utf16_to_utf8(text);
	ustring32 const utf32 = utf16_to_utf32(text);
	CHECK(units_of(utf8) == reference::utf16_to_utf8(units));
	CHECK(units_of(utf32) == reference::utf16_to_utf32(units));
	CHECK(from_native_wide(to_native_wide(text)) == text);
	// Readers of UTF-16 write well-formed text, and both results say the same.
	CHECK(utf8_to_utf32(utf8) == utf32);
	CHECK(utf32_to_utf8(utf32) == utf8);
}

void check_utf32(numbers const &units) {
	auto const text = text_of<ustring32>(units);
	check_unichar(text, units, reference::read_utf32);
	ustring8 const utf8 = utf32_to_utf8(text);
	ustring16 const utf16 = utf32_to_utf16(text);
	CHECK(units_of(utf8) == reference::utf32_to_utf8(units));
	CHECK(units_of(utf16) == reference::utf32_to_utf16(units));

	bool well_formed = true;
	bool below_pairs = true;
	for (number const unit : units) {
		well_formed = well_formed && unit < 0x110000 && !reference::is_high(unit) && !reference::is_low(unit);
		below_pairs = below_pairs && unit < 0xFFFF;
	}
	if (well_formed) {
		CHECK(utf8_to_utf32(utf8) == text);
	}
	if (well_formed && below_pairs) {
		CHECK(utf16_to_utf32(utf16) == text);
		CHECK(utf16_to_utf8(utf16) == utf8);
		CHECK(utf8_to_utf16(utf8) == utf16);
	}
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const *data, std::size_t size) {
	if (size > longest) {
		return 0;
	}
	check_utf8(units_from(data, size, 1));
	check_utf16(units_from(data, size, 2));
	numbers units = units_from(data, size, 4);
	check_utf32(units);
	for (number &unit : units) {
		unit = tamed(unit);
	}
	check_utf32(units);
	return 0;
}
