#ifndef QUOR_STRINGS_UNICHAR_HPP
#define QUOR_STRINGS_UNICHAR_HPP

/// @file
/// Lengths, single code points and their offsets, in text of 8-, 16- and 32-bit units.
/// To convert whole texts use `quor/strings/transcode.hpp`.
///
///     quor::types::uint32 consumed = 0;
///     quor::strings::unichar("\xC3\xA9!", 3, 0, consumed);   // 0xE9, consumed is 2
///     quor::strings::character_index("\xC3\xA9!", 1);        // 2: where the "!" starts
///
/// All numbers have 32 bits. "All ones" is 0xFFFFFFFF, the value -1 of the unsigned
/// type; it marks bad input.
///
/// @since 2.9

#include <quor/export.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::strings {

/// The number of bytes before the first zero byte.
///
/// Nothing is decoded. `text` must not be null and must hold a zero byte.
/// Thread-safety: pure. Cost: linear in the result.
/// @since 2.9
QUOR_API types::uint32 string_length(char const *text) noexcept;
/// The number of 16-bit units before the first zero unit. @since 2.9
QUOR_API types::uint32 string_length(types::wide_char const *text) noexcept;
/// The number of 32-bit units before the first zero unit. @since 2.9
QUOR_API types::uint32 string_length(types::utf32_char const *text) noexcept;
/// The stored size in bytes, zero bytes included: 2 for the two bytes of U+00E9.
///
/// Thread-safety: pure. Cost: constant.
/// @since 2.9
QUOR_API types::uint32 string_length(ustring8 const &text) noexcept;
/// The stored size in 16-bit units. @since 2.9
QUOR_API types::uint32 string_length(ustring16 const &text) noexcept;
/// The stored size in 32-bit units. @since 2.9
QUOR_API types::uint32 string_length(ustring32 const &text) noexcept;

/// The code point that starts at byte `index` of UTF-8 text of `length` bytes.
///
/// Units: bytes. The text needs no terminator; nothing at or beyond `length` is read.
/// Bad input (`index` not below `length`, a stray continuation byte, a byte from 0xF8
/// up, a sequence cut short): the result is 63, the character "?", and `consumed` is
/// all ones. Otherwise `consumed` is the number of bytes of the sequence, 1 to 4.
/// Untrusted input: safe. Thread-safety: pure. Cost: constant.
/// Note: the form of the sequence is all that is tested. Overlong forms, encoded
/// surrogates and values above U+10FFFF pass: the bytes C0 80 give 0, ED A0 80 give
/// 0xD800.
/// @since 2.9
QUOR_API types::uint32 unichar(char const *text, types::uint32 length, types::uint32 index,
                               types::uint32 &consumed) noexcept;
/// The code point that starts at unit `index` of UTF-16 text of `length` units.
///
/// As above; bad input is `index` not below `length`, a high surrogate without a low
/// one behind it, and a low surrogate. `consumed` is 1 or 2. Pairs are decoded by the
/// standard rule: D83D DE00 gives 0x1F600.
/// @since 2.9
QUOR_API types::uint32 unichar(types::wide_char const *text, types::uint32 length, types::uint32 index,
                               types::uint32 &consumed) noexcept;
/// The unit at `index` of UTF-32 text of `length` units, as it stands.
///
/// As above; the only bad input is `index` not below `length`. `consumed` is 1.
/// @since 2.9
QUOR_API types::uint32 unichar(types::utf32_char const *text, types::uint32 length, types::uint32 index,
                               types::uint32 &consumed) noexcept;

/// The byte offset of code point number `index` in UTF-8 text, counted from 0.
///
/// Gives all ones if `index` is not below the number of *bytes*, so for every index
/// into an empty text, and if a byte on the way starts no well-formed sequence; the
/// forms are those of `unichar`. The code point at the offset itself is not looked at.
///
/// Note: a text with fewer code points than `index` is not noticed as such. The walk
/// steps over the terminating zero as over one character and stops at the next step,
/// by `debug::invalid_parameter`: in the two bytes of U+00E9, index 1 gives 2, the
/// text's end; in "\xC3\xA9\xC3\xA9" index 3 gives 5, and in the six bytes of three
/// such characters index 5 stops. Where the handler returns, each further step counts
/// one unit.
/// @throws whatever an installed handler throws; the library itself throws nothing.
/// Untrusted input: safe with the handler in mind. Thread-safety: pure. Cost: linear
/// in `index`, so a loop over all characters should use `unichar` instead.
/// @since 2.9
QUOR_API types::uint32 character_index(ustring8 const &text, types::uint32 index);
/// The unit offset of code point number `index` in UTF-16 text, counted from 0.
///
/// As above; a high surrogate without a low one behind it gives all ones.
/// Note: a low surrogate on its own counts as a character, but in a text that *begins*
/// with one every index from 1 up gives all ones.
/// @since 2.9
QUOR_API types::uint32 character_index(ustring16 const &text, types::uint32 index);

} // namespace QUOR_2_9::strings

#endif
