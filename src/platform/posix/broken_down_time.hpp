#ifndef QUOR_PLATFORM_POSIX_BROKEN_DOWN_TIME_HPP
#define QUOR_PLATFORM_POSIX_BROKEN_DOWN_TIME_HPP

#include <ctime>

#include "platform/wall_clock.hpp"

namespace QUOR_2_9::platform {

/// A moment of the system's clock in the process's time zone, as the C library knows it. The
/// fields' defaults where the year is beyond the C library's range.
wall_clock_fields local_fields(timespec const &moment) noexcept;

/// The same moment in UTC.
wall_clock_fields utc_fields(timespec const &moment) noexcept;

} // namespace QUOR_2_9::platform

#endif
