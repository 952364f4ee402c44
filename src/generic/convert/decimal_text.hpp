#ifndef QUOR_SRC_GENERIC_CONVERT_DECIMAL_TEXT_HPP
#define QUOR_SRC_GENERIC_CONVERT_DECIMAL_TEXT_HPP

#include <cstddef>

/// Floating numbers as decimal text and back, the same on every target and under
/// every locale. All digits are those of the number's exact value, correctly rounded,
/// exact ties to even. Nothing here allocates.
namespace QUOR_2_9::generic::convert::detail {

/// Room for every text of `gcvt`.
inline constexpr std::size_t gcvt_size = 349;

/// Writes `value` with `digits` significant digits (taken into 1 to 340) and returns
/// the count of characters; no zero byte follows them.
///
/// With x the decimal exponent of the rounded value: fixed notation when x is -1 to
/// digits - 1, else one digit, the point, `e`, a sign and at least three exponent
/// digits. Trailing zeros go, the point stays: "1.", "100.", "0.5", "1.e+010", "5.e-002".
/// "inf", "-inf" and "nan" for numbers that are not finite.
std::size_t gcvt(double value, int digits, char *buffer) noexcept;

/// The number that a text starts with: blanks, a sign, decimal digits with point and
/// exponent, or one of the words "inf", "infinity" and "nan" in any case. Stops at the
/// first character that it can't use; 0 for a text without a number. No hexadecimal
/// form ("0x10" is 0). Too large a number gives infinity and too small a one zero, with
/// the sign of the text.
double atof(char const *text, std::size_t length) noexcept;

/// Writes `value` as "%.<precision>f" does in the "C" locale into `size` characters and
/// returns their count, or 0 when they don't fit or `precision` is negative; no zero byte
/// follows them. Numbers that are not finite as in `gcvt`.
std::size_t fixed(double value, int precision, char *buffer, std::size_t size) noexcept;

/// The same as "%.<precision>e": the exponent has two digits, three from 100 on.
std::size_t scientific(double value, int precision, char *buffer, std::size_t size) noexcept;

} // namespace QUOR_2_9::generic::convert::detail

#endif
