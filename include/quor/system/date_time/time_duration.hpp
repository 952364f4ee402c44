#ifndef QUOR_SYSTEM_DATE_TIME_TIME_DURATION_HPP
#define QUOR_SYSTEM_DATE_TIME_TIME_DURATION_HPP

/// @file
/// A length of time in milliseconds, positive or negative: what lies between two times of
/// day, and what can be added to a `time` or a `date_time_t`. A plain count of milliseconds
/// is made shorter as `milliseconds` (`quor/system/date_time/milliseconds.hpp`), whole days
/// are a `date_duration`.
///
///     using quor::system::date_time::time_duration;
///     time_duration const flight = time_duration(25, 30, 0, 0) - time_duration(0, 45, 0, 0);
///     assert(flight.hour() == 24 && flight.minute() == 45);
///     assert(flight.total_hours() == 24.75);
///
/// @since 2.9

#include <quor/export.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::system::date_time {

/// A signed number of milliseconds, 64 bits wide. Sums and differences wrap around at 64
/// bits. A value, inline as a whole, without failures and usable in constant expressions.
/// @since 2.9
class QUOR_API_TYPE time_duration {
public:
	/// No time.
	constexpr time_duration() noexcept = default;

	/// The sum of the parts, each of which may be negative and as large as it likes:
	/// `time_duration(25, 0, 0, 0)` are 25 hours. Hours, minutes and seconds are summed up as
	/// milliseconds in 32 bits, so that beyond 596 hours they wrap around; longer times are
	/// given by the last part, which has 64 bits.
	constexpr time_duration(int hours, int minutes, int seconds, types::int64 milliseconds) noexcept
	    : m_milliseconds(sum(short_sum(hours, minutes, seconds), milliseconds)) {}

	/// The whole hours, not reduced to a day: 25 for 25 hours. As all parts, cut toward zero
	/// and with the sign of the whole; what doesn't fit an `int` loses its upper bits.
	constexpr int hour() const noexcept { return whole(total_hours()); }
	/// The minutes beside the whole hours, -59 to 59: the whole minutes, as an `int`, modulo 60.
	constexpr int minute() const noexcept { return whole(total_minutes()) % 60; }
	/// The seconds beside the whole minutes, -59 to 59: the whole seconds, as an `int`, modulo
	/// 60.
	constexpr int second() const noexcept { return whole(total_seconds()) % 60; }
	/// The milliseconds beside the whole seconds, -999 to 999: the lower 32 bits of the count,
	/// as an `int`, modulo 1000.
	constexpr int millisecond() const noexcept {
		return static_cast<int>(static_cast<unsigned int>(m_milliseconds)) % 1000;
	}

	/// The whole as hours.
	constexpr double total_hours() const noexcept { return static_cast<double>(m_milliseconds) / 3600000.0; }
	/// The whole as minutes.
	constexpr double total_minutes() const noexcept { return static_cast<double>(m_milliseconds) / 60000.0; }
	/// The whole as seconds.
	constexpr double total_seconds() const noexcept { return static_cast<double>(m_milliseconds) / 1000.0; }
	/// The whole as milliseconds, exact.
	constexpr types::int64 total_milliseconds() const noexcept { return m_milliseconds; }

	/// Whether the time is below zero.
	constexpr bool is_negative() const noexcept { return m_milliseconds < 0; }

	/// Takes over the time of `other`; `=` does the same.
	constexpr time_duration &assign(time_duration const &other) noexcept { return *this = other; }

	/// Adds the time of `other`.
	/// @{
	constexpr time_duration &plus_assign(time_duration const &other) noexcept {
		m_milliseconds = sum(m_milliseconds, other.m_milliseconds);
		return *this;
	}
	constexpr time_duration &operator+=(time_duration const &other) noexcept { return plus_assign(other); }
	/// @}

	/// Subtracts the time of `other`.
	/// @{
	constexpr time_duration &minus_assign(time_duration const &other) noexcept {
		m_milliseconds = static_cast<types::int64>(static_cast<types::uint64>(m_milliseconds) -
		                                           static_cast<types::uint64>(other.m_milliseconds));
		return *this;
	}
	constexpr time_duration &operator-=(time_duration const &other) noexcept { return minus_assign(other); }
	/// @}

private:
	static constexpr types::int64 sum(types::int64 a, types::int64 b) noexcept {
		return static_cast<types::int64>(static_cast<types::uint64>(a) + static_cast<types::uint64>(b));
	}

	static constexpr int short_sum(int hours, int minutes, int seconds) noexcept {
		return static_cast<int>(static_cast<unsigned int>(hours) * 3600000U +
		                        static_cast<unsigned int>(minutes) * 60000U +
		                        static_cast<unsigned int>(seconds) * 1000U);
	}

	// The lower 32 bits of the whole part; no count of milliseconds gives more than 64.
	static constexpr int whole(double value) noexcept {
		return static_cast<int>(static_cast<unsigned int>(static_cast<types::int64>(value)));
	}

	types::int64 m_milliseconds = 0;
};

/// The sum of two durations.
/// @since 2.9
/// @{
constexpr time_duration plus(time_duration const &a, time_duration const &b) noexcept {
	return time_duration(a).plus_assign(b);
}
constexpr time_duration operator+(time_duration const &a, time_duration const &b) noexcept {
	return plus(a, b);
}
/// @}

/// The difference of two durations.
/// @since 2.9
/// @{
constexpr time_duration minus(time_duration const &a, time_duration const &b) noexcept {
	return time_duration(a).minus_assign(b);
}
constexpr time_duration operator-(time_duration const &a, time_duration const &b) noexcept {
	return minus(a, b);
}
/// @}

} // namespace QUOR_2_9::system::date_time

#endif
