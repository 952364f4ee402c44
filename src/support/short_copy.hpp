#ifndef QUOR_SRC_SUPPORT_SHORT_COPY_HPP
#define QUOR_SRC_SUPPORT_SHORT_COPY_HPP

#include <cstddef>
#include <cstring>

namespace QUOR_2_9::support {

// Two parts, which may overlap: together they are all that there is to copy.
template <std::size_t Part>
[[gnu::always_inline]] inline void copy_two(char *to, char const *from, std::size_t size) noexcept {
	char parts[2][Part];
	std::memcpy(parts[0], from, Part);
	std::memcpy(parts[1], from + size - Part, Part);
	std::memcpy(to, parts[0], Part);
	std::memcpy(to + size - Part, parts[1], Part);
}

// Copies what is most often a few bytes: a call would take longer.
[[gnu::always_inline]] inline void copy_short(char *to, char const *from, std::size_t size) noexcept {
	if (size > 32) {
		std::memcpy(to, from, size);
	} else if (size >= 16) {
		copy_two<16>(to, from, size);
	} else if (size >= 8) {
		copy_two<8>(to, from, size);
	} else if (size >= 4) {
		copy_two<4>(to, from, size);
	} else if (size != 0) {
		to[0] = from[0];
		to[size / 2] = from[size / 2];
		to[size - 1] = from[size - 1];
	}
}

} // namespace QUOR_2_9::support

#endif
