#ifndef QUOR_SYSTEM_DATE_TIME_TIME_HPP
#define QUOR_SYSTEM_DATE_TIME_TIME_HPP

/// @file
/// A time of day, to the millisecond. With a date it makes a `date_time_t`
/// (`quor/system/date_time/date_time.hpp`); to measure how long something takes use `timer`.
///
///     using namespace quor::system;
///     date_time::time const tea(16, 30, 0, 0);
///     date_time::time_duration const left = tea - date_time::time(14, 45, 0, 0);
///     assert(left.hour() == 1 && left.minute() == 45);
///
/// Qualify the class by its namespace: a program that takes all names of it over has two
/// names `time`, this one and the C library's function.
///
/// @since 2.9

#include <stdexcept>

#include <quor/export.hpp>
#include <quor/system/date_time/basic_time.hpp>
#include <quor/system/date_time/time_duration.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::system::date_time {

/// An hour, a minute, a second and a millisecond of one day. A value; without time zone, text
/// form or comparison. A default time is midnight.
///
/// Every failure is a `std::out_of_range` and leaves the field that it is about unchanged.
/// Everything but the current time is inline and can be used in constant expressions.
/// @since 2.9
class QUOR_API_TYPE time : public basic_time {
public:
	/// The bounds of each field.
	/// @{
	static constexpr unsigned int min_hour = 0;
	static constexpr unsigned int max_hour = 23;
	static constexpr unsigned int min_minute = 0;
	static constexpr unsigned int max_minute = 59;
	static constexpr unsigned int min_second = 0;
	static constexpr unsigned int max_second = 59;
	static constexpr unsigned int min_millisecond = 0;
	static constexpr unsigned int max_millisecond = 999;
	/// @}

	/// All fields 0.
	constexpr time() noexcept = default;

	/// The given time; the fields are checked in this order.
	/// @throws std::out_of_range as the setters.
	constexpr time(unsigned int hour, unsigned int minute, unsigned int second, unsigned int millisecond) {
		store(hour, minute, second, millisecond);
	}

	/// The hour.
	constexpr int hour() const noexcept { return static_cast<int>(basic_time::hour()); }
	/// The minute.
	constexpr int minute() const noexcept { return static_cast<int>(basic_time::minute()); }
	/// The second.
	constexpr int second() const noexcept { return static_cast<int>(basic_time::second()); }
	/// The millisecond.
	constexpr int millisecond() const noexcept { return static_cast<int>(basic_time::millisecond()); }

	/// Stores the hour, 0 to 23, and returns it.
	/// @throws std::out_of_range "Hour value out of valid range" for any other.
	constexpr int hour(unsigned int value) {
		if (value > max_hour) {
			throw std::out_of_range("Hour value out of valid range");
		}
		return static_cast<int>(basic_time::hour(value));
	}

	/// Stores the minute, 0 to 59, and returns it.
	/// @throws std::out_of_range "Minute value out of valid range" for any other.
	constexpr int minute(unsigned int value) {
		if (value > max_minute) {
			throw std::out_of_range("Minute value out of valid range");
		}
		return static_cast<int>(basic_time::minute(value));
	}

	/// Stores the second, 0 to 59, and returns it; leap seconds have no place.
	/// @throws std::out_of_range "Second value out of valid range" for any other.
	constexpr int second(unsigned int value) {
		if (value > max_second) {
			throw std::out_of_range("Second value out of valid range");
		}
		return static_cast<int>(basic_time::second(value));
	}

	/// Stores the millisecond, 0 to 999, and returns it.
	/// @throws std::out_of_range "Millisecond value out of valid range" for any other.
	constexpr int millisecond(unsigned int value) {
		if (value > max_millisecond) {
			throw std::out_of_range("Millisecond value out of valid range");
		}
		return static_cast<int>(basic_time::millisecond(value));
	}

