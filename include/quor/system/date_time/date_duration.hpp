#ifndef QUOR_SYSTEM_DATE_TIME_DATE_DURATION_HPP
#define QUOR_SYSTEM_DATE_TIME_DATE_DURATION_HPP

/// @file
/// A number of days, to be added to a `date` or a `date_time_t`. For hours and less use
/// `time_duration` (`quor/system/date_time/time_duration.hpp`).
///
///     quor::system::date_time::date day(31, 12, 2023);
///     day += quor::system::date_time::date_duration(1);
///     assert(day.day() == 1 && day.month() == 1 && day.year() == 2024);
///
/// @since 2.9

#include <quor/export.hpp>

namespace QUOR_2_9::system::date_time {

/// A signed number of days, 32 bits wide. Sums and differences wrap around at 32 bits. A
/// value, inline as a whole, without failures and usable in constant expressions.
/// @since 2.9
class QUOR_API_TYPE date_duration {
public:
	/// No days.
	constexpr date_duration() noexcept = default;
	/// The given number of days, which may be negative. Not explicit: `day += 1` works.
	constexpr date_duration(int days) noexcept : m_days(days) {}

	/// The number of days.
	constexpr int days() const noexcept { return m_days; }
	/// Stores a number of days and returns it.
	constexpr int days(int value) noexcept { return m_days = value; }

	/// Takes over the days of `other`; `=` does the same.
	constexpr date_duration &assign(date_duration const &other) noexcept { return *this = other; }

	/// Adds the days of `other`.
	/// @{
	constexpr date_duration &plus_assign(date_duration const &other) noexcept {
		m_days = static_cast<int>(static_cast<unsigned int>(m_days) + static_cast<unsigned int>(other.m_days));
		return *this;
	}
	constexpr date_duration &operator+=(date_duration const &other) noexcept { return plus_assign(other); }
	/// @}

	/// Subtracts the days of `other`.
	/// @{
	constexpr date_duration &minus_assign(date_duration const &other) noexcept {
		m_days = static_cast<int>(static_cast<unsigned int>(m_days) - static_cast<unsigned int>(other.m_days));
		return *this;
	}
	constexpr date_duration &operator-=(date_duration const &other) noexcept { return minus_assign(other); }
	/// @}

private:
	int m_days = 0;
};

} // namespace QUOR_2_9::system::date_time

#endif
