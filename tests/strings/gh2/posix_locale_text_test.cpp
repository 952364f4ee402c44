// The locale's encoding where the C library has locales of the machine.

#include <quor/strings/gh2/wide_text.hpp>

#include <gtest/gtest.h>

#include <cctype>
#include <iostream>
#include <string>

#include "strings/gh2/wide_rows.hpp"
#include "support/c_locale.hpp"
#include "support/made_locale.hpp"

namespace {

namespace gh2 = QUOR_2_9::strings::gh2;
using quor_test::c_locale;
using quor_test::every_code_point;
using quor_test::every_unit;
using quor_test::made_locale;
using quor_test::pair_row;
using quor_test::pairs;
using quor_test::wide_char;
using quor_test::wide_string;

TEST(gh2_ansi, without_a_locale_ascii_passes_and_all_else_fails) {
	c_locale const plain("C");
	ASSERT_TRUE(plain.is_set());
	EXPECT_EQ(gh2::to_ansi(QUOR_W("plain ~!\x7F")), "plain ~!\x7F");
	EXPECT_EQ(gh2::from_ansi("plain ~!\x7F"), QUOR_W("plain ~!\x7F"));
	EXPECT_EQ(gh2::to_ansi(QUOR_W("")), "");
	EXPECT_EQ(gh2::from_ansi(""), QUOR_W(""));
	for (unsigned int unit = 0x80; unit != 0x10000; ++unit) {
		wide_string const text{wide_char('a'), static_cast<wide_char>(unit), wide_char('b')};
		ASSERT_EQ(gh2::to_ansi(text), "") << unit;
	}
	for (unsigned int byte = 0x80; byte != 0x100; ++byte) {
		ASSERT_EQ(gh2::from_ansi(std::string("a") + static_cast<char>(byte) + "b"), QUOR_W("")) << byte;
	}
	EXPECT_EQ(gh2::to_ansi(QUOR_W("ab\U0001F600")), "");
	EXPECT_EQ(gh2::to_ansi(wide_string(1000000, wide_char(0x20AC))), "");
	EXPECT_EQ(gh2::from_ansi(std::string(1000000, '\x80')), QUOR_W(""));
}

TEST(gh2_ansi, in_a_utf_8_locale_everything_passes) {
	c_locale const utf8("C.UTF-8");
	if (!utf8.is_set()) {
		std::cout << "NOT TESTED: this machine has no locale C.UTF-8\n";
		return;
	}
	for (pair_row const &row : pairs()) {
		SCOPED_TRACE(row.name);
		EXPECT_EQ(gh2::to_ansi(row.wide), row.utf8);
		EXPECT_EQ(gh2::from_ansi(row.utf8), gh2::to_ustring(row.wide)); // without the mark
	}
	pair_row const all = every_code_point();
	EXPECT_TRUE(gh2::to_ansi(all.wide) == all.utf8);
	EXPECT_TRUE(gh2::from_ansi(all.utf8) == all.wide);
	EXPECT_EQ(gh2::from_ansi("\xEF\xBB\xBF\xEF\xBB\xBF"
	                         "a"),
	          QUOR_W("\uFEFFa"));
	for (wide_char const half : {wide_char(0xD800), wide_char(0xDBFF), wide_char(0xDC00), wide_char(0xDFFF)}) {
		EXPECT_EQ(gh2::to_ansi({wide_char('a'), half, wide_char('b')}), "");
	}
	EXPECT_EQ(gh2::from_ansi("a\xFF"), QUOR_W(""));
	EXPECT_EQ(gh2::from_ansi("\xE2\x82"), QUOR_W(""));
	EXPECT_EQ(gh2::from_ansi("\xED\xA0\x80"), QUOR_W(""));
	// Behind U+10FFFF, in the forms of four, five and six bytes that some C libraries take.
	for (char const *const text : {"a\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "\xFC\x84\x80\x80\x80\x80"}) {
		EXPECT_EQ(gh2::from_ansi(text), QUOR_W(""));
	}
}

TEST(gh2_ansi, in_a_single_byte_locale_its_characters_pass) {
	made_locale const latin("ISO-8859-15");
	if (!latin.is_set()) {
		std::cout << "NOT TESTED: this machine can't make a locale with ISO 8859-15 (packages locales, libc-bin)\n";
		return;
	}
	EXPECT_EQ(gh2::to_ansi(QUOR_W("caf\u00E9 5 \u20AC")), "caf\xE9 5 \xA4");
	EXPECT_EQ(gh2::from_ansi("caf\xE9 5 \xA4"), QUOR_W("caf\u00E9 5 \u20AC"));
	EXPECT_EQ(gh2::to_ansi(QUOR_W("\u00A4")), ""); // the encoding has the euro in its place
	EXPECT_EQ(gh2::to_ansi(QUOR_W("a\u0416")), "");
	EXPECT_EQ(gh2::to_ansi(QUOR_W("\U0001F600")), "");
	for (unsigned int byte = 1; byte != 0x100; ++byte) {
		std::string const text(1, static_cast<char>(byte));
		ASSERT_EQ(gh2::to_ansi(gh2::from_ansi(text)), text) << byte;
		ASSERT_EQ(gh2::from_ansi(text).size(), 1U) << byte;
	}
}

TEST(gh2_ansi, in_a_multi_byte_locale_a_pair_is_one_character) {
	made_locale const japanese("EUC-JISX0213");
	if (!japanese.is_set()) {
		std::cout << "NOT TESTED: this machine can't make a locale with EUC-JISX0213 (packages locales, libc-bin)\n";
		return;
	}
	EXPECT_EQ(gh2::to_ansi(QUOR_W("a\u4E2D\U0002000B")), "a\xC3\xE6\xAE\xA2");
	EXPECT_EQ(gh2::from_ansi("a\xC3\xE6\xAE\xA2"), QUOR_W("a\u4E2D\U0002000B"));
	EXPECT_EQ(gh2::to_ansi(QUOR_W("\U0001F600")), "");
	EXPECT_EQ(gh2::from_ansi("a\xC3"), QUOR_W("")); // cut
}

TEST(gh2_case, in_a_utf_8_locale_only_ascii_letters_change) {
	c_locale const utf8("C.UTF-8");
	EXPECT_EQ(gh2::toupper(QUOR_W("caf\u00E9\u0436")), QUOR_W("CAF\u00E9\u0436"));
}

TEST(gh2_case, in_a_single_byte_locale_the_runtime_maps_the_units_of_a_byte) {
	made_locale const latin("ISO-8859-1", "en_US");
	if (!latin.is_set()) {
		std::cout << "NOT TESTED: this machine can't make a locale with ISO 8859-1 (packages locales, libc-bin)\n";
		return;
	}
	EXPECT_EQ(gh2::toupper(QUOR_W("caf\u00E9\u0436\u0101")), QUOR_W("CAF\u00C9\u0436\u0101"));
	EXPECT_EQ(gh2::tolower(QUOR_W("CAF\u00C9\u0416\u0100")), QUOR_W("caf\u00E9\u0416\u0100"));
	wide_string const units = every_unit();
	wide_string const lower = gh2::tolower(units);
	wide_string const upper = gh2::toupper(units);
	for (unsigned int unit = 0; unit != 0x10000; ++unit) {
		bool const is_byte = unit < 0x100;
		ASSERT_EQ(lower[unit], is_byte ? static_cast<unsigned int>(std::tolower(static_cast<int>(unit))) : unit);
		ASSERT_EQ(upper[unit], is_byte ? static_cast<unsigned int>(std::toupper(static_cast<int>(unit))) : unit);
	}
}

} // namespace
