// Constants of the library's classes are objects too: a reference to one must be found in
// the shared library.

#include <gtest/gtest.h>

#include <cstddef>

#include <quor/quor.hpp>

namespace {

using quor::config::config_tree;
using quor::serialization::labeled_text_buffer;
using quor::system::date_time::date;
using quor::system::date_time::date_time_t;
using quor::system::date_time::time;

struct constant {
	char const *name;
	unsigned int const *address;
	unsigned int value;
};

#define CONSTANT(name, value)                                                                                          \
  constant {                                                                                                           \
#	name, &name, value                                                                                                \
  }

constant const constants[] = {
    CONSTANT(date::max_months_in_year, 12),
    CONSTANT(date::max_weeks_in_year, 52),
    CONSTANT(date::max_days_in_month, 31),
    CONSTANT(time::min_hour, 0),
    CONSTANT(time::max_hour, 23),
    CONSTANT(time::min_minute, 0),
    CONSTANT(time::max_minute, 59),
    CONSTANT(time::min_second, 0),
    CONSTANT(time::max_second, 59),
    CONSTANT(time::min_millisecond, 0),
    CONSTANT(time::max_millisecond, 999),
    CONSTANT(date_time_t::max_months_in_year, 12),
    CONSTANT(date_time_t::max_weeks_in_year, 52),
    CONSTANT(date_time_t::max_days_in_month, 32),
    CONSTANT(date_time_t::min_hour, 0),
    CONSTANT(date_time_t::max_hour, 23),
    CONSTANT(date_time_t::min_minute, 0),
    CONSTANT(date_time_t::max_minute, 59),
    CONSTANT(date_time_t::min_second, 0),
    CONSTANT(date_time_t::max_second, 59),
    CONSTANT(date_time_t::min_millisecond, 0),
    CONSTANT(date_time_t::max_millisecond, 999),
    CONSTANT(config_tree::flag_set, 1),
    CONSTANT(config_tree::flag_array, 2),
    CONSTANT(config_tree::flag_reference, 4),
};

TEST(exported_constants, have_addresses) {
	for (constant const &each : constants) {
		EXPECT_EQ(*each.address, each.value) << each.name;
	}
	std::size_t const *volatile limit = &labeled_text_buffer::nesting_limit;
	EXPECT_EQ(*limit, 1000U);
}

} // namespace
