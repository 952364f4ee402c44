#include <quor/strings/gh2/wide_text.hpp>

#include <gtest/gtest.h>

#include <cctype>
#include <cstddef>
#include <iostream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <quor/strings/ustring.hpp>

#include "support/c_locale.hpp"

namespace {

namespace gh2 = QUOR_2_9::strings::gh2;
using QUOR_2_9::strings::ustring16;
using QUOR_2_9::strings::ustring8;
using QUOR_2_9::types::wide_char;
using QUOR_2_9::types::wide_string;
using quor_test::c_locale;
using quor_test::made_locale;

// ---- calls ------------------------------------------------------------------------------

template <class Text>
using widened = decltype(gh2::to_ustring(std::declval<Text>()));
template <class Result, class... Results>
constexpr bool all_are = (std::is_same_v<Result, Results> && ...);
static_assert(all_are<wide_string, widened<char const (&)[3]>, widened<char *>, widened<std::string>,
                      widened<ustring8 &>, widened<wide_char const (&)[3]>, widened<wide_string>, widened<ustring16 &>,
                      decltype(gh2::from_ansi("x")), decltype(gh2::to_widechar(QUOR_W("x"))),
                      decltype(gh2::tolower(QUOR_W("X"))), decltype(gh2::toupper(ustring16()))>);
static_assert(all_are<std::string, decltype(gh2::to_utf8(QUOR_W("x"))), decltype(gh2::to_utf8(ustring16())),
                      decltype(gh2::to_ansi(QUOR_W("x")))>);

TEST(gh2, replaces_through_the_same_header) {
	wide_string text(QUOR_W("a-b-c"));
	EXPECT_EQ(gh2::replace_all(text, QUOR_W("-"), QUOR_W("+")), 2);
	EXPECT_EQ(text, QUOR_W("a+b+c"));
}

// ---- UTF-8 --------------------------------------------------------------------------------

struct pair_row {
	char const *name;
	std::string utf8;
	wide_string wide;
};

std::vector<pair_row> pairs() {
	return {
	    {"empty", "", QUOR_W("")},
	    {"ASCII", "plain", QUOR_W("plain")},
	    {"two bytes", "caf\xC3\xA9", QUOR_W("caf\u00E9")},
	    {"three bytes", "\xE2\x82\xAC", QUOR_W("\u20AC")},
	    {"four bytes are a standard pair", "\xF0\x9F\x98\x80", QUOR_W("\U0001F600")},
	    {"last code point", "\xF4\x8F\xBF\xBF", QUOR_W("\U0010FFFF")},
	    {"first pair", "\xF0\x90\x80\x80", QUOR_W("\U00010000")},
	    {"last unit", "\xEF\xBF\xBF", wide_string(1, wide_char(0xFFFF))},
	    {"byte order mark stays",
	     "\xEF\xBB\xBF"
	     "a",
	     wide_string{wide_char(0xFEFF), wide_char('a')}},
	};
}

TEST(gh2_utf8, converts_both_ways) {
	for (pair_row const &row : pairs()) {
		SCOPED_TRACE(row.name);
		EXPECT_EQ(gh2::to_ustring(row.utf8), row.wide);
		EXPECT_EQ(gh2::to_ustring(row.utf8.c_str()), row.wide);
		EXPECT_EQ(gh2::to_utf8(row.wide), row.utf8);
	}
	EXPECT_EQ(gh2::to_ustring("\xF0\x9F\x98\x80").size(), 2U);
	EXPECT_EQ(gh2::to_ustring("\xF0\x9F\x98\x80")[0], 0xD83D);
}

TEST(gh2_utf8, the_result_ends_at_its_first_zero) {
	EXPECT_EQ(gh2::to_ustring(std::string("ab\0cd", 5)), QUOR_W("ab"));
	EXPECT_EQ(gh2::to_ustring(std::string("\0cd", 3)), QUOR_W(""));
	EXPECT_EQ(gh2::to_ustring(std::string("ab\0", 3)), QUOR_W("ab"));
	EXPECT_EQ(gh2::to_utf8(wide_string(QUOR_W("ab\0cd"), 5)), "ab");
	EXPECT_EQ(gh2::to_utf8(wide_string(QUOR_W("\0cd"), 3)), "");
	EXPECT_EQ(gh2::to_utf8(wide_string(QUOR_W("ab\0"), 3)), "ab");
}

TEST(gh2_utf8, malformed_text_has_replacement_characters) {
	EXPECT_EQ(gh2::to_ustring("a\xFFz"), QUOR_W("a\uFFFDz"));
	EXPECT_EQ(gh2::to_ustring("\xE2\x82"), QUOR_W("\uFFFD"));
	EXPECT_EQ(gh2::to_ustring(std::string("\xE2\x82\0z", 4)), QUOR_W("\uFFFD"));
	wide_string lone{wide_char('a'), wide_char(0xD83D), wide_char('z')};
	EXPECT_EQ(gh2::to_utf8(lone), "a\xEF\xBF\xBDz");
	lone[1] = wide_char(0xDE00);
	EXPECT_EQ(gh2::to_utf8(lone), "a\xEF\xBF\xBDz");
}

TEST(gh2_utf8, a_null_pointer_is_the_empty_text) {
	EXPECT_EQ(gh2::to_ustring(static_cast<char const *>(nullptr)), wide_string());
	EXPECT_EQ(gh2::to_ustring(static_cast<wide_char const *>(nullptr)), wide_string());
}

void append_utf8(std::string &text, unsigned int code_point) {
	auto const put = [&text](unsigned int byte) { text.push_back(static_cast<char>(byte)); };
	if (code_point < 0x80) {
		put(code_point);
	} else if (code_point < 0x800) {
		put(0xC0 + code_point / 64);
		put(0x80 + code_point % 64);
	} else if (code_point < 0x10000) {
		put(0xE0 + code_point / 4096);
		put(0x80 + code_point / 64 % 64);
		put(0x80 + code_point % 64);
	} else {
		put(0xF0 + code_point / 262144);
		put(0x80 + code_point / 4096 % 64);
		put(0x80 + code_point / 64 % 64);
		put(0x80 + code_point % 64);
	}
}

void append_utf16(wide_string &text, unsigned int code_point) {
	if (code_point < 0x10000) {
		text.push_back(static_cast<wide_char>(code_point));
	} else {
		text.push_back(static_cast<wide_char>(0xD800 + (code_point - 0x10000) / 1024));
		text.push_back(static_cast<wide_char>(0xDC00 + (code_point - 0x10000) % 1024));
	}
}

// Every code point but 0 and the surrogates, in order.
pair_row every_code_point() {
	pair_row all{"every code point", {}, {}};
	for (unsigned int code_point = 1; code_point != 0x110000; ++code_point) {
		if (code_point == 0xD800) {
			code_point = 0xE000;
		}
		append_utf8(all.utf8, code_point);
		append_utf16(all.wide, code_point);
	}
	return all;
}

TEST(gh2_utf8, every_code_point_converts_both_ways) {
	pair_row const all = every_code_point();
	EXPECT_TRUE(gh2::to_ustring(all.utf8) == all.wide);
	EXPECT_TRUE(gh2::to_utf8(all.wide) == all.utf8);
}

// ---- wide to wide -------------------------------------------------------------------------

TEST(gh2_wide, one_byte_order_mark_is_dropped) {
	wide_char const mark = 0xFEFF;
	wide_char const swapped = 0xFFFE;
	struct row {
		char const *name;
		wide_string text, expected;
	};
	std::vector<row> const rows{
	    {"empty", {}, {}},
	    {"mark alone", {mark}, {}},
	    {"two marks", {mark, mark}, {mark}},
	    {"mark first", {mark, wide_char('a')}, QUOR_W("a")},
	    {"mark later", {wide_char('a'), mark}, {wide_char('a'), mark}},
	    {"swapped mark", {swapped, wide_char('a')}, {swapped, wide_char('a')}},
	    {"no mark", QUOR_W("ab"), QUOR_W("ab")},
	};
	for (row const &r : rows) {
		EXPECT_EQ(gh2::to_ustring(r.text), r.expected) << r.name;
		EXPECT_EQ(gh2::to_ustring(r.text.c_str()), r.expected) << r.name;
		EXPECT_EQ(gh2::to_widechar(r.text), r.text) << r.name;
	}
}

TEST(gh2_wide, zeros_stay) {
	wide_string const text(QUOR_W("a\0b"), 3);
	EXPECT_EQ(gh2::to_ustring(text), text);
	EXPECT_EQ(gh2::to_widechar(text), text);
	EXPECT_EQ(gh2::to_ustring(text.c_str()), QUOR_W("a"));
	EXPECT_EQ(gh2::tolower(text), text);
	EXPECT_EQ(gh2::toupper(text), wide_string(QUOR_W("A\0B"), 3));
}

// ---- the locale's encoding ------------------------------------------------------------------

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

TEST(gh2_ansi, text_ends_at_its_first_zero) {
	EXPECT_EQ(gh2::to_ansi(wide_string(QUOR_W("ab\0cd"), 5)), "ab");
	EXPECT_EQ(gh2::to_ansi(wide_string(QUOR_W("\0cd"), 3)), "");
	EXPECT_EQ(gh2::to_ansi(wide_string(QUOR_W("ab\0\u20AC"), 4)), "ab"); // what follows isn't looked at
	EXPECT_EQ(gh2::from_ansi(std::string("ab\0cd", 5)), QUOR_W("ab"));
	EXPECT_EQ(gh2::from_ansi(std::string("ab\0\xFF", 4)), QUOR_W("ab"));
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

// ---- case -----------------------------------------------------------------------------------

wide_string every_unit() {
	wide_string units;
	for (unsigned int unit = 0; unit != 0x10000; ++unit) {
		units.push_back(static_cast<wide_char>(unit));
	}
	return units;
}

TEST(gh2_case, without_a_locale_only_ascii_letters_change) {
	c_locale const plain("C");
	wide_string const units = every_unit();
	wide_string const lower = gh2::tolower(units);
	wide_string const upper = gh2::toupper(units);
	ASSERT_EQ(lower.size(), units.size());
	ASSERT_EQ(upper.size(), units.size());
	for (unsigned int unit = 0; unit != 0x10000; ++unit) {
		ASSERT_EQ(lower[unit], unit >= 'A' && unit <= 'Z' ? unit + 32 : unit) << unit;
		ASSERT_EQ(upper[unit], unit >= 'a' && unit <= 'z' ? unit - 32 : unit) << unit;
	}
	EXPECT_EQ(gh2::tolower(QUOR_W("")), QUOR_W(""));
	EXPECT_EQ(gh2::toupper(QUOR_W("abc")), QUOR_W("ABC"));
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
