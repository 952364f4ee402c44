#ifndef QUOR_STRINGS_NATIVE_WIDE_HPP
#define QUOR_STRINGS_NATIVE_WIDE_HPP

/// @file
/// The bridge to `std::wstring` for programs whose own wide text it is. The library's
/// wide text has 16-bit units on every target (`ustring16`, `types::wide_string`);
/// `wchar_t` has 32 bits on most systems and 16 on Windows.
///
///     std::wstring const title = L"caf\u00E9";
///     quor::strings::ustring16 const wide = quor::strings::from_native_wide(title);
///     std::wstring const back = quor::strings::to_native_wide(wide);     // title again
///
/// Where `wchar_t` has 16 bits both functions copy. Elsewhere they convert between
/// UTF-32 and UTF-16 by the standard rule for surrogate pairs, so that the same wide
/// literal gives the same `ustring16` on every target (L"\U0001F600" is D83D DE00;
/// `utf32_to_utf16` would shift it).
///
/// @since 2.9

#include <string>

#include <quor/export.hpp>
#include <quor/strings/ustring.hpp>

namespace QUOR_2_9::strings {

/// The program's wide text in 16-bit units.
///
/// Surrogate values pass as they are. Malformed input, a 32-bit unit of 0x110000 or
/// more: the result is the text "-1". Empty input: empty.
/// Untrusted input: safe. Thread-safety: pure. Cost: linear, allocates the result.
/// @since 2.9
QUOR_API ustring16 from_native_wide(std::wstring const &text);

/// 16-bit text as the program's wide text.
///
/// A surrogate that is no part of a pair passes as it is, so that everything that
/// `from_native_wide` makes of well-formed text comes back unchanged. Empty input:
/// empty. Untrusted input: safe. Thread-safety: pure. Cost: linear, allocates the
/// result.
/// @since 2.9
QUOR_API std::wstring to_native_wide(ustring16 const &text);

} // namespace QUOR_2_9::strings

#endif
