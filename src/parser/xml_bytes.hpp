#ifndef QUOR_SRC_PARSER_XML_BYTES_HPP
#define QUOR_SRC_PARSER_XML_BYTES_HPP

// The byte classes of the XML dialect, by value and in no locale, and the two ways in
// which its readers fail.

#include <quor/parser/xml_parser.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/widths.hpp>

#include "support/ascii.hpp"

namespace QUOR_2_9::parser::detail {

constexpr bool is_name_character(char c) {
	return support::is_letter(c) || support::is_digit(c) || c == '_';
}

constexpr bool is_space(char c) {
	return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

[[noreturn]] inline void fail(xml_parser::parse_error::error_code code, types::uint32 line,
                              strings::ustring8 const &text) {
	throw xml_parser::parse_error(code, line, text);
}

// A character that can't stand here, or the end of the input in its place.
[[noreturn]] inline void fail_at(char const *at, char const *end, types::uint32 line) {
	if (at == end) {
		fail(xml_parser::parse_error::error_eof, line, strings::ustring8());
	}
	fail(xml_parser::parse_error::error_unexpected_char, line, strings::ustring8(1, *at));
}

} // namespace QUOR_2_9::parser::detail

#endif
