#ifndef QUOR_KERNELS_VECTOR_WRITE_UTF8_HPP
#define QUOR_KERNELS_VECTOR_WRITE_UTF8_HPP

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include <quor/types/widths.hpp>

#include "kernels/steps.hpp"
#include "kernels/utf8_packs.hpp"
#include "kernels/vectors.hpp"

namespace QUOR_2_9::kernels::QUOR_VECTORS {

inline constexpr utf8_packs packs = make_utf8_packs();

QUOR_VECTOR_PART char *put_pack(char *out, __m128i lanes, utf8_packs::pack const &pack) noexcept {
	store(out, _mm_shuffle_epi8(lanes, load(pack.shuffle)));
	return out + pack.bytes;
}

/// All ones in each lane that is at least `bound`.
QUOR_VECTOR_PART __m128i lanes_from(__m128i points, int bound) noexcept {
	return _mm_cmpeq_epi16(_mm_subs_epu16(_mm_set1_epi16(static_cast<short>(bound)), points), _mm_setzero_si128());
}

/// The last bytes of the sequences, in the upper halves of their lanes.
QUOR_VECTOR_PART __m128i last_bytes(__m128i points, __m128i two) noexcept {
	__m128i const continuation = _mm_or_si128(_mm_and_si128(points, _mm_set1_epi16(0x3F)), _mm_set1_epi16(0x80));
	return _mm_slli_epi16(_mm_blendv_epi8(points, continuation, two), 8);
}

/// Writes 8 code points below 0x800. Up to 16 bytes are overwritten.
QUOR_VECTOR_PART char *put_up_to_two(char *out, __m128i points) noexcept {
	__m128i const two = lanes_from(points, 0x80);
	auto const forms = static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_packs_epi16(two, _mm_setzero_si128())));
	__m128i const lead = _mm_or_si128(_mm_srli_epi16(points, 6), _mm_set1_epi16(0xC0));
	return put_pack(out, _mm_or_si128(last_bytes(points, two), lead), packs.of_two[forms]);
}

/// Writes 8 code points below 0x10000. Up to 28 bytes are overwritten.
QUOR_VECTOR_PART char *put_up_to_three(char *out, __m128i points) noexcept {
	__m128i const two = lanes_from(points, 0x80);
	__m128i const three = lanes_from(points, 0x800);
	auto const forms = static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_packs_epi16(two, three)));
	// The byte before the last is a continuation where there is a third, else a lead.
	__m128i const mark = _mm_blendv_epi8(_mm_set1_epi16(0xC0), _mm_set1_epi16(0x80), three);
	__m128i const middle = _mm_or_si128(_mm_and_si128(_mm_srli_epi16(points, 6), _mm_set1_epi16(0x3F)), mark);
	__m128i const first = _mm_or_si128(_mm_srli_epi16(points, 12), _mm_set1_epi16(0xE0));
	__m128i const ends = _mm_or_si128(last_bytes(points, two), middle);
	out = put_pack(out, _mm_unpacklo_epi16(ends, first), packs.of_three[(forms & 0x0F) | (forms >> 4 & 0xF0)]);
	return put_pack(out, _mm_unpackhi_epi16(ends, first), packs.of_three[(forms >> 4 & 0x0F) | (forms >> 8 & 0xF0)]);
}

// The next 8 units, and lanes that aren't zero where they aren't code points below 0x10000.

QUOR_VECTOR_PART __m128i next_points(types::wide_char const *in, __m128i &points) noexcept {
	points = load(in);
	return surrogates(points);
}

QUOR_VECTOR_PART __m128i next_points(types::utf32_char const *in, __m128i &points) noexcept {
	__m128i const low = load(in);
	__m128i const high = load(in + 4);
	points = _mm_packus_epi32(low, high);
	__m128i const beyond = _mm_packus_epi32(_mm_srli_epi32(low, 16), _mm_srli_epi32(high, 16));
	return _mm_or_si128(surrogates(points), beyond);
}

/// How many units are judged together: the form of the longest decides for all, which is
/// guessed right more often than if each had its own way.
inline constexpr std::size_t group = 32;

/// What a group makes at most, and what is overwritten behind it.
inline constexpr std::size_t longest_group = 4 * group + 32;

