#ifndef QUOR_SYSTEM_DATE_TIME_DATE_HPP
#define QUOR_SYSTEM_DATE_TIME_DATE_HPP

/// @file
/// A date of the Gregorian calendar, extended to all years. With a time of day it makes a
/// `date_time_t` (`quor/system/date_time/date_time.hpp`).
///
///     quor::system::date_time::date day(28, 2, 2000); // day, month, year
///     day += quor::system::date_time::date_duration(1);
///     assert(day.day() == 1 && day.month() == 3);
///
/// @since 2.9

#include <stdexcept>

#include <quor/export.hpp>
#include <quor/system/date_time/basic_date.hpp>
#include <quor/system/date_time/calendar_rules.hpp>
#include <quor/system/date_time/date_duration.hpp>

namespace QUOR_2_9::system::date_time {

/// A year, a month and a day. A value; without time zone, text form or comparison.
///
/// The day is checked against 31 and not against the month, so that 31 February can be
/// stored; `day()` then gives the month's last day, and the day number counts the stored
/// one. A default date has all fields 0, which is no date, but is refused nowhere.
///
/// Every failure is a `std::out_of_range` and leaves the field that it is about unchanged.
/// Everything but the current date is inline and can be used in constant expressions.
/// @since 2.9
class QUOR_API_TYPE date : public basic_date {
public:
	/// The number of months of a year.
	static constexpr unsigned int max_months_in_year = 12;
	/// The number of whole weeks of a year.
	static constexpr unsigned int max_weeks_in_year = 52;
	/// The largest day that can be stored.
	static constexpr unsigned int max_days_in_month = 31;

	/// All fields 0.
	constexpr date() noexcept = default;

	/// The given date; the day is checked first, then the month.
	/// @throws std::out_of_range as the setters.
	constexpr date(unsigned int day, unsigned int month, unsigned int year) {
		this->day(day);
		this->month(month);
		this->year(year);
	}

	using basic_date::month;
	using basic_date::year;

	/// Stores the month, 1 to 12, and returns it.
	/// @throws std::out_of_range "month value out of valid range" for any other.
	constexpr unsigned int month(unsigned int value) {
		if (!is_valid_month(value)) {
			throw std::out_of_range("month value out of valid range");
		}
		return basic_date::month(value);
	}

	/// The stored day, limited to the month's length: 28 for a stored 31 February 2023. 0
	/// where the month isn't one of 1 to 12. A month of 31 days gives the stored day as it
	/// stands, also one beyond 31 that came in through `basic_date`.
	constexpr unsigned int day() const noexcept { return get_days(); }

	/// Stores the day, 1 to 31 in every month, and returns it.
	/// @throws std::out_of_range "day value out of valid range" for any other.
	constexpr unsigned int day(unsigned int value) {
		if (!is_valid_day(value)) {
			throw std::out_of_range("day value out of valid range");
		}
		return basic_date::day(value);
	}

	/// Whether the year is divisible by 4 and not by 100, or by 400; in all years alike.
	constexpr bool is_leap_year() const noexcept { return detail::is_leap_year(year()); }

	/// Whether the stored day is beyond the month's length, so that `day()` gives another.
	/// With a month outside 1 to 12, whether the stored day isn't 0.
	constexpr bool is_day_constrained() const noexcept {
		return basic_date::day() > detail::month_length(month(), year());
	}

	/// Whether the day can be stored: 1 to 31. A negative number can't.
	constexpr bool is_valid_day(unsigned int value) const noexcept { return value - 1 < max_days_in_month; }

	/// Whether the month can be stored: 1 to 12. A negative number can't.
	constexpr bool is_valid_month(unsigned int value) const noexcept { return value - 1 < max_months_in_year; }

	/// The same as `day()`.
	constexpr unsigned int get_days() const noexcept {
		unsigned int const length = detail::month_length(month(), year());
		return basic_date::day() < length || length == max_days_in_month ? basic_date::day() : length;
	}

	/// The serial number of the stored day; 1 March of the year 0 has the number 1, and 1
	/// January 1970 the number 719469. (It isn't the Julian day number of astronomers.)
	///
	/// Computed in 32 bits from whatever the fields hold: days before 1 March of the year 0
	/// have numbers that wrap around, and a day beyond its month has the number of the day
	/// that it stands for, 31 February 2023 that of 3 March.
	constexpr unsigned int pJulian_day_number() const noexcept {
		return detail::day_number(year(), month(), basic_date::day());
	}

	/// Takes over the date with this serial number.
	///
	/// 29 February is never given: its number gives 1 March, as the number behind it does.
	/// The number 0 stands for 2^32.
	constexpr void pJulian_day_number(unsigned int number) noexcept {
		static_cast<basic_date &>(*this) = detail::date_of_day_number(number);
	}

	/// The current date of the process's time zone. Where the C library has it, a zone that is
	/// changed while the program runs holds from the next `tzset` on.
	QUOR_API static date local_date();
	/// The current date in UTC.
	QUOR_API static date UTC_date();

	/// Takes over the fields of `other`; `=` does the same.
	constexpr date &assign(date const &other) noexcept { return *this = other; }

	/// Adds days to the day number, modulo 2^32, and takes over the date with that number.
	/// A stored day beyond its month, and 29 February, are no obstacle: 31 February 2023 plus
	/// one day is 4 March.
	/// @{
	constexpr date &plus_assign(date_duration const &duration) noexcept {
		pJulian_day_number(pJulian_day_number() + static_cast<unsigned int>(duration.days()));
		return *this;
	}
	constexpr date &operator+=(date_duration const &duration) noexcept { return plus_assign(duration); }
	/// @}

	/// Subtracts days from the day number, modulo 2^32, and takes over the date with that
	/// number.
	/// @throws std::out_of_range "date value out of valid range" unless the day number, as a
	/// signed number, is greater than the days; the date then stays as it is.
	/// @{
	constexpr date &minus_assign(date_duration const &duration) {
		unsigned int const number = pJulian_day_number();
		if (static_cast<int>(number) <= duration.days()) {
			throw std::out_of_range("date value out of valid range");
		}
		pJulian_day_number(number - static_cast<unsigned int>(duration.days()));
		return *this;
	}
	constexpr date &operator-=(date_duration const &duration) { return minus_assign(duration); }
	/// @}
};

} // namespace QUOR_2_9::system::date_time

#endif
