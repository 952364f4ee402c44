#include <gtest/gtest.h>

#include <chrono>
#include <cstdint>
#include <random>

#include <quor/quor.hpp>

#include "reference/calendar.hpp"

namespace {

namespace detail = quor::system::date_time::detail;
using quor_reference::civil_date;

// 1 March of the year 0 has the number 1.
constexpr std::chrono::sys_days day_0 = std::chrono::year(0) / std::chrono::February / 29;

civil_date decoded(std::uint32_t number) {
	auto const fields = detail::date_of_day_number(number);
	return {fields.year(), fields.month(), fields.day()};
}

// Comparing is all that the loops do, the trace is for what differs.
void expect_same(std::uint32_t number) {
	if (decoded(number) != quor_reference::date_of_day_number(number)) {
		auto const found = decoded(number);
		ADD_FAILURE() << number << " gave " << found.year << '-' << found.month << '-' << found.day;
	}
}

void expect_same(civil_date const &date) {
	auto const found = detail::day_number(date.year, date.month, date.day);
	if (found != quor_reference::day_number(date)) {
		ADD_FAILURE() << date.year << '-' << date.month << '-' << date.day << " gave " << found;
	}
}

TEST(calendar_rules, leap_years_are_the_gregorian_ones_in_every_year) {
	for (unsigned year = 0; year != 12000; ++year) {
		ASSERT_EQ(detail::is_leap_year(year), std::chrono::year(static_cast<int>(year)).is_leap()) << year;
	}
	EXPECT_TRUE(detail::is_leap_year(4294967200U));
	EXPECT_FALSE(detail::is_leap_year(4294967100U));
	EXPECT_TRUE(detail::is_leap_year(4294967292U));
	EXPECT_FALSE(detail::is_leap_year(4294967295U));
}

TEST(calendar_rules, month_length_is_that_of_the_calendar_and_0_for_no_month) {
	for (unsigned const year : {1900U, 2000U, 2023U, 2024U, 0U, 4294967292U}) {
		for (unsigned month = 0; month != 300; ++month) {
			ASSERT_EQ(detail::month_length(month, year), quor_reference::days_of_month(month, year)) << month;
		}
		for (unsigned const month : {0x7FFFFFFFU, 0x80000000U, 0x80000001U, 0xFFFFFFF8U, 0xFFFFFFFFU}) {
			ASSERT_EQ(detail::month_length(month, year), 0U) << month;
		}
	}
}

TEST(calendar_rules, day_number_of_every_day_to_the_year_10000_is_that_of_chrono) {
	using std::chrono::days;
	std::chrono::sys_days const end = std::chrono::year(10001) / std::chrono::January / 1;
	for (auto day = day_0 + days(1); day != end; day += days(1)) {
		std::chrono::year_month_day const date(day);
		auto const year = static_cast<unsigned>(static_cast<int>(date.year()));
		auto const month = static_cast<unsigned>(date.month());
		auto const day_of_month = static_cast<unsigned>(date.day());
		auto const number = static_cast<std::uint32_t>((day - day_0).count());
		ASSERT_EQ(detail::day_number(year, month, day_of_month), number) << year << '-' << month << '-' << day_of_month;
		// No number gives the leap day.
		bool const leap_day = month == 2 && day_of_month == 29;
		civil_date const expected = {year, leap_day ? 3 : month, leap_day ? 1 : day_of_month};
		ASSERT_EQ(decoded(number), expected) << number;
		ASSERT_EQ(quor_reference::date_of_day_number(number), expected) << number;
	}
}

TEST(calendar_rules, day_number_before_the_first_wraps_around) {
	// January and February of the year 0 belong to the year 2^32 - 1.
	EXPECT_EQ(detail::day_number(0, 0, 0), 1041529479U);
	for (unsigned month = 0; month != 3; ++month) {
		for (unsigned day = 0; day != 32; ++day) {
			expect_same(civil_date{0, month, day});
		}
	}
}

TEST(calendar_rules, numbers_at_the_ends_of_the_range_are_those_of_the_steps) {
	for (std::uint32_t distance = 0; distance != 800000; ++distance) {
		expect_same(distance);
		expect_same(0U - distance);
		expect_same(0x80000000U + distance);
		expect_same(0x80000000U - distance);
	}
	EXPECT_EQ(decoded(1), (civil_date{0, 3, 1}));
	EXPECT_EQ(decoded(0), quor_reference::date_of_day_number(0));
}

TEST(calendar_rules, random_numbers_are_decoded_as_the_steps_do) {
	std::mt19937 random(20240301);
	for (int round = 0; round != 2000000; ++round) {
		expect_same(static_cast<std::uint32_t>(random()));
	}
}

TEST(calendar_rules, random_fields_have_the_number_of_the_steps) {
	std::mt19937 random(20240229);
	for (int round = 0; round != 1000000; ++round) {
		auto const year = static_cast<std::uint32_t>(random());
		auto const day = static_cast<std::uint32_t>(random());
		expect_same(civil_date{year, static_cast<std::uint32_t>(random()), day});
		expect_same(civil_date{year, static_cast<std::uint32_t>(random() % 40), day});
		expect_same(civil_date{year % 3000, static_cast<std::uint32_t>(random() % 13), day % 32});
	}
}

TEST(calendar_rules, every_small_and_every_huge_month_has_the_number_of_the_steps) {
	for (std::uint32_t month = 0; month != 5000; ++month) {
		expect_same(civil_date{2024, month, 1});
		expect_same(civil_date{2023, 0U - month, 7});
	}
}

} // namespace
