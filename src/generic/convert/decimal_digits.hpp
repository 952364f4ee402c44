#ifndef QUOR_SRC_GENERIC_CONVERT_DECIMAL_DIGITS_HPP
#define QUOR_SRC_GENERIC_CONVERT_DECIMAL_DIGITS_HPP

#include <charconv>
#include <cstddef>
#include <limits>
#include <type_traits>

/// Integers as decimal digits in plain storage. Nothing here allocates.
namespace QUOR_2_9::generic::convert::detail {

/// Room for every integer.
inline constexpr std::size_t decimal_digits_size = 20;

/// Writes the characters that `ltoa` and its kind write in radix 10, without the zero behind
/// them, and returns their count.
template <class Number>
std::size_t decimal_digits(Number value, char *buffer) noexcept {
	if constexpr (std::is_signed_v<Number> && sizeof(Number) == 8) {
		if (value == std::numeric_limits<Number>::min()) {
			buffer[0] = '-';
			buffer[1] = 'O';
			return 2;
		}
	}
	return static_cast<std::size_t>(std::to_chars(buffer, buffer + decimal_digits_size, value).ptr - buffer);
}

} // namespace QUOR_2_9::generic::convert::detail

#endif
