#include <gtest/gtest.h>

#include <array>
#include <string>

#include <quor/system/date_time/date_time.hpp>

#include "platform/scripted/scripted_clock.hpp"
#include "support/out_of_range.hpp"

namespace {

namespace date_time = QUOR_2_9::system::date_time;
using QUOR_2_9::platform::wall_clock_fields;
using quor_test::fresh_clock;
using quor_test::out_of_range_of;

wall_clock_fields const local = {2024, 3, 31, 23, 58, 57, 999};
wall_clock_fields const utc = {2024, 4, 1, 0, 1, 2, 3};

using date_fields = std::array<unsigned, 3>;
using time_fields = std::array<int, 4>;

date_fields fields_of(date_time::date const &date) {
	return {date.day(), date.month(), date.year()};
}

time_fields fields_of(date_time::time const &time) {
	return {time.hour(), time.minute(), time.second(), time.millisecond()};
}

TEST(calendar_clock, fields_are_those_of_the_clock_at_one_reading) {
	auto &clock = fresh_clock();
	clock.local = local;
	clock.utc = utc;
	EXPECT_EQ(fields_of(date_time::date::local_date()), (date_fields{31, 3, 2024}));
	EXPECT_EQ(fields_of(date_time::date::UTC_date()), (date_fields{1, 4, 2024}));
	EXPECT_EQ(fields_of(date_time::time::local_time()), (time_fields{23, 58, 57, 999}));
	EXPECT_EQ(fields_of(date_time::time::UTC_time()), (time_fields{0, 1, 2, 3}));
	EXPECT_EQ(clock.wall_readings, 4U);
	auto const both = date_time::date_time_t::local_date_time();
	EXPECT_EQ(fields_of(both.date()), (date_fields{31, 3, 2024}));
	EXPECT_EQ(fields_of(both.time()), (time_fields{23, 58, 57, 999}));
	EXPECT_EQ(clock.wall_readings, 5U);
	auto const universal = date_time::date_time_t::UTC_date_time();
	EXPECT_EQ(fields_of(universal.date()), (date_fields{1, 4, 2024}));
	EXPECT_EQ(fields_of(universal.time()), (time_fields{0, 1, 2, 3}));
	EXPECT_EQ(clock.wall_readings, 6U);
}

TEST(calendar_clock, leap_second_is_the_second_before) {
	auto &clock = fresh_clock();
	clock.local = clock.utc = {2016, 12, 31, 23, 59, 60, 250};
	time_fields const before = {23, 59, 59, 250};
	EXPECT_EQ(fields_of(date_time::time::local_time()), before);
	EXPECT_EQ(fields_of(date_time::time::UTC_time()), before);
	EXPECT_EQ(fields_of(date_time::date_time_t::local_date_time().time()), before);
	EXPECT_EQ(fields_of(date_time::date_time_t::UTC_date_time().time()), before);
}

TEST(calendar_clock, fields_of_no_calendar_are_refused_in_order) {
	struct {
		wall_clock_fields fields;
		std::string date_message;
		std::string time_message;
	} const rows[] = {
	    {{2024, 0, 0, 24, 60, 61, 1000}, "day value out of valid range", "Hour value out of valid range"},
	    {{2024, 13, 1, 23, 60, 61, 1000}, "month value out of valid range", "Minute value out of valid range"},
	    {{2024, 1, 32, 23, 59, 61, 1000}, "day value out of valid range", "Second value out of valid range"},
	    {{2024, 12, 31, 23, 59, 60, 1000}, "", "Millisecond value out of valid range"},
	};
	for (auto const &[fields, date_message, time_message] : rows) {
		auto &clock = fresh_clock();
		clock.local = clock.utc = fields;
		EXPECT_EQ(out_of_range_of([] { date_time::date::local_date(); }), date_message);
		EXPECT_EQ(out_of_range_of([] { date_time::date::UTC_date(); }), date_message);
		EXPECT_EQ(out_of_range_of([] { date_time::time::local_time(); }), time_message);
		EXPECT_EQ(out_of_range_of([] { date_time::time::UTC_time(); }), time_message);
		auto const &first = date_message.empty() ? time_message : date_message;
		EXPECT_EQ(out_of_range_of([] { date_time::date_time_t::local_date_time(); }), first);
		EXPECT_EQ(out_of_range_of([] { date_time::date_time_t::UTC_date_time(); }), first);
	}
}

} // namespace
