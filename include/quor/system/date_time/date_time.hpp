#ifndef QUOR_SYSTEM_DATE_TIME_DATE_TIME_HPP
#define QUOR_SYSTEM_DATE_TIME_DATE_TIME_HPP

/// @file
/// A `date` and a `time` side by side. They are joined loosely: what is added to one doesn't
/// carry over into the other, see `plus_assign`.
///
///     using namespace quor::system;
///     date_time::date_time_t start(date_time::date(10, 6, 2024), date_time::time(9, 30, 0, 0));
///     start += date_time::date_duration(30);
///     assert(start.day() == 10 && start.month() == 7 && start.hour() == 9);
///
/// @since 2.9

#include <quor/export.hpp>
#include <quor/system/date_time/date.hpp>
#include <quor/system/date_time/date_duration.hpp>
#include <quor/system/date_time/time.hpp>
#include <quor/system/date_time/time_duration.hpp>

namespace QUOR_2_9::system::date_time {

/// A date and a time of day. A value; without time zone, text form or comparison. The
/// accessors are those of the two members, checks and exceptions included. Everything but the
/// current date and time is inline and can be used in constant expressions.
/// @since 2.9
class QUOR_API_TYPE date_time_t {
public:
	/// The bounds of the fields; that of days is larger by one than what `day` takes.
	/// @{
	static constexpr unsigned int max_months_in_year = 12;
	static constexpr unsigned int max_weeks_in_year = 52;
	static constexpr unsigned int max_days_in_month = 32;
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
	constexpr date_time_t() noexcept = default;
	/// The given date at the given time.
	constexpr date_time_t(date_time::date const &date, date_time::time const &time) noexcept
	    : m_time(time), m_date(date) {}

	/// The current date and time, of one reading of the clock, as `date::local_date` and
	/// `time::local_time` tell.
	QUOR_API static date_time_t local_date_time();
	/// The current date and time in UTC, of one reading of the clock.
	QUOR_API static date_time_t UTC_date_time();

	/// The year.
	constexpr unsigned int year() const noexcept { return m_date.year(); }
	/// Stores the year and returns it.
	constexpr unsigned int year(unsigned int value) noexcept { return m_date.year(value); }
	/// The month.
	constexpr unsigned int month() const noexcept { return m_date.month(); }
	/// Stores the month and returns it.
	/// @throws std::out_of_range as `date::month`.
	constexpr unsigned int month(unsigned int value) { return m_date.month(value); }
	/// The day, limited to the month's length.
	constexpr unsigned int day() const noexcept { return m_date.day(); }
	/// Stores the day and returns it.
	/// @throws std::out_of_range as `date::day`.
	constexpr unsigned int day(unsigned int value) { return m_date.day(value); }

	/// The hour.
	constexpr int hour() const noexcept { return m_time.hour(); }
	/// Stores the hour and returns it.
	/// @throws std::out_of_range as `time::hour`.
	constexpr int hour(unsigned int value) { return m_time.hour(value); }
	/// The minute.
	constexpr int minute() const noexcept { return m_time.minute(); }
	/// Stores the minute and returns it.
	/// @throws std::out_of_range as `time::minute`.
	constexpr int minute(unsigned int value) { return m_time.minute(value); }
	/// The second.
	constexpr int second() const noexcept { return m_time.second(); }
	/// Stores the second and returns it.
	/// @throws std::out_of_range as `time::second`.
	constexpr int second(unsigned int value) { return m_time.second(value); }
	/// The millisecond.
	constexpr int millisecond() const noexcept { return m_time.millisecond(); }
	/// Stores the millisecond and returns it.
	/// @throws std::out_of_range as `time::millisecond`.
	constexpr int millisecond(unsigned int value) { return m_time.millisecond(value); }

	/// Whether the year is a leap year.
	constexpr bool is_leap_year() const noexcept { return m_date.is_leap_year(); }
	/// Whether the stored day is beyond the month's length.
	constexpr bool is_day_constrained() const noexcept { return m_date.is_day_constrained(); }

