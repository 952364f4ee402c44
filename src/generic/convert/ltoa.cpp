#include <quor/generic/convert/ltoa.hpp>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <limits>

#include "generic/convert/decimal_digits.hpp"

namespace QUOR_2_9::generic::convert {
namespace {

constexpr types::int64 smallest = std::numeric_limits<types::int64>::min();

template <class Unit>
Unit digit_unit(unsigned int digit) noexcept {
	return static_cast<Unit>(digit <= 9 ? '0' + digit : 0x57 + digit);
}

/// Any radix: lowest digit first, then turned round.
template <class Unit>
void write_slowly(std::uint64_t value, Unit *buffer, unsigned int radix) noexcept {
	Unit *end = buffer;
	do {
		*end++ = digit_unit<Unit>(static_cast<unsigned char>(value % radix));
		value /= radix;
	} while (value != 0);
	*end = Unit();
	std::reverse(buffer, end);
}

/// A radix of a power of two up to 32.
template <class Unit>
void write_bits(std::uint64_t value, Unit *buffer, unsigned int radix) noexcept {
	auto const width = static_cast<unsigned int>(std::countr_zero(radix));
	auto const bits = static_cast<unsigned int>(64 - std::countl_zero(value | 1));
	Unit *place = buffer + (bits + width - 1) / width;
	*place = Unit();
	do {
		*--place = digit_unit<Unit>(static_cast<unsigned int>(value) & (radix - 1));
		value >>= width;
	} while (place != buffer);
}

/// A radix other than 10. Where it can't make digits, only the zero unit is written.
template <class Unit>
[[gnu::noinline]] void write_in_radix(std::uint64_t value, Unit *buffer, unsigned int radix) noexcept {
	if (radix < 2) {
		*buffer = Unit();
	} else if ((radix & (radix - 1)) == 0 && radix <= 32) {
		write_bits(value, buffer, radix);
	} else {
		write_slowly(value, buffer, radix);
	}
}

/// Writes the digits of a number and a zero unit behind them.
template <class Unit>
[[gnu::noinline]] void write_digits(std::uint64_t value, Unit *buffer, unsigned int radix) noexcept {
	if (radix == 10) {
		*detail::write_decimal(value, buffer) = Unit();
	} else {
		write_in_radix(value, buffer, radix);
	}
}

/// The same where one digit may be all: the number of digits needs no look then.
template <class Unit>
[[gnu::always_inline]] inline void write_unsigned(std::uint64_t value, Unit *buffer, unsigned int radix) noexcept {
	if (value < 10 && radix == 10) {
		buffer[0] = static_cast<Unit>('0' + value);
		buffer[1] = Unit();
	} else {
		write_digits(value, buffer, radix);
	}
}

template <class Unit>
void write_signed(types::int64 value, Unit *buffer, unsigned int radix) noexcept {
	auto const magnitude = static_cast<std::uint64_t>(value);
	if (value < 0 && radix >= 2) {
		*buffer++ = static_cast<Unit>('-');
		write_digits(0 - magnitude, buffer, radix);
	} else {
		write_unsigned(magnitude, buffer, radix);
	}
}

/// The smallest number of 64 bits stays negative without its sign: one digit is written, the low
/// byte of a negative remainder.
template <class Unit>
[[gnu::noinline]] void write_smallest(Unit *buffer, unsigned int radix) noexcept {
	if (radix >= 2) {
		*buffer++ = static_cast<Unit>('-');
		*buffer++ = digit_unit<Unit>(static_cast<unsigned char>(smallest % static_cast<types::int64>(radix)));
	}
	*buffer = Unit();
}

template <class Unit>
void write_signed64(types::int64 value, Unit *buffer, unsigned int radix) noexcept {
	if (value == smallest) {
		write_smallest(buffer, radix);
	} else {
		write_signed(value, buffer, radix);
	}
}

} // namespace

void ltoa(types::int32 value, char *const buffer, unsigned int radix) noexcept {
	write_signed(value, buffer, radix);
}

void ltoa(types::int32 value, types::wide_char *const buffer, unsigned int radix) noexcept {
	write_signed(value, buffer, radix);
}

void ltoa(types::int32 value, types::utf32_char *const buffer, unsigned int radix) noexcept {
	write_signed(value, buffer, radix);
}

void ultoa(types::uint32 value, char *const buffer, unsigned int radix) noexcept {
	write_unsigned(value, buffer, radix);
}

void ultoa(types::uint32 value, types::wide_char *const buffer, unsigned int radix) noexcept {
	write_unsigned(value, buffer, radix);
}

void ultoa(types::uint32 value, types::utf32_char *const buffer, unsigned int radix) noexcept {
	write_unsigned(value, buffer, radix);
}

void lltoa(types::int64 value, char *const buffer, unsigned int radix) noexcept {
	write_signed64(value, buffer, radix);
}

void lltoa(types::int64 value, types::wide_char *const buffer, unsigned int radix) noexcept {
	write_signed64(value, buffer, radix);
}

void lltoa(types::int64 value, types::utf32_char *const buffer, unsigned int radix) noexcept {
	write_signed64(value, buffer, radix);
}

void ulltoa(types::uint64 value, char *const buffer, unsigned int radix) noexcept {
	write_unsigned(value, buffer, radix);
}

void ulltoa(types::uint64 value, types::wide_char *const buffer, unsigned int radix) noexcept {
	write_unsigned(value, buffer, radix);
}

void ulltoa(types::uint64 value, types::utf32_char *const buffer, unsigned int radix) noexcept {
	write_unsigned(value, buffer, radix);
}

} // namespace QUOR_2_9::generic::convert
