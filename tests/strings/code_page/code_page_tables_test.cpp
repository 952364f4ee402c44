// The characters of every page, which are the same on every target.

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

TEST(code_page_tables, tables_are_whole) {
	struct row {
		unsigned page;
		std::size_t characters;
	};
	// What the Windows service has, user-defined characters included.
	for (row const &expected : {row{932, 9800}, row{936, 24070}, row{949, 17366}, row{950, 19850}}) {
		EXPECT_EQ(table_of(expected.page).characters().size(), expected.characters) << expected.page;
	}
	for (unsigned const page : all_code_pages()) {
		if (page > 1000) {
			EXPECT_EQ(table_of(page).characters().size(), 256U) << page;
			EXPECT_EQ(table_of(page).bytes().size(), 256U) << page;
		}
	}
}

TEST(code_page_tables, every_character_is_read) {
	for (unsigned const page : all_code_pages()) {
		for (auto const &[code, point] : table_of(page).characters()) {
			std::string text;
			if (code > 0xFF) {
				text.push_back(static_cast<char>(code >> 8));
			}
			text.push_back(static_cast<char>(code & 0xFF));
			if (code != 0) {
				ASSERT_EQ(page_of(page).as_utf16(text), units_of({point})) << page << ' ' << hex(text);
			}
		}
	}
}

TEST(code_page_tables, every_character_is_written) {
	for (unsigned const page : all_code_pages()) {
		for (auto const &[point, bytes] : table_of(page).bytes()) {
			if (point != 0) {
				std::string const expected = table_of(page).encode(point);
				ASSERT_EQ(page_of(page).encode(units_of({point})), expected) << page << " U+" << std::hex << point;
			}
		}
	}
}

TEST(code_page_tables, all_that_has_a_character_comes_back) {
	for (unsigned const page : all_code_pages()) {
		for (auto const &[point, bytes] : table_of(page).bytes()) {
			if (point == 0) {
				continue;
			}
			std::string const text = table_of(page).encode(point);
			ASSERT_EQ(page_of(page).encode(page_of(page).as_utf16(text)), text) << page << ' ' << hex(text);
		}
	}
}

TEST(code_page_tables, random_texts_of_characters_go_both_ways) {
	std::mt19937 random(933);
	for (unsigned const page : all_code_pages()) {
		auto const &table = table_of(page);
		std::vector<unsigned> points;
		for (auto const &[point, bytes] : table.bytes()) {
			points.push_back(point);
		}
		for (int round = 0; round != 300; ++round) {
			std::vector<unsigned> text(random() % 70);
			std::string bytes;
			for (unsigned &point : text) {
				point = points[1 + random() % (points.size() - 1)];
				point = random() % 3 == 0 ? static_cast<unsigned>('a' + random() % 26) : point;
				bytes += table.encode(point);
			}
			ASSERT_EQ(page_of(page).encode(units_of(text)), bytes) << page << ' ' << hex(bytes);
			ASSERT_EQ(page_of(page).as_utf16(bytes), units_of(text)) << page << ' ' << hex(bytes);
		}
	}
}

} // namespace
