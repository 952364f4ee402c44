#ifndef QUOR_KERNELS_VECTOR_READ_UTF8_HPP
#define QUOR_KERNELS_VECTOR_READ_UTF8_HPP

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include <quor/types/widths.hpp>

#include "kernels/steps.hpp"
#include "kernels/utf8_windows.hpp"
#include "kernels/vector_rests.hpp"
#include "kernels/vectors.hpp"

namespace QUOR_2_9::kernels::QUOR_VECTORS {

/// How many bytes are judged together, a bit each.
inline constexpr std::size_t block = 64;

/// What is read of a text at a time: a block, and the last vector's part behind it.
inline constexpr std::size_t reach = block + 4;

/// Which bytes of a block are the last of a sequence; the last one never is. And which are of
/// more than one byte and lead sequences of three or more.
struct sequences {
	std::uint64_t ends;
	std::uint64_t high;
	std::uint64_t of_three;
	bool well_formed;

	bool ascii() const noexcept { return high == 0; }
	bool up_to_two() const noexcept { return of_three == 0; }
};

/// Looks at a block that begins where a sequence does. It is well-formed when the
/// continuation bytes are those that the lead bytes ask for: no more is to be tested.
QUOR_VECTOR_PART sequences judge(block_bytes const &bytes) noexcept {
	std::uint64_t const high = high_bits(bytes);
	if (high == 0) {
		return {0, 0, 0, true};
	}
	// The bits below the highest one are raised to its place, one after the other.
	block_bytes moved = raised(bytes);
	std::uint64_t const leads = high_bits(moved) & high;
	std::uint64_t const continuations = high & ~leads;
	std::uint64_t const ends = ~continuations >> 1;
	moved = raised(moved);
	std::uint64_t const of_three = high_bits(moved) & leads;
	if (of_three == 0) {
		return {ends, high, 0, continuations == leads << 1};
	}
	moved = raised(moved);
	std::uint64_t const of_four = high_bits(moved) & of_three;
	std::uint64_t const of_more = high_bits(raised(moved)) & of_four;
	std::uint64_t const asked = leads << 1 | of_three << 2 | of_four << 3;
	return {ends, high, of_three, ((continuations ^ asked) | of_more) == 0};
}

// The code points of a window, from its bytes in their lanes.

QUOR_VECTOR_PART __m128i points_of_two(__m128i lanes) noexcept {
	__m128i const last = _mm_and_si128(lanes, _mm_set1_epi16(0x7F));
	__m128i const lead = _mm_and_si128(lanes, _mm_set1_epi16(0x1F00));
	return _mm_or_si128(last, _mm_srli_epi16(lead, 2));
}

QUOR_VECTOR_PART __m128i points_of_three(__m128i lanes) noexcept {
	__m128i const last = _mm_and_si128(lanes, _mm_set1_epi32(0x7F));
	__m128i const middle = _mm_and_si128(lanes, _mm_set1_epi32(0x3F00));
	__m128i const lead = _mm_and_si128(lanes, _mm_set1_epi32(0x0F0000));
	return _mm_or_si128(_mm_or_si128(last, _mm_srli_epi32(middle, 2)), _mm_srli_epi32(lead, 4));
}

QUOR_VECTOR_PART __m128i points_of_four(__m128i lanes) noexcept {
	__m128i const low = points_of_three(lanes);
	// The third last byte may be a lead, of which bit 5 is none of the code point's.
	__m128i const more = _mm_and_si128(lanes, _mm_set1_epi32(0x300000));
	__m128i const lead_bit = _mm_srli_epi32(_mm_and_si128(lanes, _mm_set1_epi32(0x400000)), 1);
	__m128i const first = _mm_and_si128(lanes, _mm_set1_epi32(0x07000000));
	return _mm_or_si128(_mm_or_si128(low, _mm_srli_epi32(_mm_andnot_si128(lead_bit, more), 4)),
	                    _mm_srli_epi32(first, 6));
}

// Where the units of UTF-16 or UTF-32 go. What stands behind those told is overwritten.

/// Eight, each in 16 bits.
QUOR_VECTOR_PART void put_eight(types::wide_char *out, __m128i points) noexcept {
	store(out, points);
}

QUOR_VECTOR_PART void put_eight(types::utf32_char *out, __m128i points) noexcept {
	store(out, _mm_cvtepu16_epi32(points));
	store(out + 4, _mm_unpackhi_epi16(points, _mm_setzero_si128()));
}

/// Four, each in 32 bits.
QUOR_VECTOR_PART void put_four(types::wide_char *out, __m128i points) noexcept {
	store_half(out, _mm_packus_epi32(points, points));
}

QUOR_VECTOR_PART void put_four(types::utf32_char *out, __m128i points) noexcept {
	store(out, points);
}

/// Three of up to 21 bits; a sequence of four bytes becomes a pair, whatever its value.
QUOR_VECTOR_PART types::wide_char *put_three(types::wide_char *out, __m128i points, __m128i lanes) noexcept {
	types::uint32 values[4];
	types::uint32 sources[4];
	store(values, points);
	store(sources, lanes);
	for (int i = 0; i != 3; ++i) {
		// Without a branch: what comes next is hard to tell.
		bool const pair = sources[i] >> 24 != 0;
		out[0] = static_cast<types::wide_char>(pair ? 0xD800 + (values[i] >> 10) : values[i]);
		out[1] = static_cast<types::wide_char>(0xDC00 + (values[i] & 0x3FF));
		out += pair ? 2 : 1;
	}
	return out;
}

QUOR_VECTOR_PART types::utf32_char *put_three(types::utf32_char *out, __m128i points, __m128i) noexcept {
	store(out, points);
	return out + 3;
}

inline constexpr utf8_windows windows = make_utf8_windows();

/// A window of six sequences or of four; how many they are.
QUOR_VECTOR_PART int put_window(types::wide_char *out, __m128i lanes, bool six) noexcept {
	__m128i const three = points_of_three(lanes);
	__m128i const choice = _mm_set1_epi8(six ? -1 : 0);
	store(out, _mm_blendv_epi8(_mm_packus_epi32(three, three), points_of_two(lanes), choice));
	return six ? 6 : 4;
}

QUOR_VECTOR_PART int put_window(types::utf32_char *out, __m128i lanes, bool six) noexcept {
	__m128i const two = points_of_two(lanes);
	__m128i const choice = _mm_set1_epi8(six ? -1 : 0);
	store(out, _mm_blendv_epi8(points_of_three(lanes), _mm_cvtepu16_epi32(two), choice));
	store(out + 4, _mm_unpackhi_epi16(two, _mm_setzero_si128()));
	return six ? 6 : 4;
}

/// How far into a block sequences are converted: a window must be inside of it.
inline constexpr std::size_t last_window = block - 12;

/// Converts the sequences of a block that begin before `last`, of up to 2 bytes and most
/// of them ASCII, and maybe some more; gives where it stopped.
template <class Out>
QUOR_VECTOR_PART std::size_t read_up_to_two(char const *in, Out *&out, std::uint64_t ends, std::size_t last) noexcept {
	std::size_t from = 0;
	while (from < last) {
		// As many ASCII characters as there are, up to 16; then what is behind them.
		put_bytes(out, load(in + from));
		auto const run = static_cast<std::size_t>(std::min(__builtin_ctzll(~(ends >> from)), 16));
		from += run;
		out += run;
		if (from >= last) {
			break;
		}
		utf8_windows::window const window = windows.windows[ends >> from & 0xFFF];
		__m128i const lanes = _mm_shuffle_epi8(load(in + from), load(windows.shuffles[window.shuffle]));
		put_eight(out, points_of_two(lanes));
		from += window.bytes;
		out += 6;
	}
	return from;
}

/// The same in a short text, where the processor's guess is quicker than both.
template <class Out>
QUOR_VECTOR_PART int put_guessed(Out *out, __m128i lanes, bool six) noexcept {
	if (six) {
		put_eight(out, points_of_two(lanes));
		return 6;
	}
	put_four(out, points_of_three(lanes));
	return 4;
}

/// The same for any sequences.
template <bool Short, class Out>
QUOR_VECTOR_PART std::size_t read_any(char const *in, Out *&out, std::uint64_t ends, std::size_t last) noexcept {
	constexpr std::uint64_t four_of_three = 0x924;
	__m128i const shuffle_of_three = load(windows.shuffles[windows.windows[four_of_three].shuffle]);
	std::size_t from = 0;
	while (from < last) {
		std::uint64_t const mask = ends >> from & 0xFFF;
		__m128i const bytes = load(in + from);
		if (mask == four_of_three) {
			put_four(out, points_of_three(_mm_shuffle_epi8(bytes, shuffle_of_three)));
			from += 12;
			out += 4;
			continue;
		}
		utf8_windows::window const window = windows.windows[mask];
		__m128i const lanes = _mm_shuffle_epi8(bytes, load(windows.shuffles[window.shuffle]));
		from += window.bytes;
		if (window.shuffle >= utf8_windows::of_four) {
			out = put_three(out, points_of_four(lanes), lanes);
		} else {
			bool const six = window.shuffle < utf8_windows::of_three;
			out += Short ? put_guessed(out, lanes, six) : put_window(out, lanes, six);
		}
	}
	return from;
}

template <bool Short, class Out>
QUOR_VECTOR_PART std::size_t read_sequences(char const *in, Out *&out, sequences const &found,
                                            std::size_t last) noexcept {
	return found.up_to_two() ? read_up_to_two(in, out, found.ends, last) : read_any<Short>(in, out, found.ends, last);
}

/// What is too short to be read as a block is taken for one that goes on with zeros, each
/// of which makes one unit that is dropped again.
template <class Out>
QUOR_VECTOR_PART bool read_rest(course<char, Out> &at) noexcept {
	static_assert(block == 64);
	char rest[reach];
	// In the vectors that are loaded from there, which wait for narrower ones otherwise.
	clear_long(rest);
	clear_long(rest + 32);
	std::memset(rest + block, 0, reach - block);
	std::size_t const size = std::min(at.left(), block);
	copy_rest(rest, at.in, size);
	block_bytes const bytes = load_block(rest);
	sequences const found = judge(bytes);
	if (!found.well_formed) {
		return false;
	}
	if (found.ascii()) {
		put_block(at.out, bytes);
		at.in += size;
		at.out += size;
		return true;
	}
	std::size_t const made = read_sequences<true>(rest, at.out, found, std::min(size, last_window));
	at.in += std::min(made, size);
	at.out -= made - std::min(made, size);
	return true;
}

template <class Out>
QUOR_VECTOR progress read_utf8(char const *in, std::size_t size, Out *out, std::size_t room) noexcept {
	course<char, Out> at(in, size, out, room);
	bool well_formed = true;
	while (well_formed && at.has(reach, block + 16)) {
		block_bytes const bytes = load_block(at.in);
		sequences const found = judge(bytes);
		well_formed = found.well_formed;
		if (found.ascii()) {
			put_block(at.out, bytes);
			at.in += block;
			at.out += block;
		} else if (well_formed) {
			at.in += read_sequences<false>(at.in, at.out, found, last_window);
		}
	}
	while (well_formed && at.has(1, block + 16)) {
		well_formed = read_rest(at);
	}
	// What comes before the malformed part of a block.
	while (!well_formed && at.has(1, step_room) && step(at)) {
	}
	return at.made();
}

} // namespace QUOR_2_9::kernels::QUOR_VECTORS

#endif
