#ifndef QUOR_KERNELS_DIGIT_VECTORS_HPP
#define QUOR_KERNELS_DIGIT_VECTORS_HPP

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "kernels/digit_blocks.hpp"

#ifdef __SSE2__

#  include <emmintrin.h>

/// Numbers that are the whole text, their units side by side in vectors of 16 bits each. A
/// first and a last part of the text are read, which may overlap; of the first one counts
/// what the last one doesn't hold. Nothing is read beyond the text.
namespace QUOR_2_9::kernels::digits::vectors {

template <class Place>
[[gnu::always_inline]] inline __m128i load_half(Place const *place) noexcept {
	return _mm_loadl_epi64(reinterpret_cast<__m128i const *>(place));
}

template <class Place>
[[gnu::always_inline]] inline __m128i load_whole(Place const *place) noexcept {
	return _mm_loadu_si128(reinterpret_cast<__m128i const *>(place));
}

[[gnu::always_inline]] inline __m128i load_quarter(char const *place) noexcept {
	int quarter = 0;
	std::memcpy(&quarter, place, sizeof quarter);
	return _mm_cvtsi32_si128(quarter);
}

/// Eight units. Those of 32 bits saturate, which makes no digit of another unit.
template <class Unit>
[[gnu::always_inline]] inline __m128i load_eight(Unit const *text) noexcept {
	if constexpr (sizeof(Unit) == 1) {
		return _mm_unpacklo_epi8(load_half(text), _mm_setzero_si128());
	} else if constexpr (sizeof(Unit) == 2) {
		return load_whole(text);
	} else {
		return _mm_packs_epi32(load_whole(text), load_whole(text + 4));
	}
}

/// Four units and four others behind them.
template <class Unit>
[[gnu::always_inline]] inline __m128i load_four_and_four(Unit const *first, Unit const *last) noexcept {
	if constexpr (sizeof(Unit) == 1) {
		return _mm_unpacklo_epi8(_mm_unpacklo_epi32(load_quarter(first), load_quarter(last)), _mm_setzero_si128());
	} else if constexpr (sizeof(Unit) == 2) {
		return _mm_unpacklo_epi64(load_half(first), load_half(last));
	} else {
		return _mm_packs_epi32(load_whole(first), load_whole(last));
	}
}

/// What keeps the first n of eight units, from 8 - n on.
alignas(16) inline constexpr std::int16_t first_of_eight[16] = {-1, -1, -1, -1, -1, -1, -1, -1};

/// What keeps the first n of four units, and four others behind them.
alignas(16) inline constexpr std::int16_t first_of_four[5][8] = {{0, 0, 0, 0, -1, -1, -1, -1},
                                                                 {-1, 0, 0, 0, -1, -1, -1, -1},
                                                                 {-1, -1, 0, 0, -1, -1, -1, -1},
                                                                 {-1, -1, -1, 0, -1, -1, -1, -1},
                                                                 {-1, -1, -1, -1, -1, -1, -1, -1}};

/// Lanes that aren't zero where a number is above `bound`.
[[gnu::always_inline]] inline __m128i above(__m128i numbers, short bound) noexcept {
	return _mm_subs_epu16(numbers, _mm_set1_epi16(bound));
}

[[gnu::always_inline]] inline bool all_zero(__m128i vector) noexcept {
	return _mm_movemask_epi8(_mm_cmpeq_epi8(vector, _mm_setzero_si128())) == 0xFFFF;
}

/// Neighbours as one number of 32 bits, the first one times `radix`.
[[gnu::always_inline]] inline __m128i joined(__m128i numbers, int radix) noexcept {
	return _mm_madd_epi16(numbers, _mm_set1_epi32(65536 + radix));
}

[[gnu::always_inline]] inline std::uint64_t low_word(__m128i vector) noexcept {
	std::uint64_t word = 0;
	_mm_storel_epi64(reinterpret_cast<__m128i *>(&word), vector);
	return word;
}

/// The first n of four decimal digits with zeros behind them, and four others, as a number.
[[gnu::always_inline]] inline std::uint64_t put_together(__m128i fours, std::size_t n) noexcept {
	static constexpr int weights[5] = {65536 + 1, 65536 + 10, 65536 + 100, 65536 + 1000, 65536 + 10000};
	__m128i const eight = _mm_madd_epi16(_mm_packs_epi32(fours, fours), _mm_cvtsi32_si128(weights[n]));
	return static_cast<std::uint32_t>(_mm_cvtsi128_si32(eight));
}

/// A decimal number of 4 to 8 digits.
template <class Unit>
[[gnu::always_inline]] inline block_reading read_decimal(Unit const *text, std::size_t size) noexcept {
	__m128i const digits = _mm_subs_epi16(load_four_and_four(text, text + size - 4), _mm_set1_epi16('0'));
	__m128i const counted = _mm_and_si128(digits, load_whole(first_of_four[size - 4]));
	__m128i const pairs = joined(counted, 10);
	return {put_together(joined(_mm_packs_epi32(pairs, pairs), 100), size - 4), all_zero(above(digits, 9))};
}

/// A hexadecimal number of 4 to 8 digits.
template <class Unit>
[[gnu::always_inline]] inline block_reading read_hexadecimal(Unit const *text, std::size_t size) noexcept {
	__m128i const units = load_four_and_four(text, text + size - 4);
	__m128i const numerals = above(_mm_subs_epi16(units, _mm_set1_epi16('0')), 9);
	__m128i const lower = _mm_subs_epi16(_mm_or_si128(units, _mm_set1_epi16(0x20)), _mm_set1_epi16('a'));
	__m128i const letters = _mm_cmpeq_epi16(above(lower, 5), _mm_setzero_si128());
	__m128i const digits =
	    _mm_adds_epi16(_mm_and_si128(units, _mm_set1_epi16(0x0F)), _mm_and_si128(letters, _mm_set1_epi16(9)));
	__m128i const counted = _mm_and_si128(digits, load_whole(first_of_four[size - 4]));
	__m128i const pairs = joined(counted, 16);
	std::uint64_t const fours = low_word(joined(_mm_packs_epi32(pairs, pairs), 256));
	return {((fours & 0xFFFFU) << 4 * (size - 4)) + (fours >> 32), all_zero(_mm_andnot_si128(letters, numerals))};
}

/// How much more the digits in front of the last eight count than the same number.
inline constexpr std::uint32_t power_of_ten[9] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000};