	/// Whether the value can be stored; a negative one can't.
	/// @{
	constexpr bool is_valid_hour(int value) const noexcept { return static_cast<unsigned int>(value) <= max_hour; }
	constexpr bool is_valid_minute(int value) const noexcept { return static_cast<unsigned int>(value) <= max_minute; }
	constexpr bool is_valid_second(int value) const noexcept { return static_cast<unsigned int>(value) <= max_second; }
	constexpr bool is_valid_millisecond(int value) const noexcept {
		return static_cast<unsigned int>(value) <= max_millisecond;
	}
	/// @}

	/// The current time of the process's time zone. Where the C library has it, a zone that is
	/// changed while the program runs holds from the next `tzset` on. In a leap second
	/// the time is that of the second before.
	QUOR_API static time local_time();
	/// The current time in UTC; in a leap second that of the second before.
	QUOR_API static time UTC_time();

	/// Takes over the fields of `other`; `=` does the same.
	constexpr time &assign(time const &other) noexcept { return *this = other; }

	/// Adds a duration and goes round at midnight, backwards only once: one day is added to the
	/// sum before whole days are taken off it.
	/// @throws std::out_of_range where the sum is below minus one day and not a number of whole
	/// days: the hour, minute, second and millisecond of what is left are stored in this order
	/// until a negative one throws, as its setter.
	/// @{
	constexpr time &plus_assign(time_duration const &duration) {
		time_duration sum(hour(), minute(), second(), millisecond());
		sum += duration;
		sum += time_duration(0, 0, 0, milliseconds_of_day);
		time_duration const rest(0, 0, 0, sum.total_milliseconds() % milliseconds_of_day);
		store(static_cast<unsigned int>(rest.hour()), static_cast<unsigned int>(rest.minute()),
		      static_cast<unsigned int>(rest.second()), static_cast<unsigned int>(rest.millisecond()));
		return *this;
	}
	constexpr time &operator+=(time_duration const &duration) { return plus_assign(duration); }
	/// @}

	/// Adds the duration with the other sign, in all as `plus_assign`: 25 hours before midnight
	/// is below minus one day and throws.
	/// @throws std::out_of_range as `plus_assign`.
	/// @{
	constexpr time &minus_assign(time_duration const &duration) {
		return plus_assign(time_duration().minus_assign(duration));
	}
	constexpr time &operator-=(time_duration const &duration) { return minus_assign(duration); }
	/// @}

private:
	static constexpr types::int64 milliseconds_of_day = 86400000;

	constexpr void store(unsigned int hour, unsigned int minute, unsigned int second, unsigned int millisecond) {
		this->hour(hour);
		this->minute(minute);
		this->second(second);
		this->millisecond(millisecond);
	}
};

/// The time behind a duration; goes round at midnight.
/// @throws std::out_of_range as `time::plus_assign`.
/// @since 2.9
/// @{
constexpr time plus(time const &start, time_duration const &duration) {
	return time(start).plus_assign(duration);
}
constexpr time operator+(time const &start, time_duration const &duration) {
	return plus(start, duration);
}
constexpr time plus(time_duration const &duration, time const &start) {
	return plus(start, duration);
}
constexpr time operator+(time_duration const &duration, time const &start) {
	return plus(start, duration);
}
/// @}

/// The time before a duration; goes round at midnight.
/// @throws std::out_of_range as `time::minus_assign`.
/// @since 2.9
/// @{
constexpr time minus(time const &end, time_duration const &duration) {
	return time(end).minus_assign(duration);
}
constexpr time operator-(time const &end, time_duration const &duration) {
	return minus(end, duration);
}
/// @}

/// What lies between two times of one day, negative where `end` is the earlier one.
/// Computed in 32 bits.
/// @since 2.9
/// @{
constexpr time_duration minus(time const &end, time const &start) noexcept {
	auto const difference = [](int a, int b) constexpr noexcept {
		return static_cast<int>(static_cast<unsigned int>(a) - static_cast<unsigned int>(b));
	};
	return time_duration(difference(end.hour(), start.hour()), difference(end.minute(), start.minute()),
	                     difference(end.second(), start.second()), difference(end.millisecond(), start.millisecond()));
}
constexpr time_duration operator-(time const &end, time const &start) noexcept {
	return minus(end, start);
}
/// @}

} // namespace QUOR_2_9::system::date_time

#endif
