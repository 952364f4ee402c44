#ifndef QUOR_TESTS_REFERENCE_WIDE_INTEGER_HPP
#define QUOR_TESTS_REFERENCE_WIDE_INTEGER_HPP

// Whole numbers of 128 bits, for references that nothing may overflow: the compiler's own
// where it has them, else a class of two halves.

#include <cstdint>
#include <type_traits>

namespace quor_reference {

/// A number in two's complement; division cuts towards zero. Sums and products wrap.
template <bool Signed>
class two_halves {
public:
	constexpr two_halves() = default;

	template <class Integer, class = std::enable_if_t<std::is_integral_v<Integer>>>
	constexpr two_halves(Integer value)
	    : m_low(static_cast<std::uint64_t>(value)), m_high(value < Integer(0) ? ~zero : 0) {}

	constexpr explicit two_halves(two_halves<!Signed> const &other) : m_low(other.low()), m_high(other.high()) {}

	template <class Integer, class = std::enable_if_t<std::is_integral_v<Integer>>>
	constexpr explicit operator Integer() const {
		if constexpr (std::is_same_v<Integer, bool>) {
			return (m_low | m_high) != 0;
		} else {
			return static_cast<Integer>(m_low);
		}
	}

	constexpr std::uint64_t low() const { return m_low; }
	constexpr std::uint64_t high() const { return m_high; }

	friend constexpr two_halves operator<<(two_halves value, int count) {
		for (; count > 0; --count) {
			value.m_high = value.m_high << 1 | value.m_low >> 63;
			value.m_low <<= 1;
		}
		return value;
	}
	friend constexpr two_halves operator>>(two_halves value, int count) {
		std::uint64_t const fill = value.is_negative() ? std::uint64_t(1) << 63 : 0;
		for (; count > 0; --count) {
			value.m_low = value.m_low >> 1 | value.m_high << 63;
			value.m_high = value.m_high >> 1 | fill;
		}
		return value;
	}
	friend constexpr two_halves operator&(two_halves left, two_halves right) {
		left.m_low &= right.m_low;
		left.m_high &= right.m_high;
		return left;
	}
	friend constexpr two_halves operator+(two_halves left, two_halves right) {
		left.m_low += right.m_low;
		left.m_high += right.m_high + (left.m_low < right.m_low ? 1 : 0);
		return left;
	}
	constexpr two_halves operator-() const {
		two_halves opposite;
		opposite.m_low = ~m_low;
		opposite.m_high = ~m_high;
		return opposite + two_halves(1);
	}
	friend constexpr two_halves operator-(two_halves left, two_halves right) { return left + -right; }
	friend constexpr two_halves operator*(two_halves left, two_halves right) {
		two_halves product;
		for (; static_cast<bool>(right.m_low | right.m_high); right = right.halved()) {
			if ((right.m_low & 1) != 0) {
				product = product + left;
			}
			left = left << 1;
		}
		return product;
	}
	friend constexpr two_halves operator/(two_halves left, two_halves right) { return divided(left, right).quotient; }
	friend constexpr two_halves operator%(two_halves left, two_halves right) { return divided(left, right).rest; }

	constexpr two_halves &operator<<=(int count) { return *this = *this << count; }
	constexpr two_halves &operator>>=(int count) { return *this = *this >> count; }
	constexpr two_halves &operator+=(two_halves other) { return *this = *this + other; }
	constexpr two_halves &operator-=(two_halves other) { return *this = *this - other; }
	constexpr two_halves &operator*=(two_halves other) { return *this = *this * other; }
	constexpr two_halves &operator/=(two_halves other) { return *this = *this / other; }

	friend constexpr bool operator==(two_halves left, two_halves right) {
		return left.m_low == right.m_low && left.m_high == right.m_high;
	}
	friend constexpr bool operator!=(two_halves left, two_halves right) { return !(left == right); }
	friend constexpr bool operator<(two_halves left, two_halves right) {
		if (left.is_negative() != right.is_negative()) {
			return left.is_negative();
		}
		return left.is_below(right);
	}
	friend constexpr bool operator>(two_halves left, two_halves right) { return right < left; }
	friend constexpr bool operator<=(two_halves left, two_halves right) { return !(right < left); }
	friend constexpr bool operator>=(two_halves left, two_halves right) { return !(left < right); }

private:
	static constexpr std::uint64_t zero = 0;

	std::uint64_t m_low = 0;
	std::uint64_t m_high = 0;

	struct division;

	constexpr bool is_negative() const { return Signed && m_high >> 63 != 0; }
	// As if both were unsigned.
	constexpr bool is_below(two_halves const &other) const {
		return m_high != other.m_high ? m_high < other.m_high : m_low < other.m_low;
	}
	constexpr two_halves halved() const {
		two_halves half;
		half.m_low = m_low >> 1 | m_high << 63;
		half.m_high = m_high >> 1;
		return half;
	}
	constexpr two_halves magnitude() const { return is_negative() ? -*this : *this; }

	static constexpr division divided(two_halves dividend, two_halves divisor);
};

template <bool Signed>
struct two_halves<Signed>::division {
	two_halves quotient;
	two_halves rest;
};

// Bit by bit, as on paper.
template <bool Signed>
constexpr typename two_halves<Signed>::division two_halves<Signed>::divided(two_halves dividend, two_halves divisor) {
	two_halves const left = dividend.magnitude();
	two_halves const right = divisor.magnitude();
	division made;
	for (int bit = 127; bit >= 0; --bit) {
		std::uint64_t const half = bit >= 64 ? left.m_high : left.m_low;
		bool const carried = made.rest.m_high >> 63 != 0;
		made.rest = made.rest << 1;
		made.rest.m_low |= half >> (bit % 64) & 1;
		made.quotient = made.quotient << 1;
		if (carried || !made.rest.is_below(right)) {
			made.rest = made.rest - right;
			made.quotient.m_low |= 1;
		}
	}
	if (dividend.is_negative() != divisor.is_negative()) {
		made.quotient = -made.quotient;
	}
	if (dividend.is_negative()) {
		made.rest = -made.rest;
	}
	return made;
}

#ifdef __SIZEOF_INT128__
__extension__ typedef __int128 wide_int;
__extension__ typedef unsigned __int128 wide_uint;
#else
using wide_int = two_halves<true>;
using wide_uint = two_halves<false>;
#endif

} // namespace quor_reference

#endif
