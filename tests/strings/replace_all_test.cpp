#include <quor/strings/replace_all.hpp>

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

#include <quor/quor.hpp>

#include "reference/text.hpp"
#include "strings/text_rows.hpp"

namespace {

using quor::strings::replace_all;
using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor::types::int32;
using quor::types::wide_string;
using quor_reference::numbers;
using quor_reference::text_of;
using quor_reference::units_of;
using quor_test::shown;
using quor_test::widened;

struct row {
	char const *text;
	char const *from;
	char const *to;
	char const *result;
	int count;
};

row const rows[] = {
    {"aaa", "a", "aa", "aaaaaa", 3},
    {"abc", "x", "y", "abc", 0},
    {"aXbXc", "X", "", "abc", 2},
    {"", "x", "y", "", 0},
    {"x", "x", "y", "y", 1},
    {"x", "x", "", "", 1},
    {"x", "xx", "y", "x", 0},
    {"aaaa", "aa", "b", "bb", 2},
    {"aaaaa", "aa", "b", "bba", 2},
    {"aabaab", "aab", "ab", "abab", 2},
    {"abab", "ab", "ab", "abab", 2},
    {"a-b-c", "-", "--", "a--b--c", 2},
    {"xax", "x", "longer", "longeralonger", 2},
    {"aXb", "X", "X", "aXb", 1},
    {"a quite long text in front, X", "X", "Y", "a quite long text in front, Y", 1},
};

template <class Text>
class replace_all_in : public testing::Test {};
using every_text = testing::Types<std::string, wide_string, ustring8, ustring16, ustring32>;
TYPED_TEST_SUITE(replace_all_in, every_text, );

TYPED_TEST(replace_all_in, rows) {
	for (row const &r : rows) {
		SCOPED_TRACE(std::string(r.text) + ": " + r.from + " by " + r.to);
		auto text = widened<TypeParam>(r.text);
		EXPECT_EQ(replace_all(text, widened<TypeParam>(r.from), widened<TypeParam>(r.to)), r.count);
		EXPECT_EQ(text, widened<TypeParam>(r.result));
	}
}

TYPED_TEST(replace_all_in, empty_from_throws_length_error_and_changes_nothing) {
	for (char const *text : {"", "abc"}) {
		for (char const *to : {"", "x"}) {
			SCOPED_TRACE(std::string(text) + " by " + to);
			auto changed = widened<TypeParam>(text);
			EXPECT_THROW(replace_all(changed, TypeParam(), widened<TypeParam>(to)), std::length_error);
			EXPECT_EQ(changed, widened<TypeParam>(text));
		}
	}
}

TYPED_TEST(replace_all_in, text_itself_counts_with_its_old_contents) {
	auto text = widened<TypeParam>("ab");
	EXPECT_EQ(replace_all(text, text, widened<TypeParam>("x")), 1);
	EXPECT_EQ(text, widened<TypeParam>("x"));

	text = widened<TypeParam>("aba");
	EXPECT_EQ(replace_all(text, widened<TypeParam>("a"), text), 2);
	EXPECT_EQ(text, widened<TypeParam>("abababa"));

	text = widened<TypeParam>("a text that is too long for the object itself");
	TypeParam const old = text;
	EXPECT_EQ(replace_all(text, text, text), 1);
	EXPECT_EQ(text, old);
}

TYPED_TEST(replace_all_in, from_and_to_may_be_one_object) {
	auto text = widened<TypeParam>("abcabc");
	auto const part = widened<TypeParam>("bc");
	EXPECT_EQ(replace_all(text, part, part), 2);
	EXPECT_EQ(text, widened<TypeParam>("abcabc"));
}

TYPED_TEST(replace_all_in, zero_units_are_ordinary) {
	auto text = widened<TypeParam>(std::string("a\0b\0", 4));
	EXPECT_EQ(replace_all(text, widened<TypeParam>(std::string("\0", 1)), widened<TypeParam>("-")), 2);
	EXPECT_EQ(text, widened<TypeParam>("a-b-"));
}

TYPED_TEST(replace_all_in, many_matches_in_a_long_text_take_one_pass) {
	std::size_t const size = std::size_t(1) << 20;
	TypeParam text(size, static_cast<typename TypeParam::value_type>('a'));
	EXPECT_EQ(replace_all(text, widened<TypeParam>("a"), widened<TypeParam>("bc")), static_cast<int32>(size));
	EXPECT_EQ(text.size(), 2 * size);
	EXPECT_EQ(text.find(static_cast<typename TypeParam::value_type>('a')), TypeParam::npos);
	EXPECT_EQ(replace_all(text, widened<TypeParam>("bc"), TypeParam()), static_cast<int32>(size));
	EXPECT_TRUE(text.empty());
}

TYPED_TEST(replace_all_in, agrees_with_the_reference_on_random_texts) {
	std::vector<numbers> const pieces{{'a'}, {'b'}, {'a', 'b'}, {0}, {0xE9}};
	std::mt19937 random(7);
	for (int i = 0; i != 5000; ++i) {
		numbers const text = quor_test::random_text(random, pieces, 16);
		numbers from = quor_test::random_text(random, pieces, 2);
		numbers const to = quor_test::random_text(random, pieces, 3);
		if (from.empty()) {
			from.push_back('a');
		}
		auto changed = text_of<TypeParam>(text);
		int32 const count = replace_all(changed, text_of<TypeParam>(from), text_of<TypeParam>(to));
		quor_reference::replaced const expected = quor_reference::replace(text, from, to);
		ASSERT_EQ(count, expected.count) << shown(text) << ": " << shown(from) << " by " << shown(to);
		ASSERT_EQ(units_of(changed), expected.text) << shown(text) << ": " << shown(from) << " by " << shown(to);
	}
}

TEST(replace_all, result_is_a_32_bit_number) {
	ustring8 text("a");
	static_assert(std::is_same_v<decltype(replace_all(text, "a", "b")), int32>);
	EXPECT_EQ(replace_all(text, "a", "b"), 1);
	EXPECT_EQ(text, "b");
}

TEST(replace_all, literals_work_for_every_class) {
	std::string standard("a");
	EXPECT_EQ(replace_all(standard, "a", "bb"), 1);
	EXPECT_EQ(standard, "bb");
	wide_string wide(QUOR_W("a"));
	EXPECT_EQ(replace_all(wide, QUOR_W("a"), QUOR_W("bb")), 1);
	EXPECT_EQ(wide, QUOR_W("bb"));
	ustring16 utf16(QUOR_W("a"));
	EXPECT_EQ(replace_all(utf16, QUOR_W("a"), QUOR_W("bb")), 1);
	EXPECT_EQ(utf16, QUOR_W("bb"));
	ustring32 utf32(QUOR_U32("a"));
	EXPECT_EQ(replace_all(utf32, QUOR_U32("a"), QUOR_U32("bb")), 1);
	EXPECT_EQ(utf32, QUOR_U32("bb"));
}

TEST(replace_all, classes_and_standard_strings_mix) {
	ustring8 text("aXb");
	EXPECT_EQ(replace_all(text, std::string("X"), std::string("YY")), 1);
	EXPECT_EQ(replace_all(text, std::string("YY"), ustring8("Z")), 1);
	EXPECT_EQ(replace_all(text, ustring8("Z"), std::string("-")), 1);
	EXPECT_EQ(replace_all(text, "-", std::string("+")), 1);
	EXPECT_EQ(replace_all(text, std::string("+"), "/"), 1);
	EXPECT_EQ(text, "a/b");
	std::string standard("aXb");
	EXPECT_EQ(replace_all(standard, ustring8("X"), ustring8("YY")), 1);
	EXPECT_EQ(standard, "aYYb");
	ustring16 utf16(QUOR_W("aXb"));
	EXPECT_EQ(replace_all(utf16, wide_string(QUOR_W("X")), QUOR_W("Y")), 1);
	EXPECT_EQ(utf16, QUOR_W("aYb"));
}

TEST(replace_all, mixed_text_itself_counts_with_its_old_contents) {
	ustring8 text("aba");
	std::string const &base = text;
	EXPECT_EQ(replace_all(text, "a", base), 2);
	EXPECT_EQ(text, "abababa");
}

TEST(replace_all, wide_units_are_compared_whole) {
	auto utf16 = text_of<ustring16>({0x161, 'a'});
	EXPECT_EQ(replace_all(utf16, QUOR_W("a"), QUOR_W("")), 1);
	EXPECT_EQ(units_of(utf16), numbers{0x161});
	auto utf32 = text_of<ustring32>({0x10061, 0xFF000061, 'a'});
	EXPECT_EQ(replace_all(utf32, QUOR_U32("a"), QUOR_U32("")), 1);
	EXPECT_EQ(units_of(utf32), (numbers{0x10061, 0xFF000061}));
}

TEST(gh2_replace_all, behaves_as_the_first_entry) {
	for (row const &r : rows) {
		SCOPED_TRACE(std::string(r.text) + ": " + r.from + " by " + r.to);
		auto text = widened<wide_string>(r.text);
		EXPECT_EQ(quor::strings::gh2::replace_all(text, widened<wide_string>(r.from), widened<wide_string>(r.to)),
		          r.count);
		EXPECT_EQ(text, widened<wide_string>(r.result));
	}
	wide_string text(QUOR_W("aba"));
	EXPECT_THROW(quor::strings::gh2::replace_all(text, QUOR_W(""), QUOR_W("x")), std::length_error);
	EXPECT_EQ(quor::strings::gh2::replace_all(text, QUOR_W("a"), text), 2);
	EXPECT_EQ(text, QUOR_W("abababa"));
}

} // namespace
