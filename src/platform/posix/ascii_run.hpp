#ifndef QUOR_PLATFORM_POSIX_ASCII_RUN_HPP
#define QUOR_PLATFORM_POSIX_ASCII_RUN_HPP

#include <cstddef>
#include <cstdint>
#include <cstring>

#include <quor/types/widths.hpp>

namespace QUOR_2_9::platform {

/// How many units below 0x80 stand at the front of a text.
template <class Unit>
std::size_t ascii_run(Unit const *in, Unit const *end) noexcept {
	constexpr std::size_t step = sizeof(std::uint64_t) / sizeof(Unit);
	constexpr std::uint64_t others = sizeof(Unit) == 1 ? 0x8080808080808080 : 0xFF80FF80FF80FF80;
	Unit const *at = in;
	while (static_cast<std::size_t>(end - at) >= step) {
		std::uint64_t units = 0;
		std::memcpy(&units, at, sizeof units);
		if ((units & others) != 0) {
			break;
		}
		at += step;
	}
	while (at != end && static_cast<types::uint32>(*at) < 0x80) {
		++at;
	}
	return static_cast<std::size_t>(at - in);
}

} // namespace QUOR_2_9::platform

#endif
