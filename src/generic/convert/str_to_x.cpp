#include <quor/generic/convert/str_to_x.hpp>

#include <quor/exceptions/logic_error.hpp>
#include <quor/exceptions/runtime_error.hpp>
#include <quor/strings/unichar.hpp>

#include <cstdint>
#include <limits>
#include <type_traits>

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

constexpr uint32 no_digit = 0xFFFFFFFF;

/// The value of a digit in a radix from 2 to 36, or `no_digit`.
uint32 digit_value(std::int64_t c, uint32 radix) noexcept {
	std::int64_t value = -1;
	if (support::is_digit(c)) {
		value = c - '0';
	} else if (support::is_letter(c)) {
		value = support::to_lower(c) - 'a' + 10;
	}
	return value >= 0 && value < static_cast<std::int64_t>(radix) ? static_cast<uint32>(value) : no_digit;
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

/// Reads digits into `value` while they fit below `limit`; false at one that doesn't fit.
///
/// The limit is divided as an unsigned number of at least 32 bits, then narrowed: for a
/// negative limit of 8 or 16 bits that leaves an odd bound, which decides all the same.
/// The value wraps in its own width: a text that has reached the smallest value exactly
/// compares as below the bound again and goes on.
template <class Result, class Unit>
bool read_digits(cursor<Unit> &at, uint32 radix, Result limit, Result &value) noexcept {
	using wide = std::conditional_t<sizeof(Result) == 8, std::uint64_t, std::uint32_t>;
	Result const bound = static_cast<Result>(static_cast<wide>(limit) / radix);
	Result const last_digit = static_cast<Result>(static_cast<wide>(limit) % radix);
	for (;;) {
		uint32 const digit = digit_value(at.unit(), radix);
		if (digit == no_digit) {
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

/// The signed numbers. A length of 0 means that the text is measured.
template <class Result, class Unit>
Result strtointx(Unit const *text, uint32 length, uint32 radix, bool throw_on_range) {
	cursor<Unit> at{text, length != 0 ? length : strings::string_length(text), 0};
	bool negative = false;
	if (!find_digits(at, negative, radix, signed_site)) {
		return 0;
	}
	Result const limit = negative ? std::numeric_limits<Result>::min() : std::numeric_limits<Result>::max();
	Result value = 0;
	if (!read_digits(at, radix, limit, value)) {
		if (throw_on_range) {
			throw_out_of_range(negative, signed_site);
		}
		return limit;
	}
	using bits = std::make_unsigned_t<Result>;
	return negative ? static_cast<Result>(static_cast<bits>(0U - static_cast<bits>(value))) : value;
}

/// The unsigned numbers. A length of 0 stays 0: only the first unit is read.
template <class Result, class Unit>
Result strtouintx(Unit const *text, uint32 length, uint32 radix, bool throw_on_range) {
	cursor<Unit> at{text, length, 0};
	bool negative = false;
	if (!find_digits(at, negative, radix, unsigned_site)) {
		return 0;
	}
	Result const limit = std::numeric_limits<Result>::max();
	Result value = 0;
	if (!read_digits(at, radix, limit, value)) {
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

} // namespace

/// Defines one function of the family for its three text units.
#define QUOR_DEFINE_STR_TO(name, result, routine)                                                                      \
  result name(char const *text, uint32 length, radix_t::base radix, bool throw_on_range) {                             \
	return routine<result>(text, length, radix, throw_on_range);                                                       \
  }                                                                                                                    \
  result name(types::wide_char const *text, uint32 length, radix_t::base radix, bool throw_on_range) {                 \
	return routine<result>(text, length, radix, throw_on_range);                                                       \
  }                                                                                                                    \
  result name(types::utf32_char const *text, uint32 length, radix_t::base radix, bool throw_on_range) {                \
	return routine<result>(text, length, radix, throw_on_range);                                                       \
  }

QUOR_DEFINE_STR_TO(str_to_long, types::int32, strtointx)
QUOR_DEFINE_STR_TO(str_to_int, int, strtointx)
QUOR_DEFINE_STR_TO(str_to_short, short, strtointx)
QUOR_DEFINE_STR_TO(str_to_signed, int, strtointx)
QUOR_DEFINE_STR_TO(str_to_unsigned, unsigned int, strtouintx)
QUOR_DEFINE_STR_TO(str_to_int8, signed char, strtointx)
QUOR_DEFINE_STR_TO(str_to_int16, short, strtointx)
QUOR_DEFINE_STR_TO(str_to_int32, types::int32, strtointx)
QUOR_DEFINE_STR_TO(str_to_int64, types::int64, strtointx)
QUOR_DEFINE_STR_TO(str_to_uint8, unsigned char, strtouintx)
QUOR_DEFINE_STR_TO(str_to_uint16, unsigned short, strtouintx)
QUOR_DEFINE_STR_TO(str_to_uint32, types::uint32, strtouintx)
QUOR_DEFINE_STR_TO(str_to_uint64, types::uint64, strtouintx)

#undef QUOR_DEFINE_STR_TO

} // namespace QUOR_2_9::generic::convert
