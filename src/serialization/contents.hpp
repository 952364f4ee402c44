#ifndef QUOR_SRC_SERIALIZATION_CONTENTS_HPP
#define QUOR_SRC_SERIALIZATION_CONTENTS_HPP

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

#include <quor/serialization/formatted_buffer.hpp>
#include <quor/types/widths.hpp>

/// What the buffers share: a string of contents and a read position of 32 bits.
namespace QUOR_2_9::serialization::detail {

/// The read position behind all data, whatever is appended.
inline constexpr types::uint32 no_position = 0xFFFFFFFF;

inline bool is_at_end(std::string_view contents, types::uint32 position) noexcept {
	return position == no_position || position >= contents.size();
}

/// Moves a position by a count; beyond 32 bits it is behind all data for good.
inline types::uint32 advanced(types::uint32 position, types::uint32 count) noexcept {
	return count < no_position - position ? position + count : no_position;
}

/// The bytes that count.
inline std::string_view contents_of(stored_bytes const &stored) noexcept {
	return {stored.bytes.data(), stored.size};
}

/// Takes bytes that may be part of the contents.
void take_bytes(stored_bytes &stored, std::string_view bytes);

/// The string, cut to the contents from now on.
std::string const &lend(stored_bytes &stored) noexcept;

/// How many further bytes go behind the contents as the string is.
inline std::size_t room_of(stored_bytes const &stored) noexcept {
	return stored.bytes.size() - stored.size;
}

/// Where the next byte goes. There must be room for it.
inline char *next_byte(stored_bytes &stored) noexcept {
	return stored.bytes.data() + stored.size;
}

/// Makes the string ready for so many further bytes, at least doubling it where it has to grow,
/// so that `append_bytes` of them moves nothing and can't fail.
void make_room(stored_bytes &stored, std::size_t further);

/// Appends bytes that are not part of the contents, unless the string is ready for them.
void append_bytes(stored_bytes &stored, char const *bytes, std::size_t count);

/// Appends what `write` writes, at most `Most` bytes; it takes where to and returns their count.
template <std::size_t Most, class Write>
void append_written(stored_bytes &stored, Write write) {
	if (room_of(stored) >= Most) {
		stored.size += write(next_byte(stored));
	} else {
		char bytes[Most];
		append_bytes(stored, bytes, write(bytes));
	}
}

/// Copies so many bytes as so many words that may overlap, but not in place.
template <class Word>
void copy_words(char *to, char const *from, std::size_t first, std::size_t second, std::size_t last) noexcept {
	Word words[4];
	std::memcpy(words, from, sizeof(Word));
	std::memcpy(words + 1, from + first, sizeof(Word));
	std::memcpy(words + 2, from + second, sizeof(Word));
	std::memcpy(words + 3, from + last, sizeof(Word));
	std::memcpy(to, words, sizeof(Word));
	std::memcpy(to + first, words + 1, sizeof(Word));
	std::memcpy(to + second, words + 2, sizeof(Word));
	std::memcpy(to + last, words + 3, sizeof(Word));
}

/// Copies bytes of another place. Most texts are short and of differing sizes: from 4 to 16 bytes
/// none of the branches depends on the size. There may be none, from nowhere.
inline void copy_text(char *to, char const *from, std::size_t size) noexcept {
	constexpr std::size_t word = 4;
	if (size - word <= 3 * word) {
		std::size_t const middle = size / (2 * word) * word;
		copy_words<types::uint32>(to, from, middle, size - word - middle, size - word);
	} else {
		std::char_traits<char>::copy(to, from, size);
	}
}

} // namespace QUOR_2_9::serialization::detail

#endif
