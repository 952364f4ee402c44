#ifndef QUOR_KERNELS_ASCII_BLOCKS_HPP
#define QUOR_KERNELS_ASCII_BLOCKS_HPP

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

/// Texts of nothing but ASCII, which are the same numbers in all encodings. Loops of a fixed
/// length, of which compilers make vectors wherever the target has any: short texts are done
/// before a variant of the other kernels is found.
namespace QUOR_2_9::kernels::ascii {

/// How many units are looked at together: some words, in all three widths.
inline constexpr std::size_t block = 16;

/// Whether the next units are all ASCII.
template <class Unit>
[[gnu::always_inline]] inline bool is_block(Unit const *in) noexcept {
	constexpr std::uint64_t bits = sizeof(Unit) == 1   ? 0x8080808080808080
	                               : sizeof(Unit) == 2 ? 0xFF80FF80FF80FF80
	                                                   : 0xFFFFFF80FFFFFF80;
	std::uint64_t all = 0;
	for (std::size_t i = 0; i != block; i += sizeof all / sizeof(Unit)) {
		std::uint64_t word = 0;
		std::memcpy(&word, in + i, sizeof word);
		all |= word;
	}
	return (all & bits) == 0;
}

/// Copies the next units; they need not be ASCII where both widths are the same.
template <class In, class Out>
[[gnu::always_inline]] inline void copy(In const *__restrict in, Out *__restrict out) noexcept {
	if constexpr (std::is_same_v<In, Out>) {
		std::memcpy(out, in, block * sizeof(In));
	} else {
		for (std::size_t i = 0; i != block; ++i) {
			out[i] = static_cast<Out>(in[i]);
		}
	}
}

/// Whether a text of a block at least is ASCII.
template <class Unit>
[[gnu::always_inline]] inline bool is_text(Unit const *in, std::size_t size) noexcept {
	std::size_t const last = size - block;
	for (std::size_t i = 0; i < last; i += block) {
		if (!is_block(in + i)) {
			return false;
		}
	}
	return is_block(in + last);
}

/// Copies a text of a block at least.
template <class In, class Out>
[[gnu::always_inline]] inline void copy_text(In const *in, std::size_t size, Out *out) noexcept {
	std::size_t const last = size - block;
	for (std::size_t i = 0; i < last; i += block) {
		copy(in + i, out + i);
	}
	copy(in + last, out + last);
}

} // namespace QUOR_2_9::kernels::ascii

#endif
