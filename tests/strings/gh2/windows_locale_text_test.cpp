// The locale's encoding where the runtime has code pages for locales.

#include <quor/strings/gh2/wide_text.hpp>

#include <gtest/gtest.h>

#include <cctype>
#include <string>

#include "strings/gh2/wide_rows.hpp"
#include "support/c_locale.hpp"

namespace {

namespace gh2 = QUOR_2_9::strings::gh2;
using quor_test::c_locale;
using quor_test::every_unit;
using quor_test::wide_char;
using quor_test::wide_string;

TEST(gh2_ansi, without_a_locale_the_units_of_a_byte_pass_and_all_else_fails) {
	c_locale const plain("C");
	ASSERT_TRUE(plain.is_set());
	EXPECT_EQ(gh2::to_ansi(L"plain ~!\x7F"), "plain ~!\x7F");
	EXPECT_EQ(gh2::to_ansi(L""), "");
	EXPECT_EQ(gh2::from_ansi(""), L"");
	for (unsigned int unit = 1; unit != 0x10000; ++unit) {
		wide_string const text{L'a', static_cast<wide_char>(unit), L'b'};
		std::string const expected = unit < 0x100 ? std::string{'a', static_cast<char>(unit), 'b'} : std::string();
		ASSERT_EQ(gh2::to_ansi(text), expected) << unit;
		if (unit < 0x100) {
			ASSERT_EQ(gh2::from_ansi(expected), text) << unit;
		}
	}
	EXPECT_EQ(gh2::to_ansi(wide_string(1000000, wide_char(0x20AC))), "");
	EXPECT_EQ(gh2::to_ansi(wide_string(1000000, wide_char(0xE9))), std::string(1000000, '\xE9'));
}

TEST(gh2_ansi, in_a_single_byte_locale_its_characters_pass) {
	c_locale const latin(".1252");
	ASSERT_TRUE(latin.is_set());
	EXPECT_EQ(gh2::to_ansi(L"caf\u00E9 5 \u20AC"), "caf\xE9 5 \x80");
	EXPECT_EQ(gh2::from_ansi("caf\xE9 5 \x80"), L"caf\u00E9 5 \u20AC");
	EXPECT_EQ(gh2::to_ansi(L"a\u0416"), "");
	EXPECT_EQ(gh2::to_ansi(L"\U0001F600"), "");
	for (unsigned int byte = 1; byte != 0x100; ++byte) {
		std::string const text(1, static_cast<char>(byte));
		ASSERT_EQ(gh2::to_ansi(gh2::from_ansi(text)), text) << byte;
		ASSERT_EQ(gh2::from_ansi(text).size(), 1U) << byte;
	}
}

TEST(gh2_ansi, in_a_double_byte_locale_pairs_are_characters) {
	c_locale const japanese(".932");
	ASSERT_TRUE(japanese.is_set());
	EXPECT_EQ(gh2::to_ansi(L"a\u4E2D"), "a\x92\x86");
	EXPECT_EQ(gh2::from_ansi("a\x92\x86"), L"a\u4E2D");
	EXPECT_EQ(gh2::to_ansi(L"\U0001F600"), "");
}

TEST(gh2_case, in_a_single_byte_locale_the_runtime_maps_the_units_of_a_byte) {
	c_locale const latin(".1252");
	ASSERT_TRUE(latin.is_set());
	wide_string const units = every_unit();
	wide_string const lower = gh2::tolower(units);
	wide_string const upper = gh2::toupper(units);
	for (unsigned int unit = 0; unit != 0x10000; ++unit) {
		bool const is_byte = unit < 0x100;
		ASSERT_EQ(lower[unit], is_byte ? static_cast<unsigned int>(std::tolower(static_cast<int>(unit))) : unit);
		ASSERT_EQ(upper[unit], is_byte ? static_cast<unsigned int>(std::toupper(static_cast<int>(unit))) : unit);
	}
	EXPECT_EQ(upper[0xE9], 0xC9);
}

} // namespace
