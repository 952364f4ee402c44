#ifndef QUOR_STRINGS_GH2_WIDE_TEXT_HPP
#define QUOR_STRINGS_GH2_WIDE_TEXT_HPP

/// @file
/// Functions for standard strings of wide (16-bit) units: from and to UTF-8, from and to the
/// process's own narrow encoding, and upper and lower case. `gh2::replace_all` comes from
/// `quor/strings/replace_all.hpp`, which this header includes. For the library's own string
/// classes use `quor/strings/transcode.hpp`, for a named encoding the class `code_page`.
///
///     namespace gh2 = quor::strings::gh2;
///     quor::types::wide_string const title = gh2::to_ustring("caf\xC3\xA9");   // 4 units
///     std::string const line = gh2::to_ansi(gh2::toupper(title));
///
/// Characters above U+FFFF are standard surrogate pairs here, unlike those of
/// `quor/strings/transcode.hpp`. Untrusted input: safe. Cost of all: linear, one allocation
/// for the result unless told otherwise.
///
/// @since 2.9

#include <string>

#include <quor/export.hpp>
#include <quor/strings/replace_all.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::strings::gh2 {

/// UTF-8 as wide text, up to the first zero.
///
/// A byte order mark at the start stays, as the unit 0xFEFF. Malformed bytes: U+FFFD for
/// each part that no well-formed text begins with (on Windows what the system answers).
/// Empty text, and text of more than 2147483647 bytes: empty. Thread-safety: pure.
/// @since 2.9
QUOR_API types::wide_string to_ustring(std::string const &text);
/// The same for zero-terminated text; a null pointer is the empty text. @since 2.9
QUOR_API types::wide_string to_ustring(char const *text);

/// The text without the byte order mark, one unit 0xFEFF, that it may begin with. Zeros
/// stay, and so does a swapped mark, 0xFFFE, and a second one. @since 2.9
QUOR_API types::wide_string to_ustring(types::wide_string const &text);
/// The same for zero-terminated text; a null pointer is the empty text. @since 2.9
QUOR_API types::wide_string to_ustring(types::wide_char const *text);

/// Wide text as UTF-8, up to the first zero.
///
/// Half a surrogate pair alone: U+FFFD (on Windows what the system answers). Empty text, and
/// text of more than 2147483647 units or bytes: empty. Thread-safety: pure.
/// @since 2.9
QUOR_API std::string to_utf8(types::wide_string const &text);

/// A copy, zeros too. @since 2.9
QUOR_API types::wide_string to_widechar(types::wide_string const &text);

/// Wide text in the narrow encoding of the C locale that the process has set, up to the
/// first zero. A program has the "C" locale, which holds ASCII alone, until it calls
/// `std::setlocale(LC_ALL, "")`.
///
/// Empty text: empty. If the encoding lacks a single character, the result is empty.
/// Thread-safety: the locale belongs to the process; don't change it meanwhile. Cost: linear,
/// three allocations.
/// @since 2.9
QUOR_API std::string to_ansi(types::wide_string const &text);

/// The reverse of `to_ansi`; one byte order mark at the start is dropped. If the bytes are
/// malformed in the encoding, the result is empty: in the "C" locale any byte from 0x80 on.
/// @since 2.9
QUOR_API types::wide_string from_ansi(std::string const &text);

/// The text in lower case: every unit up to 0xFF on its own, as the C library's `tolower`
/// maps it in the locale that the process has set, so in the "C" locale A to Z only. Units
/// above 0xFF stay. `strings::to_lower` depends on no locale.
///
/// Thread-safety: as `to_ansi`.
/// @since 2.9
QUOR_API types::wide_string tolower(types::wide_string const &text);
/// The text in upper case, by the C library's `toupper`, in the same way. @since 2.9
QUOR_API types::wide_string toupper(types::wide_string const &text);

} // namespace QUOR_2_9::strings::gh2

#endif