template <class In>
QUOR_VECTOR_PART bool write_group(course<In, char> &at) noexcept {
	if (put_ascii(at.out, at.in)) {
		at.in += group;
		at.out += group;
		return true;
	}
	__m128i points[4];
	__m128i other = _mm_setzero_si128();
	__m128i all = _mm_setzero_si128();
	for (int i = 0; i != 4; ++i) {
		other = _mm_or_si128(other, next_points(at.in + 8 * i, points[i]));
		all = _mm_or_si128(all, points[i]);
	}
	if (any(other)) {
		return false;
	}
	if (!any(_mm_and_si128(all, _mm_set1_epi16(static_cast<short>(0xF800))))) {
		for (__m128i const &eight : points) {
			at.out = put_up_to_two(at.out, eight);
		}
	} else {
		for (__m128i const &eight : points) {
			at.out = put_up_to_three(at.out, eight);
		}
	}
	at.in += group;
	return true;
}

/// The first lanes of a vector, as many as are loaded in front of the middle.
inline constexpr std::int16_t first_lanes[16] = {-1, -1, -1, -1, -1, -1, -1, -1};

/// Writes the first of 8 code points below 0x10000: zeros take the place of the others, each
/// of which makes one byte that is dropped again.
QUOR_VECTOR_PART char *put_first(char *out, __m128i points, std::size_t count) noexcept {
	return put_up_to_three(out, _mm_and_si128(points, load(first_lanes + 8 - count))) - (8 - count);
}

/// How many lanes there are in front of the first that isn't zero.
QUOR_VECTOR_PART std::size_t lanes_before(__m128i other) noexcept {
	auto const zeros = static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi16(other, _mm_setzero_si128())));
	return static_cast<std::size_t>(std::countr_one(zeros)) / 2;
}

/// Eight units, or those up to the first that needs a look of its own, and that one.
template <class In>
QUOR_VECTOR_PART bool write_eight(course<In, char> &at) noexcept {
	__m128i points;
	__m128i const other = next_points(at.in, points);
	if (any(other)) {
		std::size_t const count = lanes_before(other);
		at.out = put_first(at.out, points, count);
		at.in += count;
		return step(at);
	}
	at.out = put_up_to_three(at.out, points);
	at.in += 8;
	return true;
}

/// Moves a vector down by as many bytes as lie in front of what is loaded from here.
inline constexpr std::uint8_t slide[32] = {0,    1,    2,    3,    4,    5,    6,    7,    8,    9,    10,
                                           11,   12,   13,   14,   15,   0x80, 0x80, 0x80, 0x80, 0x80, 0x80,
                                           0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80};

/// The last units of the text, fewer than eight, and zeros behind them.
template <class In>
QUOR_VECTOR_PART __m128i last_points(course<In, char> const &at, __m128i &points) noexcept {
	if constexpr (sizeof(In) == 2) {
		if (at.end - at.begin >= 8) {
			points = _mm_shuffle_epi8(load(at.end - 8), load(slide + sizeof(In) * (8 - at.left())));
			return surrogates(points);
		}
	}
	In rest[8] = {};
	std::memcpy(rest, at.in, at.left() * sizeof(In));
	return next_points(rest, points);
}

/// The same for fewer than eight units.
template <class In>
QUOR_VECTOR_PART bool write_rest(course<In, char> &at) noexcept {
	__m128i points;
	__m128i const other = last_points(at, points);
	std::size_t const count = std::min(at.left(), lanes_before(other));
	bool const all = count == at.left();
	at.out = put_first(at.out, points, count);
	at.in += count;
	return all || step(at);
}

template <class In>
// What is written goes by way of the course. NOLINTNEXTLINE(readability-non-const-parameter)
QUOR_VECTOR progress write_utf8(In const *in, std::size_t size, char *out, std::size_t room) noexcept {
	course<In, char> at(in, size, out, room);
	bool well_formed = true;
	while (well_formed && at.has(group, longest_group)) {
		if (!write_group(at)) {
			for (In const *const stop = at.in + (group - 8); well_formed && at.in < stop;) {
				well_formed = write_eight(at);
			}
		}
	}
	while (well_formed && at.has(1, longest_group)) {
		well_formed = at.left() < 8 ? write_rest(at) : write_eight(at);
	}
	return at.made();
}

} // namespace QUOR_2_9::kernels::QUOR_VECTORS

#endif
