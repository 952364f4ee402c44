#include <quor/generic/convert/ltoa.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace QUOR_2_9::generic::convert {
namespace {

/// Writes the digits of `value`, lowest first, turns them round and ends them with a zero
/// unit. A signed `Number` may come in negative: its single digit is then the low byte
/// of a negative remainder.
template <class Number, class Unit>
void write_digits(Number value, Unit *buffer, unsigned int radix) noexcept {
	Number const divisor = static_cast<Number>(radix);
	Unit *end = buffer;
	do {
		unsigned int const digit = static_cast<unsigned char>(value % divisor);
		value = static_cast<Number>(value / divisor);
		*end++ = static_cast<Unit>(digit <= 9 ? '0' + digit : 0x57 + digit);
	} while (value > 0);
	*end = Unit();
	std::reverse(buffer, end);
}

/// Writes an empty text where the radix can't make digits.
template <class Unit>
bool lacks_radix(Unit *buffer, unsigned int radix) noexcept {
	if (radix >= 2) {
		return false;
	}
	*buffer = Unit();
	return true;
}

/// `Number` is the type of the division: unsigned in 32 bits, signed in 64.
template <class Number, class Signed, class Unit>
void write_signed(Signed value, Unit *buffer, unsigned int radix) noexcept {
	if (lacks_radix(buffer, radix)) {
		return;
	}
	using bits = std::make_unsigned_t<Signed>;
	bits magnitude = static_cast<bits>(value);
	if (value < 0) {
		*buffer++ = static_cast<Unit>('-');
		magnitude = bits(0) - magnitude;
	}
	write_digits(static_cast<Number>(magnitude), buffer, radix);
}

template <class Unsigned, class Unit>
void write_unsigned(Unsigned value, Unit *buffer, unsigned int radix) noexcept {
	if (!lacks_radix(buffer, radix)) {
		write_digits(value, buffer, radix);
	}
}

} // namespace

void ltoa(types::int32 value, char *const buffer, unsigned int radix) noexcept {
	write_signed<std::uint32_t>(value, buffer, radix);
}

void ltoa(types::int32 value, types::wide_char *const buffer, unsigned int radix) noexcept {
	write_signed<std::uint32_t>(value, buffer, radix);
}

void ltoa(types::int32 value, types::utf32_char *const buffer, unsigned int radix) noexcept {
	write_signed<std::uint32_t>(value, buffer, radix);
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
	write_signed<types::int64>(value, buffer, radix);
}

void lltoa(types::int64 value, types::wide_char *const buffer, unsigned int radix) noexcept {
	write_signed<types::int64>(value, buffer, radix);
}

void lltoa(types::int64 value, types::utf32_char *const buffer, unsigned int radix) noexcept {
	write_signed<types::int64>(value, buffer, radix);
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
