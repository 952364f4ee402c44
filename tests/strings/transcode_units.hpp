#ifndef QUOR_TESTS_STRINGS_TRANSCODE_UNITS_HPP
#define QUOR_TESTS_STRINGS_TRANSCODE_UNITS_HPP

#include <gtest/gtest.h>

#include <stdexcept>

#include <quor/quor.hpp>

#include "reference/text.hpp"
#include "strings/text_rows.hpp"

namespace quor_test {

namespace strings = quor::strings;
using quor_reference::numbers;
using quor_reference::text_of;
using quor_reference::units_of;
using strings::ustring16;
using strings::ustring32;
using strings::ustring8;

// One text at a time through the library and the reference; the numbers are the units.
inline numbers utf8_to_utf16_units(numbers const &units) {
	return units_of(strings::utf8_to_utf16(text_of<ustring8>(units)));
}

inline numbers utf8_to_utf32_units(numbers const &units) {
	return units_of(strings::utf8_to_utf32(text_of<ustring8>(units)));
}

inline numbers utf16_to_utf8_units(numbers const &units) {
	return units_of(strings::utf16_to_utf8(text_of<ustring16>(units)));
}

inline numbers utf16_to_utf32_units(numbers const &units) {
	return units_of(strings::utf16_to_utf32(text_of<ustring16>(units)));
}

inline numbers utf32_to_utf8_units(numbers const &units) {
	return units_of(strings::utf32_to_utf8(text_of<ustring32>(units)));
}

inline numbers utf32_to_utf16_units(numbers const &units) {
	return units_of(strings::utf32_to_utf16(text_of<ustring32>(units)));
}

inline void expect_same(numbers const &got, numbers const &expected, numbers const &units) {
	if (got != expected) {
		ADD_FAILURE() << shown(units) << " gives " << shown(got) << ", expected " << shown(expected);
	}
}

// Runs utf8_to_utf32, which throws where the reference has no end.
inline void expect_utf8_to_utf32_agrees(numbers const &units) {
	auto const expected = quor_reference::utf8_to_utf32(units);
	if (expected) {
		expect_same(utf8_to_utf32_units(units), *expected, units);
		return;
	}
	try {
		utf8_to_utf32_units(units);
		ADD_FAILURE() << shown(units) << " did not throw";
	} catch (std::length_error const &) {
	}
}

} // namespace quor_test

#endif
