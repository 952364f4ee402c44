#include <gtest/gtest.h>

#include <sstream>

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

TEST(terminal, find_no_text_finds_bytes_that_are_no_text) {
	using quor_cli::find_no_text;
	EXPECT_EQ(std::string_view::npos, find_no_text("a\tb\r\n\xC3\xA9\xE2\x80\x8F\xF0\x9F\x98\x80"));
	EXPECT_EQ(std::string_view::npos, find_no_text(""));
	EXPECT_EQ(1u, find_no_text("a\xE9"));
	EXPECT_EQ(2u, find_no_text("\xC3\xA9\xC3"));
	EXPECT_EQ(0u, find_no_text("\xED\xA0\x80"));
	EXPECT_EQ(3u, find_no_text(std::string_view("abc\0", 4)));
	EXPECT_EQ(1u, find_no_text("a\x7F"));
}

TEST(terminal, progress_bar_stays_within_its_width) {
	std::ostringstream err;
	quor_cli::terminal to{err, err, false, false, true};
	{
		quor_cli::progress_bar bar(to, "reading");
		bar.show(1, 2);
		bar.show(5, 2);
	}
	EXPECT_EQ("\rreading [############............] 50%\x1B[K\rreading [########################] 100%\x1B[K\r\x1B[K",
	          err.str());
}

} // namespace
