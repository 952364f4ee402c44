#include "platform/tick_counter.hpp"

#include "platform/windows/windows_api.hpp"

#include <mmsystem.h>

namespace QUOR_2_9::platform {

// The performance counter of every Windows version that programs of today run on has more
// than a million ticks a second and never fails.
std::uint64_t counter_ticks() noexcept {
	LARGE_INTEGER ticks;
	QueryPerformanceCounter(&ticks);
	return ticks.QuadPart != 0 ? static_cast<std::uint64_t>(ticks.QuadPart) : 1;
}

std::uint64_t counter_frequency() noexcept {
	LARGE_INTEGER frequency;
	QueryPerformanceFrequency(&frequency);
	return static_cast<std::uint64_t>(frequency.QuadPart);
}

std::uint32_t counter_milliseconds() noexcept {
	return static_cast<std::uint32_t>(timeGetTime());
}

} // namespace QUOR_2_9::platform
