#include <gtest/gtest.h>

#include <cstdint>
#include <type_traits>

#include <quor/quor.hpp>

namespace {

namespace date_time = quor::system::date_time;
using date_time::date_time_t;
using date_time::milliseconds;
using date_time::time_duration;
using quor::types::int64;

static_assert(sizeof(milliseconds) == 8 && std::is_trivially_copyable_v<milliseconds>);
static_assert(std::is_convertible_v<milliseconds *, time_duration *>);
static_assert(std::is_convertible_v<int64, milliseconds>);
static_assert(std::is_convertible_v<milliseconds, int>);
static_assert(!std::is_convertible_v<int, time_duration>);
static_assert(std::is_same_v<decltype(milliseconds(1) + milliseconds(2)), time_duration>);
static_assert(std::is_same_v<decltype(milliseconds(1) - milliseconds(2)), time_duration>);
static_assert(milliseconds(7) == 7);

TEST(milliseconds, is_a_duration_of_a_plain_count) {
	EXPECT_EQ(milliseconds().total_milliseconds(), 0);
	for (int64 const count : {int64(0), int64(1), int64(-1), int64(90061001), int64(INT64_MAX), int64(INT64_MIN)}) {
		SCOPED_TRACE(count);
		milliseconds value(count);
		EXPECT_EQ(value.total_milliseconds(), count);
		EXPECT_EQ(milliseconds(value).total_milliseconds(), count);
		milliseconds other(5);
		EXPECT_EQ(&other.assign(value), &other);
		EXPECT_EQ(other.total_milliseconds(), count);
		other = 7;
		EXPECT_EQ(other.total_milliseconds(), 7);
		EXPECT_EQ(&(other = value), &other);
		EXPECT_EQ(other.total_milliseconds(), count);
		time_duration const sliced = value;
		EXPECT_EQ(sliced.total_milliseconds(), count);
	}
}

TEST(milliseconds, as_int_is_the_lower_half) {
	struct {
		int64 count;
		int low;
	} const rows[] = {
	    {0, 0},           {-1, -1},        {2147483647, 2147483647}, {2147483648, -2147483647 - 1},
	    {4294967295, -1}, {4294967296, 0}, {4294967303, 7},          {-2147483649, 2147483647},
	    {INT64_MAX, -1},  {INT64_MIN, 0},
	};
	for (auto const &[count, low] : rows) {
		SCOPED_TRACE(count);
		int const found = milliseconds(count);
		EXPECT_EQ(found, low);
	}
}

TEST(milliseconds, everyday_use_compiles) {
	date_time::time const noon(12, 0, 0, 0);
	EXPECT_EQ((noon + milliseconds(5)).millisecond(), 5);
	EXPECT_EQ((milliseconds(5) + noon).millisecond(), 5);
	EXPECT_EQ((noon - milliseconds(1)).millisecond(), 999);
	EXPECT_EQ((milliseconds(5) + time_duration(0, 0, 1, 0)).total_milliseconds(), 1005);
	EXPECT_EQ((time_duration(0, 0, 1, 0) - milliseconds(5)).total_milliseconds(), 995);
	EXPECT_EQ((milliseconds(5) - milliseconds(7)).total_milliseconds(), -2);
	EXPECT_EQ(plus(noon, milliseconds(5)).millisecond(), 5);
	EXPECT_EQ(minus(milliseconds(5), milliseconds(7)).total_milliseconds(), -2);
	date_time::time later = noon;
	later += milliseconds(5);
	later -= milliseconds(2);
	EXPECT_EQ(later.millisecond(), 3);
	date_time_t both(date_time::date(1, 1, 2024), noon);
	both += milliseconds(5);
	both -= milliseconds(2);
	EXPECT_EQ(both.millisecond(), 3);
	milliseconds sum = 5;
	sum += milliseconds(4);
	sum -= time_duration(0, 0, 0, 1);
	EXPECT_EQ(sum, 8);
	EXPECT_TRUE(milliseconds(1) < milliseconds(2));
}

} // namespace
