// What is no character, too, where the library has tables of its own.

#include <quor/strings/code_page/code_page.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "strings/code_page/code_page_tables.hpp"

namespace {

using quor::strings::ustring16;
using quor::types::wide_char;
using quor_reference::all_code_pages;
using quor_test::hex;
using quor_test::page_of;
using quor_test::table_of;
using quor_test::units_of;

TEST(code_page_answers, every_byte_alone_gives_its_character) {
	for (unsigned const page : all_code_pages()) {
		for (int byte = 1; byte != 256; ++byte) {
			std::string const text(1, static_cast<char>(byte));
			EXPECT_EQ(page_of(page).as_utf16(text), units_of(table_of(page).decode(text))) << page << ' ' << hex(text);
		}
	}
}

// Pairs that are none, too: the lead byte is bad and the other stands for itself.
TEST(code_page_answers, every_pair_of_bytes_gives_its_characters) {
	for (unsigned const page : all_code_pages()) {
		for (unsigned pair = 0x8000; pair < 0x10000; pair += page < 1000 ? 1 : 7) {
			std::string const text{static_cast<char>(pair >> 8), static_cast<char>(pair & 0xFF)};
			ASSERT_EQ(page_of(page).as_utf16(text), units_of(table_of(page).decode(text))) << page << ' ' << hex(text);
		}
	}
}

// All at once, so that no character depends on its place.
TEST(code_page_answers, every_character_of_the_basic_plane_gives_its_bytes) {
	ustring16 text;
	for (unsigned point = 1; point != 0x10000; ++point) {
		if (point < 0xD800 || point > 0xDFFF) {
			text.push_back(static_cast<wide_char>(point));
		}
	}
	for (unsigned const page : all_code_pages()) {
		std::string expected;
		for (wide_char const unit : text) {
			expected += table_of(page).encode(unit);
		}
		std::string const bytes = page_of(page).encode(text);
		auto const differs = std::mismatch(bytes.begin(), bytes.end(), expected.begin(), expected.end());
		EXPECT_TRUE(bytes == expected) << page << " differs at byte " << (differs.first - bytes.begin());
	}
}

TEST(code_page_answers, every_character_above_the_basic_plane_gives_one_question_mark) {
	ustring16 text;
	for (unsigned high = 0xD800; high != 0xDC00; ++high) {
		for (unsigned low = 0xDC00; low < 0xE000; low += 0x1F) {
			text.push_back(static_cast<wide_char>(high));
			text.push_back(static_cast<wide_char>(low));
		}
	}
	for (unsigned const page : all_code_pages()) {
		EXPECT_TRUE(page_of(page).encode(text) == std::string(text.size() / 2, '?')) << page;
	}
}

// Lengths around the steps in which the library works, characters and rubbish mixed.
TEST(code_page_answers, random_texts_give_what_the_tables_say) {
	std::mt19937 random(932);
	for (unsigned const page : all_code_pages()) {
		auto const &table = table_of(page);
		for (int round = 0; round != 400; ++round) {
			unsigned const ascii = random() % 4;
			std::string bytes;
			ustring16 units;
			std::string encoded;
			for (std::size_t length = random() % 70; length != 0; --length) {
				bool const plain = random() % 4 < ascii;
				bytes.push_back(static_cast<char>(plain ? 'a' + random() % 26 : 1 + random() % 255));
				auto const point = plain ? 'a' + random() % 26 : 1 + random() % (random() % 2 ? 0x17F : 0xFFFF);
				units.push_back(static_cast<wide_char>(point));
			}
			EXPECT_EQ(page_of(page).as_utf16(bytes), units_of(table.decode(bytes))) << page << ' ' << hex(bytes);
			for (std::size_t i = 0; i != units.size(); ++i) {
				bool const pair = units[i] >> 10 == 0x36 && i + 1 != units.size() && units[i + 1] >> 10 == 0x37;
				encoded += table.encode(units[i]);
				i += pair ? 1 : 0;
			}
			EXPECT_EQ(page_of(page).encode(units), encoded) << page << ' ' << hex(encoded);
		}
	}
}

} // namespace
