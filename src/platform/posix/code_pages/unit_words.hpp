#ifndef QUOR_PLATFORM_POSIX_CODE_PAGES_UNIT_WORDS_HPP
#define QUOR_PLATFORM_POSIX_CODE_PAGES_UNIT_WORDS_HPP

#include <cstddef>
#include <cstdint>
#include <cstring>

#include <quor/types/widths.hpp>

namespace QUOR_2_9::platform {

/// The next `Count` units, taken together in words.
template <std::size_t Count, class Unit>
struct unit_words {
	static constexpr std::size_t bytes = Count * sizeof(Unit);
	static_assert(bytes % sizeof(std::uint64_t) == 0);

	explicit unit_words(Unit const *in) noexcept { std::memcpy(words, in, bytes); }

	std::uint64_t words[bytes / sizeof(std::uint64_t)];
};

/// Whether the next `Count` units are all below `Bound`, a power of 2.
template <unsigned Bound, std::size_t Count, class Unit>
bool all_below(Unit const *in) noexcept {
	static_assert((Bound & (Bound - 1)) == 0);
	constexpr std::uint64_t bit = sizeof(Unit) == 1 ? 0x0101010101010101 : 0x0001000100010001;
	constexpr std::uint64_t others = bit * ((sizeof(Unit) == 1 ? 0x100 : 0x10000) - Bound);
	std::uint64_t all = 0;
	for (std::uint64_t const word : unit_words<Count, Unit>(in).words) {
		all |= word;
	}
	return (all & others) == 0;
}

/// Whether one of the next `Count` units is half a pair. In each word the units with the
/// first five bits of surrogates become 0, and subtracting 1 from 0 sets a highest bit.
template <std::size_t Count>
bool has_surrogate(types::wide_char const *in) noexcept {
	std::uint64_t found = 0;
	for (std::uint64_t const word : unit_words<Count, types::wide_char>(in).words) {
		std::uint64_t const unlike = (word & 0xF800F800F800F800) ^ 0xD800D800D800D800;
		found |= (unlike - 0x0001000100010001) & ~unlike & 0x8000800080008000;
	}
	return found != 0;
}

} // namespace QUOR_2_9::platform

#endif
