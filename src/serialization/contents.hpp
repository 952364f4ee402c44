#ifndef QUOR_SRC_SERIALIZATION_CONTENTS_HPP
#define QUOR_SRC_SERIALIZATION_CONTENTS_HPP

#include <cstddef>
#include <string>
#include <string_view>

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

/// Takes bytes that may be part of the contents; none where there is no pointer or the length
/// is negative.
inline void assign_bytes(std::string &contents, char const *data, int length) {
	if (data == nullptr || length < 0) {
		contents.clear();
	} else {
		contents.assign(data, static_cast<std::size_t>(length));
	}
}

/// Makes room for so many further bytes where there is none.
void grow(std::string &contents, std::size_t further);

/// Makes room for so many further bytes, at least doubling what is there, so that appending
/// them moves nothing and can't fail.
inline void make_room(std::string &contents, std::size_t further) {
	if (contents.capacity() - contents.size() < further) {
		grow(contents, further);
	}
}

/// Appends where there is no room for it.
void append_growing(std::string &contents, char const *bytes, std::size_t count);

/// Appends a few bytes. The test for room is that of the string, which so drops out of it.
template <std::size_t Count>
void append_few(std::string &contents, char const (&bytes)[Count]) {
	if (contents.size() + Count <= contents.capacity()) {
		contents.append(bytes, Count);
	} else {
		append_growing(contents, bytes, Count);
	}
}

} // namespace QUOR_2_9::serialization::detail

#endif
