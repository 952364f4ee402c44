#ifndef QUOR_KERNELS_BYTE_BLOCKS_HPP
#define QUOR_KERNELS_BYTE_BLOCKS_HPP

#include <bit>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#  include <emmintrin.h>
#endif

/// Bytes of a text that are looked at together. What is asked of them is answered by a mask with a
/// bit for each byte, the first one's lowest.
namespace QUOR_2_9::kernels {

/// Eight bytes in a word, for processors whose words begin with the lowest byte. Each byte of a
/// mask tells of one in its highest bit.
class byte_word {
public:
	using mask = std::uint64_t;

	static constexpr std::size_t size = 8;

	explicit byte_word(char const *at) noexcept { std::memcpy(&m_bytes, at, sizeof m_bytes); }

	mask equal_to(char c) const noexcept {
		mask const zero_where_equal = m_bytes ^ each(static_cast<unsigned char>(c));
		return ~(((zero_where_equal & ~highest) + ~highest) | zero_where_equal) & highest;
	}
	/// Up to a character of ASCII.
	mask up_to(char last) const noexcept {
		return ~(((m_bytes & ~highest) + each(static_cast<unsigned char>(0x7F - last))) | m_bytes) & highest;
	}

	static std::size_t position(mask bit) noexcept {
		return static_cast<std::size_t>(std::countr_zero(bit)) / CHAR_BIT;
	}
	/// Each bit moved to the byte in front of its own.
	static mask moved(mask bits) noexcept { return bits >> CHAR_BIT; }

private:
	static constexpr std::uint64_t highest = 0x8080808080808080;

	std::uint64_t m_bytes = 0;

	static constexpr std::uint64_t each(unsigned char value) noexcept {
		return std::uint64_t{0x0101010101010101} * value;
	}
};

#ifdef __SSE2__

/// Sixteen bytes in a vector. A mask has a bit for each.
class byte_vector {
public:
	using mask = std::uint32_t;

	static constexpr std::size_t size = 16;

	explicit byte_vector(char const *at) noexcept : m_bytes(_mm_loadu_si128(reinterpret_cast<__m128i const *>(at))) {}

	mask equal_to(char c) const noexcept { return bits(_mm_cmpeq_epi8(m_bytes, _mm_set1_epi8(c))); }
	mask up_to(char last) const noexcept {
		return bits(_mm_cmpeq_epi8(_mm_subs_epu8(m_bytes, _mm_set1_epi8(last)), _mm_setzero_si128()));
	}

	static std::size_t position(mask bit) noexcept { return static_cast<std::size_t>(std::countr_zero(bit)); }
	static mask moved(mask bits) noexcept { return bits >> 1; }

private:
	__m128i m_bytes;

	static mask bits(__m128i lanes) noexcept { return static_cast<mask>(_mm_movemask_epi8(lanes)); }
};

using byte_block = byte_vector;

#else

using byte_block = byte_word;

#endif

/// Whether the blocks work on this target.
#ifdef __SSE2__
inline constexpr bool blocks_work = true;
#else
inline constexpr bool blocks_work = std::endian::native == std::endian::little;
#endif

} // namespace QUOR_2_9::kernels

#endif
