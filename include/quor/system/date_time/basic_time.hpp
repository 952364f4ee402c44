#ifndef QUOR_SYSTEM_DATE_TIME_BASIC_TIME_HPP
#define QUOR_SYSTEM_DATE_TIME_BASIC_TIME_HPP

/// @file
/// The four fields of a time of day without any rule about them. Use `time`
/// (`quor/system/date_time/time.hpp`), which is built on it, for times of a clock.
///
///     quor::system::date_time::basic_time fields;
///     fields.hour(99);                     // stored as it stands
///     assert(fields.hour() == 99 && fields.minute() == 0);
///
/// @since 2.9

#include <quor/export.hpp>

namespace QUOR_2_9::system::date_time {

/// Holds an hour, a minute, a second and a millisecond as they are given; nothing is
/// checked. A value of 16 bytes, inline as a whole, without failures and usable in constant
/// expressions.
/// @since 2.9
class QUOR_API_TYPE basic_time {
public:
	/// All fields 0.
	constexpr basic_time() noexcept = default;

	/// The hour.
	constexpr unsigned int hour() const noexcept { return m_hour; }
	/// Stores the hour and returns it.
	constexpr unsigned int hour(unsigned int value) noexcept { return m_hour = value; }

	/// The minute.
	constexpr unsigned int minute() const noexcept { return m_minute; }
	/// Stores the minute and returns it.
	constexpr unsigned int minute(unsigned int value) noexcept { return m_minute = value; }

	/// The second.
	constexpr unsigned int second() const noexcept { return m_second; }
	/// Stores the second and returns it.
	constexpr unsigned int second(unsigned int value) noexcept { return m_second = value; }

	/// The millisecond.
	constexpr unsigned int millisecond() const noexcept { return m_millisecond; }
	/// Stores the millisecond and returns it.
	constexpr unsigned int millisecond(unsigned int value) noexcept { return m_millisecond = value; }

private:
	unsigned int m_hour = 0;
	unsigned int m_minute = 0;
	unsigned int m_second = 0;
	unsigned int m_millisecond = 0;
};

} // namespace QUOR_2_9::system::date_time

#endif
