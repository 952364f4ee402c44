#ifndef QUOR_CONFIG_CHARACTER_CLASSES_HPP
#define QUOR_CONFIG_CHARACTER_CLASSES_HPP

/// @file
/// The classes of single bytes that configuration text knows: what cuts a key into its
/// components, what may stand between two words of a text, and blanks. Keys are cut by
/// `config_tree` (`quor/config/config_tree.hpp`), which uses the first of them; the other
/// two are for programs that read text of their own beside the library's.
///
///     using namespace quor::config;
///     is_key_separator('.');      // true, as for '\\' and '/'
///     is_token_delimiter(';');    // true
///     is_blank_char('\r');        // true
///
/// @since 2.9

#include <string_view>

#include <quor/version.hpp>

namespace QUOR_2_9::config {

/// Whether a byte separates two components of a key: a dot, a backslash or a slash; zero
/// is none.
///
/// No locale is asked; bytes from 0x80 on are no separators. @since 2.9
constexpr bool is_key_separator(char unit) noexcept {
	return unit == '.' || unit == '\\' || unit == '/';
}

/// Whether a byte is one of " +-*^/%=;(),<>~&|{}[]?$", a tab, a line feed or a carriage
/// return. Zero and bytes from 0x80 on aren't. @since 2.9
constexpr bool is_token_delimiter(char unit) noexcept {
	return std::string_view(" +-*^/%=;(),<>~&|{}\n\t[]?$\r").find(unit) != std::string_view::npos;
}

/// Whether a byte is a tab, a line feed, a carriage return or a blank. Form feed, vertical
/// tab and zero aren't. @since 2.9
constexpr bool is_blank_char(char unit) noexcept {
	return unit == '\t' || unit == '\n' || unit == '\r' || unit == ' ';
}

} // namespace QUOR_2_9::config

#endif
