#ifndef QUOR_PLATFORM_POSIX_CODE_PAGES_ASCII_RUN_HPP
#define QUOR_PLATFORM_POSIX_CODE_PAGES_ASCII_RUN_HPP

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace QUOR_2_9::platform {

/// Whether the next `Count` units are all below 0x80.
template <std::size_t Count, class Unit>
bool is_ascii(Unit const *in) noexcept {
	constexpr std::size_t bytes = Count * sizeof(Unit);
	static_assert(bytes % sizeof(std::uint64_t) == 0);
	constexpr std::uint64_t others = sizeof(Unit) == 1 ? 0x8080808080808080 : 0xFF80FF80FF80FF80;
	std::uint64_t parts[bytes / sizeof(std::uint64_t)];
	std::memcpy(parts, in, bytes);
	std::uint64_t all = 0;
	for (std::uint64_t const part : parts) {
		all |= part;
	}
	return (all & others) == 0;
}

/// How many units below 0x80 stand at the front of a text.
template <class Unit>
std::size_t ascii_run(Unit const *in, Unit const *end) noexcept {
	constexpr std::size_t step = 16 / sizeof(Unit);
	Unit const *at = in;
	while (static_cast<std::size_t>(end - at) >= step && is_ascii<step>(at)) {
		at += step;
	}
	while (at != end && static_cast<std::make_unsigned_t<Unit>>(*at) < 0x80) {
		++at;
	}
	return static_cast<std::size_t>(at - in);
}

} // namespace QUOR_2_9::platform

#endif
