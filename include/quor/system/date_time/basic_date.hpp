#ifndef QUOR_SYSTEM_DATE_TIME_BASIC_DATE_HPP
#define QUOR_SYSTEM_DATE_TIME_BASIC_DATE_HPP

/// @file
/// The three fields of a date without any rule about them. Use `date`
/// (`quor/system/date_time/date.hpp`), which is built on it, for calendar dates.
///
///     quor::system::date_time::basic_date fields;
///     fields.month(99);                    // stored as it stands
///     assert(fields.month() == 99 && fields.day() == 0);
///
/// @since 2.9

#include <quor/export.hpp>

namespace QUOR_2_9::system::date_time {

/// Holds a year, a month and a day as they are given; nothing is checked. A value of 12
/// bytes, inline as a whole, without failures and usable in constant expressions.
/// @since 2.9
class QUOR_API_TYPE basic_date {
public:
	/// All fields 0.
	constexpr basic_date() noexcept = default;

	/// The year.
	constexpr unsigned int year() const noexcept { return m_year; }
	/// Stores the year and returns it.
	constexpr unsigned int year(unsigned int value) noexcept { return m_year = value; }

	/// The month.
	constexpr unsigned int month() const noexcept { return m_month; }
	/// Stores the month and returns it.
	constexpr unsigned int month(unsigned int value) noexcept { return m_month = value; }

	/// The day as it was stored.
	constexpr unsigned int day() const noexcept { return m_day; }
	/// Stores the day and returns it.
	constexpr unsigned int day(unsigned int value) noexcept { return m_day = value; }

private:
	unsigned int m_year = 0;
	unsigned int m_month = 0;
	unsigned int m_day = 0;
};

} // namespace QUOR_2_9::system::date_time

#endif
