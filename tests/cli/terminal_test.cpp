#include <gtest/gtest.h>

#include "terminal/terminal.hpp"

namespace {

using quor_cli::columns;
using quor_cli::padded;
using quor_cli::printable;

TEST(terminal, printable_shows_what_could_do_harm) {
	struct {
		std::string text;
		std::string shown;
	} const rows[] = {
	    {"plain \xC3\xA4 \xE6\x97\xA5 \xF0\x9F\x98\x80", "plain \xC3\xA4 \xE6\x97\xA5 \xF0\x9F\x98\x80"},
	    {std::string(1, '\0'), "\\x00"},
	    {"a\nb\tc\r", "a\\x0Ab\\x09c\\x0D"},
	    {"\x1B[0m\x7F", "\\x1B[0m\\x7F"},
	    {"\xC2\x85\xC2\x9B", "\\u{0085}\\u{009B}"},
	    {"\xE2\x80\xAE\xE2\x81\xA6\xEF\xBB\xBF", "\\u{202E}\\u{2066}\\u{FEFF}"},
	    {"\xC3", "\\xC3"},
	    {"\xC0\xAF\xED\xA0\x80\xF5", "\\xC0\\xAF\\xED\\xA0\\x80\\xF5"},
	    {"\xE2\x82(", "\\xE2\\x82("},
	};
	for (auto const &row : rows) {
		EXPECT_EQ(row.shown, printable(row.text));
	}
	EXPECT_EQ("a\nb\tc\\x0D", printable("a\nb\tc\r", true));
}

TEST(terminal, columns_counts_wide_characters_twice) {
	EXPECT_EQ(0u, columns(""));
	EXPECT_EQ(2u, columns("a\xC3\xA4"));
	EXPECT_EQ(2u, columns("\xE6\x97\xA5"));
	EXPECT_EQ(1u, columns("a\xCC\x88"));
	EXPECT_EQ("\xC3\xA4  ", padded("\xC3\xA4", 3));
	EXPECT_EQ("abc", padded("abc", 2));
}

} // namespace
