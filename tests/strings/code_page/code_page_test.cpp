#include <quor/strings/code_page/code_page.hpp>

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <type_traits>
#include <utility>

#include <quor/quor.hpp>

namespace {

using quor::strings::code_page;
using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using encoding = code_page::encoding_type;

static_assert(sizeof(code_page) == 4 && !std::is_polymorphic_v<code_page>);
static_assert(std::is_trivially_destructible_v<code_page>);
static_assert(sizeof(encoding) == 4 && std::is_signed_v<std::underlying_type_t<encoding>>);
static_assert(std::is_same_v<decltype(std::declval<code_page &>().assign(quor::types::nil)), code_page const &>);
static_assert(std::is_same_v<decltype(std::declval<code_page &>() = code_page::utf_8), code_page const &>);
static_assert(std::is_same_v<decltype(std::declval<code_page &>().type()), encoding &>);
static_assert(std::is_same_v<decltype(std::declval<code_page const &>().type()), encoding const &>);
static_assert(std::is_same_v<decltype(std::declval<code_page &>().type(code_page::utf_8)), encoding &>);
static_assert(std::is_same_v<decltype(std::declval<code_page const &>().as_ustring("")), quor::types::wide_string>);

encoding value(long long number) {
	return static_cast<encoding>(static_cast<int>(number));
}

// All encodings, with the numbers that the system has for them.
constexpr std::pair<int, int> system_types[] = {
    {1, 0},         {2, 1},         {3, 1},         {4, 65001},     {932, 932},     {936, 936},
    {949, 949},     {950, 950},     {1250, 1250},   {1251, 1251},   {1252, 1252},   {1253, 1253},
    {1254, 1254},   {1255, 1255},   {1256, 1256},   {1257, 1257},   {1258, 1258},   {20866, 20866},
    {21866, 21866}, {28591, 28591}, {28592, 28592}, {28593, 28593}, {28594, 28594}, {28595, 28595},
    {28596, 28596}, {28597, 28597}, {28598, 28598}, {28599, 28599}, {28605, 28605},
};

template <class Call>
void expect_not_valid(Call call) {
	try {
		call();
		ADD_FAILURE() << "nothing was thrown";
	} catch (quor::exceptions::invalid_argument_value const &error) {
		EXPECT_STREQ(error.message(), "Not valid code_page type");
		EXPECT_EQ(error.error_state().line(), 458U);
		EXPECT_STREQ(error.error_state().file(), "strings\\code_page");
		EXPECT_STREQ(error.error_state().function(), "QUOR_2_9::strings::code_page::to_system_type");
	}
}

TEST(code_page, construction_and_assignment_take_the_value) {
	EXPECT_EQ(code_page().type(), 0);
	EXPECT_EQ(code_page(quor::types::nil).type(), 0);
	code_page page(code_page::cp_1251);
	EXPECT_EQ(page.type(), 1251);
	EXPECT_EQ(code_page(page).type(), 1251);
	EXPECT_EQ(&page.assign(quor::types::nil), &page);
	EXPECT_EQ(page.type(), 0);
	EXPECT_EQ(&page.assign(code_page::cp_932), &page);
	EXPECT_EQ(page.type(), 932);
	EXPECT_EQ(&page.assign(code_page(code_page::utf_8)), &page);
	EXPECT_EQ(page.type(), 4);
	EXPECT_EQ(&(page = quor::types::nil), &page);
	EXPECT_EQ(page.type(), 0);
	EXPECT_EQ(&(page = code_page::cp_950), &page);
	EXPECT_EQ(page.type(), 950);
	EXPECT_EQ(&(page = code_page(code_page::cp_28605)), &page);
	EXPECT_EQ(page.type(), 28605);
	page = *&page;
	EXPECT_EQ(page.type(), 28605);
}

TEST(code_page, type_can_be_changed_through_its_reference) {
	code_page page;
	page.type() = code_page::cp_1252;
	EXPECT_EQ(page, code_page::cp_1252);
	encoding &stored = page.type(code_page::cp_936);
	EXPECT_EQ(stored, 936);
	stored = code_page::cp_949;
	EXPECT_EQ(std::as_const(page).type(), 949);
	EXPECT_EQ(&std::as_const(page).type(), &page.type());
}

TEST(code_page, equality_compares_the_values) {
	code_page const page(code_page::cp_1252);
	EXPECT_TRUE(page.equal(code_page(code_page::cp_1252)));
	EXPECT_FALSE(page.equal(code_page(code_page::cp_1251)));
	EXPECT_TRUE(page.equal(code_page::cp_1252));
	EXPECT_FALSE(page.equal(code_page::cp_28591));
	EXPECT_TRUE(page == code_page(code_page::cp_1252));
	EXPECT_FALSE(page == code_page());
	EXPECT_TRUE(page == code_page::cp_1252);
	EXPECT_FALSE(page == code_page::cp_1253);
	EXPECT_TRUE(page != code_page());
	EXPECT_FALSE(page != code_page(page));
	EXPECT_TRUE(page != code_page::cp_1253);
	EXPECT_FALSE(page != code_page::cp_1252);
	// Values alone, whatever the system makes of them.
	EXPECT_FALSE(code_page(code_page::system_oem) == code_page(code_page::system_oem_alt));
}

TEST(code_page, nil_compares_by_the_sign_alone) {
	code_page const nil(quor::types::nil);
	EXPECT_FALSE(nil == quor::types::nil);
	EXPECT_FALSE(nil.equal(quor::types::nil));
	EXPECT_FALSE(nil != quor::types::nil);
	struct row {
		long long number;
		bool equal;
		bool differs;
	};
	for (row const &expected : {row{0, false, false}, row{1, false, true}, row{4, false, true},
	                            row{2147483647, false, true}, row{-1, true, true}, row{-2147483647 - 1, true, true}}) {
		code_page const page(value(expected.number));
		EXPECT_EQ(page.equal(quor::types::nil), expected.equal) << expected.number;
		EXPECT_EQ(page == quor::types::nil, expected.equal) << expected.number;
		EXPECT_EQ(page != quor::types::nil, expected.differs) << expected.number;
	}
}

TEST(code_page, to_system_type_maps_every_encoding) {
	code_page const any;
	for (auto const &[type, system] : system_types) {
		EXPECT_EQ(any.to_system_type(value(type)), system) << type;
	}
	static_assert(std::is_same_v<decltype(any.to_system_type(code_page::utf_8)), int>);
}

TEST(code_page, to_system_type_throws_for_every_other_value) {
	code_page const page(code_page::utf_8);
	std::size_t valid = 0;
	for (int number = -70000; number <= 70000; ++number) {
		bool thrown = false;
		try {
			page.to_system_type(value(number));
			++valid;
		} catch (quor::exceptions::invalid_argument_value const &) {
			thrown = true;
		}
		bool const known = std::any_of(std::begin(system_types), std::end(system_types),
		                               [number](auto const &row) { return row.first == number; });
		ASSERT_EQ(thrown, !known) << number;
	}
	EXPECT_EQ(valid, 29U);
	for (long long const number : {0LL, 5LL, 65001LL, -1LL, 2147483647LL, -2147483648LL}) {
		expect_not_valid([&] { page.to_system_type(value(number)); });
	}
}

TEST(code_page, conversions_of_an_invalid_value_throw_even_for_empty_text) {
	for (long long const number : {0LL, 5LL, 65001LL, -1LL}) {
		code_page const page(value(number));
		for (char const *const text : {"", "text"}) {
			expect_not_valid([&] { page.encode(ustring8(text)); });
			expect_not_valid([&] { page.encode(quor::strings::utf8_to_utf16(text)); });
			expect_not_valid([&] { page.encode(quor::strings::utf8_to_utf32(text)); });
			expect_not_valid([&] { page.as_utf16(text); });
			expect_not_valid([&] { page.as_utf8(text); });
			expect_not_valid([&] { page.as_utf32(text); });
			expect_not_valid([&] { page.as_ustring(text); });
		}
	}
}

TEST(code_page, empty_text_is_empty_in_every_encoding) {
	for (auto const &[type, system] : system_types) {
		code_page const page(value(type));
		EXPECT_EQ(page.encode(ustring8()), "");
		EXPECT_EQ(page.encode(ustring16()), "");
		EXPECT_EQ(page.encode(ustring32()), "");
		EXPECT_EQ(page.as_utf16(""), ustring16());
		EXPECT_EQ(page.as_utf8(""), ustring8());
		EXPECT_EQ(page.as_utf32(""), ustring32());
		EXPECT_EQ(page.as_ustring(""), quor::types::wide_string());
	}
}

TEST(code_page, ascii_is_the_same_in_every_encoding) {
	std::string ascii;
	for (int unit = 1; unit != 0x80; ++unit) {
		ascii.push_back(static_cast<char>(unit));
	}
	ustring16 const wide(ascii.begin(), ascii.end());
	for (auto const &[type, system] : system_types) {
		code_page const page(value(type));
		EXPECT_EQ(page.encode(wide), ascii) << type;
		EXPECT_EQ(page.as_utf16(ascii), wide) << type;
	}
}

TEST(code_page, text_ends_at_its_first_zero) {
	ustring16 const wide(QUOR_W("ab\0cd"), 5);
	std::string const narrow("ab\0cd", 5);
	for (auto const &[type, system] : system_types) {
		code_page const page(value(type));
		EXPECT_EQ(page.encode(wide), "ab") << type;
		EXPECT_EQ(page.encode(ustring8(narrow)), "ab") << type;
		EXPECT_EQ(page.encode(quor::strings::utf16_to_utf32(wide)), "ab") << type;
		EXPECT_EQ(page.as_utf16(narrow), QUOR_W("ab")) << type;
		EXPECT_EQ(page.as_utf8(narrow), "ab") << type;
		EXPECT_EQ(page.as_utf32(narrow), QUOR_U32("ab")) << type;
		EXPECT_EQ(page.as_ustring(narrow), QUOR_W("ab")) << type;
		EXPECT_EQ(page.encode(ustring16(QUOR_W("\0ab"), 3)), "") << type;
		EXPECT_EQ(page.as_utf16(std::string("\0ab", 3)), ustring16()) << type;
	}
	// Wherever the zero is in the steps in which the library looks for it.
	code_page const latin(code_page::cp_1252);
	for (std::size_t size = 0; size != 70; ++size) {
		for (std::size_t zero = 0; zero != size; ++zero) {
			ustring16 text(size, QUOR_W('x'));
			text[zero] = 0;
			ASSERT_EQ(latin.encode(text), std::string(zero, 'x')) << size;
		}
	}
}

// The characters of one text in the three Unicode classes.
TEST(code_page, all_classes_give_the_same_bytes) {
	struct row {
		encoding page;
		char const *utf8;
		char const *bytes;
	};
	for (row const &expected : {
	         row{code_page::cp_932, "\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E\xEF\xBD\xB1", "\x93\xFA\x96\x7B\x8C\xEA\xB1"},
	         row{code_page::cp_936, "\xE6\xB1\x89\xE5\xAD\x97\xE2\x82\xAC", "\xBA\xBA\xD7\xD6\x80"},
	         row{code_page::cp_949, "\xED\x95\x9C\xEA\xB5\xAD\xEC\x96\xB4\xEB\x98\xA0",
	             "\xC7\xD1\xB1\xB9\xBE\xEE\x8C\x63"},
	         row{code_page::cp_950, "\xE7\xB9\x81\xE9\xAB\x94\xE5\xAD\x97", "\xC1\x63\xC5\xE9\xA6\x72"},
	         row{code_page::cp_1250, "P\xC5\x99\xC3\xADli\xC5\xA1", "P\xF8\xEDli\x9A"},
	         row{code_page::cp_1251, "\xD0\x94\xD0\xB0", "\xC4\xE0"},
	         row{code_page::cp_1252, "caf\xC3\xA9 5 \xE2\x82\xAC", "caf\xE9 5 \x80"},
	         row{code_page::cp_1253, "\xCE\x95\xCE\xBB", "\xC5\xEB"},
	         row{code_page::cp_1254, "\xC4\xB0\xC5\x9F", "\xDD\xFE"},
	         row{code_page::cp_1255, "\xD7\xA9\xD7\x9C", "\xF9\xEC"},
	         row{code_page::cp_1256, "\xD8\xB3\xD9\x84", "\xD3\xE1"},
	         row{code_page::cp_1257, "\xC4\x93\xC5\xA0", "\xE7\xD0"},
	         row{code_page::cp_1258,
	             "\xC4\x90\xE1\xBB\x93"
	             "g",
	             "\xD0?g"},
	         row{code_page::cp_20866, "\xD0\x94\xD0\xB0", "\xE4\xC1"},
	         row{code_page::cp_21866, "\xD0\x87\xD0\x84", "\xB7\xB4"},
	         row{code_page::cp_28591, "\xC3\xA9\xC3\xBF", "\xE9\xFF"},
	         row{code_page::cp_28592, "\xC5\x99", "\xF8"},
	         row{code_page::cp_28593, "\xC4\xA7", "\xB1"},
	         row{code_page::cp_28594, "\xC4\xB8", "\xA2"},
	         row{code_page::cp_28595, "\xD0\x94", "\xB4"},
	         row{code_page::cp_28596, "\xD8\xB3", "\xD3"},
	         row{code_page::cp_28597, "\xCE\x95", "\xC5"},
	         row{code_page::cp_28598, "\xD7\xA9", "\xF9"},
	         row{code_page::cp_28599, "\xC4\xB0", "\xDD"},
	         row{code_page::cp_28605, "\xE2\x82\xAC\xC5\x93", "\xA4\xBD"},
	         row{code_page::utf_8, "\xE2\x82\xAC\xC5\x93", "\xE2\x82\xAC\xC5\x93"},
	     }) {
		SCOPED_TRACE(static_cast<int>(expected.page));
		code_page const page(expected.page);
		ustring8 const text(expected.utf8);
		EXPECT_EQ(page.encode(text), expected.bytes);
		EXPECT_EQ(page.encode(quor::strings::utf8_to_utf16(text)), expected.bytes);
		EXPECT_EQ(page.encode(quor::strings::utf8_to_utf32(text)), expected.bytes);
		if (std::string(expected.bytes).find('?') == std::string::npos) {
			EXPECT_EQ(page.as_utf8(expected.bytes), text);
			EXPECT_EQ(page.as_utf16(expected.bytes), quor::strings::utf8_to_utf16(text));
			EXPECT_EQ(page.as_utf32(expected.bytes), quor::strings::utf8_to_utf32(text));
			EXPECT_EQ(page.as_ustring(expected.bytes), quor::strings::utf8_to_utf16(text));
		}
	}
}

TEST(code_page, malformed_unicode_is_encoded_as_minus_one) {
	code_page const page(code_page::cp_1252);
	EXPECT_EQ(page.encode(ustring8("a\xFF")), "-1");
	// Behind a zero too: the whole text is converted before it is cut.
	EXPECT_EQ(page.encode(ustring8(std::string("a\0\xFF", 3))), "-1");
	EXPECT_EQ(page.encode(ustring32(1, static_cast<quor::types::utf32_char>(0x110000))),
	          page.encode(quor::strings::utf32_to_utf16(ustring32(1, static_cast<quor::types::utf32_char>(0x110000)))));
}

TEST(code_page, utf8_pairs_follow_the_standard_rule) {
	code_page const page(code_page::utf_8);
	ustring16 const smiley{static_cast<quor::types::wide_char>(0xD83D), static_cast<quor::types::wide_char>(0xDE00)};
	EXPECT_EQ(page.encode(smiley), "\xF0\x9F\x98\x80");
	EXPECT_EQ(page.as_utf16("\xF0\x9F\x98\x80"), smiley);
	EXPECT_EQ(page.as_utf8("\xF0\x9F\x98\x80"), "\xF0\x9F\x98\x80");
	EXPECT_EQ(page.as_utf32("\xF0\x9F\x98\x80"), ustring32(1, static_cast<quor::types::utf32_char>(0x1F600)));
	// From the other classes a character of this size is another one, by the transcoders' rule.
	EXPECT_EQ(page.encode(ustring8("\xF0\x9F\x98\x80")), page.encode(quor::strings::utf8_to_utf16("\xF0\x9F\x98\x80")));
}

TEST(code_page, a_byte_order_mark_is_a_character) {
	code_page const page(code_page::utf_8);
	EXPECT_EQ(page.as_utf16("\xEF\xBB\xBFx"), QUOR_W("\uFEFFx"));
	EXPECT_EQ(page.encode(ustring16(QUOR_W("\uFEFFx"))), "\xEF\xBB\xBFx");
}

} // namespace
