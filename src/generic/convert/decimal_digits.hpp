#ifndef QUOR_SRC_GENERIC_CONVERT_DECIMAL_DIGITS_HPP
#define QUOR_SRC_GENERIC_CONVERT_DECIMAL_DIGITS_HPP

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

/// Integers as decimal digits in plain storage. Nothing here allocates.
namespace QUOR_2_9::generic::convert::detail {

/// Room for every integer.
inline constexpr std::size_t decimal_digits_size = 20;

/// The digits of 00 to 99; static, since the library would else export it.
template <class Unit>
static constexpr auto digit_pairs = [] {
	std::array<Unit, 200> units{};
	for (std::size_t i = 0; i != 100; ++i) {
		units[2 * i] = static_cast<Unit>('0' + i / 10);
		units[2 * i + 1] = static_cast<Unit>('0' + i % 10);
	}
	return units;
}();

/// 10^n at n, but 0 at 0, so that 0 has a digit.
inline constexpr auto decimal_powers = [] {
	std::array<std::uint64_t, 20> powers{};
	std::uint64_t power = 1;
	for (std::size_t i = 1; i != powers.size(); ++i) {
		powers[i] = power *= 10;
	}
	return powers;
}();

inline std::size_t count_decimal_digits(std::uint64_t value) noexcept {
	// 1233 / 4096 is a little more than the logarithm of 2; the guess is right or one too high.
	auto const bits = static_cast<std::size_t>(64 - std::countl_zero(value | 1));
	std::size_t const guess = bits * 1233 >> 12;
	return guess + (value >= decimal_powers[guess] ? 1 : 0);
}

template <class Unit>
void put_pair(Unit *place, std::uint32_t pair) noexcept {
	std::memcpy(place, &digit_pairs<Unit>[2 * pair], 2 * sizeof(Unit));
}

/// Four digits of a number below 10000.
template <class Unit>
void put_four(Unit *place, std::uint32_t four) noexcept {
	put_pair(place, four / 100);
	put_pair(place + 2, four % 100);
}

/// Writes the digits of a number and returns their end. Every unit is written once.
template <class Unit>
[[gnu::always_inline]] inline Unit *write_decimal(std::uint64_t value, Unit *buffer) noexcept {
	Unit *const end = buffer + count_decimal_digits(value);
	Unit *place = end;
	while (value >= 100000000) {
		auto const low = static_cast<std::uint32_t>(value % 100000000);
		value /= 100000000;
		put_four(place -= 4, low % 10000);
		put_four(place -= 4, low / 10000);
	}
	auto rest = static_cast<std::uint32_t>(value);
	if (rest >= 10000) {
		put_four(place -= 4, rest % 10000);
		rest /= 10000;
	}
	if (rest >= 100) {
		put_pair(place -= 2, rest % 100);
		rest /= 100;
	}
	if (rest >= 10) {
		put_pair(place - 2, rest);
	} else {
		place[-1] = static_cast<Unit>('0' + rest);
	}
	return end;
}

/// Writes the characters that `ltoa` and its kind write in radix 10, without the zero behind
/// them, and returns their count.
template <class Number>
std::size_t decimal_digits(Number value, char *buffer) noexcept {
	char *digits = buffer;
	auto magnitude = static_cast<std::uint64_t>(value);
	if constexpr (std::is_signed_v<Number>) {
		if (value < 0) {
			*digits++ = '-';
			magnitude = 0 - magnitude;
		}
		if (sizeof(Number) == 8 && value == std::numeric_limits<Number>::min()) {
			*digits = 'O';
			return 2;
		}
	}
	return static_cast<std::size_t>(write_decimal(magnitude, digits) - buffer);
}

} // namespace QUOR_2_9::generic::convert::detail

#endif
