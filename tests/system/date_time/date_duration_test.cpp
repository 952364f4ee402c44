#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <random>
#include <type_traits>

#include <quor/quor.hpp>

#include "reference/calendar.hpp"

namespace {

using quor::system::date_time::date_duration;
using quor_reference::low32;

static_assert(sizeof(date_duration) == 4 && std::is_trivially_copyable_v<date_duration>);
static_assert(std::is_same_v<decltype(date_duration().days()), int>);

TEST(date_duration, holds_a_number_of_days) {
	EXPECT_EQ(date_duration().days(), 0);
	for (int const days : {0, 1, -1, INT_MAX, INT_MIN}) {
		date_duration duration(days);
		EXPECT_EQ(duration.days(), days);
		EXPECT_EQ(date_duration(duration).days(), days);
		EXPECT_EQ(duration.days(days / 2), days / 2);
		EXPECT_EQ(duration.days(), days / 2);
		date_duration other(5);
		EXPECT_EQ(&other.assign(duration), &other);
		EXPECT_EQ(other.days(), days / 2);
		other = 7;
		EXPECT_EQ(&(other = duration), &other);
		EXPECT_EQ(other.days(), days / 2);
	}
}

TEST(date_duration, sums_and_differences_wrap_around) {
	struct {
		int a;
		int b;
		int sum;
		int difference;
	} const rows[] = {
	    {0, 0, 0, 0},
	    {5, 3, 8, 2},
	    {-5, 3, -2, -8},
	    {INT_MAX, 1, INT_MIN, INT_MAX - 1},
	    {INT_MIN, 1, INT_MIN + 1, INT_MAX},
	    {INT_MIN, INT_MIN, 0, 0},
	    {0, INT_MIN, INT_MIN, INT_MIN},
	    {INT_MAX, INT_MAX, -2, 0},
	};
	for (auto const &[a, b, sum, difference] : rows) {
		SCOPED_TRACE(testing::Message() << a << ' ' << b);
		date_duration duration(a);
		EXPECT_EQ(&duration.plus_assign(b), &duration);
		EXPECT_EQ(duration.days(), sum);
		duration = a;
		EXPECT_EQ(&(duration += date_duration(b)), &duration);
		EXPECT_EQ(duration.days(), sum);
		duration = a;
		EXPECT_EQ(&duration.minus_assign(b), &duration);
		EXPECT_EQ(duration.days(), difference);
		duration = a;
		EXPECT_EQ(&(duration -= date_duration(b)), &duration);
		EXPECT_EQ(duration.days(), difference);
	}
}

TEST(date_duration, an_object_may_be_its_own_argument) {
	date_duration duration(21);
	date_duration const &same = duration;
	duration += same;
	EXPECT_EQ(duration.days(), 42);
	duration -= same;
	EXPECT_EQ(duration.days(), 0);
}

TEST(date_duration, random_sums_are_those_of_64_bits_cut_to_32) {
	std::mt19937 random(31);
	for (int round = 0; round != 10000; ++round) {
		auto const a = static_cast<std::int32_t>(random());
		auto const b = static_cast<std::int32_t>(random());
		ASSERT_EQ(date_duration(a).plus_assign(b).days(), low32(std::int64_t(a) + b));
		ASSERT_EQ(date_duration(a).minus_assign(b).days(), low32(std::int64_t(a) - b));
	}
}

} // namespace
