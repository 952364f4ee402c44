#include "config/token_scanner.hpp"

namespace QUOR_2_9::config::detail {
namespace {

struct punctuator {
	config_token::tok_types type;
	unsigned int length;
};

/// The punctuator at `at`, of one byte or two. A byte stands behind every one: at the end of
/// the text it is the terminating zero.
punctuator punctuator_at(char const *at) noexcept {
	using token = config_token;
	bool const equals = at[1] == '=';
	auto const with_equals = [equals](token::tok_types both, token::tok_types alone) noexcept {
		return equals ? punctuator{both, 2} : punctuator{alone, 1};
	};
	switch (at[0]) {
	case '=':
		return with_equals(token::T_EQEQ, token::T_EQ);
	case '<':
		return with_equals(token::T_LTEQ, token::T_LT);
	case '>':
		return with_equals(token::T_GTEQ, token::T_GT);
	case ':':
		return with_equals(token::T_COLONEQ, token::T_COLON);
	case '+':
		return with_equals(token::T_PLUSEQ, token::T_PLUS);
	case '-':
		return with_equals(token::T_MINUSEQ, token::T_MINUS);
	case '*':
		return at[1] == '/' ? punctuator{token::T_COMMENT_CLOSE, 2} : with_equals(token::T_TIMESEQ, token::T_TIMES);
	case '/':
		return at[1] == '/' ? punctuator{token::T_FSFS, 2} : with_equals(token::T_DIVEQ, token::T_DIV);
	case '#':
		return {token::T_POUND, 1};
	case '.':
		return {token::T_DOT, 1};
	case '[':
		return {token::T_SBRACKET, 1};
	case ']':
		return {token::T_EBRACKET, 1};
	case '\t':
		return {token::T_TABCHAR, 1};
	case '\n':
		return {token::T_NEWLINE, 1};
	default:
		return at[1] == '\n' ? punctuator{token::T_NEWLINE, 2} : punctuator{token::T_UNKNOWN, 1};
	}
}

/// The end of the run of bytes of one kind that begins at `pos`. The zero behind the text
/// is of no kind that has runs.
unsigned int end_of_run(char const *units, unsigned int pos, token_start kind) noexcept {
	do {
		++pos;
	} while (token_start_of(units[pos]) == kind);
	return pos;
}

/// The end of the contents of a string that begin at `pos`: the closing quote, the end of
/// the text, or one behind it after a backslash that protects the terminating zero.
unsigned int end_of_string(char const *units, unsigned int size, unsigned int pos) noexcept {
	while (pos < size && units[pos] != '"') {
		pos += units[pos] == '\\' ? 2 : 1;
	}
	return pos;
}

} // namespace

scanned_token scan_token(strings::ustring8 const &text, unsigned int &pos) noexcept {
	unsigned int const start = pos;
	if (start >= text.size() || is_too_long_to_scan(text.size())) {
		return {config_token::T_END, {}};
	}
	char const *const units = text.c_str();
	token_start const kind = token_start_of(units[start]);
	switch (kind) {
	case token_start::blank:
		pos = end_of_run(units, start, kind);
		return {config_token::T_SPACE, {}};
	case token_start::digit:
	case token_start::letter:
		pos = end_of_run(units, start, kind);
		return {kind == token_start::digit ? config_token::T_NUM : config_token::T_VAR, {units + start, pos - start}};
	case token_start::quote: {
		unsigned int const end = end_of_string(units, static_cast<unsigned int>(text.size()), start + 1);
		pos = end + 1;
		return {config_token::T_STRING, {units + start + 1, end - start - 1}};
	}
	case token_start::punctuator: {
		punctuator const found = punctuator_at(units + start);
		pos = start + found.length;
		// A line end's text is its line feed alone, its last byte.
		bool const newline = found.type == config_token::T_NEWLINE;
		return {found.type,
		        newline ? std::string_view(units + pos - 1, 1) : std::string_view(units + start, found.length)};
	}
	case token_start::other:
		break;
	}
	pos = start + 1;
	return {config_token::T_NON_ALPHA_NUM, {units + start, 1}};
}

} // namespace QUOR_2_9::config::detail