/// A decimal number of 9 to `most_digits` digits.
template <class Unit>
[[gnu::always_inline]] inline block_reading read_long(Unit const *text, std::size_t size) noexcept {
	constexpr std::uint64_t weight = 100000000;
	bool const two_vectors = size <= 16;
	__m128i const zeros = _mm_set1_epi16('0');
	__m128i first = _mm_subs_epi16(load_eight(two_vectors ? text : text + size - 16), zeros);
	__m128i const last = _mm_subs_epi16(load_eight(text + size - 8), zeros);
	bool const good = all_zero(_mm_or_si128(above(first, 9), above(last, 9)));
	if (two_vectors) {
		first = _mm_and_si128(first, load_whole(first_of_eight + 16 - size));
	}
	__m128i const fours = joined(_mm_packs_epi32(joined(first, 10), joined(last, 10)), 100);
	std::uint64_t const eights = low_word(joined(_mm_packs_epi32(fours, fours), 10000));
	if (two_vectors) {
		return {(eights & 0xFFFFFFFFU) * power_of_ten[size - 8] + (eights >> 32), good};
	}
	// The first digit, and the one behind it where there are two.
	auto const digit_of = [](Unit unit) {
		return static_cast<std::uint64_t>(static_cast<std::make_unsigned_t<Unit>>(unit)) - '0';
	};
	std::uint64_t const digit = digit_of(text[0]);
	std::uint64_t const more = digit_of(text[size - 17]);
	std::uint64_t const lead = size == 17 ? digit : digit * 10 + more;
	return {(lead * weight + (eights & 0xFFFFFFFFU)) * weight + (eights >> 32), good && std::max(digit, more) <= 9};
}

} // namespace QUOR_2_9::kernels::digits::vectors

#endif

#endif
