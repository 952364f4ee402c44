#include <quor/strings/gh2/wide_text.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <quor/strings/ustring.hpp>

#include "strings/gh2/wide_rows.hpp"
#include "support/c_locale.hpp"

namespace {

namespace gh2 = QUOR_2_9::strings::gh2;
using QUOR_2_9::strings::ustring16;
using QUOR_2_9::strings::ustring8;
using QUOR_2_9::types::wide_char;
using QUOR_2_9::types::wide_string;
using quor_test::c_locale;
using quor_test::every_code_point;
using quor_test::every_unit;
using quor_test::pair_row;
using quor_test::pairs;

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

TEST(gh2_ansi, text_ends_at_its_first_zero) {
	EXPECT_EQ(gh2::to_ansi(wide_string(QUOR_W("ab\0cd"), 5)), "ab");
	EXPECT_EQ(gh2::to_ansi(wide_string(QUOR_W("\0cd"), 3)), "");
	EXPECT_EQ(gh2::to_ansi(wide_string(QUOR_W("ab\0\u20AC"), 4)), "ab"); // what follows isn't looked at
	EXPECT_EQ(gh2::from_ansi(std::string("ab\0cd", 5)), QUOR_W("ab"));
	EXPECT_EQ(gh2::from_ansi(std::string("ab\0\xFF", 4)), QUOR_W("ab"));
}

// ---- case -----------------------------------------------------------------------------------

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

} // namespace
