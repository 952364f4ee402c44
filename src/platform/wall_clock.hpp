#ifndef QUOR_PLATFORM_WALL_CLOCK_HPP
#define QUOR_PLATFORM_WALL_CLOCK_HPP

#include <cstdint>

namespace QUOR_2_9::platform {

/// A moment as a calendar and a clock on the wall show it. The second may be 60, in a leap
/// second.
struct wall_clock_fields {
	std::uint32_t year = 1970;
	std::uint16_t month = 1;
	std::uint16_t day = 1;
	std::uint16_t hour = 0;
	std::uint16_t minute = 0;
	std::uint16_t second = 0;
	std::uint16_t millisecond = 0;
};

/// The present moment in the time zone of the process.
wall_clock_fields local_wall_clock() noexcept;

/// The present moment in UTC.
wall_clock_fields utc_wall_clock() noexcept;

} // namespace QUOR_2_9::platform

#endif
