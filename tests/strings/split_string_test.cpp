#include <quor/strings/split_string.hpp>

#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "reference/text.hpp"
#include "strings/text_rows.hpp"

namespace {

using quor::strings::split_string;
using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor::types::wide_string;
using quor_reference::numbers;
using quor_reference::text_of;
using quor_reference::units_of;
using quor_test::shown;
using quor_test::widened;

template <class Text>
class split_string_of : public testing::Test {};
using every_text = testing::Types<std::string, wide_string, ustring8, ustring16, ustring32>;
TYPED_TEST_SUITE(split_string_of, every_text, );

TYPED_TEST(split_string_of, rows) {
	struct row {
		std::string text;
		std::string separator;
		int max_splits;
		std::vector<std::string> pieces;
	};
	row const rows[] = {
	    {"a,b,c", ",", 0, {"a", "b", "c"}},
	    {"a,b,c", ",", -1, {"a", "b", "c"}},
	    {"a,b,c", ",", INT_MIN, {"a", "b", "c"}},
	    {"a,b,c", ",", 1, {"a", "b,c"}},
	    {"a,b,c", ",", 2, {"a", "b", "c"}},
	    {"a,b,c", ",", 3, {"a", "b", "c"}},
	    {"a,b,c", ",", INT_MAX, {"a", "b", "c"}},
	    {"a,,b", ",", 0, {"a", "", "b"}},
	    {"a,,b", ",", 1, {"a", ",b"}},
	    {",a", ",", 0, {"", "a"}},
	    {",a", ",", 1, {"", "a"}},
	    {"a,", ",", 0, {"a"}},
	    {"a,", ",", 1, {"a"}},
	    {"a,,", ",", 0, {"a", ""}},
	    {"a,,", ",", 1, {"a", ","}},
	    {"a,,", ",", 2, {"a", ""}},
	    {",", ",", 0, {""}},
	    {",", ",", 1, {""}},
	    {",,", ",", 0, {"", ""}},
	    {"", ",", 0, {}},
	    {"", ",", 1, {}},
	    {"abc", "", 0, {"abc"}},
	    {"abc", "", 1, {"abc"}},
	    {"", "", 0, {""}},
	    {"abc", ",", 0, {"abc"}},
	    {"abc", "abc", 0, {""}},
	    {"abc", "abcd", 0, {"abc"}},
	    {"a--b", "--", 0, {"a", "b"}},
	    {"a---b", "--", 0, {"a", "-b"}},
	    {"a----b", "--", 0, {"a", "", "b"}},
	    {"a--", "--", 0, {"a"}},
	    {"a-", "--", 0, {"a-"}},
	    {"aaaa", "aa", 0, {"", ""}},
	    {"aaaaa", "aa", 0, {"", "", "a"}},
	    {std::string("a\0b", 3), std::string("\0", 1), 0, {"a", "b"}},
	};
	for (row const &r : rows) {
		SCOPED_TRACE("\"" + r.text + "\" at \"" + r.separator + "\", " + std::to_string(r.max_splits));
		std::vector<TypeParam> expected;
		for (std::string const &piece : r.pieces) {
			expected.push_back(widened<TypeParam>(piece));
		}
		std::vector<TypeParam> const got =
		    split_string(widened<TypeParam>(r.text), widened<TypeParam>(r.separator), r.max_splits);
		EXPECT_EQ(got, expected);
	}
}

TYPED_TEST(split_string_of, max_splits_is_zero_by_default) {
	EXPECT_EQ(split_string(widened<TypeParam>("a,b,c"), widened<TypeParam>(",")).size(), 3U);
}

TYPED_TEST(split_string_of, text_may_be_its_own_separator) {
	auto const text = widened<TypeParam>("abc");
	EXPECT_EQ(split_string(text, text, 0), std::vector<TypeParam>(1));
}

TYPED_TEST(split_string_of, agrees_with_the_reference_on_random_texts) {
	std::vector<numbers> const pieces{{'a'}, {'b'}, {','}, {'-'}, {'-', '-'}, {0xE9}, {0}};
	std::vector<numbers> const separators{{}, {','}, {'-', '-'}, {'a', 'b'}, {'a', 'a'}, {0}, {'-', 'a', '-'}};
	std::mt19937 random(6);
	for (int i = 0; i != 3000; ++i) {
		numbers const text = quor_test::random_text(random, pieces, 16);
		numbers const &separator = separators[random() % separators.size()];
		int const max_splits = static_cast<int>(random() % 6) - 1;
		std::vector<numbers> got;
		for (TypeParam const &piece :
		     split_string(text_of<TypeParam>(text), text_of<TypeParam>(separator), max_splits)) {
			got.push_back(units_of(piece));
		}
		ASSERT_EQ(got, quor_reference::split(text, separator, max_splits))
		    << shown(text) << " at " << shown(separator) << ", " << max_splits;
	}
}

TEST(split_string, wide_units_are_compared_whole) {
	// U+012C has the low byte of a comma.
	EXPECT_EQ(split_string(text_of<ustring16>({'a', 0x12C, 'b'}), ustring16(QUOR_W(",")), 0).size(), 1U);
	EXPECT_EQ(split_string(text_of<ustring32>({'a', 0x1002C, 'b'}), ustring32(QUOR_U32(",")), 0).size(), 1U);
}

TEST(split_string, pointer_separator_ends_at_its_first_zero) {
	EXPECT_EQ(split_string(ustring8("a,b;c"), ",\0;", 0), (std::vector<ustring8>{"a", "b;c"}));
	EXPECT_EQ(split_string(std::string("a,b;c"), ",\0;", 0), (std::vector<std::string>{"a", "b;c"}));
	EXPECT_EQ(split_string(ustring8("a,b"), "", 0), std::vector<ustring8>{"a,b"});
	EXPECT_EQ(split_string(std::string("a,b"), "", 0), std::vector<std::string>{"a,b"});
	EXPECT_EQ(split_string(ustring8("a,b,c"), ",", 1), (std::vector<ustring8>{"a", "b,c"}));
	EXPECT_EQ(split_string(std::string("a,b,c"), ",", 1), (std::vector<std::string>{"a", "b,c"}));
}

TEST(split_string, literals_mean_the_unicode_classes) {
	std::vector<ustring8> const narrow = split_string("a,b", ",", 0);
	EXPECT_EQ(narrow, (std::vector<ustring8>{"a", "b"}));
	std::vector<ustring16> const wide = split_string(QUOR_W("a,b"), QUOR_W(","), 0);
	EXPECT_EQ(wide, (std::vector<ustring16>{QUOR_W("a"), QUOR_W("b")}));
	std::vector<ustring32> const utf32 = split_string(QUOR_U32("a,b"), QUOR_U32(","), 0);
	EXPECT_EQ(utf32, (std::vector<ustring32>{QUOR_U32("a"), QUOR_U32("b")}));
	EXPECT_EQ(split_string("a,b", ",").size(), 2U);
	EXPECT_EQ(split_string(QUOR_W("a,b"), QUOR_W(",")).size(), 2U);
}

TEST(split_string, classes_and_standard_strings_mix) {
	std::vector<ustring8> const narrow = split_string(ustring8("a,b"), std::string(","), 0);
	EXPECT_EQ(narrow.size(), 2U);
	std::vector<std::string> const standard = split_string(std::string("a,b"), ustring8(","), 0);
	EXPECT_EQ(standard.size(), 2U);
	std::vector<ustring16> const wide = split_string(ustring16(QUOR_W("a,b")), wide_string(QUOR_W(",")), 1);
	EXPECT_EQ(wide.size(), 2U);
	std::vector<wide_string> const wide_standard = split_string(wide_string(QUOR_W("a,b")), ustring16(QUOR_W(",")));
	EXPECT_EQ(wide_standard.size(), 2U);
	std::vector<ustring8> const from_literal = split_string("a,b", ustring8(","), 0);
	EXPECT_EQ(from_literal.size(), 2U);
	std::vector<std::string> const from_standard = split_string("a,b", std::string(","), 0);
	EXPECT_EQ(from_standard.size(), 2U);
	// A standard string of 32-bit units counts as the class.
	quor::types::utf32_string const standard32(QUOR_U32("a,b"));
	std::vector<ustring32> const utf32 = split_string(standard32, ustring32(QUOR_U32(",")), 0);
	EXPECT_EQ(utf32.size(), 2U);
	EXPECT_EQ(split_string(standard32, standard32, 0), std::vector<ustring32>(1));
	EXPECT_EQ(split_string(ustring32(standard32), quor::types::utf32_string(QUOR_U32(","))), utf32);
}

} // namespace
