#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cstdint>
#include <ctime>
#include <random>
#include <string>
#include <type_traits>

#include <quor/quor.hpp>

#include "reference/calendar.hpp"
#include "support/out_of_range.hpp"

namespace {

namespace date_time = quor::system::date_time;
using date_time::basic_time;
using date_time::time_duration;
using quor::types::int64;
using quor_test::out_of_range_of;

// The C library's function of this name is visible here, so the class is called otherwise.
using day_time = date_time::time;

static_assert(sizeof(day_time) == 16 && std::is_trivially_copyable_v<day_time>);
static_assert(std::is_convertible_v<day_time *, basic_time *>);
static_assert(std::is_same_v<decltype(day_time().hour()), int>);
static_assert(std::is_same_v<decltype(day_time().hour(1)), int>);
static_assert(std::is_same_v<decltype(day_time::max_hour), unsigned const>);
static_assert(day_time::min_hour == 0 && day_time::max_hour == 23 && day_time::min_minute == 0);
static_assert(day_time::max_minute == 59 && day_time::min_second == 0 && day_time::max_second == 59);
static_assert(day_time::min_millisecond == 0 && day_time::max_millisecond == 999);
static_assert((day_time(23, 59, 59, 999) + time_duration(0, 0, 0, 1)).hour() == 0);

using fields = std::array<int, 4>;

fields fields_of(day_time const &time) {
	return {time.hour(), time.minute(), time.second(), time.millisecond()};
}

day_time made_of(fields const &values) {
	day_time result;
	basic_time &base = result;
	base.hour(static_cast<unsigned>(values[0]));
	base.minute(static_cast<unsigned>(values[1]));
	base.second(static_cast<unsigned>(values[2]));
	base.millisecond(static_cast<unsigned>(values[3]));
	return result;
}

time_duration of(int64 milliseconds) {
	return time_duration(0, 0, 0, milliseconds);
}

char const *const hour_message = "Hour value out of valid range";
char const *const minute_message = "Minute value out of valid range";
char const *const second_message = "Second value out of valid range";
char const *const millisecond_message = "Millisecond value out of valid range";

TEST(time, default_is_midnight) {
	EXPECT_EQ(fields_of(day_time()), (fields{0, 0, 0, 0}));
	day_time const noon(12, 34, 56, 789);
	EXPECT_EQ(fields_of(noon), (fields{12, 34, 56, 789}));
	day_time other;
	EXPECT_EQ(&other.assign(noon), &other);
	EXPECT_EQ(fields_of(other), fields_of(noon));
	other = day_time(1, 2, 3, 4);
	EXPECT_EQ(fields_of(other), (fields{1, 2, 3, 4}));
}

TEST(time, out_of_range_fields_throw_the_first_in_order) {
	struct {
		std::array<unsigned, 4> values;
		std::string message;
	} const rows[] = {
	    {{0, 0, 0, 0}, ""},
	    {{23, 59, 59, 999}, ""},
	    {{24, 0, 0, 0}, hour_message},
	    {{0, 60, 0, 0}, minute_message},
	    {{0, 0, 60, 0}, second_message},
	    {{0, 0, 0, 1000}, millisecond_message},
	    {{24, 60, 60, 1000}, hour_message},
	    {{23, 60, 60, 1000}, minute_message},
	    {{23, 59, 60, 1000}, second_message},
	    {{0xFFFFFFFFU, 0, 0, 0}, hour_message},
	    {{0, 0xFFFFFFFFU, 0, 0}, minute_message},
	    {{0, 0, 0xFFFFFFFFU, 0}, second_message},
	    {{0, 0, 0, 0xFFFFFFFFU}, millisecond_message},
	};
	for (auto const &[values, message] : rows) {
		SCOPED_TRACE(testing::PrintToString(values));
		EXPECT_EQ(out_of_range_of([&v = values] { day_time(v[0], v[1], v[2], v[3]); }), message);
	}
}

// One field with its setter, getter, test and bound.
struct field_row {
	char const *name;
	int (day_time::*set)(unsigned);
	int (day_time::*get)() const noexcept;
	bool (day_time::*is_valid)(int) const noexcept;
	unsigned largest;
	char const *message;
};

field_row const field_rows[] = {
    {"hour", &day_time::hour, &day_time::hour, &day_time::is_valid_hour, 23, hour_message},
    {"minute", &day_time::minute, &day_time::minute, &day_time::is_valid_minute, 59, minute_message},
    {"second", &day_time::second, &day_time::second, &day_time::is_valid_second, 59, second_message},
    {"millisecond", &day_time::millisecond, &day_time::millisecond, &day_time::is_valid_millisecond, 999,
     millisecond_message},
};

TEST(time, setters_return_the_value_or_throw_and_leave_the_field) {
	for (auto const &row : field_rows) {
		SCOPED_TRACE(row.name);
		day_time value(1, 2, 3, 4);
		for (unsigned good = 0; good <= row.largest; ++good) {
			ASSERT_TRUE((value.*row.is_valid)(static_cast<int>(good)));
			ASSERT_EQ((value.*row.set)(good), static_cast<int>(good));
			ASSERT_EQ((value.*row.get)(), static_cast<int>(good));
		}
		auto const before = fields_of(value);
		for (unsigned const bad : {row.largest + 1, row.largest + 2, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
			SCOPED_TRACE(bad);
			EXPECT_FALSE((value.*row.is_valid)(static_cast<int>(bad)));
			EXPECT_EQ(out_of_range_of([&, set = row.set] { (value.*set)(bad); }), row.message);
			EXPECT_EQ(fields_of(value), before);
		}
	}
}

TEST(time, each_setter_changes_its_field_alone) {
	day_time value(1, 2, 3, 4);
	value.hour(20);
	EXPECT_EQ(fields_of(value), (fields{20, 2, 3, 4}));
	value.minute(21);
	EXPECT_EQ(fields_of(value), (fields{20, 21, 3, 4}));
	value.second(22);
	EXPECT_EQ(fields_of(value), (fields{20, 21, 22, 4}));
	value.millisecond(23);
	EXPECT_EQ(fields_of(value), (fields{20, 21, 22, 23}));
}

// What arithmetic leaves: the fields, and the exception where it throws.
struct sum_row {
	fields start;
	int64 milliseconds;
	fields end;
	std::string message;
};

sum_row const sum_rows[] = {
    {{0, 0, 0, 0}, 0, {0, 0, 0, 0}, ""},
    {{23, 59, 59, 999}, 1, {0, 0, 0, 0}, ""},
    {{0, 0, 0, 0}, -1, {23, 59, 59, 999}, ""},
    {{12, 30, 0, 0}, 3600000, {13, 30, 0, 0}, ""},
    {{12, 30, 0, 0}, 86400000, {12, 30, 0, 0}, ""},
    {{12, 30, 0, 0}, 10 * int64(86400000) + 1, {12, 30, 0, 1}, ""},
    {{12, 30, 0, 0}, -86400000, {12, 30, 0, 0}, ""},
    {{0, 0, 0, 0}, -86400000, {0, 0, 0, 0}, ""},
    {{0, 0, 0, 0}, -2 * int64(86400000), {0, 0, 0, 0}, ""},
    // Below minus one day: stored until a negative field comes.
    {{0, 0, 0, 0}, -90000000, {0, 0, 0, 0}, hour_message},
    {{0, 0, 0, 7}, -86400507, {0, 0, 0, 7}, millisecond_message},
    {{5, 6, 7, 8}, -86400000 - 18367008 - 500, {0, 0, 0, 8}, millisecond_message},
    {{5, 6, 7, 8}, -86400000 - 18367008 - 1500, {0, 0, 7, 8}, second_message},
    {{5, 6, 7, 8}, -86400000 - 18367008 - 61000, {0, 6, 7, 8}, minute_message},
    {{5, 6, 7, 8}, -86400000 - 18367008 - 3600000, {5, 6, 7, 8}, hour_message},
    // Fields that only the base takes count as they stand.
    {{99, 0, 0, 0}, 0, {3, 0, 0, 0}, ""},
    {{0, -1, 0, 0}, 0, {23, 59, 0, 0}, ""},
};

TEST(time, plus_goes_round_at_midnight) {
	for (auto const &row : sum_rows) {
		SCOPED_TRACE(testing::Message() << testing::PrintToString(row.start) << " + " << row.milliseconds);
		day_time value = made_of(row.start);
		EXPECT_EQ(out_of_range_of([&] { EXPECT_EQ(&value.plus_assign(of(row.milliseconds)), &value); }), row.message);
		EXPECT_EQ(fields_of(value), row.end);
		value = made_of(row.start);
		EXPECT_EQ(out_of_range_of([&] { EXPECT_EQ(&(value += of(row.milliseconds)), &value); }), row.message);
		EXPECT_EQ(fields_of(value), row.end);
		value = made_of(row.start);
		EXPECT_EQ(out_of_range_of([&] { EXPECT_EQ(&value.minus_assign(of(-row.milliseconds)), &value); }), row.message);
		EXPECT_EQ(fields_of(value), row.end);
		value = made_of(row.start);
		EXPECT_EQ(out_of_range_of([&] { EXPECT_EQ(&(value -= of(-row.milliseconds)), &value); }), row.message);
		EXPECT_EQ(fields_of(value), row.end);
	}
}

TEST(time, free_functions_and_operators_leave_their_arguments) {
	for (auto const &row : sum_rows) {
		SCOPED_TRACE(testing::Message() << testing::PrintToString(row.start) << " + " << row.milliseconds);
		day_time const start = made_of(row.start);
		time_duration const up = of(row.milliseconds);
		time_duration const down = of(-row.milliseconds);
		day_time end;
		auto const check = [&](auto const &action) {
			end = day_time();
			EXPECT_EQ(out_of_range_of([&] { end = action(); }), row.message);
			EXPECT_EQ(fields_of(end), row.message.empty() ? row.end : fields());
			EXPECT_EQ(fields_of(start), row.start);
		};
		check([&] { return plus(start, up); });
		check([&] { return plus(up, start); });
		check([&] { return start + up; });
		check([&] { return up + start; });
		check([&] { return minus(start, down); });
		check([&] { return start - down; });
	}
}

// The sum by the steps, with 64 bits that wrap around and an hour in floating point.
sum_row by_steps(fields const &start, int64 milliseconds) {
	auto const first = static_cast<std::uint32_t>(start[0]) * 3600000U + static_cast<std::uint32_t>(start[1]) * 60000U +
	                   static_cast<std::uint32_t>(start[2]) * 1000U;
	auto const sum = static_cast<std::uint64_t>(std::int64_t(static_cast<std::int32_t>(first))) +
	                 static_cast<std::uint64_t>(std::int64_t(start[3])) + static_cast<std::uint64_t>(milliseconds) +
	                 86400000U;
	auto const rest = static_cast<int>(static_cast<std::int64_t>(sum) % 86400000);
	fields const parts = {rest / 3600000, rest / 60000 % 60, rest / 1000 % 60, rest % 1000};
	char const *const messages[] = {hour_message, minute_message, second_message, millisecond_message};
	sum_row result{start, milliseconds, start, ""};
	for (std::size_t i = 0; i != 4 && result.message.empty(); ++i) {
		if (parts[i] < 0) {
			result.message = messages[i];
		} else {
			result.end[i] = parts[i];
		}
	}
	return result;
}

TEST(time, random_sums_are_those_of_the_steps) {
	std::mt19937_64 random(86400);
	std::map<std::string, int> outcomes;
	for (int round = 0; round != 200000; ++round) {
		fields start{};
		for (int &field : start) {
			field = round % 4 == 0 ? static_cast<std::int32_t>(random()) >> (random() % 32)
			                       : static_cast<int>(random() % 24);
		}
		auto const duration = static_cast<std::int64_t>(random()) >> (random() % 64);
		auto const plus_row = by_steps(start, duration);
		day_time value = made_of(start);
		ASSERT_EQ(out_of_range_of([&] { value += of(duration); }), plus_row.message) << duration;
		ASSERT_EQ(fields_of(value), plus_row.end) << testing::PrintToString(start) << duration;
		++outcomes[plus_row.message];

		auto const minus_row = by_steps(start, static_cast<std::int64_t>(0U - static_cast<std::uint64_t>(duration)));
		value = made_of(start);
		ASSERT_EQ(out_of_range_of([&] { value -= of(duration); }), minus_row.message) << duration;
		ASSERT_EQ(fields_of(value), minus_row.end) << testing::PrintToString(start) << duration;
	}
	EXPECT_EQ(outcomes.size(), 5U);
}

TEST(time, every_sum_within_a_day_is_reached) {
	day_time value;
	int64 at = 0;
	for (int64 const step : {997, 59999, 3599999, 86399999}) {
		for (int round = 0; round != 90000; ++round) {
			value += of(step);
			at = (at + step) % 86400000;
			ASSERT_EQ((value - day_time()).total_milliseconds(), at);
		}
	}
}

TEST(time, difference_may_be_negative) {
	struct {
		fields end;
		fields start;
		int64 milliseconds;
	} const rows[] = {
	    {{0, 0, 0, 0}, {0, 0, 0, 0}, 0},
	    {{23, 59, 59, 999}, {0, 0, 0, 0}, 86399999},
	    {{0, 0, 0, 0}, {23, 59, 59, 999}, -86399999},
	    {{12, 0, 0, 0}, {11, 59, 59, 999}, 1},
	    {{1, 2, 3, 4}, {4, 3, 2, 1}, -10858997},
	    // Beyond a day only through the base; 32 bits wrap around.
	    {{597, 0, 0, 0}, {0, 0, 0, 0}, -2145767296},
	    {{0, 0, 0, INT_MIN}, {0, 0, 0, 1}, INT_MAX},
	    {{INT_MIN, 0, 0, 0}, {1, 0, 0, 0}, quor_reference::low32(3600000LL * INT_MAX)},
	    {{0, INT_MIN, 0, 0}, {0, 1, 0, 0}, quor_reference::low32(60000LL * INT_MAX)},
	    {{0, 0, INT_MIN, 0}, {0, 0, 1, 0}, quor_reference::low32(1000LL * INT_MAX)},
	    {{0, 0, 2147483, 1000}, {0, 0, 0, 0}, 2147484000},
	};
	for (auto const &[end, start, milliseconds] : rows) {
		SCOPED_TRACE(testing::PrintToString(end) + testing::PrintToString(start));
		EXPECT_EQ(minus(made_of(end), made_of(start)).total_milliseconds(), milliseconds);
		EXPECT_EQ((made_of(end) - made_of(start)).total_milliseconds(), milliseconds);
	}
}

TEST(time, name_stands_beside_that_of_the_c_library) {
	EXPECT_NE(::time(nullptr), std::time_t());
	EXPECT_EQ(date_time::time(1, 2, 3, 4).hour(), 1);
}

} // namespace
