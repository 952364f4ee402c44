// What is no character, where the system's service answers.

#include <quor/strings/code_page/code_page.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <string>
#include <utility>

#ifndef NOMINMAX
#  define NOMINMAX
#endif
#include <windows.h>

#include <quor/quor.hpp>

#include "strings/code_page/code_page_tables.hpp"

namespace {

using quor::strings::code_page;
using quor::strings::ustring16;
using quor_reference::all_code_pages;
using quor_test::hex;
using quor_test::page_of;

TEST(windows_code_page, what_a_page_lacks_becomes_something_alike_or_question_marks) {
	code_page const latin(code_page::cp_1252);
	EXPECT_EQ(latin.encode(ustring16(L"a\u0416z")), "a?z");
	EXPECT_EQ(latin.encode(ustring16(L"a\u0101z")), "aaz");
	EXPECT_EQ(latin.encode(ustring16(L"a\U0001F600z")), "a??z");
	EXPECT_EQ(code_page(code_page::cp_932).encode(ustring16(L"a\U0001F600z")), "a??z");
}

TEST(windows_code_page, the_processes_own_pages_are_the_systems) {
	for (auto const &[encoding, number] :
	     {std::pair(code_page::system_ansi, GetACP()), {code_page::system_oem, GetOEMCP()}}) {
		for (int byte = 1; byte != 0x100; ++byte) {
			std::string const text(1, static_cast<char>(byte));
			wchar_t units[4] = {};
			int const size = MultiByteToWideChar(number, 0, text.data(), 1, units, 4);
			EXPECT_EQ(code_page(encoding).as_utf16(text), ustring16(units, static_cast<std::size_t>(size))) << byte;
		}
	}
}

// Each byte gives one unit at most, and two at most stand behind the last character.
TEST(windows_code_page, rubbish_is_bounded) {
	std::mt19937 random(1);
	for (unsigned const page : all_code_pages()) {
		for (int round = 0; round != 300; ++round) {
			std::string bytes(random() % 70, 'x');
			ustring16 units(bytes.size(), L'x');
			for (std::size_t i = 0; i != bytes.size(); ++i) {
				bytes[i] = static_cast<char>(1 + random() % 255);
				units[i] = static_cast<wchar_t>(1 + random() % 0xFFFF);
			}
			EXPECT_LE(page_of(page).as_utf16(bytes).size(), bytes.size()) << page << ' ' << hex(bytes);
			EXPECT_LE(page_of(page).encode(units).size(), units.size() * 2) << page;
		}
	}
}

TEST(windows_code_page, malformed_utf8_has_replacement_characters) {
	code_page const utf8(code_page::utf_8);
	for (char const *text : {"\xFF", "\x80", "\xC0\x80", "\xE2\x82", "\xED\xA0\x80", "\xF4\x90\x80\x80"}) {
		ustring16 const units = utf8.as_utf16(std::string("a") + text + "z");
		EXPECT_EQ(units.front(), L'a') << hex(text);
		EXPECT_EQ(units.back(), L'z') << hex(text);
		EXPECT_EQ(units.substr(1, units.size() - 2), std::wstring(units.size() - 2, L'\xFFFD')) << hex(text);
		EXPECT_GE(units.size(), 3U) << hex(text);
	}
	EXPECT_EQ(utf8.encode(ustring16{L'a', 0xD800, L'z'}), "a\xEF\xBF\xBDz");
}

} // namespace
