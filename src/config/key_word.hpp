#ifndef QUOR_SRC_CONFIG_KEY_WORD_HPP
#define QUOR_SRC_CONFIG_KEY_WORD_HPP

#include <cstddef>
#include <cstdint>

#include <quor/version.hpp>

/// Eight bytes of a key at a time, in one number whose lowest byte is the first one.
namespace QUOR_2_9::config::detail {

using key_word = std::uint64_t;

inline constexpr std::size_t key_word_size = sizeof(key_word);

/// A word that holds a byte eight times.
constexpr key_word repeated(unsigned int unit) noexcept {
	return 0x0101010101010101U * key_word(unit);
}

constexpr key_word byte_at(char const *units, std::size_t index) noexcept {
	return key_word(static_cast<unsigned char>(units[index])) << (8 * index);
}

/// The eight bytes at `units`. Compilers make one load of it.
constexpr key_word load_word(char const *units) noexcept {
	return byte_at(units, 0) | byte_at(units, 1) | byte_at(units, 2) | byte_at(units, 3) | byte_at(units, 4) |
	       byte_at(units, 5) | byte_at(units, 6) | byte_at(units, 7);
}

/// The last bytes of a text of `size` bytes, those from `pos` on, of which there are one to
/// seven, with zeros behind them.
constexpr key_word load_rest(char const *units, std::size_t pos, std::size_t size) noexcept {
	if (size >= key_word_size) {
		return load_word(units + size - key_word_size) >> (8 * (pos + key_word_size - size));
	}
	key_word result = 0;
	for (std::size_t i = 0; i != size; ++i) {
		result |= byte_at(units, i);
	}
	return result;
}

/// Writes all eight bytes. Compilers make one store of it.
constexpr void store_word(key_word word, char *units) noexcept {
	for (std::size_t i = 0; i != key_word_size; ++i) {
		units[i] = static_cast<char>(word >> (8 * i));
	}
}

/// The word with its ASCII letters in lower case.
constexpr key_word lower_word(key_word word) noexcept {
	// The sums carry into the top bit of their byte, never beyond.
	key_word const low = word & repeated(0x7F);
	key_word const from_a = low + repeated(0x80 - 'A');
	key_word const behind_z = low + repeated(0x80 - 'Z' - 1);
	key_word const upper = from_a & ~behind_z & ~word & repeated(0x80);
	return word | (upper >> 2);
}

/// The top bit of each byte that is `unit`.
constexpr key_word where(key_word word, char unit) noexcept {
	key_word const other = word ^ repeated(static_cast<unsigned char>(unit));
	return ~(((other & repeated(0x7F)) + repeated(0x7F)) | other) & repeated(0x80);
}

/// The top bits of the eight bytes as eight bits, the first byte's lowest.
constexpr std::uint64_t gather(key_word top_bits) noexcept {
	return ((top_bits >> 7) * 0x0102040810204080U) >> 56;
}

/// A bit for each byte that separates components, the first byte's lowest.
constexpr std::uint64_t separators(key_word word) noexcept {
	// A point and a slash differ in their lowest bit.
	return gather(where(word | repeated('.' ^ '/'), '/') | where(word, '\\'));
}

} // namespace QUOR_2_9::config::detail

#endif
