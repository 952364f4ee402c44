#include <quor/generic/convert/str_to_x.hpp>

#include <quor/exceptions/logic_error.hpp>
#include <quor/exceptions/runtime_error.hpp>
#include <quor/strings/unichar.hpp>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "generic/convert/digit_values.hpp"
#include "kernels/kernels.hpp"
#include "support/ascii.hpp"

namespace QUOR_2_9::generic::convert {
namespace {

using types::radix_t;
using types::uint32;

constexpr char source_file[] = "generic\\convert\\str_to_x";

/// What an error report says of its place. The lines are part of the interface: they
/// are numbers of their own and don't follow this file.
struct report_site {
	char const *function;
	unsigned int bad_radix;
	unsigned int too_small;
	unsigned int too_large;
	unsigned int negative_unsigned;
};

constexpr report_site signed_site{"QUOR_2_9::generic::convert::strtointx", 132, 174, 175, 0};
constexpr report_site unsigned_site{"QUOR_2_9::generic::convert::strtouintx", 257, 300, 301, 316};

[[noreturn]] void throw_bad_radix(report_site const &site) {
	throw exceptions::invalid_argument_value("invalid radix value, values of 0, 2-36 are the only valid values",
	                                         site.bad_radix, source_file, site.function);
}

[[noreturn]] void throw_too_small(unsigned int line, report_site const &site) {
	throw exceptions::underflow_error("Number value is to small", line, source_file, site.function);
}

[[noreturn]] void throw_out_of_range(bool negative, report_site const &site) {
	if (negative) {
		throw_too_small(site.too_small, site);
	}
	throw exceptions::overflow_error("Number value is to large", site.too_large, source_file, site.function);
}

/// A unit by its numeric value: `char` is signed on every target.
std::int64_t unit_value(char unit) noexcept {
	return static_cast<signed char>(unit);
}

template <class Unit>
std::int64_t unit_value(Unit unit) noexcept {
	return static_cast<std::int64_t>(unit);
}

/// A text on the way to its first digit.
template <class Unit>
struct cursor {
	Unit const *text;
	uint32 length;
	uint32 index;

	std::int64_t unit() const noexcept { return unit_value(text[index]); }

