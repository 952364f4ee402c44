#ifndef QUOR_KERNELS_SSE41_PARTS_HPP
#define QUOR_KERNELS_SSE41_PARTS_HPP

#include <cstddef>
#include <cstdint>

#include <quor/types/widths.hpp>

#include "kernels/vectors.hpp"

/// The parts whose vectors are 16 bytes long.
namespace QUOR_2_9::kernels::QUOR_VECTORS {

/// Copies 32 bytes.
QUOR_VECTOR_PART void copy_long(char *to, char const *from) noexcept {
	store(to, load(from));
	store(to + 16, load(from + 16));
}

QUOR_VECTOR_PART void clear_long(char *at) noexcept {
	store(at, _mm_setzero_si128());
	store(at + 16, _mm_setzero_si128());
}

/// 64 bytes of a text.
struct block_bytes {
	__m128i quarters[4];
};

QUOR_VECTOR_PART block_bytes load_block(char const *in) noexcept {
	return {{load(in), load(in + 16), load(in + 32), load(in + 48)}};
}

/// The highest bits of the bytes.
QUOR_VECTOR_PART std::uint64_t high_bits(block_bytes const &bytes) noexcept {
	std::uint64_t all = 0;
	for (int i = 3; i >= 0; --i) {
		all = all << 16 | static_cast<std::uint32_t>(_mm_movemask_epi8(bytes.quarters[i]));
	}
	return all;
}

/// Each bit one place higher. What comes in from the byte in front gets to the highest one at the
/// eighth time.
QUOR_VECTOR_PART block_bytes raised(block_bytes const &bytes) noexcept {
	block_bytes made;
	for (int i = 0; i != 4; ++i) {
		made.quarters[i] = _mm_slli_epi16(bytes.quarters[i], 1);
	}
	return made;
}

/// Sixteen code points, each a byte.
QUOR_VECTOR_PART void put_bytes(types::wide_char *out, __m128i bytes) noexcept {
	store(out, _mm_cvtepu8_epi16(bytes));
	store(out + 8, _mm_unpackhi_epi8(bytes, _mm_setzero_si128()));
}

QUOR_VECTOR_PART void put_bytes(types::utf32_char *out, __m128i bytes) noexcept {
	store(out, _mm_cvtepu8_epi32(bytes));
	store(out + 4, _mm_cvtepu8_epi32(_mm_srli_si128(bytes, 4)));
	store(out + 8, _mm_cvtepu8_epi32(_mm_srli_si128(bytes, 8)));
	store(out + 12, _mm_cvtepu8_epi32(_mm_srli_si128(bytes, 12)));
}

template <class Out>
QUOR_VECTOR_PART void put_block(Out *out, block_bytes const &bytes) noexcept {
	for (int i = 0; i != 4; ++i) {
		put_bytes(out + 16 * i, bytes.quarters[i]);
	}
}

// 32 units as bytes, if they are ASCII.

QUOR_VECTOR_PART bool put_ascii(char *out, types::wide_char const *in) noexcept {
	__m128i const parts[4] = {load(in), load(in + 8), load(in + 16), load(in + 24)};
	__m128i const all = _mm_or_si128(_mm_or_si128(parts[0], parts[1]), _mm_or_si128(parts[2], parts[3]));
	if (any(_mm_and_si128(all, _mm_set1_epi16(static_cast<short>(0xFF80))))) {
		return false;
	}
	store(out, _mm_packus_epi16(parts[0], parts[1]));
	store(out + 16, _mm_packus_epi16(parts[2], parts[3]));
	return true;
}

QUOR_VECTOR_PART bool put_ascii(char *out, types::utf32_char const *in) noexcept {
	__m128i pairs[4];
	__m128i all = _mm_setzero_si128();
	for (int i = 0; i != 4; ++i) {
		__m128i const low = load(in + 8 * i);
		__m128i const high = load(in + 8 * i + 4);
		pairs[i] = _mm_packs_epi32(low, high);
		all = _mm_or_si128(all, _mm_or_si128(low, high));
	}
	if (any(_mm_and_si128(all, _mm_set1_epi32(static_cast<int>(0xFFFFFF80))))) {
		return false;
	}
	store(out, _mm_packus_epi16(pairs[0], pairs[1]));
	store(out + 16, _mm_packus_epi16(pairs[2], pairs[3]));
	return true;
}

// Sixteen units in the other width, all written; gives how many come first that are the same
// number there.

QUOR_VECTOR_PART __m128i surrogates(__m128i units) noexcept {
	__m128i const kind = _mm_and_si128(units, _mm_set1_epi16(static_cast<short>(0xF800)));
	return _mm_cmpeq_epi16(kind, _mm_set1_epi16(static_cast<short>(0xD800)));
}

/// How many lanes of two vectors there are in front of the first that is all ones.
QUOR_VECTOR_PART std::size_t lanes_before_first(__m128i const (&other)[2]) noexcept {
	auto const bits = static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_packs_epi16(other[0], other[1])));
	return bits == 0 ? 16 : static_cast<std::size_t>(__builtin_ctz(bits));
}

QUOR_VECTOR_PART std::size_t change_units(types::utf32_char *out, types::wide_char const *in) noexcept {
	__m128i other[2];
	for (int i = 0; i != 2; ++i) {
		__m128i const units = load(in + 8 * i);
		other[i] = surrogates(units);
		store(out + 8 * i, _mm_cvtepu16_epi32(units));
		store(out + 8 * i + 4, _mm_unpackhi_epi16(units, _mm_setzero_si128()));
	}
	return lanes_before_first(other);
}

QUOR_VECTOR_PART std::size_t change_units(types::wide_char *out, types::utf32_char const *in) noexcept {
	__m128i other[2];
	for (int i = 0; i != 2; ++i) {
		__m128i const low = load(in + 8 * i);
		__m128i const high = load(in + 8 * i + 4);
		// Above U+FFFF they become U+FFFF, which goes with the pairs; the highest bit makes 0.
		__m128i const units = _mm_packus_epi32(low, high);
		__m128i const last = _mm_cmpeq_epi16(units, _mm_set1_epi16(-1));
		__m128i const highest = _mm_srai_epi16(_mm_packs_epi32(low, high), 15);
		other[i] = _mm_or_si128(_mm_or_si128(last, highest), surrogates(units));
		store(out + 8 * i, units);
	}
	return lanes_before_first(other);
}

} // namespace QUOR_2_9::kernels::QUOR_VECTORS

#endif
