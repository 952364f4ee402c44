#include "platform/tick_counter.hpp"

#include <ctime>

namespace QUOR_2_9::platform {
namespace {

constexpr std::uint64_t nanoseconds_of_second = 1000000000;

std::uint64_t nanoseconds() noexcept {
	timespec now;
	clock_gettime(CLOCK_MONOTONIC, &now);
	return static_cast<std::uint64_t>(now.tv_sec) * nanoseconds_of_second + static_cast<std::uint64_t>(now.tv_nsec);
}

} // namespace

std::uint64_t counter_ticks() noexcept {
	// One more than the clock shows, as that may be 0.
	return nanoseconds() + 1;
}

std::uint64_t counter_frequency() noexcept {
	return nanoseconds_of_second;
}

std::uint32_t counter_milliseconds() noexcept {
	return static_cast<std::uint32_t>(nanoseconds() / 1000000);
}

} // namespace QUOR_2_9::platform
