#ifndef QUOR_GENERIC_CONVERT_STR_TO_X_HPP
#define QUOR_GENERIC_CONVERT_STR_TO_X_HPP

/// @file
/// Text to integer in any radix, for texts of 8-, 16- and 32-bit units.
///
///     namespace convert = quor::generic::convert;
///     convert::str_to_int("  +42xyz", 0, 0, true);         // 42
///     convert::str_to_uint8("0x1F", 4, 0, false);          // 31
///     convert::str_to_int(QUOR_W("-17"), 0, 10, true);     // -17
///
/// All thirteen functions read the same form: blanks (9 to 13 and 32), a sign `-` or
/// `+`, a prefix if `radix` is 0, digits. The first unit that is no digit ends the
/// number without complaint; a text without a digit gives 0.
///
/// Length. Counts units; the text is never null. 0 makes the signed functions measure
/// the text up to its zero unit. The unsigned ones measure nothing: with 0 they read the
/// first unit alone (`str_to_uint32("123", 0, 10, true)` is 1). A zero unit ends the
/// number like any other that is no digit, but all units of the length have to be there:
/// those behind the number may be read too.
///
/// Radix. An enumerator of `types::radix_t::base` or a plain integer. 0 looks at the
/// prefix: `0x` is 16, `0b` is 2, `0` and more is 8, anything else 10; a backslash
/// counts as the `0` of a prefix ("\\x1F" is 31). 2 to 36 reads digits 0 to 9, A to Z
/// and a to z and knows no prefix ("0x1F" in radix 16 is 0). Any other value, a
/// negative one too, throws `exceptions::invalid_argument_value`, also for an empty text,
/// unless the text has ended behind a blank or its sign.
///
/// Range. Beyond it, `throw_on_range` true throws `exceptions::underflow_error` for a
/// text with `-`, `exceptions::overflow_error` else; false gives the type's smallest or
/// largest value. In the unsigned functions the range of a text with `-` is 0 alone.
///
/// Two rules of the signed functions surprise. In 8 and 16 bits, the range of a text with
/// `-` depends on the radix: in 3, 5, 15 and 17 (in 8 bits in 7, 9, 13, 21 and 35 too) it is
/// the type's; in 2, 4, 6, 8, 10, 16 and others nothing lies within it, not even "-0";
/// in the rest, values beyond the type's range are taken and wrap ("-108" in radix
/// 11 and 8 bits is 127). And in all widths, a text that has reached the smallest value
/// exactly may go on with further digits, which wrap ("-21474836480" in 32 bits is 0).
///
/// Untrusted input: safe. Thread-safety: pure functions, whatever the locale. Cost:
/// linear in the text, no allocation but for an exception.
///
/// @since 2.9

#include <type_traits>

#include <quor/export.hpp>
#include <quor/types/radix.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::generic::convert {

namespace detail {

/// Whether a call has text units and, other than `bool`, an integer as radix.
template <class Unit, class Integer>
inline constexpr bool has_plain_radix = (std::is_same_v<Unit, char> || std::is_same_v<Unit, types::wide_char> ||
                                         std::is_same_v<Unit, types::utf32_char>)&&std::is_integral_v<Integer> &&
                                        !std::is_same_v<Integer, bool>;

/// Admits the overloads whose radix is a plain integer.
template <class Unit, class Integer>
using plain_radix = std::enable_if_t<has_plain_radix<Unit, Integer>, int>;

} // namespace detail

/// A 32-bit signed number from text; see above for the rules of length, radix and range.
/// @throws exceptions::invalid_argument_value, exceptions::overflow_error, exceptions::underflow_error as told above.
/// @since 2.9
QUOR_API types::int32 str_to_long(char const *text, types::uint32 length, types::radix_t::base radix,
                                  bool throw_on_range);
/// The same from text of 16-bit units. @since 2.9
QUOR_API types::int32 str_to_long(types::wide_char const *text, types::uint32 length, types::radix_t::base radix,
                                  bool throw_on_range);
/// The same from text of 32-bit units. @since 2.9
QUOR_API types::int32 str_to_long(types::utf32_char const *text, types::uint32 length, types::radix_t::base radix,
                                  bool throw_on_range);
/// The same with a plain integer as radix. @since 2.9
template <class Unit, class Integer, detail::plain_radix<Unit, Integer> = 0>
types::int32 str_to_long(Unit const *text, types::uint32 length, Integer radix, bool throw_on_range) {
	return str_to_long(text, length, types::radix_t::of(radix), throw_on_range);
}

