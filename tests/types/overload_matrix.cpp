// Which overload is meant by which argument. One source for all targets: where a type
// has another width or another name there, the alias that says so is used, never a
// question for the platform.

#include "overload_matrix.hpp"

#include <climits>
#include <cstddef>
#include <cstdint>
#include <iostream>
#include <limits>
#include <sstream>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

#include <quor/quor.hpp>

namespace {

namespace convert = quor::generic::convert;
namespace strings = quor::strings;
namespace types = quor::types;

using strings::ustring16;
using strings::ustring32;
using strings::ustring8;
using types::wide_string;

template <class A, class B>
constexpr bool same = std::is_same_v<A, B>;

// ---- the widths -----------------------------------------------------------------

template <class Unit>
constexpr bool is_unit_of(std::size_t size) {
	return sizeof(Unit) == size && static_cast<Unit>(-1) > static_cast<Unit>(0);
}
static_assert(is_unit_of<types::wide_char>(2) && is_unit_of<types::utf32_char>(4));
static_assert(std::numeric_limits<types::int32>::digits == 31 && std::numeric_limits<types::uint32>::digits == 32);
static_assert(std::numeric_limits<types::int64>::digits == 63 && std::numeric_limits<types::uint64>::digits == 64);
static_assert(sizeof(types::long_t) == 4 && sizeof(types::ulong_t) == 4);
static_assert(sizeof(ustring8) == sizeof(std::string) && sizeof(ustring16) == sizeof(wide_string));
static_assert(sizeof(ustring32) == sizeof(types::utf32_string));

// ---- every string class and every text literal is told apart ----------------------

template <int>
struct choice {};

struct text_sets {
	static choice<1> pick(char const *);
	static choice<2> pick(types::wide_char const *);
	static choice<3> pick(types::utf32_char const *);
	static choice<4> pick(std::string const &);
	static choice<5> pick(wide_string const &);
	static choice<6> pick(ustring8 const &);
	static choice<7> pick(ustring16 const &);
	static choice<8> pick(ustring32 const &);
};

template <class Text, int Kind>
constexpr bool text_is = same<decltype(text_sets::pick(std::declval<Text>())), choice<Kind>>;

static_assert(text_is<char const (&)[4], 1> && text_is<char *, 1> && text_is<char const *const &, 1>);
static_assert(text_is<types::wide_char const (&)[4], 2> && text_is<types::wide_char *, 2>);
static_assert(text_is<types::utf32_char const (&)[4], 3> && text_is<types::utf32_char *, 3>);
static_assert(text_is<decltype("x"), 1> && text_is<decltype(QUOR_W("x")), 2>);
static_assert(text_is<std::string, 4> && text_is<std::string &, 4> && text_is<std::string const &, 4>);
static_assert(text_is<wide_string, 5> && text_is<wide_string &, 5> && text_is<wide_string const &, 5>);
static_assert(text_is<ustring8, 6> && text_is<ustring8 &, 6> && text_is<ustring8 const &, 6>);
static_assert(text_is<ustring16, 7> && text_is<ustring16 &, 7> && text_is<ustring16 const &, 7>);
static_assert(text_is<ustring32, 8> && text_is<ustring32 &, 8> && text_is<ustring32 const &, 8>);

// The same with the three Unicode classes alone: a literal and a standard string find
// the class of their unit.
struct class_sets {
	static choice<6> pick(ustring8 const &);
	static choice<7> pick(ustring16 const &);
	static choice<8> pick(ustring32 const &);
};

template <class Text, int Kind>
constexpr bool class_is = same<decltype(class_sets::pick(std::declval<Text>())), choice<Kind>>;

static_assert(class_is<char const (&)[4], 6> && class_is<std::string, 6> && class_is<ustring8, 6>);
static_assert(class_is<types::wide_char const (&)[4], 7> && class_is<wide_string, 7> && class_is<ustring16, 7>);
static_assert(class_is<types::utf32_char const (&)[4], 8> && class_is<types::utf32_string, 8>);
static_assert(class_is<ustring32, 8>);

// No class turns into another one.
template <class From, class To>
constexpr bool converts = std::is_convertible_v<From, To>;
static_assert(converts<std::string, ustring8> && converts<ustring8, std::string>);
static_assert(converts<wide_string, ustring16> && converts<ustring16, wide_string>);
static_assert(!converts<ustring8, ustring16> && !converts<ustring8, ustring32> && !converts<ustring8, wide_string>);
static_assert(!converts<ustring16, ustring8> && !converts<ustring16, ustring32> && !converts<ustring16, std::string>);
static_assert(!converts<ustring32, ustring8> && !converts<ustring32, ustring16> && !converts<ustring32, std::string>);
static_assert(!converts<std::string, ustring16> && !converts<wide_string, ustring8>);
static_assert(!converts<char const *, ustring16> && !converts<types::wide_char const *, ustring8>);
static_assert(!converts<int, ustring8> && !converts<char, ustring8> && !converts<types::nil_t, ustring8>);

// ---- every number is told apart ----------------------------------------------------

struct number_sets {
	static choice<1> pick(bool);
	static choice<2> pick(signed char);
	static choice<3> pick(unsigned char);
	static choice<4> pick(short);
	static choice<5> pick(unsigned short);
	static choice<6> pick(int);
	static choice<7> pick(unsigned int);
	static choice<8> pick(types::long_t);
	static choice<9> pick(types::ulong_t);
	static choice<10> pick(types::int64);
	static choice<11> pick(types::uint64);
	static choice<10> pick(types::native_long64);
	static choice<11> pick(types::native_ulong64);
	static choice<12> pick(float);
	static choice<13> pick(double);
	static choice<14> pick(long double);
};

template <class Number, int Kind>
constexpr bool number_is = same<decltype(number_sets::pick(std::declval<Number>())), choice<Kind>>;

static_assert(number_is<bool, 1> && number_is<signed char, 2> && number_is<unsigned char, 3>);
static_assert(number_is<short, 4> && number_is<unsigned short, 5> && number_is<int, 6> && number_is<unsigned int, 7>);
static_assert(number_is<types::long_t, 8> && number_is<types::ulong_t, 9>);
static_assert(number_is<long long, 10> && number_is<unsigned long long, 11>);
static_assert(number_is<types::int64, 10> && number_is<types::uint64, 11>);
static_assert(number_is<float, 12> && number_is<double, 13> && number_is<long double, 14>);
// The native long is the 32-bit one where it has 32 bits, else a 64-bit number.
static_assert(number_is < long, sizeof(long) == 4 ? 8 : 10 > &&number_is < unsigned long, sizeof(long) == 4 ? 9 : 11 >);
// Names that stand for one of these.
static_assert(number_is<std::int8_t, 2> && number_is<std::uint8_t, 3> && number_is<std::int16_t, 4>);
static_assert(number_is<std::int32_t, 6> && number_is<std::uint32_t, 7>);
static_assert(number_is<std::int64_t, 10> && number_is<std::uint64_t, 11>);
static_assert(number_is < std::size_t, sizeof(std::size_t) == 8 ? 11 : 7 >);
static_assert(number_is < std::ptrdiff_t, sizeof(std::ptrdiff_t) == 8 ? 10 : 6 >);
static_assert(number_is < types::int32, same<types::int32, int> ? 6 : 8 >);
static_assert(number_is < types::uint32, same<types::uint32, unsigned int> ? 7 : 9 >);
// Literals.
static_assert(number_is<decltype(true), 1> && number_is<decltype(5), 6> && number_is<decltype(5U), 7>);
static_assert(number_is < decltype(5L), sizeof(long) == 4 ? 8 : 10 >);
static_assert(number_is < decltype(5UL), sizeof(long) == 4 ? 9 : 11 >);
static_assert(number_is<decltype(5LL), 10> && number_is<decltype(5ULL), 11>);
static_assert(number_is<decltype(5.0F), 12> && number_is<decltype(5.0), 13> && number_is<decltype(5.0L), 14>);
static_assert(number_is<decltype('x'), 6> && number_is<decltype(QUOR_W('x')), 6>);
static_assert(number_is < decltype(sizeof(int)), sizeof(std::size_t) == 8 ? 11 : 7 >);

// The 32-bit numbers that are types of their own convert both ways and count as numbers.
static_assert(converts<types::long_t, types::int32> && converts<types::int32, types::long_t>);
static_assert(converts<types::ulong_t, types::uint32> && converts<types::uint32, types::ulong_t>);
static_assert(!same<types::long_t, types::ulong_t> && !same<types::long_t, types::int64>);
static_assert(types::long_t(5) == 5 && types::long_t(-1) < 0 && types::ulong_t(5) == 5U);
static_assert(types::long_t() == 0 && types::ulong_t() == 0U);
static_assert(types::long_t(INT_MIN) == INT_MIN && types::ulong_t(UINT_MAX) == UINT_MAX);
static_assert(types::long_t(2) + types::long_t(3) == 5 && types::long_t(7) / 2 == 3);

// ---- what the operations give ------------------------------------------------------

template <class Text>
using length_of = decltype(strings::string_length(std::declval<Text>()));
static_assert(same<length_of<char const (&)[4]>, types::uint32>);
static_assert(same<length_of<ustring8>, types::uint32>);
static_assert(same<length_of<types::wide_char const (&)[4]>, types::uint32>);
static_assert(same<length_of<types::utf32_char const (&)[4]>, types::uint32>);

template <class Text>
using code_point_of = decltype(strings::unichar(std::declval<Text>(), 1, 0, std::declval<types::uint32 &>()));
static_assert(same<code_point_of<char const *>, types::uint32>);
static_assert(same<code_point_of<types::wide_char const *>, types::uint32>);
static_assert(same<code_point_of<types::utf32_char const *>, types::uint32>);

template <class Text>
using pieces_of = decltype(strings::split_string(std::declval<Text>(), std::declval<Text>(), 0));
static_assert(same<pieces_of<char const (&)[4]>, std::vector<ustring8>>);
static_assert(same<pieces_of<std::string>, std::vector<std::string>>);
static_assert(same<pieces_of<ustring8 &>, std::vector<ustring8>>);
static_assert(same<pieces_of<types::wide_char const (&)[4]>, std::vector<ustring16>>);
static_assert(same<pieces_of<wide_string>, std::vector<wide_string>>);
static_assert(same<pieces_of<ustring16>, std::vector<ustring16>>);
static_assert(same<pieces_of<types::utf32_char const (&)[4]>, std::vector<ustring32>>);
static_assert(same<pieces_of<ustring32>, std::vector<ustring32>>);

template <class Text, class Separator>
using mixed_pieces_of = decltype(strings::split_string(std::declval<Text>(), std::declval<Separator>()));
static_assert(same<mixed_pieces_of<std::string, char const *>, std::vector<std::string>>);
static_assert(same<mixed_pieces_of<std::string, ustring8>, std::vector<std::string>>);
static_assert(same<mixed_pieces_of<ustring8, char const *>, std::vector<ustring8>>);
static_assert(same<mixed_pieces_of<ustring8, std::string>, std::vector<ustring8>>);
static_assert(same<mixed_pieces_of<char const *, ustring8>, std::vector<ustring8>>);
static_assert(same<mixed_pieces_of<char const *, std::string>, std::vector<std::string>>);
static_assert(same<mixed_pieces_of<wide_string, types::wide_char const *>, std::vector<wide_string>>);
static_assert(same<mixed_pieces_of<wide_string, ustring16>, std::vector<wide_string>>);
static_assert(same<mixed_pieces_of<ustring16, types::wide_char const *>, std::vector<ustring16>>);
static_assert(same<mixed_pieces_of<ustring16, wide_string>, std::vector<ustring16>>);
static_assert(same<mixed_pieces_of<ustring32, types::utf32_char const *>, std::vector<ustring32>>);
static_assert(same<mixed_pieces_of<ustring32, types::utf32_string>, std::vector<ustring32>>);

template <class Text>
using lowered = decltype(strings::lower_case(std::declval<Text>(), 0, 1));
static_assert(same<lowered<char const *>, ustring8>);
static_assert(same<lowered<std::string>, ustring8>);
static_assert(same<lowered<types::wide_char const *>, ustring16>);
static_assert(same<lowered<wide_string>, ustring16>);
static_assert(same<lowered<types::utf32_char const *>, ustring32>);
static_assert(same<lowered<ustring32>, ustring32>);

template <class Left, class Right>
using sum = decltype(std::declval<Left>() + std::declval<Right>());
template <class Class, class Base, class Unit>
constexpr bool sums_keep_the_class() {
	return same<sum<Class, Class>, Class> && same<sum<Class &, Class const &>, Class> &&
	       same<sum<Class, Base>, Class> && same<sum<Class const &, Base const &>, Class> &&
	       same<sum<Class const &, Base>, Class> && same<sum<Class, Base &>, Class> && same<sum<Base, Class>, Class> &&
	       same<sum<Base const &, Class const &>, Class> && same<sum<Base, Class const &>, Class> &&
	       same<sum<Base &, Class>, Class> && same<sum<Class, Unit const *>, Class> &&
	       same<sum<Class const &, Unit const(&)[3]>, Class> && same<sum<Unit const *, Class>, Class> &&
	       same<sum<Class, Unit>, Class> && same<sum<Unit, Class const &>, Class> && same<sum<Base, Base>, Base>;
}
static_assert(sums_keep_the_class<ustring8, std::string, char>());
static_assert(sums_keep_the_class<ustring16, wide_string, types::wide_char>());
static_assert(sums_keep_the_class<ustring32, types::utf32_string, types::utf32_char>());

// The class where it moves costs what the base costs.
static_assert(std::is_nothrow_move_constructible_v<ustring8> && std::is_nothrow_move_assignable_v<ustring8>);
static_assert(std::is_nothrow_move_constructible_v<ustring32> && std::is_nothrow_move_assignable_v<ustring32>);
static_assert(std::is_nothrow_constructible_v<ustring16, wide_string &&>);

// ---- the same at run time ----------------------------------------------------------

class failures {
public:
	void check(bool holds, char const *condition) {
		if (!holds) {
			m_texts.emplace_back(condition);
		}
	}
	std::vector<std::string> const &texts() const { return m_texts; }

private:
	std::vector<std::string> m_texts;
};

#define HOLDS(condition) into.check(condition, #condition)

void check_literals(failures &into) {
	HOLDS(strings::string_length("abc") == 3);
	HOLDS(strings::string_length(QUOR_W("abc")) == 3);
	HOLDS(strings::string_length(QUOR_U32("abc")) == 3);
	HOLDS(QUOR_W('c') == 0x63 && QUOR_U32('c') == 0x63);
	HOLDS(QUOR_W("\u20AC")[0] == 0x20AC && QUOR_U32("\U0001F600")[0] == 0x1F600);
	HOLDS(QUOR_U32("ab")[2] == 0);
	HOLDS(ustring16(QUOR_W("ab")) == QUOR_W("ab") && ustring32(QUOR_U32("ab")) == QUOR_U32("ab"));
	HOLDS(ustring32(2, QUOR_U32('x')) == QUOR_U32("xx"));
}

void check_string_length(failures &into) {
	HOLDS(strings::string_length(std::string("abc")) == 3);
	HOLDS(strings::string_length(wide_string(QUOR_W("abc"))) == 3);
	HOLDS(strings::string_length(ustring8("ab\0c", 4)) == 4);
	HOLDS(strings::string_length(ustring16(QUOR_W("ab\0c"), 4)) == 4);
	HOLDS(strings::string_length(ustring32(QUOR_U32("ab\0c"), 4)) == 4);
}

void check_code_points(failures &into) {
	types::uint32 consumed = 0;
	HOLDS(strings::unichar("A", 1, 0, consumed) == 65 && consumed == 1);
	HOLDS(strings::unichar(QUOR_W("A"), 1U, 0U, consumed) == 65 && consumed == 1);
	HOLDS(strings::unichar(QUOR_U32("A"), types::ulong_t(1), types::uint32(0), consumed) == 65 && consumed == 1);
	HOLDS(strings::unichar("A", 1, 1, consumed) == 63 && consumed == 0xFFFFFFFF);
	HOLDS(strings::character_index("abc", 2) == 2);
	HOLDS(strings::character_index(std::string("abc"), 2) == 2);
	HOLDS(strings::character_index(QUOR_W("abc"), 2) == 2);
	HOLDS(strings::character_index(wide_string(QUOR_W("abc")), 2) == 2);
	HOLDS(strings::character_index(ustring8("abc"), types::ulong_t(3)) == 0xFFFFFFFF);
	HOLDS(strings::character_index(ustring16(), 0) == static_cast<types::uint32>(-1));
}

void check_transcoders(failures &into) {
	HOLDS(strings::utf8_to_utf16("ab") == QUOR_W("ab"));
	HOLDS(strings::utf8_to_utf16(std::string("ab")) == QUOR_W("ab"));
	HOLDS(strings::utf8_to_utf32(ustring8("ab")) == QUOR_U32("ab"));
	HOLDS(strings::utf16_to_utf8(QUOR_W("ab")) == "ab");
	HOLDS(strings::utf16_to_utf8(wide_string(QUOR_W("ab"))) == "ab");
	HOLDS(strings::utf16_to_utf32(ustring16(QUOR_W("ab"))) == QUOR_U32("ab"));
	HOLDS(strings::utf32_to_utf8(QUOR_U32("ab")) == "ab");
	HOLDS(strings::utf32_to_utf16(ustring32(QUOR_U32("ab"))) == QUOR_W("ab"));
	HOLDS(strings::utf32_to_utf16(QUOR_U32("\U0001F600")).size() == 2);
	HOLDS(strings::from_native_wide(L"ab\U0001F600") == QUOR_W("ab\U0001F600"));
	HOLDS(strings::to_native_wide(QUOR_W("ab\U0001F600")) == L"ab\U0001F600");
}

void check_algorithms(failures &into) {
	HOLDS(strings::split_string("a,b", ",", 0).size() == 2);
	HOLDS(strings::split_string(std::string("a,b"), ",", 0).size() == 2);
	HOLDS(strings::split_string(QUOR_W("a,b"), QUOR_W(","), 0).size() == 2);
	HOLDS(strings::split_string(QUOR_U32("a,b"), QUOR_U32(","), 0).size() == 2);
	HOLDS(strings::split_string(ustring8("a,b"), ",", types::long_t(1)).size() == 2);
	std::string narrow("axb");
	HOLDS(strings::replace_all(narrow, "x", "yy") == 1 && narrow == "ayyb");
	wide_string wide(QUOR_W("axb"));
	HOLDS(strings::replace_all(wide, QUOR_W("x"), QUOR_W("yy")) == 1 && wide == QUOR_W("ayyb"));
	HOLDS(strings::gh2::replace_all(wide, QUOR_W("yy"), QUOR_W("z")) == 1 && wide == QUOR_W("azb"));
	ustring8 utf8("axb");
	HOLDS(strings::replace_all(utf8, "x", "yy") == 1 && utf8 == "ayyb");
	ustring16 utf16(QUOR_W("axb"));
	HOLDS(strings::replace_all(utf16, QUOR_W("x"), QUOR_W("yy")) == 1 && utf16 == QUOR_W("ayyb"));
	ustring32 utf32(QUOR_U32("axb"));
	HOLDS(strings::replace_all(utf32, QUOR_U32("x"), QUOR_U32("yy")) == 1 && utf32 == QUOR_U32("ayyb"));
	HOLDS(strings::lower_case("ABCD", 2, static_cast<types::uint32>(-1)) == "ABcd");
	HOLDS(strings::lower_case("ABCD", types::ulong_t(1), types::ulong_t(3)) == "AbcD");
	HOLDS(strings::lower_case(QUOR_W("ABCD"), 1, 3) == QUOR_W("AbcD"));
	HOLDS(strings::to_lower(QUOR_U32("AB")) == QUOR_U32("ab"));
	HOLDS(strings::to_upper(std::string("ab")) == "AB");
}

void check_wide_layer(failures &into) {
	namespace gh2 = strings::gh2;
	HOLDS(gh2::to_ustring("ab") == QUOR_W("ab") && gh2::to_ustring(std::string("ab")) == QUOR_W("ab"));
	HOLDS(gh2::to_ustring(ustring8("\xF0\x9F\x98\x80")) == QUOR_W("\U0001F600"));
	HOLDS(gh2::to_ustring(QUOR_W("\uFEFFab")) == QUOR_W("ab") &&
	      gh2::to_ustring(ustring16(QUOR_W("ab"))) == QUOR_W("ab"));
	HOLDS(gh2::to_utf8(QUOR_W("\U0001F600")) == "\xF0\x9F\x98\x80" && gh2::to_utf8(wide_string()).empty());
	HOLDS(gh2::to_widechar(QUOR_W("ab")) == QUOR_W("ab") && gh2::to_ansi(QUOR_W("ab")) == "ab");
	HOLDS(gh2::from_ansi("ab") == QUOR_W("ab") && gh2::to_ansi(QUOR_W("\u4E2D")).empty());
	HOLDS(gh2::toupper(QUOR_W("aB\u0101")) == QUOR_W("AB\u0101") && gh2::tolower(QUOR_W("aB")) == QUOR_W("ab"));
	unsigned char const bytes[] = {0xC3, 0xA9};
	HOLDS(gh2::get_utf8_length("a", 1) == 1 && gh2::get_utf8_length(bytes, sizeof bytes) == 2);
	HOLDS(gh2::validate_utf8("a", 1U) && gh2::validate_utf8(bytes, 2) && !gh2::validate_utf8(bytes, 1));
	HOLDS(gh2::get_utf8_length(nullptr, 5) == 0 && !gh2::validate_utf8(nullptr, 5));
	HOLDS(&gh2::ucin == &std::wcin && &gh2::ucout == &std::wcout && &gh2::ucerr == &std::wcerr);
	std::wostringstream stream;
	stream << ustring16(QUOR_W("ab")) << ustring16(wide_string(QUOR_W("cd"))) << L"ef";
	HOLDS(stream.str() == L"abcdef");
}

// Text of every class in and out of an encoding, from literals too.
void check_code_pages(failures &into) {
	using strings::code_page;
	code_page page = code_page::cp_1252;
	HOLDS(page.encode("ab") == "ab" && page.encode(std::string("ab")) == "ab" && page.encode(ustring8("ab")) == "ab");
	HOLDS(page.encode(QUOR_W("a\u20AC")) == "a\x80" && page.encode(wide_string(QUOR_W("ab"))) == "ab");
	HOLDS(page.encode(QUOR_U32("a\u20AC")) == "a\x80" && page.encode(types::utf32_string(QUOR_U32("ab"))) == "ab");
	HOLDS(page.as_utf8("\x80") == "\xE2\x82\xAC" && page.as_utf8(ustring8("ab")) == ustring8("ab"));
	HOLDS(page.as_utf16("\x80") == QUOR_W("\u20AC") && page.as_utf32("\x80") == QUOR_U32("\u20AC"));
	HOLDS(page.as_ustring("\x80") == QUOR_W("\u20AC"));
	static_assert(same<decltype(page.as_utf8("")), ustring8> && same<decltype(page.as_utf16("")), ustring16> &&
	              same<decltype(page.as_utf32("")), ustring32> && same<decltype(page.as_ustring("")), wide_string>);
	HOLDS(page == code_page::cp_1252 && page.equal(code_page::cp_1252) && page != code_page::utf_8);
	HOLDS(page == code_page(page) && page != code_page() && !(page == types::nil) && !page.equal(types::nil));
	page = types::nil;
	HOLDS(page.type() == 0 && !(page == types::nil) && !(page != types::nil) && page == code_page(types::nil));
	page.type(code_page::cp_932) = code_page::utf_8;
	HOLDS(page.type() == 4 && page.to_system_type(page.type()) == 65001);
}

void check_sums(failures &into) {
	HOLDS(ustring8("a") + "b" + std::string("c") + 'd' + ustring8("e") == "abcde");
	HOLDS("a" + ustring8("b") == "ab" && 'a' + ustring8("b") == "ab" && std::string("a") + ustring8("b") == "ab");
	HOLDS(ustring16(QUOR_W("a")) + QUOR_W("b") + wide_string(QUOR_W("c")) + QUOR_W('d') == QUOR_W("abcd"));
	HOLDS(ustring32(QUOR_U32("a")) + QUOR_U32("b") + QUOR_U32('c') == QUOR_U32("abc"));
}

// Text to number: every text kind with every radix kind.
void check_text_to_number(failures &into) {
	HOLDS(convert::str_to_int("12", 0, 10, true) == 12);
	HOLDS(convert::str_to_int(QUOR_W("12"), 0, 10U, true) == 12);
	HOLDS(convert::str_to_int(QUOR_U32("12"), 0, 10L, true) == 12);
	HOLDS(convert::str_to_long("12", 0, 10UL, true) == 12);
	HOLDS(convert::str_to_int64("12", 0, 10LL, true) == 12);
	HOLDS(convert::str_to_uint32("12", 2, 0, true) == 12);
	HOLDS(convert::str_to_uint64(QUOR_W("12"), 2, types::radix_t::of(std::size_t(16)), true) == 0x12);
	HOLDS(convert::str_to_uint8(QUOR_U32("12"), 2, types::radix_t::decimal, true) == 12);
	HOLDS(convert::str_to_short("12", types::ulong_t(2), types::radix_t::detect, false) == 12);
}
static_assert(same<decltype(convert::str_to_long("1", 0, 10, true)), types::int32>);
static_assert(same<decltype(convert::str_to_int32("1", 0, 10, true)), types::int32>);
static_assert(same<decltype(convert::str_to_uint32("1", 0, 10, true)), types::uint32>);
static_assert(same<decltype(convert::str_to_int64("1", 0, 10, true)), types::int64>);
static_assert(same<decltype(convert::str_to_uint64("1", 0, 10, true)), types::uint64>);

// Numbers to digits: every number kind with every unit.
void check_digits(failures &into) {
	char narrow[66];
	types::wide_char wide[66];
	types::utf32_char utf32[66];
	HOLDS((convert::ltoa(-5, narrow, 10), ustring8(narrow) == "-5"));
	HOLDS((convert::ltoa(types::long_t(-5), wide, 10), ustring16(wide) == QUOR_W("-5")));
	HOLDS((convert::ltoa(types::int32(-5), utf32, 10), ustring32(utf32) == QUOR_U32("-5")));
	HOLDS((convert::ultoa(5U, narrow, 10), ustring8(narrow) == "5"));
	HOLDS((convert::ultoa(types::ulong_t(5), wide, 2), ustring16(wide) == QUOR_W("101")));
	HOLDS((convert::lltoa(-5, narrow, 10), ustring8(narrow) == "-5"));
	HOLDS((convert::lltoa(-5L, wide, 10), ustring16(wide) == QUOR_W("-5")));
	HOLDS((convert::lltoa(-5LL, utf32, 10), ustring32(utf32) == QUOR_U32("-5")));
	HOLDS((convert::ulltoa(std::size_t(5), narrow, 10), ustring8(narrow) == "5"));
	HOLDS((convert::ulltoa(5ULL, wide, 10), ustring16(wide) == QUOR_W("5")));
}

// What a variant is made from decides the type it holds.
template <class Held, class Value>
bool holds(Value const &value) {
	return types::variant(value).type() == typeid(Held);
}

void check_variant_numbers(failures &into) {
	HOLDS(holds<bool>(true) && holds<signed char>(static_cast<signed char>(1)));
	HOLDS(holds<unsigned char>(static_cast<unsigned char>(1)) && holds<short>(static_cast<short>(1)));
	HOLDS(holds<unsigned short>(static_cast<unsigned short>(1)) && holds<int>(5) && holds<unsigned int>(5U));
	HOLDS(holds<types::long_t>(types::long_t(5)) && holds<types::ulong_t>(types::ulong_t(5)));
	HOLDS(holds<types::int64>(5LL) && holds<types::uint64>(5ULL));
	HOLDS(holds<float>(5.0F) && holds<double>(5.0) && holds<long double>(5.0L));
	// The native long goes in without loss, as a held long or as a 64-bit number.
	HOLDS(sizeof(long) == 4 ? holds<types::long_t>(5L) : holds<types::int64>(5L));
	HOLDS(sizeof(long) == 4 ? holds<types::ulong_t>(5UL) : holds<types::uint64>(5UL));
	HOLDS(types::variant(LONG_MIN).as_int64() == LONG_MIN && types::variant(ULONG_MAX).as_uint64() == ULONG_MAX);
	HOLDS(holds<types::int64>(std::int64_t(1)) && holds<types::uint64>(std::uint64_t(1)));
	HOLDS(holds<int>(std::int32_t(1)) && holds<unsigned int>(std::uint32_t(1)));
	HOLDS(sizeof(std::size_t) == 4 || holds<types::uint64>(std::size_t(1)));
	HOLDS(types::variant(static_cast<std::size_t>(-1)).as_uint64() == static_cast<std::size_t>(-1));
	HOLDS(holds<int>('A') && types::variant('A').as_int() == 65);
	HOLDS(holds<int>(QUOR_W('A')) && types::variant(QUOR_U32('A')).as_int() == 65);
}

void check_variant_texts(failures &into) {
	HOLDS(holds<ustring8>("x") && holds<ustring16>(QUOR_W("x")) && holds<ustring32>(QUOR_U32("x")));
	HOLDS(holds<std::string>(std::string("x")) && holds<wide_string>(wide_string(QUOR_W("x"))));
	HOLDS(holds<ustring8>(ustring8("x")) && holds<ustring16>(ustring16(QUOR_W("x"))));
	HOLDS(holds<ustring32>(ustring32(QUOR_U32("x"))) && holds<types::nil_t>(types::nil));
	char text[] = "x";
	char *const pointer = text;
	HOLDS(holds<ustring8>(pointer) && types::variant(pointer).as_utf8() == "x");
	types::variant value;
	HOLDS((value = 5, value.type() == typeid(int)));
	HOLDS((value = "x", value.type() == typeid(ustring8)));
	HOLDS((value = types::ulong_t(5), value.type() == typeid(types::ulong_t)));
	HOLDS((value = types::nil, value == types::nil));
}
static_assert(!std::is_constructible_v<types::variant, void *> && !std::is_constructible_v<types::variant, int *>);
static_assert(!std::is_constructible_v<types::variant, std::string *> &&
              !std::is_constructible_v<types::variant, void (*)()> &&
              !std::is_constructible_v<types::variant, int std::pair<int, int>::*>);
static_assert(same<decltype(types::variant().as_long()), types::int32> &&
              same<decltype(types::variant().as_ulong()), types::uint32> &&
              same<decltype(types::variant().as_int64()), types::int64> &&
              same<decltype(types::variant().as_uint64()), types::uint64> &&
              same<decltype(types::variant().as_wstring()), wide_string>);

// Lengths: every number kind, units by name and by number.
template <class Number>
bool makes_lengths(Number number) {
	using types::absolute_unit;
	using types::device_unit;
	types::basic_absolute_impl<absolute_unit::inch> length(number);
	length = number;
	device_unit pixels(number);
	pixels = number;
	pixels.assign(number);
	return length.as_md() == 2 && pixels.as_int32() == 2 &&
	       convert::to_md(number, absolute_unit::inch).as_md() == 200000 &&
	       convert::to_md(number, 5).as_md() == 200000 &&
	       convert::to_md(number, device_unit::dpx, 2).as_md() == 100000 &&
	       convert::to_md(number, 1, 2).as_md() == 100000 && convert::to_md(pixels, 2).as_md() == 100000 &&
	       convert::to_device_unit(number, device_unit::dpx) == pixels &&
	       convert::to_device_unit(number, 1) == pixels &&
	       convert::to_device_unit(number, absolute_unit::inch, 300) == 600 && convert::to_dpx(number, 5, 300) == 600 &&
	       convert::to_dpx(number, device_unit::dpx) == pixels &&
	       convert::to_dpx(number, absolute_unit::inch, types::long_t(300)) == 600 &&
	       convert::to_dpx(number, 1) == pixels;
}

void check_units(failures &into) {
	HOLDS(makes_lengths(2) && makes_lengths(2U) && makes_lengths(2L) && makes_lengths(2UL) && makes_lengths(2LL));
	HOLDS(makes_lengths(2ULL) && makes_lengths(2.0F) && makes_lengths(2.0) && makes_lengths(2.0L));
	HOLDS(makes_lengths(types::long_t(2)));
	HOLDS(makes_lengths(types::int32(2)) && makes_lengths(types::uint32(2)) && makes_lengths(types::int64(2)));
	HOLDS(makes_lengths(types::ulong_t(2)) && makes_lengths(std::size_t(2)) && makes_lengths(std::int64_t(2)));
	HOLDS(makes_lengths(static_cast<short>(2)) && makes_lengths(static_cast<unsigned char>(2)) && makes_lengths('\2'));
	HOLDS(convert::to_md(0.5, 5).as_md() == 50000 && convert::to_md(7, 99).as_md() == 7);
	types::int64 const *const md_per_inch = &types::absolute_unit::m_md_per_inch; // has a place of its own
	HOLDS(*md_per_inch == 100000);
	types::color_t color(0x11223344);
	color = 5;
	HOLDS(color.as_int32() == 5 && color == types::color_t(5L) && types::color_t::rgb(5L) == color.assign(5));
	HOLDS(color.red(7) == 7 && types::color_t(1, 2, 3).as_rgb() == 0x030201);
}

// A list is asked by index and by name; no literal is both.
void check_arguments(failures &into) {
	quor::generic::varg_list list(quor::generic::argument("name", 5), "text", 7L);
	quor::generic::varg_list const &fixed = list;
	HOLDS(list.size() == 3 && list["name"].value().as_int() == 5);
	HOLDS(list[0].name() == "name" && list[0U].name() == "name" && list[0L].name() == "name");
	HOLDS(list[0LL].name() == "name" && list[std::size_t(0)].name() == "name");
	HOLDS(list[types::long_t(0)].name() == "name" && list[types::ulong_t(0)].name() == "name");
	HOLDS(fixed[0].name() == "name" && fixed["name"].value().as_int() == 5);
	HOLDS(fixed[std::string("name")].value().as_int() == 5 && fixed[ustring8("name")].value().as_int() == 5);
	HOLDS(list.at(0).name() == "name" && fixed.at("name").value().as_int() == 5);
	HOLDS(list[1].value().type() == typeid(ustring8) && list[2].value().as_int64() == 7);
	HOLDS((list.erase(0), list.size() == 2));
	HOLDS((list.erase("name"), list.size() == 2));
	HOLDS((list.erase(list.begin()), list.size() == 1));
	HOLDS(list.push_back("name", "value") && list.push_back(ustring8("other"), std::size_t(1)));
	HOLDS(list.push_back(5) && list.push_back("value") && list.push_back(QUOR_W("value")) && list.size() == 6);
}

void check_streams(failures &into) {
	std::ostringstream out;
	out << types::long_t(-5) << ' ' << types::ulong_t(5) << ' ' << ustring8("text");
	HOLDS(out.str() == "-5 5 text");
}

void check_paths(failures &into) {
	namespace io = quor::system::io;
	std::string content;
	std::vector<ustring8> narrow;
	std::vector<ustring16> wide;
	std::vector<ustring32> full;
	HOLDS(!io::exists("") && !io::exists(QUOR_W("")) && !io::exists(QUOR_U32("")) && !io::exists(std::string()));
	HOLDS(!io::is_file("") && !io::is_directory(wide_string()) && !quor::system::have_read_access(""));
	HOLDS(quor::system::load_file("", content) == 1 && quor::system::store_file("", content) == 1);
	HOLDS((quor::system::get_directory_files("", narrow), narrow == quor::system::list_directory("")));
	HOLDS((quor::system::get_directory_files(QUOR_W(""), wide), wide == quor::system::list_directory(wide_string())));
	HOLDS((quor::system::get_directory_files(QUOR_U32(""), full), full == quor::system::list_directory(QUOR_U32(""))));
}

void check_catalogs(failures &into) {
	using quor::i18n::message_catalogs;
	message_catalogs catalogs;
	message_catalogs const &fixed = catalogs;
	auto const &missing = message_catalogs::s_nil_message;
	char key[] = "key";
	HOLDS(&fixed.message("app", "key") == &missing && &fixed.message(key, key) == &missing);
	HOLDS(&fixed.message(std::string("app"), "key") == &missing && &fixed.message(ustring8("app"), "key") == &missing);
	HOLDS(&fixed.message(QUOR_W("app"), wide_string()) == &missing &&
	      &fixed.message(QUOR_U32("a"), QUOR_U32("k")) == &missing);
	HOLDS(!fixed.has_catalog("app") && !fixed.has_catalog("app", "en") && !fixed.has_message("app", "key"));
	HOLDS(fixed.size("app") == 0 && fixed.count(QUOR_W("app")) == 0 && fixed.begin("app") == fixed.end("app"));
	HOLDS(catalogs.load("", "en") == message_catalogs::entity_not_found && catalogs.load("", "en", "app"));
	HOLDS(catalogs.load(std::vector<std::string>{""}, "en") &&
	      catalogs.load(std::vector<wide_string>{QUOR_W("")}, "en"));
	HOLDS(catalogs.load(std::vector<ustring16>{QUOR_W("")}, QUOR_W("en")) && catalogs.load_file("", "en"));
	HOLDS(catalogs.load({""}, "en") && catalogs.load({"", std::string(), ustring8()}, ustring8("en"), "app"));
	HOLDS(!catalogs.catalog("app").has_message("key") && !catalogs.catalog("app").is_language_loaded(QUOR_W("en")));
}

} // namespace

namespace quor_test {

std::vector<std::string> overload_matrix_failures() {
	failures into;
	check_literals(into);
	check_string_length(into);
	check_code_points(into);
	check_transcoders(into);
	check_algorithms(into);
	check_wide_layer(into);
	check_code_pages(into);
	check_sums(into);
	check_text_to_number(into);
	check_digits(into);
	check_variant_numbers(into);
	check_variant_texts(into);
	check_units(into);
	check_arguments(into);
	check_streams(into);
	check_paths(into);
	check_catalogs(into);
	return into.texts();
}

} // namespace quor_test
