#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdint>
#include <random>
#include <type_traits>

#include <quor/quor.hpp>

#include "reference/calendar.hpp"

namespace {

using quor::system::date_time::time_duration;
using quor::types::int64;
using quor_reference::low32;

static_assert(sizeof(time_duration) == 8 && std::is_trivially_copyable_v<time_duration>);
static_assert(std::is_same_v<decltype(time_duration().total_milliseconds()), int64>);
static_assert(std::is_same_v<decltype(time_duration().hour()), int>);
static_assert((time_duration(1, 0, 0, 0) - time_duration(0, 0, 0, 1)).total_milliseconds() == 3599999);

constexpr int64 largest = INT64_MAX;
constexpr int64 smallest = INT64_MIN;

time_duration of(int64 milliseconds) {
	return time_duration(0, 0, 0, milliseconds);
}

TEST(time_duration, is_the_sum_of_its_parts) {
	struct {
		int hours;
		int minutes;
		int seconds;
		int64 milliseconds;
		int64 total;
	} const rows[] = {
	    {0, 0, 0, 0, 0},
	    {1, 2, 3, 4, 3723004},
	    {25, 0, 0, 0, 90000000},
	    {-1, 30, 0, 0, -1800000},
	    {0, 0, 0, -1500, -1500},
	    {596, 31, 23, 647, 2147483647},
	    {596, 31, 23, 648, 2147483648},
	    {0, 0, 0, largest, largest},
	    // The first three together wrap around at 32 bits, the whole at 64.
	    {597, 0, 0, 0, -2145767296},
	    {597, 0, 0, 4294967296, 2149200000},
	    {0, 0, 2147484, 0, -2147483296},
	    {0, 35792, 0, 0, -2147447296},
	    {INT_MAX, INT_MAX, INT_MAX, 0, low32(3661000LL * INT_MAX)},
	    {INT_MIN, INT_MIN, INT_MIN, 0, 0},
	    {0, 0, 1, largest, smallest + 999},
	    {0, 0, -1, smallest, largest - 999},
	};
	for (auto const &[hours, minutes, seconds, milliseconds, total] : rows) {
		SCOPED_TRACE(testing::Message() << hours << ':' << minutes << ':' << seconds << '.' << milliseconds);
		EXPECT_EQ(time_duration(hours, minutes, seconds, milliseconds).total_milliseconds(), total);
	}
}

TEST(time_duration, random_parts_are_summed_up_in_32_bits) {
	std::mt19937_64 random(24);
	for (int round = 0; round != 20000; ++round) {
		auto const part = [&random] { return static_cast<std::int32_t>(random()) >> (random() % 32); };
		int const hours = part();
		int const minutes = part();
		int const seconds = part();
		auto const milliseconds = static_cast<std::int64_t>(random()) >> (random() % 64);
		auto const whole = low32(hours * 3600000LL + minutes * 60000LL + seconds * 1000LL);
		auto const expected = static_cast<std::int64_t>(static_cast<std::uint64_t>(std::int64_t(whole)) +
		                                                static_cast<std::uint64_t>(milliseconds));
		ASSERT_EQ(time_duration(hours, minutes, seconds, milliseconds).total_milliseconds(), expected);
	}
}

TEST(time_duration, parts_are_cut_toward_zero_and_carry_the_sign) {
	struct {
		int64 total;
		int hour;
		int minute;
		int second;
		int millisecond;
	} const rows[] = {
	    {0, 0, 0, 0, 0},
	    {1, 0, 0, 0, 1},
	    {-1, 0, 0, 0, -1},
	    {999, 0, 0, 0, 999},
	    {1000, 0, 0, 1, 0},
	    {-1500, 0, 0, -1, -500},
	    {59999, 0, 0, 59, 999},
	    {60000, 0, 1, 0, 0},
	    {3599999, 0, 59, 59, 999},
	    {3600000, 1, 0, 0, 0},
	    {-3599999, 0, -59, -59, -999},
	    {-3600000, -1, 0, 0, 0},
	    {90000000, 25, 0, 0, 0},
	    {86399999, 23, 59, 59, 999},
	    {2147483647, 596, 31, 23, 647},
	    // The milliseconds are those of the lower 32 bits.
	    {2147483648, 596, 31, 23, -648},
	    {4294967295, 1193, 2, 47, -1},
	    {4294967296, 1193, 2, 47, 0},
	    {4294967297, 1193, 2, 47, 1},
	    {-2147483648, -596, -31, -23, -648},
	    {-2147483649, -596, -31, -23, 647},
	};
	for (auto const &[total, hour, minute, second, millisecond] : rows) {
		SCOPED_TRACE(total);
		EXPECT_EQ(of(total).hour(), hour);
		EXPECT_EQ(of(total).minute(), minute);
		EXPECT_EQ(of(total).second(), second);
		EXPECT_EQ(of(total).millisecond(), millisecond);
		EXPECT_EQ(of(total).total_milliseconds(), total);
		EXPECT_EQ(of(total).is_negative(), total < 0);
	}
}

// The lower 32 bits of the whole part, by a remainder.
int cut(double value) {
	double const rest = std::fmod(std::trunc(value), 4294967296.0);
	return low32(static_cast<std::int64_t>(rest));
}

void expect_parts(int64 total) {
	auto const as_double = static_cast<double>(total);
	SCOPED_TRACE(total);
	ASSERT_EQ(of(total).total_hours(), as_double / 3600000.0);
	ASSERT_EQ(of(total).total_minutes(), as_double / 60000.0);
	ASSERT_EQ(of(total).total_seconds(), as_double / 1000.0);
	ASSERT_EQ(of(total).hour(), cut(as_double / 3600000.0));
	ASSERT_EQ(of(total).minute(), cut(as_double / 60000.0) % 60);
	ASSERT_EQ(of(total).second(), cut(as_double / 1000.0) % 60);
	ASSERT_EQ(of(total).millisecond(), low32(total) % 1000);
}

TEST(time_duration, parts_beyond_an_int_lose_their_upper_bits) {
	// 2^31 hours, minutes and seconds, and the one before.
	EXPECT_EQ(of(2147483648LL * 3600000).hour(), INT_MIN);
	EXPECT_EQ(of(2147483648LL * 3600000 - 1).hour(), INT_MAX);
	EXPECT_EQ(of(4294967296LL * 3600000 + 7200000).hour(), 2);
	EXPECT_EQ(of(2147483648LL * 60000).minute(), INT_MIN % 60);
	EXPECT_EQ(of(2147483648LL * 1000).second(), INT_MIN % 60);
	EXPECT_EQ(of(4294967296LL * 1000 + 7000).second(), 7);
	for (int64 const total : {largest, largest - 1, smallest, smallest + 1, largest / 2, smallest / 2, int64(1) << 53,
	                          (int64(1) << 53) + 1, (int64(1) << 60) - 1}) {
		expect_parts(total);
	}
	std::mt19937_64 random(60);
	for (int round = 0; round != 50000; ++round) {
		auto const total = static_cast<std::int64_t>(random()) >> (random() % 64);
		expect_parts(total);
		expect_parts(total / 3600000 * 3600000);
	}
}

TEST(time_duration, sums_and_differences_wrap_around) {
	struct {
		int64 a;
		int64 b;
		int64 sum;
		int64 difference;
	} const rows[] = {
	    {0, 0, 0, 0},
	    {5, 3, 8, 2},
	    {-5, 3, -2, -8},
	    {2147483647, 1, 2147483648, 2147483646},
	    {largest, 1, smallest, largest - 1},
	    {smallest, 1, smallest + 1, largest},
	    {0, smallest, smallest, smallest},
	    {largest, largest, -2, 0},
	};
	for (auto const &[a, b, sum, difference] : rows) {
		SCOPED_TRACE(testing::Message() << a << ' ' << b);
		time_duration duration = of(a);
		EXPECT_EQ(&duration.plus_assign(of(b)), &duration);
		EXPECT_EQ(duration.total_milliseconds(), sum);
		duration = of(a);
		EXPECT_EQ(&(duration += of(b)), &duration);
		EXPECT_EQ(duration.total_milliseconds(), sum);
		duration = of(a);
		EXPECT_EQ(&duration.minus_assign(of(b)), &duration);
		EXPECT_EQ(duration.total_milliseconds(), difference);
		duration = of(a);
		EXPECT_EQ(&(duration -= of(b)), &duration);
		EXPECT_EQ(duration.total_milliseconds(), difference);
		EXPECT_EQ(plus(of(a), of(b)).total_milliseconds(), sum);
		EXPECT_EQ((of(a) + of(b)).total_milliseconds(), sum);
		EXPECT_EQ(minus(of(a), of(b)).total_milliseconds(), difference);
		EXPECT_EQ((of(a) - of(b)).total_milliseconds(), difference);
	}
}

TEST(time_duration, assign_takes_over_the_time) {
	time_duration duration;
	EXPECT_EQ(duration.total_milliseconds(), 0);
	EXPECT_EQ(&duration.assign(of(largest)), &duration);
	EXPECT_EQ(duration.total_milliseconds(), largest);
	time_duration const &same = duration;
	duration += same;
	EXPECT_EQ(duration.total_milliseconds(), -2);
	duration -= same;
	EXPECT_EQ(duration.total_milliseconds(), 0);
}

} // namespace
