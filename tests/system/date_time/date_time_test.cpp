#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <string>
#include <type_traits>

#include <quor/quor.hpp>

#include "support/out_of_range.hpp"

namespace {

namespace date_time = quor::system::date_time;
using date_time::date;
using date_time::date_duration;
using date_time::date_time_t;
using date_time::time_duration;
using quor::types::int64;
using quor_test::out_of_range_of;
using day_time = date_time::time;

static_assert(sizeof(date_time_t) == 28 && std::is_trivially_copyable_v<date_time_t>);
static_assert(std::is_same_v<decltype(date_time_t().date()), date const &>);
static_assert(std::is_same_v<decltype(date_time_t().time()), day_time const &>);
static_assert(std::is_same_v<decltype(date_time_t::max_days_in_month), unsigned const>);
static_assert(date_time_t::max_months_in_year == 12 && date_time_t::max_weeks_in_year == 52);
static_assert(date_time_t::max_days_in_month == 32);
static_assert(date_time_t::min_hour == 0 && date_time_t::max_hour == 23 && date_time_t::min_minute == 0);
static_assert(date_time_t::max_minute == 59 && date_time_t::min_second == 0 && date_time_t::max_second == 59);
static_assert(date_time_t::min_millisecond == 0 && date_time_t::max_millisecond == 999);
static_assert(date_time_t(date(1, 2, 2024), day_time(3, 4, 5, 6)).minute() == 4);

// The stored day, not limited, comes first.
std::string text(date_time_t const &value) {
	date_time::basic_date const &stored = value.date();
	std::string result;
	for (unsigned const field : {stored.day(), stored.month(), stored.year()}) {
		result += std::to_string(field) + '.';
	}
	result += ' ';
	for (int const field : {value.hour(), value.minute(), value.second(), value.millisecond()}) {
		result += std::to_string(field) + ' ';
	}
	return result;
}

date_time_t const june(date(10, 6, 2024), day_time(23, 0, 0, 0));

TEST(date_time_t, joins_a_date_and_a_time) {
	EXPECT_EQ(text(date_time_t()), "0.0.0. 0 0 0 0 ");
	date_time_t const value(date(31, 2, 2023), day_time(1, 2, 3, 4));
	EXPECT_EQ(text(value), "31.2.2023. 1 2 3 4 ");
	EXPECT_EQ(value.year(), 2023U);
	EXPECT_EQ(value.month(), 2U);
	EXPECT_EQ(value.day(), 28U);
	EXPECT_TRUE(value.is_day_constrained());
	EXPECT_FALSE(value.is_leap_year());
	EXPECT_TRUE(june.is_leap_year());
	EXPECT_FALSE(june.is_day_constrained());
	EXPECT_EQ(value.date().day(), 28U);
	EXPECT_EQ(value.time().second(), 3);
	date_time_t copy(value);
	EXPECT_EQ(text(copy), text(value));
	EXPECT_EQ(&copy.date(), &copy.date());
	copy.day(5);
	EXPECT_EQ(copy.date().day(), 5U);
}

TEST(date_time_t, setters_are_those_of_the_members) {
	date_time_t value = june;
	EXPECT_EQ(value.year(0xFFFFFFFFU), 0xFFFFFFFFU);
	EXPECT_EQ(value.month(1), 1U);
	EXPECT_EQ(value.day(31), 31U);
	EXPECT_EQ(value.hour(9), 9);
	EXPECT_EQ(value.minute(8), 8);
	EXPECT_EQ(value.second(7), 7);
	EXPECT_EQ(value.millisecond(6), 6);
	std::string const before = "31.1.4294967295. 9 8 7 6 ";
	EXPECT_EQ(text(value), before);
	EXPECT_EQ(out_of_range_of([&] { value.day(32); }), "day value out of valid range");
	EXPECT_EQ(out_of_range_of([&] { value.month(13); }), "month value out of valid range");
	EXPECT_EQ(out_of_range_of([&] { value.hour(24); }), "Hour value out of valid range");
	EXPECT_EQ(out_of_range_of([&] { value.minute(60); }), "Minute value out of valid range");
	EXPECT_EQ(out_of_range_of([&] { value.second(60); }), "Second value out of valid range");
	EXPECT_EQ(out_of_range_of([&] { value.millisecond(1000); }), "Millisecond value out of valid range");
	EXPECT_EQ(text(value), before);
}

TEST(date_time_t, assigning_one_member_keeps_the_other) {
	date_time_t value = june;
	EXPECT_EQ(&value.assign(date(1, 2, 3)), &value);
	EXPECT_EQ(text(value), "1.2.3. 23 0 0 0 ");
	EXPECT_EQ(&value.assign(day_time(4, 5, 6, 7)), &value);
	EXPECT_EQ(text(value), "1.2.3. 4 5 6 7 ");
	EXPECT_EQ(&(value = date(8, 9, 10)), &value);
	EXPECT_EQ(text(value), "8.9.10. 4 5 6 7 ");
	EXPECT_EQ(&(value = day_time(11, 12, 13, 14)), &value);
	EXPECT_EQ(text(value), "8.9.10. 11 12 13 14 ");
	EXPECT_EQ(&value.assign(june), &value);
	EXPECT_EQ(text(value), text(june));
	EXPECT_EQ(&value.assign(date(1, 1, 1), day_time(1, 1, 1, 1)), &value);
	EXPECT_EQ(text(value), "1.1.1. 1 1 1 1 ");
	EXPECT_EQ(&(value = june), &value);
	EXPECT_EQ(text(value), text(june));
	value = value.date();
	value = value.time();
	EXPECT_EQ(text(value), text(june));
}

TEST(date_time_t, days_change_the_date_alone) {
	date_time_t value = june;
	EXPECT_EQ(&value.plus_assign(date_duration(30)), &value);
	EXPECT_EQ(text(value), "10.7.2024. 23 0 0 0 ");
	EXPECT_EQ(&(value += date_duration(1)), &value);
	EXPECT_EQ(text(value), "11.7.2024. 23 0 0 0 ");
	EXPECT_EQ(&value.minus_assign(date_duration(11)), &value);
	EXPECT_EQ(text(value), "30.6.2024. 23 0 0 0 ");
	EXPECT_EQ(&(value -= date_duration(1)), &value);
	EXPECT_EQ(text(value), "29.6.2024. 23 0 0 0 ");
	EXPECT_EQ(out_of_range_of([&] { value -= date_duration(INT_MAX); }), "date value out of valid range");
	EXPECT_EQ(text(value), "29.6.2024. 23 0 0 0 ");
	value += 2;
	value -= 1;
	EXPECT_EQ(text(value), "30.6.2024. 23 0 0 0 ");
}

struct duration_row {
	char const *name;
	date_time_t start;
	time_duration duration;
	std::string end;
	std::string message;
};

std::string const day_message = "day value out of valid range";
std::string const unchanged = "10.6.2024. 23 0 0 0 ";

TEST(date_time_t, plus_a_duration_keeps_or_overwrites_the_date) {
	duration_row const rows[] = {
	    {"nothing", june, time_duration(), unchanged, ""},
	    {"over midnight", june, time_duration(2, 0, 0, 0), "10.6.2024. 1 0 0 0 ", ""},
	    {"one below a day", june, time_duration(23, 59, 59, 999), "10.6.2024. 22 59 59 999 ", ""},
	    {"a day", june, time_duration(24, 0, 0, 0), unchanged, day_message},
	    {"a day and a bit", june, time_duration(24, 59, 59, 999), unchanged, day_message},
	    {"25 hours", june, time_duration(25, 0, 0, 0), "2.6.2024. 0 0 0 0 ", ""},
	    {"47 hours", june, time_duration(47, 0, 0, 0), "16.7.2024. 22 0 0 0 ", ""},
	    {"two days", june, time_duration(48, 0, 0, 0), unchanged, day_message},
	    {"49 hours", june, time_duration(49, 0, 0, 0), "2.6.2024. 0 0 0 0 ", ""},
	    {"back over midnight", june, time_duration(-23, -30, 0, 0), "10.6.2024. 23 30 0 0 ", ""},
	    {"back by almost a day", june, time_duration(0, 0, 0, -86399999), "10.6.2024. 23 0 0 1 ", ""},
	    {"back by a day", june, time_duration(-24, 0, 0, 0), unchanged, day_message},
	    {"back by 25 hours", june, time_duration(-25, 0, 0, 0), unchanged, day_message},
	    {"47 hours in February", date_time_t(date(1, 2, 2023), day_time()), time_duration(47, 0, 0, 0),
	     "18.3.2023. 23 0 0 0 ", ""},
	    // The hours are cut to 32 bits before they are looked at.
	    {"2^31 - 1 hours", june, time_duration(0, 0, 0, 2147483647LL * 3600000), "14.6.2024. 6 0 0 0 ", ""},
	    {"2^31 hours", june, time_duration(0, 0, 0, 2147483648LL * 3600000), "10.6.2024. 7 0 0 0 ", ""},
	    {"-2^31 + 1 hours", june, time_duration(0, 0, 0, -2147483647LL * 3600000), unchanged, day_message},
	    {"2^32 + 2 hours", june, time_duration(0, 0, 0, 4294967298LL * 3600000), "10.6.2024. 17 0 0 0 ", ""},
	};
	for (auto const &row : rows) {
		SCOPED_TRACE(row.name);
		date_time_t value = row.start;
		EXPECT_EQ(out_of_range_of([&] { EXPECT_EQ(&value.plus_assign(row.duration), &value); }), row.message);
		EXPECT_EQ(text(value), row.end);
		value = row.start;
		EXPECT_EQ(out_of_range_of([&] { EXPECT_EQ(&(value += row.duration), &value); }), row.message);
		EXPECT_EQ(text(value), row.end);
	}
}

TEST(date_time_t, minus_a_duration_may_change_the_date_before_the_time_throws) {
	std::string const hour_message = "Hour value out of valid range";
	duration_row const rows[] = {
	    {"nothing", june, time_duration(), unchanged, ""},
	    {"two hours", june, time_duration(2, 0, 0, 0), "10.6.2024. 21 0 0 0 ", ""},
	    {"over midnight", june, time_duration(23, 30, 0, 0), "10.6.2024. 23 30 0 0 ", ""},
	    {"a day", june, time_duration(24, 0, 0, 0), unchanged, day_message},
	    // 1 June less a day; 23:00 less 25 hours is above minus one day.
	    {"25 hours", june, time_duration(25, 0, 0, 0), "31.5.2024. 22 0 0 0 ", ""},
	    // 23 June less 23 days; 23:00 less 47 hours is minus one day.
	    {"47 hours", june, time_duration(47, 0, 0, 0), "31.5.2024. 0 0 0 0 ", ""},
	    {"49 hours", june, time_duration(49, 0, 0, 0), "31.5.2024. 23 0 0 0 ", hour_message},
	    {"25 hours from midnight", date_time_t(date(10, 6, 2024), day_time()), time_duration(25, 0, 0, 0),
	     "31.5.2024. 0 0 0 0 ", hour_message},
	    {"forward over midnight", june, time_duration(-2, 0, 0, 0), "10.6.2024. 1 0 0 0 ", ""},
	    {"forward by a day", june, time_duration(-24, 0, 0, 0), unchanged, day_message},
	    {"forward by 25 hours", june, time_duration(-25, 0, 0, 0), unchanged, day_message},
	    // 1 March of the year 0 is the first day; it is stored, then refused.
	    {"before the first day", date_time_t(date(20, 3, 0), day_time(5, 0, 0, 0)), time_duration(25, 0, 0, 0),
	     "1.3.0. 5 0 0 0 ", "date value out of valid range"},
	    {"smallest count of hours", june, time_duration(0, 0, 0, -2147483648LL * 3600000), "10.6.2024. 7 0 0 0 ", ""},
	};
	for (auto const &row : rows) {
		SCOPED_TRACE(row.name);
		date_time_t value = row.start;
		EXPECT_EQ(out_of_range_of([&] { EXPECT_EQ(&value.minus_assign(row.duration), &value); }), row.message);
		EXPECT_EQ(text(value), row.end);
		value = row.start;
		EXPECT_EQ(out_of_range_of([&] { EXPECT_EQ(&(value -= row.duration), &value); }), row.message);
		EXPECT_EQ(text(value), row.end);
	}
}

TEST(date_time_t, every_number_of_hours_stores_its_rest_as_the_day) {
	for (int hours = -100; hours != 400; ++hours) {
		SCOPED_TRACE(hours);
		date_time_t value = june;
		auto const message = out_of_range_of([&] { value += time_duration(hours, 0, 0, 0); });
		if (hours > -24 && hours < 24) {
			EXPECT_EQ(message, "");
			EXPECT_EQ(text(date_time_t(value.date(), june.time())), unchanged);
			EXPECT_EQ(value.hour(), (23 + hours + 24) % 24);
		} else if (hours < 0 || hours % 24 == 0) {
			EXPECT_EQ(message, day_message);
			EXPECT_EQ(text(value), unchanged);
		} else {
			auto const rest = static_cast<unsigned>(hours % 24);
			EXPECT_EQ(message, "");
			EXPECT_EQ(value.date().pJulian_day_number(), date(1, 6, 2024).pJulian_day_number() - 1 + 2 * rest);
			EXPECT_EQ(value.hour(), (23 + hours) % 24);
		}
	}
}

} // namespace