	/// Goes on to the next unit, unless that is behind the end.
	bool step() noexcept { return ++index < length; }
};

/// Reads a prefix and leaves the radix it stands for; false at the end of the text.
template <class Unit>
bool detect_radix(cursor<Unit> &at, uint32 &radix) noexcept {
	radix = 10;
	if (at.unit() != '0' && at.unit() != '\\') {
		return true;
	}
	if (!at.step()) {
		return false;
	}
	std::int64_t const letter = at.unit();
	if (letter == 'x' || letter == 'X') {
		radix = 16;
		return at.step();
	}
	if (letter == 'b' || letter == 'B') {
		radix = 2;
		return at.step();
	}
	radix = 8;
	return true;
}

/// Goes to the first digit and settles sign and radix; false where the text ends before it,
/// which is decided ahead of whether the radix is valid. The first unit is looked at
/// whatever the length.
template <class Unit>
bool find_digits(cursor<Unit> &at, bool &negative, uint32 &radix, report_site const &site) {
	while (support::is_blank(at.unit())) {
		if (!at.step()) {
			return false;
		}
	}
	std::int64_t const sign = at.unit();
	negative = sign == '-';
	if ((negative || sign == '+') && !at.step()) {
		return false;
	}
	if (radix == 0) {
		return detect_radix(at, radix);
	}
	if (radix == 1 || radix > 36) {
		throw_bad_radix(site);
	}
	return true;
}

/// The number that some text goes on with in radix 10 or 16, where blocks tell it.
template <class Unit>
[[gnu::noinline]] kernels::digits::block_reading read_at_once(Unit const *digits, std::size_t size,
                                                              uint32 radix) noexcept {
	return radix == 10 ? kernels::digits::read_start<kernels::digits::decimal_block>(digits, size)
	                   : kernels::digits::read_start<kernels::digits::hexadecimal_block>(digits, size);
}

/// Whether a number of digits behind an optional `-` is a `Result` without further ado. Negative
/// numbers of 8 and 16 bits have odd bounds, and unsigned ones are no numbers.
template <class Result>
bool fits(std::uint64_t number, bool negative) noexcept {
	constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<Result>::max());
	if constexpr (std::is_signed_v<Result> && sizeof(Result) >= 4) {
		return number <= largest + (negative ? 1U : 0U);
	} else {
		return !negative && number <= largest;
	}
}

/// The number behind an optional `-`, which wraps in its width.
template <class Result>
Result with_sign(std::uint64_t number, bool negative) noexcept {
	return static_cast<Result>(negative ? 0 - number : number);
}

/// Reads digits into `value` while they fit below `limit`; false at one that doesn't fit.
///
/// The limit is divided as an unsigned number of at least 32 bits, then narrowed: for a
/// negative limit of 8 or 16 bits that leaves an odd bound, which decides all the same.
/// The value wraps in its own width: a text that has reached the smallest value exactly
/// compares as below the bound again and goes on.
template <class Result, class Unit>
bool read_digits(cursor<Unit> &at, uint32 radix, Result limit, Result &value) noexcept {
	using wide = std::conditional_t<sizeof(Result) == 8, std::uint64_t, std::uint32_t>;
	auto const limit_bits = static_cast<wide>(limit);
	// A division by a constant is none.
	wide const quotient = radix == 10 ? limit_bits / 10 : limit_bits / radix;
	Result const bound = static_cast<Result>(quotient);
	Result const last_digit = static_cast<Result>(limit_bits - quotient * radix);
	for (;;) {
		uint32 const digit = detail::digit_value(at.text[at.index]);
		if (digit >= radix) {
			return true;
		}
		if (value > bound || (value == bound && static_cast<Result>(digit) > last_digit)) {
			return false;
		}
		value = static_cast<Result>(static_cast<wide>(value) * radix + digit);
		if (!at.step()) {
			return true;
		}
	}
}

/// Goes to the digits and reads them, at once or one by one; false at one that doesn't fit.
template <class Result, class Unit>
bool read_number(cursor<Unit> &at, bool negative, uint32 radix, Result limit, Result &value) noexcept {
	if (at.index < at.length && (radix == 10 || radix == 16)) {
		auto const [number, known] = read_at_once(at.text + at.index, at.length - at.index, radix);
		if (known && fits<Result>(number, negative)) {
			value = static_cast<Result>(number);
			return true;
		}
	}
	return read_digits(at, radix, limit, value);
}

/// The signed numbers. A length of 0 means that the text is measured.
template <class Result, class Unit>
[[gnu::noinline]] Result strtointx(Unit const *text, uint32 length, uint32 radix, bool throw_on_range) {
	cursor<Unit> at{text, length != 0 ? length : strings::string_length(text), 0};
	bool negative = false;
	if (!find_digits(at, negative, radix, signed_site)) {
		return 0;
	}
	Result const limit = negative ? std::numeric_limits<Result>::min() : std::numeric_limits<Result>::max();
	Result value = 0;
	if (!read_number(at, negative, radix, limit, value)) {
		if (throw_on_range) {
			throw_out_of_range(negative, signed_site);
		}
		return limit;
	}
	return with_sign<Result>(static_cast<std::uint64_t>(value), negative);
}

/// The unsigned numbers. A length of 0 stays 0: only the first unit is read.
template <class Result, class Unit>
[[gnu::noinline]] Result strtouintx(Unit const *text, uint32 length, uint32 radix, bool throw_on_range) {
	cursor<Unit> at{text, length, 0};
	bool negative = false;
	if (!find_digits(at, negative, radix, unsigned_site)) {
		return 0;
	}
	Result const limit = std::numeric_limits<Result>::max();
	Result value = 0;
	if (!read_number(at, negative, radix, limit, value)) {
		if (throw_on_range) {
			throw_out_of_range(negative, unsigned_site);
		}
		value = limit;
	}
	if (negative && value != 0) {
		if (throw_on_range) {
			throw_too_small(unsigned_site.negative_unsigned, unsigned_site);
		}
		return 0;
	}
	return value;
}

template <class Result, class Unit>
Result read_any(Unit const *text, uint32 length, uint32 radix, bool throw_on_range) {
	if constexpr (std::is_signed_v<Result>) {
		return strtointx<Result>(text, length, radix, throw_on_range);
	} else {
		return strtouintx<Result>(text, length, radix, throw_on_range);
	}
}

namespace blocks = kernels::whole_numbers;

/// A text that may be nothing but digits behind an optional `-`.
template <class Result, class Unit>
struct plain_text {
	plain_text(Unit const *text, uint32 length) noexcept
	    : sign(std::is_signed_v<Result> && *text == static_cast<Unit>('-') ? 1 : 0), negative(sign != 0),
	      digits(text + sign), size(std::size_t(length) - sign) {}

	/// A detected radix is 10 where the first digit isn't zero.
	bool is_decimal(uint32 radix) const noexcept {
		return radix == 10 || (radix == 0 && support::is_between(*digits, '1', '9'));
	}

