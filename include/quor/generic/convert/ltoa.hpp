#ifndef QUOR_GENERIC_CONVERT_LTOA_HPP
#define QUOR_GENERIC_CONVERT_LTOA_HPP

/// @file
/// Integers as digits, written into a buffer that the caller owns, for buffers of
/// 8-, 16- and 32-bit units. The way back is `quor/generic/convert/str_to_x.hpp`.
///
///     char buffer[66];
///     quor::generic::convert::ltoa(-255, buffer, 16);   // "-ff"
///
/// The text is a `-` for a negative number, then digits `0` to `9` and `a` to `z`
/// without leading zeros, then a zero unit. The caller provides the room: 66 units
/// hold every result in every radix from 2 to 36.
///
/// Radix. Below 2 the text is empty. Above 36 there are no letters left: a digit is the
/// low 8 bits of the remainder, written as itself plus 0x30 up to 9 and plus 0x57 above.
///
/// The smallest 64-bit number in `lltoa` is the one exception: it gives `-` and one
/// unit, its lowest digit taken negative. Its text in radix 10 is "-O" (letter O; in
/// wider buffers the second unit is 0x14F) and in radix 16 "-0". `ltoa` writes the
/// smallest 32-bit number in full.
///
/// Thread-safety: touches the caller's buffer alone. Cost: linear in the digits, one
/// division each, no allocation.
///
/// @since 2.9

#include <quor/export.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::generic::convert {

/// Writes a signed 32-bit number and a zero unit to `buffer`.
/// @since 2.9
QUOR_API void ltoa(types::int32 value, char *const buffer, unsigned int radix) noexcept;
/// The same to a buffer of 16-bit units. @since 2.9
QUOR_API void ltoa(types::int32 value, types::wide_char *const buffer, unsigned int radix) noexcept;
/// The same to a buffer of 32-bit units. @since 2.9
QUOR_API void ltoa(types::int32 value, types::utf32_char *const buffer, unsigned int radix) noexcept;

/// Writes an unsigned 32-bit number and a zero unit to `buffer`.
/// @since 2.9
QUOR_API void ultoa(types::uint32 value, char *const buffer, unsigned int radix) noexcept;
/// The same to a buffer of 16-bit units. @since 2.9
QUOR_API void ultoa(types::uint32 value, types::wide_char *const buffer, unsigned int radix) noexcept;
/// The same to a buffer of 32-bit units. @since 2.9
QUOR_API void ultoa(types::uint32 value, types::utf32_char *const buffer, unsigned int radix) noexcept;

/// Writes a signed 64-bit number and a zero unit to `buffer`.
/// @since 2.9
QUOR_API void lltoa(types::int64 value, char *const buffer, unsigned int radix) noexcept;
/// The same to a buffer of 16-bit units. @since 2.9
QUOR_API void lltoa(types::int64 value, types::wide_char *const buffer, unsigned int radix) noexcept;
/// The same to a buffer of 32-bit units. @since 2.9
QUOR_API void lltoa(types::int64 value, types::utf32_char *const buffer, unsigned int radix) noexcept;

/// Writes an unsigned 64-bit number and a zero unit to `buffer`.
/// @since 2.9
QUOR_API void ulltoa(types::uint64 value, char *const buffer, unsigned int radix) noexcept;
/// The same to a buffer of 16-bit units. @since 2.9
QUOR_API void ulltoa(types::uint64 value, types::wide_char *const buffer, unsigned int radix) noexcept;
/// The same to a buffer of 32-bit units. @since 2.9
QUOR_API void ulltoa(types::uint64 value, types::utf32_char *const buffer, unsigned int radix) noexcept;

} // namespace QUOR_2_9::generic::convert

#endif
