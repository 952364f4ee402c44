#include <quor/strings/native_wide.hpp>

#include <gtest/gtest.h>

#include <random>
#include <string>

#include <quor/quor.hpp>

#include "reference/text.hpp"
#include "strings/text_rows.hpp"

namespace {

using quor::strings::from_native_wide;
using quor::strings::to_native_wide;
using quor::strings::ustring16;
using quor_reference::numbers;
using quor_reference::text_of;
using quor_reference::units_of;
using quor_test::shown;

constexpr bool native_is_wide = sizeof(wchar_t) == 2;

TEST(native_wide, literals_give_the_same_units_on_every_target) {
	EXPECT_EQ(units_of(from_native_wide(L"")), numbers{});
	EXPECT_EQ(units_of(from_native_wide(L"caf\u00E9")), (numbers{'c', 'a', 'f', 0xE9}));
	EXPECT_EQ(units_of(from_native_wide(L"\uFFFF")), numbers{0xFFFF});
	EXPECT_EQ(units_of(from_native_wide(L"\U00010000")), (numbers{0xD800, 0xDC00}));
	EXPECT_EQ(units_of(from_native_wide(L"a\U0001F600z")), (numbers{'a', 0xD83D, 0xDE00, 'z'}));
	EXPECT_EQ(units_of(from_native_wide(L"\U0010FFFF")), (numbers{0xDBFF, 0xDFFF}));
	EXPECT_EQ(units_of(from_native_wide(std::wstring(L"a\0b", 3))), (numbers{'a', 0, 'b'}));
}

TEST(native_wide, wide_text_gives_the_same_literals_on_every_target) {
	EXPECT_EQ(to_native_wide(ustring16()), L"");
	EXPECT_EQ(to_native_wide(QUOR_W("caf\u00E9")), L"caf\u00E9");
	EXPECT_EQ(to_native_wide(QUOR_W("a\U0001F600z")), L"a\U0001F600z");
	EXPECT_EQ(to_native_wide(text_of<ustring16>({0xD800, 0xDC00, 0xDBFF, 0xDFFF})), L"\U00010000\U0010FFFF");
	EXPECT_EQ(to_native_wide(ustring16(QUOR_W("a\0b"), 3)), std::wstring(L"a\0b", 3));
}

TEST(native_wide, lone_surrogates_pass_as_they_are) {
	for (numbers const &units : {numbers{0xD800}, numbers{0xDC00}, numbers{'a', 0xD800, 'b'}, numbers{0xDFFF, 0xD800},
	                             numbers{0xD800, 0xD800, 'a'}}) {
		SCOPED_TRACE(shown(units));
		EXPECT_EQ(units_of(to_native_wide(text_of<ustring16>(units))), units);
		EXPECT_EQ(units_of(from_native_wide(text_of<std::wstring>(units))), units);
	}
}

TEST(native_wide, number_above_unicode_gives_minus_one_where_it_exists) {
	if (native_is_wide) {
		EXPECT_EQ(from_native_wide(std::wstring(1, static_cast<wchar_t>(0xFFFF))).size(), 1U);
		return;
	}
	for (quor_reference::number const unit : {0x110000U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
		SCOPED_TRACE(unit);
		EXPECT_EQ(units_of(from_native_wide(text_of<std::wstring>({'a', unit, 'b'}))), (numbers{'-', '1'}));
	}
}

TEST(native_wide, random_wide_text_comes_back) {
	std::mt19937 random(4);
	for (int i = 0; i != 2000; ++i) {
		ustring16 text;
		for (std::size_t count = random() % 30; count != 0; --count) {
			text.push_back(
			    static_cast<quor::types::wide_char>(random() % 4 == 0 ? 0xD700 + random() % 0xA00 : random()));
		}
		EXPECT_EQ(from_native_wide(to_native_wide(text)), text) << shown(text);
	}
}

TEST(native_wide, random_code_points_come_back) {
	std::mt19937 random(5);
	for (int i = 0; i != 2000; ++i) {
		numbers units;
		for (std::size_t count = random() % 30; count != 0; --count) {
			auto const unit = static_cast<quor_reference::number>(random() % (native_is_wide ? 0xF800 : 0x10F800));
			units.push_back(unit < 0xD800 ? unit : unit + 0x800);
		}
		auto const text = text_of<std::wstring>(units);
		EXPECT_EQ(to_native_wide(from_native_wide(text)), text) << shown(text);
	}
}

} // namespace