/// A 32-bit signed number from text; see above for the rules of length, radix and range.
/// @throws exceptions::invalid_argument_value, exceptions::overflow_error, exceptions::underflow_error as told above.
/// @since 2.9
QUOR_API int str_to_int(char const *text, types::uint32 length, types::radix_t::base radix, bool throw_on_range);
/// The same from text of 16-bit units. @since 2.9
QUOR_API int str_to_int(types::wide_char const *text, types::uint32 length, types::radix_t::base radix,
                        bool throw_on_range);
/// The same from text of 32-bit units. @since 2.9
QUOR_API int str_to_int(types::utf32_char const *text, types::uint32 length, types::radix_t::base radix,
                        bool throw_on_range);
/// The same with a plain integer as radix. @since 2.9
template <class Unit, class Integer, detail::plain_radix<Unit, Integer> = 0>
int str_to_int(Unit const *text, types::uint32 length, Integer radix, bool throw_on_range) {
	return str_to_int(text, length, types::radix_t::of(radix), throw_on_range);
}

/// A 16-bit signed number from text; see above for the rules of length, radix and range.
/// @throws exceptions::invalid_argument_value, exceptions::overflow_error, exceptions::underflow_error as told above.
/// @since 2.9
QUOR_API short str_to_short(char const *text, types::uint32 length, types::radix_t::base radix, bool throw_on_range);
/// The same from text of 16-bit units. @since 2.9
QUOR_API short str_to_short(types::wide_char const *text, types::uint32 length, types::radix_t::base radix,
                            bool throw_on_range);
/// The same from text of 32-bit units. @since 2.9
QUOR_API short str_to_short(types::utf32_char const *text, types::uint32 length, types::radix_t::base radix,
                            bool throw_on_range);
/// The same with a plain integer as radix. @since 2.9
template <class Unit, class Integer, detail::plain_radix<Unit, Integer> = 0>
short str_to_short(Unit const *text, types::uint32 length, Integer radix, bool throw_on_range) {
	return str_to_short(text, length, types::radix_t::of(radix), throw_on_range);
}

/// A 32-bit signed number from text; see above for the rules of length, radix and range.
/// @throws exceptions::invalid_argument_value, exceptions::overflow_error, exceptions::underflow_error as told above.
/// @since 2.9
QUOR_API int str_to_signed(char const *text, types::uint32 length, types::radix_t::base radix, bool throw_on_range);
/// The same from text of 16-bit units. @since 2.9
QUOR_API int str_to_signed(types::wide_char const *text, types::uint32 length, types::radix_t::base radix,
                           bool throw_on_range);
/// The same from text of 32-bit units. @since 2.9
QUOR_API int str_to_signed(types::utf32_char const *text, types::uint32 length, types::radix_t::base radix,
                           bool throw_on_range);
/// The same with a plain integer as radix. @since 2.9
template <class Unit, class Integer, detail::plain_radix<Unit, Integer> = 0>
int str_to_signed(Unit const *text, types::uint32 length, Integer radix, bool throw_on_range) {
	return str_to_signed(text, length, types::radix_t::of(radix), throw_on_range);
}

/// A 32-bit unsigned number from text; see above for the rules of length, radix and range.
/// @throws exceptions::invalid_argument_value, exceptions::overflow_error, exceptions::underflow_error as told above.
/// @since 2.9
QUOR_API unsigned int str_to_unsigned(char const *text, types::uint32 length, types::radix_t::base radix,
                                      bool throw_on_range);
/// The same from text of 16-bit units. @since 2.9
QUOR_API unsigned int str_to_unsigned(types::wide_char const *text, types::uint32 length, types::radix_t::base radix,
                                      bool throw_on_range);
/// The same from text of 32-bit units. @since 2.9
QUOR_API unsigned int str_to_unsigned(types::utf32_char const *text, types::uint32 length, types::radix_t::base radix,
                                      bool throw_on_range);
/// The same with a plain integer as radix. @since 2.9
template <class Unit, class Integer, detail::plain_radix<Unit, Integer> = 0>
unsigned int str_to_unsigned(Unit const *text, types::uint32 length, Integer radix, bool throw_on_range) {
	return str_to_unsigned(text, length, types::radix_t::of(radix), throw_on_range);
}

