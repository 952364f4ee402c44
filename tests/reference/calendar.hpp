#ifndef QUOR_TESTS_REFERENCE_CALENDAR_HPP
#define QUOR_TESTS_REFERENCE_CALENDAR_HPP

// The calendar's arithmetic step by step, in the words of its rules: pairs of months, plain
// remainders, a division wherever one is told.

#include <cstdint>

namespace quor_reference {

struct civil_date {
	std::uint32_t year = 0;
	std::uint32_t month = 0;
	std::uint32_t day = 0;

	bool operator==(civil_date const &) const = default;
};

inline std::uint32_t days_of_month(std::uint32_t month, std::uint32_t year) {
	switch (month) {
	case 1:
	case 3:
	case 5:
	case 7:
	case 8:
	case 10:
	case 12:
		return 31;
	case 4:
	case 6:
	case 9:
	case 11:
		return 30;
	case 2:
		if (year % 400 == 0) {
			return 29;
		}
		if (year % 100 == 0) {
			return 28;
		}
		return year % 4 == 0 ? 29 : 28;
	default:
		return 0;
	}
}

inline std::uint32_t day_number(civil_date const &date) {
	std::uint32_t y = date.year;
	std::uint32_t m = date.month;
	if (m < 3) {
		m += 12;
		y -= 1;
	}
	std::uint32_t const k = m - 3;
	std::uint32_t const pair = k >> 1;
	std::uint32_t n = 365 * y + y / 4 + y / 400 - y / 100 + 61 * pair;
	if (pair > 2) {
		n += 1;
	}
	std::uint32_t const month_length = pair == 3 || pair == 4 ? 30 : 31;
	return n + (k & 1) * month_length + date.day;
}

inline civil_date date_of_day_number(std::uint32_t n) {
	std::uint32_t const a = n - 1;
	std::uint32_t const cycles = a / 146097;
	std::uint32_t r = a % 146097;
	std::uint32_t const centuries = r / 36524;
	r = r % 36524;
	std::uint32_t const quads = r / 1461;
	r = r % 1461;
	std::uint32_t const years = r / 365;
	r = r % 365;
	std::uint32_t const yday = r + 1;
	std::uint32_t const year = 400 * cycles + 100 * centuries + 4 * quads + years;
	std::uint32_t const pair = (yday - (yday > 183 ? 1 : 0) - 1) / 61;
	std::uint32_t const mday = yday - 61 * pair - (pair > 2 ? 1 : 0);
	std::uint32_t const long_limit = pair == 3 || pair == 4 ? 30 : 31;
	std::uint32_t const second = mday > long_limit ? 1 : 0;
	std::uint32_t const index = 2 * pair + second;
	civil_date result;
	result.year = index >= 10 ? year + 1 : year;
	result.month = index >= 10 ? index - 9 : index + 3;
	result.day = mday - long_limit * second;
	return result;
}

// What a program of 64 bits' arithmetic would get, cut to 32: wraps are where these differ
// from an `int` that doesn't overflow.
inline std::int32_t low32(std::int64_t value) {
	return static_cast<std::int32_t>(static_cast<std::uint32_t>(static_cast<std::uint64_t>(value)));
}

} // namespace quor_reference

#endif
