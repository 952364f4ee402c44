#ifndef QUOR_SRC_GENERIC_CONVERT_DIGIT_VALUES_HPP
#define QUOR_SRC_GENERIC_CONVERT_DIGIT_VALUES_HPP

#include <algorithm>
#include <array>
#include <cstddef>
#include <type_traits>

#include <quor/types/widths.hpp>

#include "kernels/kernels.hpp"
#include "support/ascii.hpp"

/// Digits one at a time.
namespace QUOR_2_9::generic::convert::detail {

inline constexpr types::uint32 no_digit = 0xFF;

/// The values of digits and letters; the last unit stands for all wider ones.
inline constexpr auto digit_values = [] {
	std::array<unsigned char, 256> values{};
	for (unsigned int c = 0; c != values.size(); ++c) {
		values[c] = static_cast<unsigned char>(support::is_digit(c)    ? c - '0'
		                                       : support::is_letter(c) ? support::to_lower(c) - 'a' + 10
		                                                               : no_digit);
	}
	return values;
}();

/// The value of a digit in any radix, or `no_digit`, which is above all.
template <class Unit>
types::uint32 digit_value(Unit unit) noexcept {
	auto const c = static_cast<types::uint32>(static_cast<std::make_unsigned_t<Unit>>(unit));
	return digit_values[std::min(c, types::uint32(0xFF))];
}

/// A number of one to three digits that is the whole text, in radix 10 or 16.
template <class Unit>
[[gnu::always_inline]] inline kernels::digits::block_reading read_few(Unit const *text, std::size_t size,
                                                                      types::uint32 radix) noexcept {
	// What the first and the middle digit count for texts of each size, where they aren't the
	// last one: their size is hard to guess, so that there is no branch.
	static constexpr types::uint32 weights[2][4][2] = {{{0, 0}, {0, 0}, {10, 0}, {100, 10}},
	                                                   {{0, 0}, {0, 0}, {16, 0}, {256, 16}}};
	auto const &weight = weights[radix == 16 ? 1 : 0][size];
	types::uint32 const first = digit_value(text[0]);
	types::uint32 const middle = digit_value(text[size / 2]);
	types::uint32 const last = digit_value(text[size - 1]);
	return {first * weight[0] + middle * weight[1] + last, std::max({first, middle, last}) < radix};
}

} // namespace QUOR_2_9::generic::convert::detail

#endif
