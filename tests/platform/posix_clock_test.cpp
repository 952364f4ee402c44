#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <initializer_list>
#include <limits>
#include <optional>
#include <random>
#include <sstream>
#include <string>

#include <quor/system/date_time/date_time.hpp>

#include "platform/posix/broken_down_time.hpp"
#include "platform/tick_counter.hpp"
#include "platform/wall_clock.hpp"

namespace {

namespace platform = QUOR_2_9::platform;
namespace date_time = QUOR_2_9::system::date_time;
using date_time::date_time_t;
using platform::wall_clock_fields;

// Sets the time zone of the process and sets it back.
class zone {
public:
	explicit zone(char const *rule) {
		if (char const *const before = std::getenv("TZ")) {
			m_before = before;
		}
		setenv("TZ", rule, 1);
		tzset();
	}
	zone(zone const &) = delete;
	zone &operator=(zone const &) = delete;
	~zone() {
		if (m_before) {
			setenv("TZ", m_before->c_str(), 1);
		} else {
			unsetenv("TZ");
		}
		tzset();
	}

private:
	std::optional<std::string> m_before;
};

std::time_t seconds_of(int year, unsigned month, unsigned day, int hour, int minute, int second) {
	std::chrono::sys_days const date = std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day);
	return static_cast<std::time_t>(date.time_since_epoch() / std::chrono::seconds(1)) + hour * 3600 + minute * 60 +
	       second;
}

std::string joined(std::initializer_list<long long> numbers) {
	std::ostringstream result;
	for (char const *separator = ""; long long const number : numbers) {
		result << separator << number;
		separator = " ";
	}
	return result.str();
}

std::string text(wall_clock_fields const &fields) {
	return joined(
	    {fields.year, fields.month, fields.day, fields.hour, fields.minute, fields.second, fields.millisecond});
}

// Without milliseconds, as the C library has none.
std::string text(date_time_t const &value) {
	return joined({value.year(), value.month(), value.day(), value.hour(), value.minute(), value.second()});
}

// What the C library says, with the milliseconds beside it.
std::string text(tm const &parts, unsigned milliseconds) {
	return joined({parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec,
	               milliseconds});
}

std::string text(tm const &parts) {
	return joined({parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_hour, parts.tm_min, parts.tm_sec});
}

char const *const central_europe = "CET-1CEST,M3.5.0,M10.5.0/3";
char const *const new_york = "EST5EDT,M3.2.0,M11.1.0";
char const *const lord_howe = "LHST-10:30LHDT-11,M10.1.0,M4.1.0";
char const *const kathmandu = "NPT-5:45";
char const *const kiritimati = "LINT-14";
char const *const zones[] = {"UTC0", central_europe, new_york, lord_howe, kathmandu, kiritimati};

TEST(posix_clock, local_fields_follow_the_rules_of_the_zone) {
	struct {
		char const *name;
		char const *rule;
		std::time_t moment;
		long nanoseconds;
		char const *fields;
	} const rows[] = {
	    {"before the gap", central_europe, seconds_of(2024, 3, 31, 0, 59, 59), 999999999, "2024 3 31 1 59 59 999"},
	    {"behind the gap", central_europe, seconds_of(2024, 3, 31, 1, 0, 0), 0, "2024 3 31 3 0 0 0"},
	    {"first of the overlap", central_europe, seconds_of(2024, 10, 27, 0, 0, 0), 0, "2024 10 27 2 0 0 0"},
	    {"end of its first run", central_europe, seconds_of(2024, 10, 27, 0, 59, 59), 0, "2024 10 27 2 59 59 0"},
	    {"second run", central_europe, seconds_of(2024, 10, 27, 1, 0, 0), 0, "2024 10 27 2 0 0 0"},
	    {"behind the overlap", central_europe, seconds_of(2024, 10, 27, 2, 0, 0), 0, "2024 10 27 3 0 0 0"},
	    {"before the gap", new_york, seconds_of(2024, 3, 10, 6, 59, 59), 1000000, "2024 3 10 1 59 59 1"},
	    {"behind the gap", new_york, seconds_of(2024, 3, 10, 7, 0, 0), 999999, "2024 3 10 3 0 0 0"},
	    {"another day than in UTC", new_york, seconds_of(2025, 1, 1, 4, 59, 59), 0, "2024 12 31 23 59 59 0"},
	    {"half an hour forward", lord_howe, seconds_of(2024, 10, 5, 15, 30, 0), 0, "2024 10 6 2 30 0 0"},
	    {"before it", lord_howe, seconds_of(2024, 10, 5, 15, 29, 59), 0, "2024 10 6 1 59 59 0"},
	    {"quarters of an hour", kathmandu, seconds_of(2024, 2, 28, 18, 15, 0), 0, "2024 2 29 0 0 0 0"},
	    {"fourteen hours ahead", kiritimati, seconds_of(1999, 12, 31, 10, 0, 0), 0, "2000 1 1 0 0 0 0"},
	    {"before 1970", central_europe, -1, 500000000, "1970 1 1 0 59 59 500"},
	    {"the year 0", "UTC0", seconds_of(0, 1, 1, 0, 0, 0), 0, "0 1 1 0 0 0 0"},
	    {"the year 10000", "UTC0", seconds_of(10000, 1, 1, 0, 0, 0), 0, "10000 1 1 0 0 0 0"},
	};
	for (auto const &row : rows) {
		SCOPED_TRACE(std::string(row.name) + ", " + row.rule);
		zone const here(row.rule);
		EXPECT_EQ(text(platform::local_fields({row.moment, row.nanoseconds})), row.fields);
	}
}

