#ifndef QUOR_I18N_VALUE_FORMATTERS_HPP
#define QUOR_I18N_VALUE_FORMATTERS_HPP

/// @file
/// The five formatters that write the typed arguments of a message. A caller renders
/// a message (`quor/i18n/message.hpp`) and seldom needs them directly.
///
///     using namespace quor::i18n::_private;
///     format_int(255, "base\1hex");                  // "0x00ff"
///     quor::strings::ustring8 unit;
///     format_memory(2048, "", unit);                 // "2", unit "KB"
///
/// The attribute string of all five is a flat list of keys and values, each separated
/// from the next by the one byte 0x01: key, 0x01, value, 0x01, key, 0x01, value. It is
/// cut as `strings::split_string` does it: no element for the empty string, none behind
/// a separator at the very end.
///
/// - No attributes mean the defaults. An odd number of elements fails; so does a key
///   without a value, and a last value that is empty.
/// - Pairs count from left to right; a later pair overrides an earlier one. A key that
///   is none of the function's keywords fails.
/// - Keys and words may be abbreviated: an element means the first keyword, in the order
///   given, of which it is a prefix, case-sensitively. So "ba" is "base", and the empty
///   element is the first keyword.
/// - Numbers are read like this: white space, a sign, decimal digits; the rest is
///   ignored, no digits give 0, a number beyond `int` gives the nearest `int`.
///
/// The one failure is the text "-0", with an empty unit. Nothing is thrown but
/// `std::bad_alloc`. All output is ASCII, exact ties round to even, and nothing depends
/// on a locale. Untrusted input: safe; a text has at most 65,535 zeros and 96 other
/// characters, whatever the attributes.
/// Thread-safety: pure functions. Cost: linear in the attributes and the result, the
/// result is the only allocation.
///
/// @since 2.9

#include <quor/export.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::i18n::_private {

/// Writes an integer.
///
/// Attributes, in this order:
/// - "base" (default "dec"): "dec" and "default" decimal; "spaced_dec" decimal in groups
///   of three; "hex" with "0x" in front; "oct" with "o" in front; "bin" with "b" behind.
///   Once a pair has asked for groups or for room for a prefix, no later pair takes
///   that back.
/// - "fieldsize" (default 0, no field): a number that needs more characters fails, blanks
///   between groups, sign, prefix and suffix counted. Decimal numbers are never padded.
///   In the other bases a number that isn't negative is filled up with zeros; a field
///   that would need more than 65,535 of them fails.
///
/// Without a field size, hexadecimal digits come in multiples of four (255 is "0x00ff").
/// A negative number in base 16, 8 or 2 is shown as its complement, as wide as it takes
/// to show the sign in the top digit (-1 is "0xffff" and "o7"), or as wide as the field:
/// a short field can lose the sign (-9 is "0x7" in 3 characters). Beyond 64 bits the
/// complement wraps away and the digits carry a sign: -(2^52) is "0x-10000000000000".
///
/// Groups stay on in another base ("spaced_dec", then "hex"): the digits are grouped, those of
/// a negative number behind a `-`, and a field counts digits and blanks alone, so that
/// 0xfffff in 6 characters is "0xff fff".
///
/// Note: the smallest number is "-O" in decimal, with the letter, see
/// `generic::convert::lltoa`. Digits and sign of more than 63 characters fail.
/// @since 2.9
QUOR_API strings::ustring8 format_int(types::int64 value, strings::ustring8 const &format);

/// Writes a floating-point number.
///
/// Attributes, in this order:
/// - "precision" (default 2): decimals. Negative fails.
/// - "fieldsize" (default 0, no field): the text is filled up with blanks on the left. A
///   longer one is written in exponent form with the same precision instead, and then
///   cut to its leftmost characters: 123456789.0 in 8 characters is "1.23e+08". Negative
///   fails, and so does more than 63.
///
/// Without a field size a text of more than 63 characters fails, with one an exponent
/// form of more than 63 fails, its exponent counted with three digits. Infinities and
/// NaN fail.
///
/// Note: the exponent keeps the last two of its three digits: 1e100 is "1.00e+00" in 8
/// characters. A negative number that rounds to "-0" with precision 0 reads like a failure.
/// @since 2.9
QUOR_API strings::ustring8 format_double(double value, strings::ustring8 const &format);

/// Writes a duration, given in seconds, as days, hours, minutes and seconds.
///
/// Attributes, in this order:
/// - "precision" (default "2"): decimals of the seconds, as in `format_double`.
/// - "short_form" (default "false"): "true" or "false".
///
/// 3661.5 is "1 hr 1 min 1.50 sec", in short form "1h 1m 1.50s". Leading parts that are
/// 0 are left out, parts behind a shown one are not: 86400 is "1 dy 0 hr 0 min 0.00 sec".
/// A duration whose whole seconds don't fit 32 bits fails, NaN too.
///
/// Note: seconds are rounded but never carried: 59.999 with precision 0 is "60 sec". A
/// precision that `format_double` refuses shows as "-0 sec" and is no failure.
/// @since 2.9
QUOR_API strings::ustring8 format_duration(double seconds, strings::ustring8 const &format);

/// Writes a size in steps of 1024, truncated to whole units.
///
/// Attributes, in this order:
/// - "target_unit" (default none): the unit to write the number in. Without one the
///   number is divided as long as it is 1024 or more.
/// - "base_unit" (default "B"): the unit that the value is given in.
///
/// Units: "B", "KB", "MB", "GB", "TB", "PB", "EB", "ZB", "YB", in upper case. "B" stands
/// alone; of the others two characters are read, so "KBytes" is "KB". An automatic unit
/// beyond "YB" fails. A target below the base gives "0": nothing is scaled up. An empty
/// key means the target "B", whatever its value.
///
/// @param unit is emptied, then gets the unit's text where the function succeeds.
/// @since 2.9
QUOR_API strings::ustring8 format_memory(types::uint64 value, strings::ustring8 const &format, strings::ustring8 &unit);

/// Writes a number in steps of 1000 with decimals.
///
/// Attributes, in this order:
/// - "base_unit" (default none): the unit that the value is given in.
/// - "target_unit" (default none): the unit to write the number in. Without one the
///   number is divided as long as its whole part is above 999, up to "tera" at most; so
///   999999 is "999.999" "k".
/// - "short_form" (default "true"): "true" or "false".
/// - "precision" (default 3): decimals. Negative fails.
///
/// Units as attributes: "a", "f", "p", "n", "mc", "m", a prefix of "base" for the unit
/// itself, "k", "M", "G", "T", "P", "E", "Z", "Y". Units as written: the same with the
/// empty text for the unit itself, or in long form "atto", "femto", "pico", "nano",
/// "micro", "milli", "kilo", "mega", "giga", "tera", "peta", "exa", "zetta", "yotta".
/// A text of more than 63 characters fails.
///
/// @param unit is emptied, then gets the unit's text where the function succeeds.
/// @since 2.9
QUOR_API strings::ustring8 format_metric(types::uint32 value, strings::ustring8 const &format, strings::ustring8 &unit);

} // namespace QUOR_2_9::i18n::_private

#endif