	std::size_t sign;
	bool negative;
	Unit const *digits;
	/// Length 0 wraps.
	std::size_t size;
};

/// Reads a text that is nothing but a number of at most three digits.
template <class Result, class Unit>
[[gnu::noinline]] Result read_few(Unit const *text, uint32 length, uint32 radix, bool throw_on_range) {
	plain_text<Result, Unit> const plain(text, length);
	// A sign alone has no first digit to look at.
	if (plain.size - 1 < 3) [[likely]] {
		uint32 const known_radix = plain.is_decimal(radix) ? 10 : radix;
		if (known_radix == 10 || known_radix == 16) {
			auto const [number, known] = detail::read_few(plain.digits, plain.size, known_radix);
			if (known) {
				return with_sign<Result>(number, plain.negative);
			}
		}
	}
	return read_any<Result>(text, length, radix, throw_on_range);
}

/// Reads a text that is nothing but a decimal number of more than eight digits.
template <class Result, class Unit>
[[gnu::noinline]] Result read_long(Unit const *text, uint32 length, uint32 radix, bool throw_on_range) {
	plain_text<Result, Unit> const plain(text, length);
	if (plain.size <= kernels::digits::most_digits && plain.is_decimal(radix)) {
		auto const [number, known] = blocks::read_long(plain.digits, plain.size);
		if (known && fits<Result>(number, plain.negative)) {
			return with_sign<Result>(number, plain.negative);
		}
	}
	return read_any<Result>(text, length, radix, throw_on_range);
}

/// Reads a text that is nothing but a number of four to eight digits. Each of the three has
/// registers enough for itself; together they hadn't.
template <class Result, class Unit>
[[gnu::always_inline]] inline Result read(Unit const *text, uint32 length, uint32 radix, bool throw_on_range) {
	plain_text<Result, Unit> const plain(text, length);
	if (plain.size - 4 > 4) {
		if (length == 1 && radix == 10) {
			uint32 const digit = static_cast<uint32>(*text) - '0';
			if (digit < 10) {
				return static_cast<Result>(digit);
			}
		}
		return plain.size - 9 <= kernels::digits::most_digits - 9
		           ? read_long<Result>(text, length, radix, throw_on_range)
		           : read_few<Result>(text, length, radix, throw_on_range);
	}
	if (plain.is_decimal(radix)) {
		auto const [number, known] = blocks::read_decimal(plain.digits, plain.size);
		if (known) {
			return with_sign<Result>(number, plain.negative);
		}
	} else if (radix == 16 && !plain.negative) {
		auto const [number, known] = blocks::read_hexadecimal(plain.digits, plain.size);
		if (known && fits<Result>(number, false)) {
			return static_cast<Result>(number);
		}
	}
	return read_any<Result>(text, length, radix, throw_on_range);
}

/// The numbers of 8 and 16 bits are too rare for routines of their own.
template <class Result, class Unit>
Result read_sized(Unit const *text, uint32 length, uint32 radix, bool throw_on_range) {
	if constexpr (sizeof(Result) < 4) {
		return read_any<Result>(text, length, radix, throw_on_range);
	} else {
		return read<Result>(text, length, radix, throw_on_range);
	}
}

} // namespace

/// Defines one function of the family for its three text units.
#define QUOR_DEFINE_STR_TO(name, result)                                                                               \
  result name(char const *text, uint32 length, radix_t::base radix, bool throw_on_range) {                             \
	return read_sized<result>(text, length, radix, throw_on_range);                                                    \
  }                                                                                                                    \
  result name(types::wide_char const *text, uint32 length, radix_t::base radix, bool throw_on_range) {                 \
	return read_sized<result>(text, length, radix, throw_on_range);                                                    \
  }                                                                                                                    \
  result name(types::utf32_char const *text, uint32 length, radix_t::base radix, bool throw_on_range) {                \
	return read_sized<result>(text, length, radix, throw_on_range);                                                    \
  }

QUOR_DEFINE_STR_TO(str_to_long, types::int32)
QUOR_DEFINE_STR_TO(str_to_int, int)
QUOR_DEFINE_STR_TO(str_to_short, short)
QUOR_DEFINE_STR_TO(str_to_signed, int)
QUOR_DEFINE_STR_TO(str_to_unsigned, unsigned int)
QUOR_DEFINE_STR_TO(str_to_int8, signed char)
QUOR_DEFINE_STR_TO(str_to_int16, short)
QUOR_DEFINE_STR_TO(str_to_int32, types::int32)
QUOR_DEFINE_STR_TO(str_to_int64, types::int64)
QUOR_DEFINE_STR_TO(str_to_uint8, unsigned char)
QUOR_DEFINE_STR_TO(str_to_uint16, unsigned short)
QUOR_DEFINE_STR_TO(str_to_uint32, types::uint32)
QUOR_DEFINE_STR_TO(str_to_uint64, types::uint64)

#undef QUOR_DEFINE_STR_TO

} // namespace QUOR_2_9::generic::convert
