#include <quor/config/config_token.hpp>

#include <limits>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

namespace {

using QUOR_2_9::config::config_token;
using QUOR_2_9::strings::ustring8;

struct display_row {
	int value;
	config_token::tok_types type;
	char const *display;
};

display_row const displays[] = {
    {0, config_token::T_VAR, "T_VAR :[it]"},
    {1, config_token::T_NUM, "T_NUM"},
    {2, config_token::T_NEWLINE, "T_NEWLINE"},
    {3, config_token::T_TABCHAR, "T_TABCHAR"},
    {4, config_token::T_UNKNOWN, "T_UNKNOWN:[it]"},
    {5, config_token::T_END, "T_END"},
    {6, config_token::T_SPACE, "T_SPACE"},
    {7, config_token::T_EQ, "T_EQ"},
    {8, config_token::T_EQEQ, "T_EQEQ"},
    {9, config_token::T_GT, "T_GT"},
    {10, config_token::T_GTEQ, "T_GTEQ"},
    {11, config_token::T_LT, "T_LT"},
    {12, config_token::T_LTEQ, "T_LTEQ"},
    {13, config_token::T_COLON, "T_COLON"},
    {14, config_token::T_COLONEQ, "T_COLONEQ"},
    {15, config_token::T_POUND, "T_POUND"},
    {16, config_token::T_FSFS, "T_FSFS"},
    {17, config_token::T_DOT, "T_DOT"},
    {18, config_token::T_SBRACKET, "T_SBRACKET"},
    {19, config_token::T_EBRACKET, "T_EBRACKET"},
    {20, config_token::T_PLUS, "T_PLUS"},
    {21, config_token::T_MINUS, "T_MINUS"},
    {22, config_token::T_PLUSEQ, "T_PLUSEQ"},
    {23, config_token::T_MINUSEQ, "T_MINUSEQ"},
    {24, config_token::T_COMMENT_CLOSE, "unknown type"},
    {25, config_token::T_COMMENT_OPEN, "unknown type"},
    {26, config_token::T_TIMES, "T_TIMES"},
    {27, config_token::T_DIV, "T_DIV"},
    {28, config_token::T_TIMESEQ, "T_TIMESEQ"},
    {29, config_token::T_DIVEQ, "T_DIVEQ"},
    {30, config_token::T_STRING, "T_STRING:[it]"},
    {31, config_token::T_NON_ALPHA_NUM, "T_NON_ALPHA_NUM:[it]"},
};

config_token token_of(config_token::tok_types type, ustring8 const &text) {
	config_token token;
	token.token_type = type;
	token.token_text = text;
	return token;
}

TEST(config_token, every_kind_has_its_number_and_its_display) {
	static_assert(std::size(displays) == 32);
	for (display_row const &row : displays) {
		EXPECT_EQ(static_cast<int>(row.type), row.value) << row.display;
		EXPECT_EQ(token_of(row.type, "it").CvtTokStr(), row.display) << row.value;
	}
}

TEST(config_token, display_of_no_kind_is_unknown) {
	int const values[] = {32, 33, 255, 256, std::numeric_limits<int>::max(), -1, std::numeric_limits<int>::min()};
	for (int const value : values) {
		EXPECT_EQ(token_of(static_cast<config_token::tok_types>(value), "it").CvtTokStr(), "unknown type") << value;
	}
}

TEST(config_token, display_holds_the_text_in_full_length) {
	EXPECT_EQ(token_of(config_token::T_VAR, "").CvtTokStr(), "T_VAR :[]");
	ustring8 const with_zero("a\0]b", 4);
	EXPECT_EQ(token_of(config_token::T_STRING, with_zero).CvtTokStr(), std::string("T_STRING:[a\0]b]", 15));
	static_assert(std::is_same_v<decltype(std::declval<config_token const &>().CvtTokStr()), std::string>);
}

TEST(config_token, default_has_an_empty_text) {
	EXPECT_EQ(config_token().token_text, "");
}

TEST(config_token, copies_take_all_fields) {
	config_token token = token_of(config_token::T_STRING, "text");
	token.token_start = 3;
	token.token_end = 9;
	config_token const copy(token);
	config_token assigned;
	assigned = token;
	for (config_token const &each : {copy, assigned}) {
		EXPECT_EQ(each.token_type, config_token::T_STRING);
		EXPECT_EQ(each.token_text, "text");
		EXPECT_EQ(each.token_start, 3u);
		EXPECT_EQ(each.token_end, 9u);
	}
	config_token const &self = assigned;
	assigned = self;
	EXPECT_EQ(assigned.token_text, "text");
}

TEST(config_token, fields_stand_in_their_order) {
	config_token token = token_of(config_token::T_NUM, "12");
	token.token_end = 9;
	token.token_start = 7;
	auto const &[text, end, start, type] = token;
	EXPECT_EQ(text, "12");
	EXPECT_EQ(end, 9u);
	EXPECT_EQ(start, 7u);
	EXPECT_EQ(type, config_token::T_NUM);
}

} // namespace
