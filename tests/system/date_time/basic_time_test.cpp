#include <gtest/gtest.h>

#include <type_traits>

#include <quor/quor.hpp>

namespace {

using quor::system::date_time::basic_time;

static_assert(sizeof(basic_time) == 16 && std::is_trivially_copyable_v<basic_time>);
static_assert(!std::is_polymorphic_v<basic_time>);

TEST(basic_time, default_has_all_fields_0) {
	constexpr basic_time fields;
	EXPECT_EQ(fields.hour(), 0U);
	EXPECT_EQ(fields.minute(), 0U);
	EXPECT_EQ(fields.second(), 0U);
	EXPECT_EQ(fields.millisecond(), 0U);
}

TEST(basic_time, setters_store_whatever_they_are_given_and_return_it) {
	for (unsigned const value : {0U, 1U, 23U, 24U, 60U, 1000U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
		SCOPED_TRACE(value);
		basic_time fields;
		EXPECT_EQ(fields.hour(value), value);
		EXPECT_EQ(fields.minute(value - 1), value - 1);
		EXPECT_EQ(fields.second(value - 2), value - 2);
		EXPECT_EQ(fields.millisecond(value - 3), value - 3);
		basic_time other;
		EXPECT_EQ(&(other = fields), &other);
		EXPECT_EQ(other.hour(), value);
		EXPECT_EQ(other.minute(), value - 1);
		EXPECT_EQ(other.second(), value - 2);
		EXPECT_EQ(other.millisecond(), value - 3);
	}
}

} // namespace