/// An 8-bit signed number from text; see above for the rules of length, radix and range.
/// @throws exceptions::invalid_argument_value, exceptions::overflow_error, exceptions::underflow_error as told above.
/// @since 2.9
QUOR_API signed char str_to_int8(char const *text, types::uint32 length, types::radix_t::base radix,
                                 bool throw_on_range);
/// The same from text of 16-bit units. @since 2.9
QUOR_API signed char str_to_int8(types::wide_char const *text, types::uint32 length, types::radix_t::base radix,
                                 bool throw_on_range);
/// The same from text of 32-bit units. @since 2.9
QUOR_API signed char str_to_int8(types::utf32_char const *text, types::uint32 length, types::radix_t::base radix,
                                 bool throw_on_range);
/// The same with a plain integer as radix. @since 2.9
template <class Unit, class Integer, detail::plain_radix<Unit, Integer> = 0>
signed char str_to_int8(Unit const *text, types::uint32 length, Integer radix, bool throw_on_range) {
	return str_to_int8(text, length, types::radix_t::of(radix), throw_on_range);
}

/// A 16-bit signed number from text; see above for the rules of length, radix and range.
/// @throws exceptions::invalid_argument_value, exceptions::overflow_error, exceptions::underflow_error as told above.
/// @since 2.9
QUOR_API short str_to_int16(char const *text, types::uint32 length, types::radix_t::base radix, bool throw_on_range);
/// The same from text of 16-bit units. @since 2.9
QUOR_API short str_to_int16(types::wide_char const *text, types::uint32 length, types::radix_t::base radix,
                            bool throw_on_range);
/// The same from text of 32-bit units. @since 2.9
QUOR_API short str_to_int16(types::utf32_char const *text, types::uint32 length, types::radix_t::base radix,
                            bool throw_on_range);
/// The same with a plain integer as radix. @since 2.9
template <class Unit, class Integer, detail::plain_radix<Unit, Integer> = 0>
short str_to_int16(Unit const *text, types::uint32 length, Integer radix, bool throw_on_range) {
	return str_to_int16(text, length, types::radix_t::of(radix), throw_on_range);
}

/// A 32-bit signed number from text; see above for the rules of length, radix and range.
/// @throws exceptions::invalid_argument_value, exceptions::overflow_error, exceptions::underflow_error as told above.
/// @since 2.9
QUOR_API types::int32 str_to_int32(char const *text, types::uint32 length, types::radix_t::base radix,
                                   bool throw_on_range);
/// The same from text of 16-bit units. @since 2.9
QUOR_API types::int32 str_to_int32(types::wide_char const *text, types::uint32 length, types::radix_t::base radix,
                                   bool throw_on_range);
/// The same from text of 32-bit units. @since 2.9
QUOR_API types::int32 str_to_int32(types::utf32_char const *text, types::uint32 length, types::radix_t::base radix,
                                   bool throw_on_range);
/// The same with a plain integer as radix. @since 2.9
template <class Unit, class Integer, detail::plain_radix<Unit, Integer> = 0>
types::int32 str_to_int32(Unit const *text, types::uint32 length, Integer radix, bool throw_on_range) {
	return str_to_int32(text, length, types::radix_t::of(radix), throw_on_range);
}

/// A 64-bit signed number from text; see above for the rules of length, radix and range.
/// @throws exceptions::invalid_argument_value, exceptions::overflow_error, exceptions::underflow_error as told above.
/// @since 2.9
QUOR_API types::int64 str_to_int64(char const *text, types::uint32 length, types::radix_t::base radix,
                                   bool throw_on_range);
/// The same from text of 16-bit units. @since 2.9
QUOR_API types::int64 str_to_int64(types::wide_char const *text, types::uint32 length, types::radix_t::base radix,
                                   bool throw_on_range);
/// The same from text of 32-bit units. @since 2.9
QUOR_API types::int64 str_to_int64(types::utf32_char const *text, types::uint32 length, types::radix_t::base radix,
                                   bool throw_on_range);
/// The same with a plain integer as radix. @since 2.9
template <class Unit, class Integer, detail::plain_radix<Unit, Integer> = 0>
types::int64 str_to_int64(Unit const *text, types::uint32 length, Integer radix, bool throw_on_range) {
	return str_to_int64(text, length, types::radix_t::of(radix), throw_on_range);
}

