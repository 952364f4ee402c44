#ifndef QUOR_KERNELS_DIGIT_BLOCKS_HPP
#define QUOR_KERNELS_DIGIT_BLOCKS_HPP

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#ifdef __SSE2__
#  include <emmintrin.h>
#endif

/// Decimal and hexadecimal digits of text, eight at a time: side by side in one word, where
/// a few operations judge and add up all of them. Nothing is read beyond the text.
namespace QUOR_2_9::kernels::digits {

/// The same byte eight times.
constexpr std::uint64_t eight_times(unsigned int byte) noexcept {
	return 0x0101010101010101U * byte;
}

/// A unit as a byte; one beyond ASCII gives a byte beyond ASCII.
template <class Unit>
constexpr std::uint64_t unit_byte(Unit unit) noexcept {
	if constexpr (sizeof(Unit) == 1) {
		return static_cast<unsigned char>(unit);
	} else {
		return unit < 0x80 ? static_cast<std::uint64_t>(unit) : 0x80U;
	}
}

/// Four units side by side, the first one in the lowest byte.
template <class Unit>
std::uint64_t load_four_slowly(Unit const *text) noexcept {
	return unit_byte(text[0]) | unit_byte(text[1]) << 8 | unit_byte(text[2]) << 16 | unit_byte(text[3]) << 24;
}

#ifdef __SSE2__
/// Four wide units and four others above them. Those beyond 0xFF become 0xFF or 0, no digits either.
template <class Unit>
[[gnu::always_inline]] inline std::uint64_t load_wide(Unit const *low, Unit const *high) noexcept {
	__m128i words;
	if constexpr (sizeof(Unit) == 2) {
		words = _mm_unpacklo_epi64(_mm_loadl_epi64(reinterpret_cast<__m128i const *>(low)),
		                           _mm_loadl_epi64(reinterpret_cast<__m128i const *>(high)));
	} else {
		words = _mm_packs_epi32(_mm_loadu_si128(reinterpret_cast<__m128i const *>(low)),
		                        _mm_loadu_si128(reinterpret_cast<__m128i const *>(high)));
	}
	std::uint64_t result = 0;
	_mm_storel_epi64(reinterpret_cast<__m128i *>(&result), _mm_packus_epi16(words, words));
	return result;
}
#endif

/// Four units in the lower half of a word and four others in its upper half.
template <class Unit>
[[gnu::always_inline]] inline std::uint64_t load_halves(Unit const *low, Unit const *high) noexcept {
	if constexpr (sizeof(Unit) == 1 && std::endian::native == std::endian::little) {
		std::uint32_t halves[2];
		std::memcpy(&halves[0], low, sizeof halves[0]);
		std::memcpy(&halves[1], high, sizeof halves[1]);
		return halves[0] | std::uint64_t(halves[1]) << 32;
	} else {
#ifdef __SSE2__
		return load_wide(low, high);
#else
		return load_four_slowly(low) | load_four_slowly(high) << 32;
#endif
	}
}

/// Eight units side by side, the first one in the lowest byte.
template <class Unit>
[[gnu::always_inline]] inline std::uint64_t load_eight(Unit const *text) noexcept {
	if constexpr (sizeof(Unit) == 1 && std::endian::native == std::endian::little) {
		std::uint64_t word = 0;
		std::memcpy(&word, text, sizeof word);
		return word;
	} else {
		return load_halves(text, text + 4);
	}
}

/// How far a short text has to go up so that its last unit stands in the highest byte.
constexpr unsigned int shift_of(std::size_t size) noexcept {
	return static_cast<unsigned int>(8 * (8 - size));
}

/// The 1 to 8 units of a text in the highest bytes of a word, with zero bytes below them.
template <class Unit>
[[gnu::always_inline]] inline std::uint64_t load_short(Unit const *text, std::size_t size) noexcept {
	if (size >= 4) {
		// Two halves, which may overlap.
		std::uint64_t const halves = load_halves(text, text + size - 4);
		return (halves & 0xFFFFFFFFU) << shift_of(size) | (halves >> 32) << 32;
	}
	// The first, the middle and the last one, which may be the same.
	return (unit_byte(text[0]) | unit_byte(text[size / 2]) << 8 * (size / 2)) << shift_of(size) |
	       unit_byte(text[size - 1]) << 56;
}

/// Ten digits.
struct decimal_block {
	/// The values of units; below `shift` there are none, which gives zero.
	static constexpr std::uint64_t digits(std::uint64_t units, unsigned int shift) noexcept {
		return units ^ eight_times('0') << shift;
	}

	/// The highest bit of each byte that is no digit; above the lowest of them also of others.
	static constexpr std::uint64_t faults(std::uint64_t digits) noexcept {
		return (digits | (digits + eight_times(0x80 - 10))) & eight_times(0x80);
	}

