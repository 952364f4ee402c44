#ifndef QUOR_PLATFORM_WALL_CLOCK_HPP
#define QUOR_PLATFORM_WALL_CLOCK_HPP

namespace QUOR_2_9::platform {

/// A moment as a calendar and a clock on the wall show it. The second may be 60, in a leap
/// second.
struct wall_clock_fields {
	unsigned year = 1970;
	unsigned month = 1;
	unsigned day = 1;
	unsigned hour = 0;
	unsigned minute = 0;
	unsigned second = 0;
	unsigned millisecond = 0;
};

/// The present moment in the time zone of the process.
wall_clock_fields local_wall_clock() noexcept;

/// The present moment in UTC.
wall_clock_fields utc_wall_clock() noexcept;

} // namespace QUOR_2_9::platform

#endif
