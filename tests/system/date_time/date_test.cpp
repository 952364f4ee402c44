#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <random>
#include <string>
#include <type_traits>

#include <quor/quor.hpp>

#include "reference/calendar.hpp"
#include "support/out_of_range.hpp"

namespace {

using quor::system::date_time::basic_date;
using quor::system::date_time::date;
using quor::system::date_time::date_duration;
using quor_reference::civil_date;
using quor_test::out_of_range_of;

static_assert(sizeof(date) == 12 && std::is_trivially_copyable_v<date> && std::is_base_of_v<basic_date, date>);
static_assert(std::is_convertible_v<date *, basic_date *>);
static_assert(std::is_same_v<decltype(date().day()), unsigned>);
static_assert(std::is_same_v<decltype(date().day(1)), unsigned>);
static_assert(std::is_same_v<decltype(date().get_days()), unsigned>);
static_assert(std::is_same_v<decltype(date::max_days_in_month), unsigned const>);
static_assert(date::max_months_in_year == 12 && date::max_weeks_in_year == 52 && date::max_days_in_month == 31);
static_assert(date(1, 1, 1970).pJulian_day_number() == 719469);

// The stored fields, the day not limited.
civil_date fields_of(basic_date const &fields) {
	return {fields.year(), fields.month(), fields.day()};
}

// Any fields at all, as they can be stored through the base.
date made_of(civil_date const &fields) {
	date result;
	basic_date &base = result;
	base.year(fields.year);
	base.month(fields.month);
	base.day(fields.day);
	return result;
}

TEST(date, default_has_all_fields_0) {
	date const none;
	EXPECT_EQ(fields_of(none), (civil_date{0, 0, 0}));
	EXPECT_EQ(none.day(), 0U);
	EXPECT_EQ(none.get_days(), 0U);
	EXPECT_FALSE(none.is_day_constrained());
	EXPECT_TRUE(none.is_leap_year());
	EXPECT_EQ(none.pJulian_day_number(), 1041529479U);
}

TEST(date, takes_day_month_and_year_in_this_order) {
	date const day(29, 2, 2024);
	EXPECT_EQ(day.day(), 29U);
	EXPECT_EQ(day.month(), 2U);
	EXPECT_EQ(day.year(), 2024U);
	EXPECT_EQ(date(1, 1, 0).year(), 0U);
	EXPECT_EQ(date(31, 12, 4294967295U).year(), 4294967295U);
	date other;
	EXPECT_EQ(&other.assign(day), &other);
	EXPECT_EQ(fields_of(other), fields_of(day));
	other = date(1, 2, 3);
	EXPECT_EQ(fields_of(other), (civil_date{3, 2, 1}));
}

TEST(date, out_of_range_fields_throw_the_first_in_order) {
	struct {
		unsigned day;
		unsigned month;
		char const *message;
	} const rows[] = {
	    {1, 1, ""},
	    {31, 12, ""},
	    {31, 2, ""},
	    {0, 1, "day value out of valid range"},
	    {32, 1, "day value out of valid range"},
	    {0xFFFFFFFFU, 1, "day value out of valid range"},
	    {0x80000001U, 1, "day value out of valid range"},
	    {1, 0, "month value out of valid range"},
	    {1, 13, "month value out of valid range"},
	    {1, 0xFFFFFFFFU, "month value out of valid range"},
	    {0, 0, "day value out of valid range"},
	    {32, 13, "day value out of valid range"},
	};
	for (auto const &[day, month, message] : rows) {
		SCOPED_TRACE(testing::Message() << day << '.' << month);
		EXPECT_EQ(out_of_range_of([&, d = day, m = month] { date(d, m, 2024); }), message);
	}
}

TEST(date, setters_return_the_value_or_throw_and_leave_the_field) {
	date day(15, 6, 2024);
	EXPECT_EQ(day.day(31), 31U);
	EXPECT_EQ(day.month(12), 12U);
	EXPECT_EQ(day.year(4000000000U), 4000000000U);
	EXPECT_EQ(fields_of(day), (civil_date{4000000000U, 12, 31}));
	for (unsigned const value : {0U, 32U, 33U, 255U, 257U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
		SCOPED_TRACE(value);
		EXPECT_FALSE(day.is_valid_day(value));
		EXPECT_EQ(out_of_range_of([&] { day.day(value); }), "day value out of valid range");
	}
	for (unsigned const value : {0U, 13U, 14U, 257U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
		SCOPED_TRACE(value);
		EXPECT_FALSE(day.is_valid_month(value));
		EXPECT_EQ(out_of_range_of([&] { day.month(value); }), "month value out of valid range");
	}
	EXPECT_EQ(fields_of(day), (civil_date{4000000000U, 12, 31}));
	for (unsigned value = 1; value != 32; ++value) {
		EXPECT_TRUE(day.is_valid_day(value));
		EXPECT_EQ(day.day(value), value);
		EXPECT_EQ(day.is_valid_month(value), value <= 12);
	}
	for (unsigned value = 1; value != 13; ++value) {
		EXPECT_EQ(day.month(value), value);
	}
}

TEST(date, constructor_keeps_what_was_set_before_the_failure_to_itself) {
	date day(15, 6, 2024);
	EXPECT_EQ(out_of_range_of([&] { day = date(1, 13, 2000); }), "month value out of valid range");
	EXPECT_EQ(fields_of(day), (civil_date{2024, 6, 15}));
}

TEST(date, leap_years) {
	EXPECT_TRUE(date(1, 1, 2000).is_leap_year());
	EXPECT_TRUE(date(1, 1, 2024).is_leap_year());
	EXPECT_FALSE(date(1, 1, 1900).is_leap_year());
	EXPECT_FALSE(date(1, 1, 2023).is_leap_year());
}

TEST(date, day_is_limited_by_the_month) {
	date const constrained(29, 2, 2023);
	EXPECT_EQ(constrained.day(), 28U);
	EXPECT_TRUE(constrained.is_day_constrained());
	EXPECT_EQ(fields_of(constrained).day, 29U);
	EXPECT_EQ(date(31, 4, 2024).day(), 30U);
	for (unsigned const year : {1900U, 2000U, 2023U, 2024U}) {
		for (unsigned month = 0; month != 15; ++month) {
			for (unsigned const day : {0U, 1U, 27U, 28U, 29U, 30U, 31U, 32U, 0xFFFFFFFFU}) {
				SCOPED_TRACE(testing::Message() << year << '-' << month << '-' << day);
				date const value = made_of({year, month, day});
				unsigned const length = quor_reference::days_of_month(month, year);
				EXPECT_EQ(value.day(), length != 31 && day > length ? length : day);
				EXPECT_EQ(value.get_days(), value.day());
				EXPECT_EQ(value.is_day_constrained(), day > length);
			}
		}
	}
}

TEST(date, limit_follows_the_month_and_the_year) {
	date day(31, 1, 2024);
	EXPECT_EQ(day.day(), 31U);
	day.month(2);
	EXPECT_EQ(day.day(), 29U);
	day.year(2023);
	EXPECT_EQ(day.day(), 28U);
	day.month(3);
	EXPECT_EQ(day.day(), 31U);
}

TEST(date, day_number_counts_the_stored_day) {
	struct {
		date day;
		unsigned number;
	} const rows[] = {
	    {date(1, 3, 2000), 730486},
	    {date(1, 1, 1970), 719469},
	    {date(1, 1, 1), 307},
	    {date(1, 3, 0), 1},
	    {date(31, 3, 0), 31},
	    {date(1, 4, 0), 32},
	    {date(28, 2, 1), 365},
	    {date(29, 2, 2000), 730485},
	    {date(31, 2, 2023), date(3, 3, 2023).pJulian_day_number()},
	    {date(31, 4, 2023), date(1, 5, 2023).pJulian_day_number()},
	};
	for (auto const &[day, number] : rows) {
		SCOPED_TRACE(number);
		EXPECT_EQ(day.pJulian_day_number(), number);
	}
}

TEST(date, setting_a_day_number_takes_over_its_date) {
	date day(31, 12, 1999);
	day.pJulian_day_number(1);
	EXPECT_EQ(fields_of(day), (civil_date{0, 3, 1}));
	day.pJulian_day_number(730485); // 29 February 2000
	EXPECT_EQ(fields_of(day), (civil_date{2000, 3, 1}));
	day.pJulian_day_number(730486);
	EXPECT_EQ(fields_of(day), (civil_date{2000, 3, 1}));
	day.pJulian_day_number(0);
	EXPECT_EQ(fields_of(day), quor_reference::date_of_day_number(0));
}

TEST(date, plus_takes_over_the_date_of_the_sum) {
	struct {
		date start;
		int days;
		civil_date end;
	} const rows[] = {
	    {date(28, 2, 2000), 1, {2000, 3, 1}},  {date(29, 2, 2000), 1, {2000, 3, 1}},
	    {date(29, 2, 2000), 0, {2000, 3, 1}},  {date(31, 12, 2023), 1, {2024, 1, 1}},
	    {date(28, 2, 2023), 1, {2023, 3, 1}},  {date(31, 2, 2023), 1, {2023, 3, 4}},
	    {date(1, 3, 2000), -1, {2000, 3, 1}},  {date(1, 3, 2000), -2, {2000, 2, 28}},
	    {date(1, 1, 2024), 366, {2025, 1, 1}}, {date(1, 1, 1970), 19000, {2022, 1, 8}},
	    {date(31, 1, 2024), 29, {2024, 3, 1}}, {date(1, 1, 2024), -1, {2023, 12, 31}},
	};
	for (auto const &[start, days, end] : rows) {
		SCOPED_TRACE(testing::Message() << start.pJulian_day_number() << " + " << days);
		date day = start;
		EXPECT_EQ(&day.plus_assign(date_duration(days)), &day);
		EXPECT_EQ(fields_of(day), end);
		day = start;
		EXPECT_EQ(&(day += date_duration(days)), &day);
		EXPECT_EQ(fields_of(day), end);
	}
}

TEST(date, plus_has_no_bounds) {
	date day(1, 3, 0);
	day += date_duration(-1); // the number 0
	EXPECT_EQ(fields_of(day), quor_reference::date_of_day_number(0));
	day = date(1, 3, 0);
	day += date_duration(INT_MIN);
	EXPECT_EQ(fields_of(day), quor_reference::date_of_day_number(0x80000001U));
	day = date(1, 3, 0);
	day += date_duration(INT_MAX);
	EXPECT_EQ(fields_of(day), quor_reference::date_of_day_number(0x80000000U));
	date none;
	none += date_duration(1);
	EXPECT_EQ(fields_of(none), quor_reference::date_of_day_number(1041529480U));
}

TEST(date, minus_takes_over_the_date_of_the_difference) {
	struct {
		date start;
		int days;
		civil_date end;
	} const rows[] = {
	    {date(1, 3, 2000), 1, {2000, 3, 1}},   {date(1, 3, 2000), 2, {2000, 2, 28}},
	    {date(1, 1, 2024), 1, {2023, 12, 31}}, {date(1, 1, 1), 306, {0, 3, 1}},
	    {date(28, 2, 2000), -1, {2000, 3, 1}}, {date(31, 12, 2023), -1, {2024, 1, 1}},
	    {date(31, 2, 2023), 3, {2023, 2, 28}},
	};
	for (auto const &[start, days, end] : rows) {
		SCOPED_TRACE(testing::Message() << start.pJulian_day_number() << " - " << days);
		date day = start;
		EXPECT_EQ(&day.minus_assign(date_duration(days)), &day);
		EXPECT_EQ(fields_of(day), end);
		day = start;
		EXPECT_EQ(&(day -= date_duration(days)), &day);
		EXPECT_EQ(fields_of(day), end);
	}
}

TEST(date, minus_throws_unless_the_number_is_greater_than_the_days) {
	std::string const message = "date value out of valid range";
	struct {
		civil_date start;
		int days;
		std::string message;
	} const rows[] = {
	    {{1, 1, 1}, 307, message},
	    {{1, 1, 1}, 308, message},
	    {{1, 1, 1}, INT_MAX, message},
	    {{1, 1, 1}, 306, ""},
	    {{0, 3, 1}, 0, ""},
	    {{0, 3, 1}, 1, message},
	    {{0, 3, 1}, INT_MIN, ""},
	    // A number of 2^31 and more is negative here.
	    {{0, 1, 1}, 0, ""},
	    {{5900000, 1, 1}, 0, message},
	    {{5900000, 1, 1}, -1, message},
	    {{5900000, 1, 1}, INT_MIN, ""},
	    {{0, 3, 0}, 0, message},
	    {{0, 3, 0}, -1, ""},
	};
	for (auto const &[start, days, expected] : rows) {
		SCOPED_TRACE(testing::Message() << start.year << '-' << start.month << '-' << start.day << " - " << days);
		date day = made_of(start);
		auto const number = day.pJulian_day_number();
		EXPECT_EQ(out_of_range_of([&, n = days] { day -= date_duration(n); }), expected);
		EXPECT_EQ(fields_of(day),
		          expected.empty() ? quor_reference::date_of_day_number(number - static_cast<unsigned>(days)) : start);
	}
}

TEST(date, random_arithmetic_is_that_of_the_steps) {
	std::mt19937 random(1582);
	int thrown = 0;
	for (int round = 0; round != 300000; ++round) {
		civil_date const start = {static_cast<std::uint32_t>(random() >> (random() % 24)),
		                          static_cast<std::uint32_t>(random() % 12 + 1),
		                          static_cast<std::uint32_t>(random() % 31 + 1)};
		int const days = static_cast<std::int32_t>(random()) >> (random() % 24);
		auto const number = quor_reference::day_number(start);
		auto const day = made_of(start);
		ASSERT_EQ(day.pJulian_day_number(), number);
		ASSERT_EQ(fields_of(date(day).plus_assign(days)),
		          quor_reference::date_of_day_number(number + static_cast<unsigned>(days)));
		bool const refused = static_cast<std::int32_t>(number) <= days;
		auto changed = day;
		ASSERT_EQ(out_of_range_of([&] { changed.minus_assign(days); }), refused ? "date value out of valid range" : "");
		ASSERT_EQ(fields_of(changed),
		          refused ? start : quor_reference::date_of_day_number(number - static_cast<unsigned>(days)));
		thrown += refused ? 1 : 0;
	}
	EXPECT_GT(thrown, 30000);
	EXPECT_LT(thrown, 270000);
}

TEST(date, everyday_use_compiles) {
	date day(28, 2, 2023);
	day += 1;
	day += date_duration(1);
	day -= 1;
	(day += 2) -= date_duration(1);
	EXPECT_EQ(fields_of(day), (civil_date{2023, 3, 2}));
	unsigned const *const bound = &date::max_days_in_month;
	EXPECT_EQ(*bound, 31U);
}

} // namespace
