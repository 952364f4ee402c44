#ifndef QUOR_SYSTEM_DATE_TIME_CALENDAR_RULES_HPP
#define QUOR_SYSTEM_DATE_TIME_CALENDAR_RULES_HPP

/// @file
/// The arithmetic behind `date` (`quor/system/date_time/date.hpp`), which is what programs
/// use: lengths of months and the serial number of days. Nothing here is for direct use.
///
/// A year of the computation begins on 1 March, so that the leap day is its last one. Days
/// are numbered from 1, which is 1 March of the year 0. In this order the months have a
/// pattern of 153 days for every five months, which gives the multiplications below.
///
///     static_assert(quor::system::date_time::date(1, 1, 1970).pJulian_day_number() == 719469);
///
/// @since 2.9

#include <quor/system/date_time/basic_date.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::system::date_time::detail {

/// Gregorian for every year: divisible by 4 and not by 100, or divisible by 400.
constexpr bool is_leap_year(unsigned int year) noexcept {
	return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

/// The number of days of a month; 0 for a month outside 1 to 12.
constexpr unsigned int month_length(unsigned int month, unsigned int year) noexcept {
	if (month == 2) {
		return is_leap_year(year) ? 29 : 28;
	}
	if (month - 1 >= 12) {
		return 0;
	}
	// 31 for the odd months up to July and the even ones from August.
	return 30 + ((month + (month >> 3)) & 1);
}

/// The days of a year before the month that is `index` months behind March. Any index is
/// counted in pairs of 61 days, with one day more behind the third pair; the second month of
/// a pair begins behind 31 days, or 30 in the pairs of September and of November.
constexpr unsigned int days_before_month(unsigned int index) noexcept {
	if (index < 12) {
		return (153 * index + 2) / 5;
	}
	unsigned int const pair = index >> 1;
	return 61 * pair + 1 + (index & 1) * 31;
}

/// The number of a day, modulo 2^32. Takes every value of the fields: January, February
/// and a month of 0 count as months 13, 14 and 12 of the year before, and the day is
/// added as it stands.
constexpr unsigned int day_number(unsigned int year, unsigned int month, unsigned int day) noexcept {
	if (month < 3) {
		month += 12;
		--year;
	}
	unsigned int const century = year / 100;
	return 365 * year + year / 4 + century / 4 - century + days_before_month(month - 3) + day;
}

/// The date of a number; 0 stands for 2^32. No number gives 29 February: the one that it
/// has gives 1 March.
constexpr basic_date date_of_day_number(unsigned int number) noexcept {
	// Centuries of 36524.25 days.
	types::uint64 const quarter_days = types::uint64(number - 1U) * 4 + 3;
	auto const century = static_cast<unsigned int>(quarter_days / 146097);
	auto const day_of_century = static_cast<unsigned int>(quarter_days % 146097) / 4;

	// Years of 365.25 days, as a fixed-point number with 36 binary places. One day is added,
	// so that a leap day begins the year behind it; the fraction then counts it as day 0
	// beside the day that follows it, as it is multiplied by 365.
	constexpr types::uint64 years_per_day = 188143674; // 2^36 * 4 / 1461, rounded up
	types::uint64 const years = (types::uint64(day_of_century) + 1) * years_per_day;
	auto const day_of_year = static_cast<unsigned int>(((years & 0xFFFFFFFFFU) * 365) >> 36);

	// Months of 30.6 days, beginning with 3 for March, with 16 binary places.
	unsigned int const months = 2141 * day_of_year + 197913;
	unsigned int const month = months >> 16;
	unsigned int const next_year = month > 12 ? 1 : 0;

	basic_date result;
	result.year(100 * century + static_cast<unsigned int>(years >> 36) + next_year);
	result.month(month - 12 * next_year);
	result.day((months & 0xFFFF) / 2141 + 1);
	return result;
}

} // namespace QUOR_2_9::system::date_time::detail

#endif