/// An 8-bit unsigned number from text; see above for the rules of length, radix and range.
/// @throws exceptions::invalid_argument_value, exceptions::overflow_error, exceptions::underflow_error as told above.
/// @since 2.9
QUOR_API unsigned char str_to_uint8(char const *text, types::uint32 length, types::radix_t::base radix,
                                    bool throw_on_range);
/// The same from text of 16-bit units. @since 2.9
QUOR_API unsigned char str_to_uint8(types::wide_char const *text, types::uint32 length, types::radix_t::base radix,
                                    bool throw_on_range);
/// The same from text of 32-bit units. @since 2.9
QUOR_API unsigned char str_to_uint8(types::utf32_char const *text, types::uint32 length, types::radix_t::base radix,
                                    bool throw_on_range);
/// The same with a plain integer as radix. @since 2.9
template <class Unit, class Integer, detail::plain_radix<Unit, Integer> = 0>
unsigned char str_to_uint8(Unit const *text, types::uint32 length, Integer radix, bool throw_on_range) {
	return str_to_uint8(text, length, types::radix_t::of(radix), throw_on_range);
}

/// A 16-bit unsigned number from text; see above for the rules of length, radix and range.
/// @throws exceptions::invalid_argument_value, exceptions::overflow_error, exceptions::underflow_error as told above.
/// @since 2.9
QUOR_API unsigned short str_to_uint16(char const *text, types::uint32 length, types::radix_t::base radix,
                                      bool throw_on_range);
/// The same from text of 16-bit units. @since 2.9
QUOR_API unsigned short str_to_uint16(types::wide_char const *text, types::uint32 length, types::radix_t::base radix,
                                      bool throw_on_range);
/// The same from text of 32-bit units. @since 2.9
QUOR_API unsigned short str_to_uint16(types::utf32_char const *text, types::uint32 length, types::radix_t::base radix,
                                      bool throw_on_range);
/// The same with a plain integer as radix. @since 2.9
template <class Unit, class Integer, detail::plain_radix<Unit, Integer> = 0>
unsigned short str_to_uint16(Unit const *text, types::uint32 length, Integer radix, bool throw_on_range) {
	return str_to_uint16(text, length, types::radix_t::of(radix), throw_on_range);
}

/// A 32-bit unsigned number from text; see above for the rules of length, radix and range.
/// @throws exceptions::invalid_argument_value, exceptions::overflow_error, exceptions::underflow_error as told above.
/// @since 2.9
QUOR_API types::uint32 str_to_uint32(char const *text, types::uint32 length, types::radix_t::base radix,
                                     bool throw_on_range);
/// The same from text of 16-bit units. @since 2.9
QUOR_API types::uint32 str_to_uint32(types::wide_char const *text, types::uint32 length, types::radix_t::base radix,
                                     bool throw_on_range);
/// The same from text of 32-bit units. @since 2.9
QUOR_API types::uint32 str_to_uint32(types::utf32_char const *text, types::uint32 length, types::radix_t::base radix,
                                     bool throw_on_range);
/// The same with a plain integer as radix. @since 2.9
template <class Unit, class Integer, detail::plain_radix<Unit, Integer> = 0>
types::uint32 str_to_uint32(Unit const *text, types::uint32 length, Integer radix, bool throw_on_range) {
	return str_to_uint32(text, length, types::radix_t::of(radix), throw_on_range);
}

/// A 64-bit unsigned number from text; see above for the rules of length, radix and range.
/// @throws exceptions::invalid_argument_value, exceptions::overflow_error, exceptions::underflow_error as told above.
/// @since 2.9
QUOR_API types::uint64 str_to_uint64(char const *text, types::uint32 length, types::radix_t::base radix,
                                     bool throw_on_range);
/// The same from text of 16-bit units. @since 2.9
QUOR_API types::uint64 str_to_uint64(types::wide_char const *text, types::uint32 length, types::radix_t::base radix,
                                     bool throw_on_range);
/// The same from text of 32-bit units. @since 2.9
QUOR_API types::uint64 str_to_uint64(types::utf32_char const *text, types::uint32 length, types::radix_t::base radix,
                                     bool throw_on_range);
/// The same with a plain integer as radix. @since 2.9
template <class Unit, class Integer, detail::plain_radix<Unit, Integer> = 0>
types::uint64 str_to_uint64(Unit const *text, types::uint32 length, Integer radix, bool throw_on_range) {
	return str_to_uint64(text, length, types::radix_t::of(radix), throw_on_range);
}

} // namespace QUOR_2_9::generic::convert

#endif
