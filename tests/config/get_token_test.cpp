// The scanner of configuration text.

#include <map>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <quor/config/config_token.hpp>

#include "reference/config_tokens.hpp"
#include "support/open_config_item.hpp"

namespace {

using QUOR_2_9::config::config_token;
using QUOR_2_9::strings::ustring8;
using quor_reference::config_piece;

quor_test::open_config_item const item;

struct token_row {
	std::string text;
	config_token::tok_types type;
	std::string token_text;
	unsigned int end;
	int result = -1; // the type, unless it is told
};

// The first token of each text.
std::vector<token_row> first_tokens() { // NOLINT(readability-function-size): a table
	using t = config_token;
	using namespace std::string_literals;
	return {
	    {"abc_1", t::T_VAR, "abc", 3},
	    {"Zebra9", t::T_VAR, "Zebra", 5},
	    {"azAZ", t::T_VAR, "azAZ", 4},
	    {"@", t::T_NON_ALPHA_NUM, "@", 1},
	    {"`a", t::T_NON_ALPHA_NUM, "`", 1},
	    {"{a", t::T_NON_ALPHA_NUM, "{", 1},
	    {"123abc", t::T_NUM, "123", 3},
	    {"0123456789", t::T_NUM, "0123456789", 10},
	    {"1.5", t::T_NUM, "1", 1},
	    {"\n\n", t::T_NEWLINE, "\n", 1},
	    {"\r\n\n", t::T_NEWLINE, "\n", 2},
	    {"\r", t::T_UNKNOWN, "\r", 1},
	    {"\r\r\n", t::T_UNKNOWN, "\r", 1},
	    {"\t\t", t::T_TABCHAR, "\t", 1},
	    {" ", t::T_SPACE, "before", 1},
	    {"   a", t::T_SPACE, "before", 3},
	    {"  \t", t::T_SPACE, "before", 2},
	    {"=", t::T_EQ, "=", 1},
	    {"= =", t::T_EQ, "=", 1},
	    {"===", t::T_EQEQ, "==", 2},
	    {">", t::T_GT, ">", 1},
	    {">=", t::T_GTEQ, ">=", 2},
	    {"<", t::T_LT, "<", 1},
	    {"<=", t::T_LTEQ, "<=", 2},
	    {"<>", t::T_LT, "<", 1},
	    {":", t::T_COLON, ":", 1},
	    {":=", t::T_COLONEQ, ":=", 2},
	    {"::", t::T_COLON, ":", 1},
	    {"#", t::T_POUND, "#", 1},
	    {"#=", t::T_POUND, "#", 1},
	    {"//", t::T_FSFS, "//", 2},
	    {"///", t::T_FSFS, "//", 2},
	    {"/", t::T_DIV, "/", 1},
	    {"/*", t::T_DIV, "/", 1},
	    {"/=", t::T_DIVEQ, "/=", 2},
	    {".", t::T_DOT, ".", 1},
	    {".=", t::T_DOT, ".", 1},
	    {"[", t::T_SBRACKET, "[", 1},
	    {"]", t::T_EBRACKET, "]", 1},
	    {"[]", t::T_SBRACKET, "[", 1},
	    {"+", t::T_PLUS, "+", 1},
	    {"+=", t::T_PLUSEQ, "+=", 2},
	    {"++", t::T_PLUS, "+", 1},
	    {"-", t::T_MINUS, "-", 1},
	    {"-=", t::T_MINUSEQ, "-=", 2},
	    {"--", t::T_MINUS, "-", 1},
	    {"*", t::T_TIMES, "*", 1},
	    {"*=", t::T_TIMESEQ, "*=", 2},
	    {"**", t::T_TIMES, "*", 1},
	    {"*/", t::T_COMMENT_CLOSE, "*/", 2, t::T_FSFS},
	    {"*/=", t::T_COMMENT_CLOSE, "*/", 2, 16},
	    {"\"text\" more", t::T_STRING, "text", 6},
	    {"\"a b\r\n\tc=#\"", t::T_STRING, "a b\r\n\tc=#", 11},
	    {"\"\"", t::T_STRING, "", 2},
	    {"\"\"\"", t::T_STRING, "", 2},
	    {"\"", t::T_STRING, "", 2},
	    {"\"abc", t::T_STRING, "abc", 5},
	    {R"("a\"b")", t::T_STRING, R"(a\"b)", 6},
	    {R"("a\\")", t::T_STRING, R"(a\\)", 5},
	    {R"("a\\"b")", t::T_STRING, R"(a\\)", 5},
	    {R"("\n")", t::T_STRING, R"(\n)", 4},
	    {R"("a\")", t::T_STRING, R"(a\")", 5},
	    {R"("a\)", t::T_STRING, "a\\\0"s, 5},
	    {R"("\)", t::T_STRING, "\\\0"s, 4},
	    {R"("a\\)", t::T_STRING, R"(a\\)", 5},
	    {"\"a\0b\"c"s, t::T_STRING, "a\0b"s, 5},
	    {"\"\\\0\""s, t::T_STRING, "\\\0"s, 4},
	    {"\0"s, t::T_NON_ALPHA_NUM, "\0"s, 1},
	    {"\0\0="s, t::T_NON_ALPHA_NUM, "\0"s, 1},
	    {"a\0b"s, t::T_VAR, "a", 1},
	    {"1\0"s, t::T_NUM, "1", 1},
	    {" \0"s, t::T_SPACE, "before", 1},
	    {"\xC3\xA4", t::T_NON_ALPHA_NUM, "\xC3", 1},
	    {"\xE4", t::T_NON_ALPHA_NUM, "\xE4", 1},
	    {"\xFF", t::T_NON_ALPHA_NUM, "\xFF", 1},
	    {"\xEF\xBB\xBF", t::T_NON_ALPHA_NUM, "\xEF", 1},
	    {"\v", t::T_NON_ALPHA_NUM, "\v", 1},
	    {"\x7F", t::T_NON_ALPHA_NUM, "\x7F", 1},
	    {",,", t::T_NON_ALPHA_NUM, ",", 1},
	    {"$a", t::T_NON_ALPHA_NUM, "$", 1},
	    {"_a", t::T_NON_ALPHA_NUM, "_", 1},
	    {"\\\\", t::T_NON_ALPHA_NUM, "\\", 1},
	    {"!=", t::T_NON_ALPHA_NUM, "!", 1},
	    {"'a'", t::T_NON_ALPHA_NUM, "'", 1},
	};
}

TEST(get_token, first_token_of_each_text_is_as_told) {
	for (token_row const &row : first_tokens()) {
		config_token token;
		token.token_text = "before";
		token.token_start = 77;
		unsigned int pos = 0;
		int const result = item.get_token(row.text, pos, token);
		EXPECT_EQ(result, row.result == -1 ? row.type : row.result) << row.text;
		EXPECT_EQ(token.token_type, row.type) << row.text;
		EXPECT_EQ(token.token_text, row.token_text) << row.text;
		EXPECT_EQ(token.token_start, 0u) << row.text;
		EXPECT_EQ(token.token_end, row.end) << row.text;
		EXPECT_EQ(pos, row.end) << row.text;
	}
}

// The same tokens behind others: nothing depends on where they begin.
TEST(get_token, tokens_behind_others_are_the_same) {
	for (token_row const &row : first_tokens()) {
		std::string const text = "x," + row.text;
		config_token token;
		unsigned int pos = 0;
		item.get_token(text, pos, token);
		item.get_token(text, pos, token);
		token.token_text = "before";
		item.get_token(text, pos, token);
		EXPECT_EQ(token.token_type, row.type) << text;
		EXPECT_EQ(token.token_text, row.token_text) << text;
		EXPECT_EQ(token.token_start, 2u) << text;
		EXPECT_EQ(token.token_end, row.end + 2) << text;
		EXPECT_EQ(pos, row.end + 2) << text;
	}
}

TEST(get_token, at_the_end_only_the_type_changes) {
	struct row {
		std::string text;
		unsigned int pos;
	};
	for (row const &each :
	     {row{"", 0}, row{"", 1}, row{"abc", 3}, row{"abc", 4}, row{"abc", 5}, row{"abc", 0xFFFFFFFF}}) {
		config_token token;
		token.token_type = config_token::T_VAR;
		token.token_text = "old";
		token.token_start = 11;
		token.token_end = 12;
		unsigned int pos = each.pos;
		EXPECT_EQ(item.get_token(each.text, pos, token), config_token::T_END) << each.text << each.pos;
		EXPECT_EQ(pos, each.pos);
		EXPECT_EQ(token.token_type, config_token::T_END);
		EXPECT_EQ(token.token_text, "old");
		EXPECT_EQ(token.token_start, 11u);
		EXPECT_EQ(token.token_end, 12u);
	}
}

TEST(get_token, blanks_leave_the_text_before_them) {
	config_token token;
	unsigned int pos = 0;
	item.get_token("a  b", pos, token);
	EXPECT_EQ(item.get_token("a  b", pos, token), config_token::T_SPACE);
	EXPECT_EQ(token.token_text, "a");
	EXPECT_EQ(token.token_start, 1u);
	EXPECT_EQ(token.token_end, 3u);
	item.get_token("a  b", pos, token);
	EXPECT_EQ(token.token_text, "b");
	EXPECT_EQ(item.get_token("a  b", pos, token), config_token::T_END);
	EXPECT_EQ(token.token_text, "b");
}

TEST(get_token, the_text_may_be_that_of_the_token) {
	config_token token;
	token.token_text = "\"a longer text that needs memory of its own\\";
	std::string const expected(token.token_text.substr(1) + std::string(1, '\0'));
	unsigned int pos = 0;
	EXPECT_EQ(item.get_token(token.token_text, pos, token), config_token::T_STRING);
	EXPECT_EQ(token.token_text, expected);
}

TEST(get_token, the_position_may_be_that_of_the_token) {
	config_token token;
	token.token_end = 0;
	ustring8 const text("ab 12");
	item.get_token(text, token.token_end, token);
	item.get_token(text, token.token_end, token);
	EXPECT_EQ(item.get_token(text, token.token_end, token), config_token::T_NUM);
	EXPECT_EQ(token.token_text, "12");
	EXPECT_EQ(token.token_start, 3u);
	EXPECT_EQ(token.token_end, 5u);
}

config_token::tok_types type_of(config_piece const &piece) {
	static std::map<std::string, int> const marks = {
	    {"=", 7},   {"==", 8},  {">", 9},  {">=", 10}, {"<", 11},  {"<=", 12}, {":", 13}, {":=", 14},
	    {"#", 15},  {"//", 16}, {".", 17}, {"[", 18},  {"]", 19},  {"+", 20},  {"-", 21}, {"+=", 22},
	    {"-=", 23}, {"*/", 24}, {"*", 26}, {"/", 27},  {"*=", 28}, {"/=", 29}, {"\t", 3}, {"\r", 4}};
	static std::map<std::string, int> const kinds = {{"letters", 0}, {"digits", 1},  {"line end", 2},
	                                                 {"blanks", 6},  {"string", 30}, {"other", 31}};
	return static_cast<config_token::tok_types>(piece.kind == "mark" ? marks.at(*piece.text) : kinds.at(piece.kind));
}

void expect_like_reference(std::string const &text) {
	config_token token;
	unsigned int pos = 0;
	ustring8 last;
	for (config_piece const &piece : quor_reference::config_pieces::of(text, 0)) {
		config_token::tok_types const type = type_of(piece);
		last = piece.text.value_or(last);
		ASSERT_EQ(item.get_token(text, pos, token),
		          type == config_token::T_COMMENT_CLOSE ? config_token::T_FSFS : type);
		ASSERT_EQ(token.token_type, type);
		ASSERT_EQ(token.token_text, last);
		ASSERT_EQ(token.token_start, piece.begin);
		ASSERT_EQ(token.token_end, piece.end);
		ASSERT_EQ(pos, piece.end);
	}
	ASSERT_EQ(item.get_token(text, pos, token), config_token::T_END);
	ASSERT_EQ(token.token_text, last);
}

TEST(get_token, random_texts_scan_as_in_the_reference) {
	std::mt19937 random(71);
	using namespace std::string_literals;
	std::string const units = "aZ09 \t\n\r\"\\=<>*/+.:-[]#_,$\xE4\0"s;
	for (int round = 0; round != 20000; ++round) {
		std::string text(random() % 24, '\0');
		for (char &unit : text) {
			unit = units[random() % units.size()];
		}
		SCOPED_TRACE(testing::PrintToString(text));
		expect_like_reference(text);
		if (testing::Test::HasFatalFailure()) {
			return;
		}
	}
}

TEST(get_token, every_pair_of_bytes_scans_as_in_the_reference) {
	for (unsigned int pair = 0; pair != 0x10000; ++pair) {
		std::string const text{static_cast<char>(pair & 0xFFU), static_cast<char>(pair >> 8U)};
		expect_like_reference(text);
		if (testing::Test::HasFatalFailure()) {
			FAIL() << pair;
		}
	}
}

} // namespace