TEST(posix_clock, utc_fields_are_the_same_in_every_zone) {
	for (char const *const rule : zones) {
		SCOPED_TRACE(rule);
		zone const here(rule);
		EXPECT_EQ(text(platform::utc_fields({seconds_of(2024, 3, 31, 1, 30, 0), 123456789})), "2024 3 31 1 30 0 123");
		EXPECT_EQ(text(platform::utc_fields({-1, 1000000})), "1969 12 31 23 59 59 1");
	}
}

TEST(posix_clock, random_moments_are_those_of_chrono_and_of_the_c_library) {
	std::mt19937_64 random(1970);
	for (char const *const rule : zones) {
		SCOPED_TRACE(rule);
		zone const here(rule);
		for (int round = 0; round != 5000; ++round) {
			std::time_t const moment =
			    seconds_of(0, 1, 1, 0, 0, 0) + static_cast<std::time_t>(random() % 315569520000U);
			auto const milliseconds = static_cast<unsigned>(random() % 1000);
			timespec const now = {moment, static_cast<long>(milliseconds) * 1000000 + 999999};
			std::chrono::sys_seconds const time{std::chrono::seconds(moment)};
			auto const day = std::chrono::floor<std::chrono::days>(time);
			std::chrono::year_month_day const date(day);
			std::chrono::hh_mm_ss const clock(time - day);
			auto const expected = joined({static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
			                              static_cast<unsigned>(date.day()), clock.hours().count(),
			                              clock.minutes().count(), clock.seconds().count(), milliseconds});
			ASSERT_EQ(text(platform::utc_fields(now)), expected);
			tm parts;
			localtime_r(&moment, &parts);
			ASSERT_EQ(text(platform::local_fields(now)), text(parts, milliseconds));
		}
	}
}

TEST(posix_clock, moment_beyond_the_c_library_is_1970) {
	timespec const far = {std::numeric_limits<std::time_t>::max(), 999999999};
	EXPECT_EQ(text(platform::local_fields(far)), "1970 1 1 0 0 0 0");
	EXPECT_EQ(text(platform::utc_fields(far)), "1970 1 1 0 0 0 0");
}

TEST(posix_clock, leap_second_of_a_zone_that_knows_them_is_passed_on) {
	// Only with its data installed does such a zone have any.
	zone const here("right/UTC");
	tm parts;
	std::time_t const moment = 1483228826; // counted with the 26 leap seconds before
	localtime_r(&moment, &parts);
	EXPECT_EQ(text(platform::local_fields({moment, 0})), text(parts, 0));
}

// time() may be a tick of the kernel behind the clock that is asked here.
std::time_t current_second() {
	timespec now;
	clock_gettime(CLOCK_REALTIME, &now);
	return now.tv_sec;
}

// The current moment lies between two answers of the system; at most a second passes.
template <class Read, class Convert>
void expect_now(Read const &read, Convert const &convert) {
	for (int attempt = 0;; ++attempt) {
		tm before;
		tm after;
		std::time_t const first = current_second();
		convert(&first, &before);
		auto const found = text(read());
		std::time_t const last = current_second();
		convert(&last, &after);
		if (text(before) == found || text(after) == found) {
			return;
		}
		ASSERT_LT(attempt, 5) << found;
	}
}

TEST(posix_clock, current_date_and_time_follow_the_zone) {
	for (char const *const rule : zones) {
		SCOPED_TRACE(rule);
		zone const here(rule);
		expect_now([] { return date_time_t::local_date_time(); }, &localtime_r);
		expect_now([] { return date_time_t(date_time::date::local_date(), date_time::time::local_time()); },
		           &localtime_r);
		expect_now([] { return date_time_t::UTC_date_time(); }, &gmtime_r);
		expect_now([] { return date_time_t(date_time::date::UTC_date(), date_time::time::UTC_time()); }, &gmtime_r);
	}
}

TEST(posix_clock, milliseconds_of_the_current_time_go_through_their_range) {
	auto const fields = [] { return date_time::time::UTC_time(); };
	auto const start = fields();
	int changes = 0;
	int last = start.millisecond();
	auto const end = std::chrono::steady_clock::now() + std::chrono::milliseconds(20);
	while (std::chrono::steady_clock::now() < end) {
		int const now = fields().millisecond();
		ASSERT_GE(now, 0);
		ASSERT_LE(now, 999);
		changes += now != last ? 1 : 0;
		last = now;
	}
	EXPECT_GE(changes, 2);
}

TEST(posix_clock, counter_is_the_monotonic_clock_in_nanoseconds) {
	EXPECT_EQ(platform::counter_frequency(), 1000000000U);
	auto const nanoseconds = [] {
		timespec now;
		clock_gettime(CLOCK_MONOTONIC, &now);
		return static_cast<std::uint64_t>(now.tv_sec) * 1000000000U + static_cast<std::uint64_t>(now.tv_nsec);
	};
	for (int round = 0; round != 1000; ++round) {
		auto const before = nanoseconds();
		auto const ticks = platform::counter_ticks();
		auto const after = nanoseconds();
		ASSERT_GE(ticks, before + 1); // so that it is never 0
		ASSERT_LE(ticks, after + 1);
	}
	auto const before = static_cast<std::uint32_t>(nanoseconds() / 1000000);
	auto const milliseconds = platform::counter_milliseconds();
	auto const after = static_cast<std::uint32_t>(nanoseconds() / 1000000);
	EXPECT_LE(milliseconds - before, after - before);
}

} // namespace
