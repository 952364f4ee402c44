#ifndef QUOR_STRINGS_TRANSCODE_HPP
#define QUOR_STRINGS_TRANSCODE_HPP

/// @file
/// Conversion between UTF-8, UTF-16 and UTF-32, whole texts at a time.
///
///     using namespace quor::strings;
///     ustring16 const wide = utf8_to_utf16("caf\xC3\xA9");
///     ustring8 const back = utf16_to_utf8(wide);            // the same bytes again
///
/// Malformed input. Five of the six give the two-character text "-1" in place of
/// everything they have converted; a caller can tell it from a genuine "-1" only by
/// the input. What counts as malformed differs from one to the next and is told
/// there. `utf8_to_utf32` has a rule of its own.
///
/// Above U+FFFF. Writers of UTF-16 take nothing off the code point before they split
/// it into a pair, while readers of UTF-16 decode by the standard rule. So U+10000
/// becomes D840 DC00, which reads as U+20000: up to U+FFFF the directions are inverse
/// to each other, but for U+FFFF out of UTF-32; above, a code point moves up by
/// 0x10000, and one from U+100000 up becomes units that can't be read back. Stored
/// data depends on this.
///
/// For all six: sizes are stored sizes, zero units are ordinary, an empty text gives an
/// empty text. Untrusted input: safe. Thread-safety: pure functions. Cost: linear, and
/// one allocation at most, that of the result. The result of a long text may have a capacity
/// of up to 4 times its size (of any size where units are left out): `shrink_to_fit` gives
/// the rest back before a text is kept. Memory exhaustion and the standard string's length
/// limit surface as the standard exceptions.
///
/// @since 2.9

#include <quor/export.hpp>
#include <quor/strings/ustring.hpp>

namespace QUOR_2_9::strings {

/// UTF-8 text as UTF-16.
///
/// Malformed: a byte that starts none of the four forms, and a missing continuation
/// byte, also at the end of the text. Result then: "-1".
/// Note: overlong forms and values up to 0x1FFFFF pass; a surrogate encoded in three
/// bytes becomes a bare surrogate unit. F0 90 80 80 (U+10000) becomes D840 DC00.
/// @since 2.9
QUOR_API ustring16 utf8_to_utf16(ustring8 const &text);

/// UTF-8 text as UTF-32.
///
/// Overlong forms, encoded surrogates and values up to 0x1FFFFF pass as they are.
/// Malformed (as in `utf8_to_utf16`) at the very start: the result is the one unit 63,
/// the character "?", whatever follows.
/// @throws std::length_error if the text is malformed anywhere behind its start. The
/// rule there is to step back one byte and go on, which never ends and would grow the
/// result without bound; the error comes at once instead.
/// @since 2.9
QUOR_API ustring32 utf8_to_utf32(ustring8 const &text);

/// UTF-16 text as UTF-8.
///
/// Malformed: a high surrogate without a low one behind it, also at the end of the
/// text, and a low surrogate without a high one. Result then: "-1".
/// @since 2.9
QUOR_API ustring8 utf16_to_utf8(ustring16 const &text);

/// UTF-16 text as UTF-32.
///
/// Malformed: as in `utf16_to_utf8`. Result then: "-1".
/// @since 2.9
QUOR_API ustring32 utf16_to_utf32(ustring16 const &text);

/// UTF-32 text as UTF-8.
///
/// Malformed: a unit from 0xD800 to 0xDFFF. Result then: "-1".
/// Note: a unit of 0x110000 or more is left out of the result, and the conversion goes
/// on: 0x41 0x110000 0x42 gives "AB".
/// @since 2.9
QUOR_API ustring8 utf32_to_utf8(ustring32 const &text);

/// UTF-32 text as UTF-16.
///
/// Malformed: a unit from 0xD800 to 0xDFFF, and one of 0x110000 or more. Result then:
/// "-1".
/// Note: U+FFFF already goes the way of the pairs and becomes D83F DFFF.
/// @since 2.9
QUOR_API ustring16 utf32_to_utf16(ustring32 const &text);

} // namespace QUOR_2_9::strings

#endif
