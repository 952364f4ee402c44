#ifndef QUOR_KERNELS_AVX2_PARTS_HPP
#define QUOR_KERNELS_AVX2_PARTS_HPP

#include <cstddef>
#include <cstdint>

#include <quor/types/widths.hpp>

#include "kernels/vectors.hpp"

/// The parts whose vectors are 32 bytes long.
namespace QUOR_2_9::kernels::QUOR_VECTORS {

template <class Unit>
QUOR_VECTOR_PART __m256i load_long(Unit const *in) noexcept {
	return _mm256_loadu_si256(reinterpret_cast<__m256i const *>(in));
}

template <class Unit>
QUOR_VECTOR_PART void store_long(Unit *out, __m256i vector) noexcept {
	_mm256_storeu_si256(reinterpret_cast<__m256i *>(out), vector);
}

/// Copies 32 bytes.
QUOR_VECTOR_PART void copy_long(char *to, char const *from) noexcept {
	store_long(to, load_long(from));
}

QUOR_VECTOR_PART void clear_long(char *at) noexcept {
	store_long(at, _mm256_setzero_si256());
}

QUOR_VECTOR_PART bool any(__m256i vector) noexcept {
	return _mm256_testz_si256(vector, vector) == 0;
}

/// 64 bytes of a text.
struct block_bytes {
	__m256i low;
	__m256i high;
};

QUOR_VECTOR_PART block_bytes load_block(char const *in) noexcept {
	return {load_long(in), load_long(in + 32)};
}

/// The highest bits of the bytes.
QUOR_VECTOR_PART std::uint64_t high_bits(block_bytes const &bytes) noexcept {
	return static_cast<std::uint64_t>(static_cast<std::uint32_t>(_mm256_movemask_epi8(bytes.high))) << 32 |
	       static_cast<std::uint32_t>(_mm256_movemask_epi8(bytes.low));
}

/// Each bit one place higher. What comes in from the byte in front gets to the highest one at the
/// eighth time.
QUOR_VECTOR_PART block_bytes raised(block_bytes const &bytes) noexcept {
	return {_mm256_slli_epi16(bytes.low, 1), _mm256_slli_epi16(bytes.high, 1)};
}

/// Sixteen code points, each a byte.
QUOR_VECTOR_PART void put_bytes(types::wide_char *out, __m128i bytes) noexcept {
	store_long(out, _mm256_cvtepu8_epi16(bytes));
}

QUOR_VECTOR_PART void put_bytes(types::utf32_char *out, __m128i bytes) noexcept {
	store_long(out, _mm256_cvtepu8_epi32(bytes));
	store_long(out + 8, _mm256_cvtepu8_epi32(_mm_srli_si128(bytes, 8)));
}

template <class Out>
QUOR_VECTOR_PART void put_block(Out *out, block_bytes const &bytes) noexcept {
	put_bytes(out, _mm256_castsi256_si128(bytes.low));
	put_bytes(out + 16, _mm256_extracti128_si256(bytes.low, 1));
	put_bytes(out + 32, _mm256_castsi256_si128(bytes.high));
	put_bytes(out + 48, _mm256_extracti128_si256(bytes.high, 1));
}

// 32 units as bytes, if they are ASCII. Packing works on each half of a vector, so the
// order is put right behind it.

QUOR_VECTOR_PART bool put_ascii(char *out, types::wide_char const *in) noexcept {
	__m256i const low = load_long(in);
	__m256i const high = load_long(in + 16);
	if (any(_mm256_and_si256(_mm256_or_si256(low, high), _mm256_set1_epi16(static_cast<short>(0xFF80))))) {
		return false;
	}
	store_long(out, _mm256_permute4x64_epi64(_mm256_packus_epi16(low, high), 0xD8));
	return true;
}

QUOR_VECTOR_PART bool put_ascii(char *out, types::utf32_char const *in) noexcept {
	__m256i const parts[4] = {load_long(in), load_long(in + 8), load_long(in + 16), load_long(in + 24)};
	__m256i const all = _mm256_or_si256(_mm256_or_si256(parts[0], parts[1]), _mm256_or_si256(parts[2], parts[3]));
	if (any(_mm256_and_si256(all, _mm256_set1_epi32(static_cast<int>(0xFFFFFF80))))) {
		return false;
	}
	__m256i const bytes =
	    _mm256_packus_epi16(_mm256_packs_epi32(parts[0], parts[1]), _mm256_packs_epi32(parts[2], parts[3]));
	store_long(out, _mm256_permutevar8x32_epi32(bytes, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7)));
	return true;
}

// Sixteen units in the other width, all written; gives how many come first that are the same
// number there.

QUOR_VECTOR_PART __m256i surrogates(__m256i units) noexcept {
	__m256i const kind = _mm256_and_si256(units, _mm256_set1_epi16(static_cast<short>(0xF800)));
	return _mm256_cmpeq_epi16(kind, _mm256_set1_epi16(static_cast<short>(0xD800)));
}

QUOR_VECTOR_PART __m128i surrogates(__m128i units) noexcept {
	__m128i const kind = _mm_and_si128(units, _mm_set1_epi16(static_cast<short>(0xF800)));
	return _mm_cmpeq_epi16(kind, _mm_set1_epi16(static_cast<short>(0xD800)));
}

/// How many lanes there are in front of the first that is all ones.
QUOR_VECTOR_PART std::size_t lanes_before_first(__m256i other) noexcept {
	auto const bits = static_cast<std::uint32_t>(_mm256_movemask_epi8(other));
	return bits == 0 ? 16 : static_cast<std::size_t>(__builtin_ctz(bits)) / 2;
}

QUOR_VECTOR_PART std::size_t change_units(types::utf32_char *out, types::wide_char const *in) noexcept {
	__m256i const units = load_long(in);
	store_long(out, _mm256_cvtepu16_epi32(_mm256_castsi256_si128(units)));
	store_long(out + 8, _mm256_cvtepu16_epi32(_mm256_extracti128_si256(units, 1)));
	return lanes_before_first(surrogates(units));
}

QUOR_VECTOR_PART std::size_t change_units(types::wide_char *out, types::utf32_char const *in) noexcept {
	__m256i const low = load_long(in);
	__m256i const high = load_long(in + 8);
	// Above U+FFFF they become U+FFFF, which goes with the pairs; the highest bit makes 0.
	__m256i const units = _mm256_permute4x64_epi64(_mm256_packus_epi32(low, high), 0xD8);
	__m256i const last = _mm256_cmpeq_epi16(units, _mm256_set1_epi16(-1));
	store_long(out, units);
	__m256i const highest = _mm256_permute4x64_epi64(_mm256_srai_epi16(_mm256_packs_epi32(low, high), 15), 0xD8);
	return lanes_before_first(_mm256_or_si256(_mm256_or_si256(last, highest), surrogates(units)));
}

} // namespace QUOR_2_9::kernels::QUOR_VECTORS

#endif
