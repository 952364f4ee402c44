#ifndef QUOR_KERNELS_VECTOR_WRITE_UTF8_HPP
#define QUOR_KERNELS_VECTOR_WRITE_UTF8_HPP

#include <bit>
#include <cstddef>
#include <cstdint>

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

/// Eight units as code points below 0x10000, and lanes that aren't zero where they are more.
struct eight_units {
	__m128i points;
	__m128i beyond;
};

QUOR_VECTOR_PART eight_units load_eight(types::wide_char const *in) noexcept {
	return {load(in), _mm_setzero_si128()};
}

QUOR_VECTOR_PART eight_units load_eight(types::utf32_char const *in) noexcept {
	__m128i const low = load(in);
	__m128i const high = load(in + 4);
	return {_mm_packus_epi32(low, high), _mm_packus_epi32(_mm_srli_epi32(low, 16), _mm_srli_epi32(high, 16))};
}

/// Lanes that aren't zero where the units need a look of their own.
QUOR_VECTOR_PART __m128i others(eight_units const &units) noexcept {
	return _mm_or_si128(surrogates(units.points), units.beyond);
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
	eight_units units[4];
	__m128i other = _mm_setzero_si128();
	__m128i all = _mm_setzero_si128();
	for (int i = 0; i != 4; ++i) {
		units[i] = load_eight(at.in + 8 * i);
		other = _mm_or_si128(other, others(units[i]));
		all = _mm_or_si128(all, units[i].points);
	}
	if (any(other)) {
		return false;
	}
	if (!any(_mm_and_si128(all, _mm_set1_epi16(static_cast<short>(0xF800))))) {
		for (eight_units const &eight : units) {
			at.out = put_up_to_two(at.out, eight.points);
		}
	} else {
		for (eight_units const &eight : units) {
			at.out = put_up_to_three(at.out, eight.points);
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

/// What is zero in the lanes of ASCII.
QUOR_VECTOR_PART __m128i beyond_ascii(eight_units const &units) noexcept {
	return _mm_and_si128(_mm_or_si128(units.points, units.beyond), _mm_set1_epi16(static_cast<short>(0xFF80)));
}

/// A bit for each lane that isn't zero.
QUOR_VECTOR_PART std::uint32_t bits_of(__m128i lanes) noexcept {
	__m128i const zeros = _mm_cmpeq_epi16(lanes, _mm_setzero_si128());
	return (static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_packs_epi16(zeros, zeros))) & 0xFF) ^ 0xFF;
}

/// Whether so few of 8 units are marked that those of a short text are written one by one: where
/// the next unit goes is guessed by the processor then, while the vectors would have to be waited
/// for. In a long one the guess is wrong too often.
constexpr bool few(std::uint32_t marks) noexcept {
	marks &= marks - 1;
	marks &= marks - 1;
	return marks == 0;
}

/// Writes what of 8 units is in front of the first mark.
template <class In>
QUOR_VECTOR_PART void write_run(course<In, char> &at, eight_units const &units, std::size_t run) noexcept {
	store_half(at.out, _mm_packus_epi16(units.points, units.points));
	at.in += run;
	at.out += run;
}

/// Eight units, or those up to the first that needs a look of its own, and that one.
template <bool Short, class In>
QUOR_VECTOR_PART bool write_eight(course<In, char> &at) noexcept {
	eight_units const units = load_eight(at.in);
	if constexpr (Short) {
		__m128i const marked = beyond_ascii(units);
		if (!any(marked)) {
			write_run(at, units, 8);
			return true;
		}
		std::uint32_t const marks = bits_of(marked);
		if (few(marks)) {
			write_run(at, units, static_cast<std::size_t>(std::countr_zero(marks)));
			return step(at);
		}
	}
	__m128i const other = others(units);
	if (any(other)) {
		auto const same = static_cast<std::size_t>(std::countr_zero(bits_of(other)));
		at.out = put_first(at.out, units.points, same);
		at.in += same;
		return step(at);
	}
	at.out = put_up_to_three(at.out, units.points);
	at.in += 8;
	return true;
}

/// The last units of a text, fewer than eight. If there are eight, they are loaded together and
/// those in front of the last are shifted out.
template <class In>
QUOR_VECTOR_PART void write_last(course<In, char> &at) noexcept {
	if (at.end - at.begin >= 8) {
		eight_units const units = load_eight(at.end - 8);
		std::size_t const others = 8 - at.left();
		if (bits_of(beyond_ascii(units)) >> others == 0) {
			__m128i const bytes = _mm_packus_epi16(units.points, units.points);
			store_half(at.out, _mm_srl_epi64(bytes, _mm_cvtsi32_si128(static_cast<int>(8 * others))));
			at.out += at.left();
			at.in = at.end;
			return;
		}
	}
	while (at.left() != 0 && step(at)) {
	}
}

/// Fewer units than a group.
template <class In>
// What is written goes by way of the course. NOLINTNEXTLINE(readability-non-const-parameter)
QUOR_VECTOR progress write_few(In const *in, std::size_t size, char *out) noexcept {
	course<In, char> at(in, size, out, longest_group);
	bool well_formed = true;
	while (well_formed && at.left() >= 8) {
		well_formed = write_eight<true>(at);
	}
	if (well_formed && at.left() != 0) {
		write_last(at);
	}
	return at.made();
}

/// Groups, and the few units behind them.
template <class In>
// What is written goes by way of the course. NOLINTNEXTLINE(readability-non-const-parameter)
QUOR_VECTOR progress write_many(In const *in, std::size_t size, char *out, std::size_t room) noexcept {
	course<In, char> at(in, size, out, room);
	bool well_formed = true;
	while (well_formed && at.has(group, longest_group)) {
		if (!write_group(at)) {
			for (In const *const stop = at.in + (group - 8); well_formed && at.in < stop;) {
				well_formed = write_eight<false>(at);
			}
		}
	}
	if (well_formed && at.has(1, longest_group)) {
		progress const more = write_few(at.in, at.left(), at.out);
		at.in += more.read;
		at.out += more.written;
	}
	return at.made();
}

template <class In>
QUOR_VECTOR progress write_utf8(In const *in, std::size_t size, char *out, std::size_t room) noexcept {
	return size >= group || room < longest_group ? write_many(in, size, out, room) : write_few(in, size, out);
}

} // namespace QUOR_2_9::kernels::QUOR_VECTORS

#endif