	/// The number of eight digits.
	static constexpr std::uint64_t value(std::uint64_t digits) noexcept {
		std::uint64_t const pairs = (digits * (10 * 256 + 1)) >> 8;
		std::uint64_t const fours = (pairs & 0x00FF00FF00FF00FFU) * (100 * 65536 + 1) >> 16;
		return (fours & 0x0000FFFF0000FFFFU) * (10000 * (std::uint64_t(1) << 32) + 1) >> 32;
	}
};

/// Sixteen digits, letters in both cases.
struct hexadecimal_block {
	/// Units that are digits or not; below `shift` there are zeros.
	static constexpr std::uint64_t digits(std::uint64_t units, unsigned int shift) noexcept {
		return units | (eight_times('0') ^ eight_times('0') << shift);
	}

	static constexpr std::uint64_t faults(std::uint64_t digits) noexcept {
		std::uint64_t const ascii = digits & eight_times(0x7F);
		std::uint64_t const lower = ascii | eight_times(0x20);
		std::uint64_t const numerals = (ascii + eight_times(0x80 - '0')) & ~(ascii + eight_times(0x7F - '9'));
		std::uint64_t const letters = (lower + eight_times(0x80 - 'a')) & ~(lower + eight_times(0x7F - 'f'));
		return (~(numerals | letters) | digits) & eight_times(0x80);
	}

	/// The number of eight digits; a zero byte counts as one.
	static constexpr std::uint64_t value(std::uint64_t digits) noexcept {
		std::uint64_t const nibbles = (digits & eight_times(0x0F)) + (digits >> 6 & eight_times(0x01)) * 9;
		std::uint64_t const bytes = (nibbles << 4 | nibbles >> 8) & 0x00FF00FF00FF00FFU;
		std::uint64_t const words = (bytes << 8 | bytes >> 16) & 0x0000FFFF0000FFFFU;
		return (words << 16 | words >> 32) & 0xFFFFFFFFU;
	}
};

/// What is known of a number after a look at its blocks.
struct block_reading {
	std::uint64_t value;
	bool known;
};

/// The most digits that fit a number of 64 bits with and without a sign.
inline constexpr std::size_t most_digits = 18;

/// A decimal number of 9 to `most_digits` digits that is the whole text.
template <class Unit>
[[gnu::always_inline]] inline block_reading read_long(Unit const *text, std::size_t size) noexcept {
	using block = decimal_block;
	constexpr std::uint64_t weight = 100000000;
	std::uint64_t const first = block::digits(load_eight(text), 0);
	std::uint64_t const last = block::digits(load_eight(text + size - 8), 0);
	std::uint64_t faults = block::faults(first) | block::faults(last);
	std::uint64_t number = 0;
	if (size <= 16) {
		// Less those that the last block holds too.
		number = block::value(first << shift_of(size - 8));
	} else {
		std::uint64_t const middle = block::digits(load_eight(text + size - 16), 0);
		faults |= block::faults(middle);
		std::uint64_t const lead = size == 17 ? first & 0xFF : (first & 0xFF) * 10 + (first >> 8 & 0xFF);
		number = lead * weight + block::value(middle);
	}
	return {number * weight + block::value(last), faults == 0};
}

/// A number of 1 to 8 digits that is the whole text.
template <class Block, class Unit>
[[gnu::always_inline]] inline block_reading read_short(Unit const *text, std::size_t size) noexcept {
	std::uint64_t const digits = Block::digits(load_short(text, size), shift_of(size));
	return {Block::value(digits), Block::faults(digits) == 0};
}

/// A decimal number of 1 to 8 digits that is the whole text.
template <class Unit>
[[gnu::always_inline]] inline block_reading read_decimal(Unit const *text, std::size_t size) noexcept {
	return read_short<decimal_block>(text, size);
}

/// A hexadecimal number of 1 to 8 digits that is the whole text.
template <class Unit>
[[gnu::always_inline]] inline block_reading read_hexadecimal(Unit const *text, std::size_t size) noexcept {
	return read_short<hexadecimal_block>(text, size);
}

/// The number at the start of a text that has at least one unit; the first unit that is no
/// digit ends it. Unknown where there may be more than eight digits.
template <class Block, class Unit>
block_reading read_start(Unit const *text, std::size_t size) noexcept {
	std::size_t const short_size = size < 8 ? size : 8;
	std::uint64_t const first = Block::digits(load_short(text, short_size), shift_of(short_size));
	if (std::uint64_t const faults = Block::faults(first); faults != 0) {
		auto const good = static_cast<std::size_t>(std::countr_zero(faults)) / 8;
		return {good == 0 ? 0 : Block::value(first << shift_of(good)), true};
	}
	return {Block::value(first), size <= 8};
}

} // namespace QUOR_2_9::kernels::digits

#endif
