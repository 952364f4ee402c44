#include <quor/strings/ustring.hpp>

#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_set>
#include <utility>
#include <vector>

#include <quor/quor.hpp>

#include "strings/text_rows.hpp"

namespace {

using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor_test::widened;

template <class Text>
class ustring_of : public testing::Test {
public:
	static Text text(char const *bytes) { return widened<Text>(bytes); }
	static typename Text::base_type standard(char const *bytes) { return widened<typename Text::base_type>(bytes); }
	static typename Text::value_type letter(char byte) { return static_cast<typename Text::value_type>(byte); }
};
using every_text = testing::Types<ustring8, ustring16, ustring32>;
TYPED_TEST_SUITE(ustring_of, every_text, );

TYPED_TEST(ustring_of, layout_is_that_of_the_standard_string) {
	using base = typename TypeParam::base_type;
	static_assert(sizeof(TypeParam) == sizeof(base));
	static_assert(alignof(TypeParam) == alignof(base));
	static_assert(std::is_base_of_v<base, TypeParam> && !std::is_polymorphic_v<TypeParam>);
	static_assert(std::is_nothrow_move_constructible_v<TypeParam> && std::is_nothrow_move_assignable_v<TypeParam>);
	static_assert(std::is_nothrow_default_constructible_v<TypeParam>);
	EXPECT_TRUE(TypeParam().empty());
}

TYPED_TEST(ustring_of, constructors_of_the_standard_string_are_there) {
	auto const text = this->text("abc");
	EXPECT_EQ(TypeParam(text.c_str()), text);
	EXPECT_EQ(TypeParam(text.c_str(), 2), this->text("ab"));
	EXPECT_EQ(TypeParam(3, this->letter('x')), this->text("xxx"));
	EXPECT_EQ(TypeParam(text.begin() + 1, text.end()), this->text("bc"));
	EXPECT_EQ(TypeParam(text, 1, 1), this->text("b"));
	EXPECT_EQ((TypeParam{this->letter('a'), this->letter('b'), this->letter('c')}), text);
	EXPECT_EQ(TypeParam(this->standard("abc")), text);
	using view = std::basic_string_view<typename TypeParam::value_type, typename TypeParam::traits_type>;
	EXPECT_EQ(TypeParam(view(text)), text);
	TypeParam const implicit = this->standard("abc");
	EXPECT_EQ(implicit, text);
}

TYPED_TEST(ustring_of, assignments_of_the_standard_string_are_there) {
	auto const abc = this->text("abc");
	TypeParam text;
	text = abc;
	EXPECT_EQ(text, abc);
	text = this->standard("other");
	EXPECT_EQ(text, this->text("other"));
	text = abc.c_str();
	EXPECT_EQ(text, abc);
	text = this->letter('x');
	EXPECT_EQ(text, this->text("x"));
	text = {this->letter('a'), this->letter('b')};
	EXPECT_EQ(text, this->text("ab"));
	text = {};
	EXPECT_TRUE(text.empty());
	text.assign(abc);
	EXPECT_EQ(text, abc);
	TypeParam const &itself = text;
	text = itself;
	EXPECT_EQ(text, abc);
}

TYPED_TEST(ustring_of, copies_share_nothing) {
	TypeParam const text(100, this->letter('a'));
	TypeParam copy(text);
	EXPECT_NE(copy.data(), text.data());
	copy[0] = this->letter('b');
	EXPECT_EQ(text[0], this->letter('a'));
}

TYPED_TEST(ustring_of, moves_take_the_units_over) {
	TypeParam text(100, this->letter('a'));
	auto const *const units = text.data();
	TypeParam moved(std::move(text));
	EXPECT_EQ(moved.data(), units);
	TypeParam assigned;
	assigned = std::move(moved);
	EXPECT_EQ(assigned.data(), units);
	typename TypeParam::base_type standard(std::move(assigned));
	EXPECT_EQ(standard.data(), units);
	TypeParam back(std::move(standard));
	EXPECT_EQ(back.data(), units);
	EXPECT_EQ(back, TypeParam(100, this->letter('a')));
}

TYPED_TEST(ustring_of, zero_unit_stands_behind_the_last) {
	for (std::size_t size = 0; size != 40; ++size) {
		TypeParam const text(size, this->letter('a'));
		EXPECT_EQ(text[size], typename TypeParam::value_type());
		EXPECT_EQ(text.c_str()[size], typename TypeParam::value_type());
	}
}

TYPED_TEST(ustring_of, any_unit_is_kept_as_it_is) {
	using unit = typename TypeParam::value_type;
	TypeParam text;
	for (unsigned int value : {0U, 0x80U, 0xC0U, 0xFFU, 0xD800U, 0xDFFFU, 0xFFFFU, 0x110000U, 0xFFFFFFFFU}) {
		text.push_back(static_cast<unit>(value));
	}
	EXPECT_EQ(text.size(), 9U);
	EXPECT_EQ(text[8], static_cast<unit>(0xFFFFFFFFU));
	EXPECT_EQ(text[0], unit());
}

TYPED_TEST(ustring_of, compares_with_its_kind_and_the_standard_string) {
	auto const text = this->text("abc");
	EXPECT_TRUE(text == this->text("abc"));
	EXPECT_TRUE(text == this->standard("abc"));
	EXPECT_TRUE(this->standard("abc") == text);
	EXPECT_TRUE(text == text.c_str());
	EXPECT_TRUE(text.c_str() == text);
	EXPECT_TRUE(text != this->text("abd"));
	EXPECT_TRUE(text < this->text("abd"));
	EXPECT_TRUE(text < this->standard("b"));
	EXPECT_FALSE(text < this->text("ab"));
	EXPECT_TRUE(text >= this->text("abc"));
}

TYPED_TEST(ustring_of, orders_by_unsigned_units) {
	using unit = typename TypeParam::value_type;
	EXPECT_TRUE(TypeParam(1, static_cast<unit>('z')) < TypeParam(1, static_cast<unit>(0x80)));
	EXPECT_TRUE(TypeParam(1, static_cast<unit>(0x7F)) < TypeParam(1, static_cast<unit>(-1)));
}

TYPED_TEST(ustring_of, concatenation_keeps_the_class) {
	auto const a = this->text("a");
	auto const b = this->text("b");
	auto const c = this->standard("c");
	TypeParam const expected = this->text("abc");
	TypeParam sum = a + b + c;
	EXPECT_EQ(sum, expected);
	static_assert(std::is_same_v<decltype(a + b), TypeParam> && std::is_same_v<decltype(a + c), TypeParam>);
	static_assert(std::is_same_v<decltype(c + a), TypeParam> && std::is_same_v<decltype(a + b.c_str()), TypeParam>);
	EXPECT_EQ(c + a + b, this->text("cab"));
	EXPECT_EQ(a + this->standard("bc"), expected);
	EXPECT_EQ(this->standard("a") + this->text("bc"), expected);
	EXPECT_EQ(a + b.c_str() + this->letter('c'), expected);
	EXPECT_EQ(a.c_str() + this->text("bc"), expected);
	EXPECT_EQ(this->letter('a') + this->text("bc"), expected);
	EXPECT_EQ(TypeParam() + TypeParam(), TypeParam());
	TypeParam twice = a + a;
	twice = twice + twice;
	EXPECT_EQ(twice, this->text("aaaa"));
	EXPECT_EQ(a, this->text("a"));
}

TYPED_TEST(ustring_of, concatenation_keeps_zero_units) {
	TypeParam const zero(1, typename TypeParam::value_type());
	EXPECT_EQ((zero + zero + this->text("a")).size(), 3U);
}

TYPED_TEST(ustring_of, is_a_key_of_containers) {
	std::map<TypeParam, int> numbers;
	numbers[this->text("b")] = 2;
	numbers[this->text("a")] = 1;
	EXPECT_EQ(numbers.begin()->second, 1);
	std::unordered_set<TypeParam> seen;
	EXPECT_TRUE(seen.insert(this->text("a")).second);
	EXPECT_FALSE(seen.insert(this->text("a")).second);
	EXPECT_TRUE(seen.insert(this->text("b")).second);
	// Equal texts hash alike, also from other buffers; a zero unit counts.
	std::hash<TypeParam> const hash;
	TypeParam built;
	for (int i = 0; i != 50; ++i) {
		built.push_back(this->letter('a'));
	}
	EXPECT_EQ(hash(TypeParam(50, this->letter('a'))), hash(built));
	TypeParam const zero(1, typename TypeParam::value_type());
	EXPECT_NE(hash(TypeParam()), hash(zero));
}

TYPED_TEST(ustring_of, is_a_value_in_vectors) {
	std::vector<TypeParam> texts;
	for (int i = 0; i != 100; ++i) {
		texts.push_back(TypeParam(static_cast<std::size_t>(i), this->letter('a')));
	}
	std::swap(texts.front(), texts.back());
	EXPECT_EQ(texts.front().size(), 99U);
	EXPECT_TRUE(texts.back().empty());
}

TEST(ustring8, is_written_to_and_read_from_streams) {
	std::stringstream stream;
	stream << ustring8("one two");
	ustring8 text;
	stream >> text;
	EXPECT_EQ(text, "one");
	std::getline(stream, text);
	EXPECT_EQ(text, " two");
}

TEST(ustring8, exchanges_bytes_with_std_string) {
	std::string plain("caf\xC3\xA9\0!", 7);
	ustring8 const text(plain);
	EXPECT_EQ(text.size(), 7U);
	std::string const back = text; // NOLINT(performance-unnecessary-copy-initialization): the copy is tested
	EXPECT_EQ(back, plain);
	plain = text;
	EXPECT_EQ(plain.size(), 7U);
}

} // namespace