	/// The date, as long as this object lives.
	constexpr date_time::date const &date() const noexcept { return m_date; }
	/// The time of day, as long as this object lives.
	constexpr date_time::time const &time() const noexcept { return m_time; }

	/// Takes over both members of `other`; `=` does the same.
	constexpr date_time_t &assign(date_time_t const &other) noexcept { return *this = other; }
	/// Takes over a date and a time.
	constexpr date_time_t &assign(date_time::date const &date, date_time::time const &time) noexcept {
		return assign(date_time_t(date, time));
	}

	/// Takes over a date and keeps the time.
	/// @{
	constexpr date_time_t &assign(date_time::date const &date) noexcept {
		m_date = date;
		return *this;
	}
	constexpr date_time_t &operator=(date_time::date const &date) noexcept { return assign(date); }
	/// @}

	/// Takes over a time and keeps the date.
	/// @{
	constexpr date_time_t &assign(date_time::time const &time) noexcept {
		m_time = time;
		return *this;
	}
	constexpr date_time_t &operator=(date_time::time const &time) noexcept { return assign(time); }
	/// @}

	/// Adds days to the date; the time stays.
	/// @{
	constexpr date_time_t &plus_assign(date_duration const &duration) noexcept {
		m_date.plus_assign(duration);
		return *this;
	}
	constexpr date_time_t &operator+=(date_duration const &duration) noexcept { return plus_assign(duration); }
	/// @}

	/// Subtracts days from the date; the time stays.
	/// @throws std::out_of_range as `date::minus_assign`.
	/// @{
	constexpr date_time_t &minus_assign(date_duration const &duration) {
		m_date.minus_assign(duration);
		return *this;
	}
	constexpr date_time_t &operator-=(date_duration const &duration) { return minus_assign(duration); }
	/// @}

	/// Adds a duration to the time, which goes round at midnight without changing the date.
	///
	/// The date changes in one case only, and not by the duration: where the duration has 24
	/// whole hours or more, positive or negative, `r`, the rest of its whole hours divided by 24, is
	/// first stored as the day of the month, then `r` days are added. 10 June 23:00 plus 2 hours is
	/// 10 June 1:00, plus 25 hours it is 2 June 0:00. To move by days add a `date_duration`.
	/// @throws std::out_of_range "day value out of valid range" where `r` isn't positive: for
	/// exactly 24, 48, ... hours, and for 24 and more negative ones; nothing has changed then.
	/// What `time::plus_assign` throws, where the date may have changed already.
	/// @{
	constexpr date_time_t &plus_assign(time_duration const &duration) {
		if (has_whole_days(duration)) {
			m_date.plus_assign(store_rest_as_day(duration));
		}
		m_time.plus_assign(duration);
		return *this;
	}
	constexpr date_time_t &operator+=(time_duration const &duration) { return plus_assign(duration); }
	/// @}

	/// Subtracts a duration from the time, in all as `plus_assign` adds it: `r` is stored as the
	/// day of the month, then `r` days are subtracted.
	/// @throws std::out_of_range as `plus_assign`, with the exceptions of `date::minus_assign` and
	/// `time::minus_assign`; the time throws where it is later by more than a day than what
	/// the duration leaves, the date having changed before.
	/// @{
	constexpr date_time_t &minus_assign(time_duration const &duration) {
		if (has_whole_days(duration)) {
			m_date.minus_assign(store_rest_as_day(duration));
		}
		m_time.minus_assign(duration);
		return *this;
	}
	constexpr date_time_t &operator-=(time_duration const &duration) { return minus_assign(duration); }
	/// @}

private:
	// The smallest int has no positive counterpart and counts as small.
	static constexpr bool has_whole_days(time_duration const &duration) noexcept {
		int const hours = duration.hour();
		return hours >= 24 || (hours <= -24 && hours != static_cast<int>(0x80000000U));
	}

	constexpr date_duration store_rest_as_day(time_duration const &duration) {
		return static_cast<int>(m_date.day(static_cast<unsigned int>(duration.hour() % 24)));
	}

	date_time::time m_time;
	date_time::date m_date;
};

} // namespace QUOR_2_9::system::date_time

#endif
