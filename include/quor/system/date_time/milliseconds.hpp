#ifndef QUOR_SYSTEM_DATE_TIME_MILLISECONDS_HPP
#define QUOR_SYSTEM_DATE_TIME_MILLISECONDS_HPP

/// @file
/// A `time_duration` (`quor/system/date_time/time_duration.hpp`) made from a plain count.
///
///     using namespace quor::system;
///     date_time::time const later = date_time::time(23, 59, 59, 999) + date_time::milliseconds(1);
///     assert(later.hour() == 0 && later.millisecond() == 0);
///
/// @since 2.9

#include <quor/system/date_time/time_duration.hpp>

namespace QUOR_2_9::system::date_time {

/// A `time_duration` that a number of milliseconds turns into, and that turns into an `int`.
/// @since 2.9
class QUOR_API_TYPE milliseconds : public time_duration {
public:
	/// No time.
	constexpr milliseconds() noexcept = default;
	/// The given number of milliseconds, which may be negative.
	constexpr milliseconds(types::int64 value) noexcept : time_duration(0, 0, 0, value) {}

	/// Takes over the time of `other`; `=` does the same.
	constexpr milliseconds &assign(milliseconds const &other) noexcept { return *this = other; }

	/// The number of milliseconds, of which an `int` holds the lower 32 bits; the whole is
	/// `total_milliseconds`. Sums of two durations stay durations, but a comparison of two
	/// compares these numbers.
	constexpr operator int() const noexcept {
		return static_cast<int>(static_cast<unsigned int>(total_milliseconds()));
	}
};

} // namespace QUOR_2_9::system::date_time

#endif
