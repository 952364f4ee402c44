#ifndef QUOR_TESTS_REFERENCE_EXACT_DOUBLE_HPP
#define QUOR_TESTS_REFERENCE_EXACT_DOUBLE_HPP

// Arithmetic on doubles carried out with integers: each operation gives the exact rational
// result, rounded once to the nearest double, ties to even. No floating operation of the
// machine takes part, so that whatever a compiler or a processor does to them shows.

#include <cmath>
#include <cstdint>
#include <cstring>

#include "reference/wide_integer.hpp"

namespace quor_reference {

// The value of a finite double: mantissa * 2^exponent.
struct exact_double {
	bool negative;
	std::uint64_t mantissa;
	int exponent;
};

inline exact_double exact_of(double value) {
	std::uint64_t bits;
	std::memcpy(&bits, &value, sizeof bits);
	std::uint64_t const fraction = bits & ((std::uint64_t(1) << 52) - 1);
	int const field = static_cast<int>(bits >> 52 & 0x7FF);
	std::uint64_t const leading = field == 0 ? 0 : std::uint64_t(1) << 52;
	return {bits >> 63 != 0, fraction | leading, (field == 0 ? 1 : field) - 1075};
}

inline int bit_length(wide_uint value) {
	int length = 0;
	for (; value != 0; value >>= 1) {
		++length;
	}
	return length;
}

// mantissa * 2^exponent, and a little more where `more`, as the nearest double.
inline double nearest_double(bool negative, wide_uint mantissa, int exponent, bool more) {
	int drop = bit_length(mantissa) - 53;
	if (exponent + drop < -1074) {
		drop = -1074 - exponent;
	}
	if (drop > 127) {
		return negative ? -0.0 : 0.0;
	}
	if (drop > 0) {
		wide_uint const unit = wide_uint(1) << drop;
		wide_uint const rest = mantissa & (unit - 1);
		mantissa >>= drop;
		exponent += drop;
		bool const above_half = rest > unit / 2 || (rest == unit / 2 && more);
		bool const tie = rest == unit / 2 && !more;
		mantissa += above_half || (tie && (mantissa & 1) != 0) ? 1 : 0;
	}
	double const magnitude = std::ldexp(static_cast<double>(static_cast<std::uint64_t>(mantissa)), exponent);
	return negative ? -magnitude : magnitude;
}

inline double exact_product(double left, double right) {
	exact_double const a = exact_of(left);
	exact_double const b = exact_of(right);
	return nearest_double(a.negative != b.negative, wide_uint(a.mantissa) * b.mantissa, a.exponent + b.exponent, false);
}

inline double exact_quotient(double dividend, double divisor) {
	exact_double const a = exact_of(dividend);
	exact_double const b = exact_of(divisor);
	int const shift = 127 - bit_length(a.mantissa);
	wide_uint const numerator = wide_uint(a.mantissa) << shift;
	return nearest_double(a.negative != b.negative, numerator / b.mantissa, a.exponent - shift - b.exponent,
	                      numerator % b.mantissa != 0);
}

// The sum of any double and a positive one.
inline double exact_sum(double left, double positive) {
	exact_double a = exact_of(left);
	exact_double b = exact_of(positive);
	if (a.mantissa == 0) {
		return positive;
	}
	if (a.exponent - b.exponent > 60) {
		return left; // the other lies far below half a unit of the last place
	}
	if (b.exponent - a.exponent > 60) {
		return positive;
	}
	int const exponent = a.exponent < b.exponent ? a.exponent : b.exponent;
	wide_uint const x = wide_uint(a.mantissa) << (a.exponent - exponent);
	wide_uint const y = wide_uint(b.mantissa) << (b.exponent - exponent);
	if (!a.negative) {
		return nearest_double(false, x + y, exponent, false);
	}
	return x > y ? nearest_double(true, x - y, exponent, false) : nearest_double(false, y - x, exponent, false);
}

// The largest whole number that isn't above `value`.
inline double exact_floor(double value) {
	exact_double const a = exact_of(value);
	if (a.exponent >= 0) {
		return value;
	}
	std::uint64_t const whole = a.exponent <= -64 ? 0 : a.mantissa >> -a.exponent;
	bool const cut = a.exponent <= -64 ? a.mantissa != 0 : whole << -a.exponent != a.mantissa;
	return nearest_double(a.negative, wide_uint(whole) + (a.negative && cut ? 1 : 0), 0, false);
}

// The low 32 bits of the whole part, as a signed number; 0 when there is no whole part.
inline std::int32_t exact_low_32(double value) {
	if (!std::isfinite(value)) {
		return 0;
	}
	exact_double const a = exact_of(value);
	std::uint64_t low = 0;
	if (a.exponent >= 0) {
		low = a.exponent < 64 ? a.mantissa << a.exponent : 0;
	} else if (a.exponent > -64) {
		low = a.mantissa >> -a.exponent;
	}
	auto const bits = static_cast<std::uint32_t>(a.negative ? 0 - low : low);
	std::int32_t result;
	std::memcpy(&result, &bits, sizeof result);
	return result;
}

} // namespace quor_reference

#endif
