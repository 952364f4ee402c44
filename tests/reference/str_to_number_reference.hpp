#ifndef QUOR_TESTS_REFERENCE_STR_TO_NUMBER_REFERENCE_HPP
#define QUOR_TESTS_REFERENCE_STR_TO_NUMBER_REFERENCE_HPP

// Text to number, slow and obvious: one routine for all result types, in whole numbers
// that are far wider than any of them, narrowed where the real one narrows.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "reference/wide_integer.hpp"

namespace quor_reference {

// A number of 128 bits, which no step below can overflow.
using whole = wide_int;

struct number_type {
	int bits;
	bool is_signed;
};

enum class failure { none, bad_radix, too_small, too_large };

struct outcome {
	failure error;
	unsigned int line;  // of the failure
	std::int64_t value; // bit pattern, sign-extended for the signed types

	friend bool operator==(outcome const &, outcome const &) = default;
};

inline whole power_of_two(int exponent) {
	return whole(1) << exponent;
}

// The low bits of a number, read in two's complement or as unsigned.
inline whole narrowed(whole number, int bits, bool is_signed) {
	whole const modulus = power_of_two(bits);
	whole low = number % modulus;
	if (low < 0) {
		low += modulus;
	}
	return is_signed && low >= modulus / 2 ? low - modulus : low;
}

inline outcome done(whole value) {
	return {failure::none, 0, static_cast<std::int64_t>(static_cast<std::uint64_t>(narrowed(value, 64, false)))};
}

// The digit's value or nothing, by the tests in their order.
inline std::optional<int> digit_of(std::int64_t c, std::int64_t radix) {
	if (c < '0') {
		return std::nullopt;
	}
	if (c < '0' + (radix < 10 ? radix : 10)) {
		return static_cast<int>(c - 0x30);
	}
	if (c < 'A') {
		return std::nullopt;
	}
	if (c < 'A' + (radix - 10)) {
		return static_cast<int>(c - 0x37);
	}
	if (c < 'a') {
		return std::nullopt;
	}
	if (c < 'a' + (radix - 10)) {
		return static_cast<int>(c - 0x57);
	}
	return std::nullopt;
}

// `units` are the text's units by value, with a zero unit at the end.
inline outcome str_to_number(std::vector<std::int64_t> const &units, std::size_t length, std::uint32_t radix,
                             bool throw_on_range, number_type type) {
	if (type.is_signed && length == 0) {
		while (units[length] != 0) {
			++length;
		}
	}
	std::size_t i = 0;
	// Blanks.
	while (units[i] == 9 || units[i] == 10 || units[i] == 11 || units[i] == 12 || units[i] == 13 || units[i] == 32) {
		++i;
		if (i >= length) {
			return done(0);
		}
	}
	// Sign.
	std::int64_t const sign = units[i];
	if (sign == '-' || sign == '+') {
		++i;
		if (i >= length) {
			return done(0);
		}
	}
	// Radix.
	if (radix == 0) {
		if (units[i] != '0' && units[i] != '\\') {
			radix = 10;
		} else {
			++i;
			if (i >= length) {
				return done(0);
			}
			if (units[i] == 'x' || units[i] == 'X' || units[i] == 'b' || units[i] == 'B') {
				radix = units[i] == 'x' || units[i] == 'X' ? 16 : 2;
				++i;
				if (i >= length) {
					return done(0);
				}
			} else {
				radix = 8;
			}
		}
	} else if (radix == 1 || radix > 36) {
		return {failure::bad_radix, type.is_signed ? 132U : 257U, 0};
	}
	// Limit.
	whole limit = type.is_signed ? power_of_two(type.bits - 1) - 1 : power_of_two(type.bits) - 1;
	if (type.is_signed && sign == '-') {
		limit = -power_of_two(type.bits - 1);
	}
	whole const divided = narrowed(limit, type.bits == 64 ? 64 : 32, false);
	whole q = divided / radix;
	whole r = divided % radix;
	if (type.is_signed) {
		q = narrowed(q, type.bits, true);
		r = narrowed(r, type.bits, true);
	}
	// Digits.
	whole value = 0;
	bool exceeded = false;
	while (std::optional<int> const d = digit_of(units[i], radix)) {
		if (value < q || (value == q && *d <= r)) {
			value = narrowed(value * radix + *d, type.bits, type.is_signed);
			++i;
			if (i >= length) {
				break;
			}
		} else {
			exceeded = true;
			break;
		}
	}
	// Result.
	if (exceeded) {
		if (throw_on_range && sign == '-') {
			return {failure::too_small, type.is_signed ? 174U : 300U, 0};
		}
		if (throw_on_range) {
			return {failure::too_large, type.is_signed ? 175U : 301U, 0};
		}
		if (type.is_signed) {
			return done(limit);
		}
		value = limit;
	}
	if (type.is_signed) {
		return done(sign == '-' ? narrowed(-value, type.bits, true) : value);
	}
	if (sign == '-' && value != 0) {
		if (throw_on_range) {
			return {failure::too_small, 316, 0};
		}
		return done(0);
	}
	return done(value);
}

// The units of a text by value; `char` is signed.
template <class Unit>
std::vector<std::int64_t> units_of(std::basic_string<Unit> const &text) {
	std::vector<std::int64_t> units;
	for (Unit const unit : text) {
		if constexpr (sizeof(Unit) == 1) {
			units.push_back(static_cast<signed char>(unit));
		} else {
			units.push_back(static_cast<std::int64_t>(unit));
		}
	}
	units.push_back(0);
	return units;
}

// A number's digits in a radix from 2 to 36, with a sign.
inline std::string digits_of(whole number, int radix) {
	bool const negative = number < 0;
	std::string text;
	do {
		int const digit = static_cast<int>(number % radix);
		text.insert(text.begin(), "0123456789abcdefghijklmnopqrstuvwxyz"[digit < 0 ? -digit : digit]);
		number /= radix;
	} while (number != 0);
	return negative ? "-" + text : text;
}

} // namespace quor_reference

#endif
