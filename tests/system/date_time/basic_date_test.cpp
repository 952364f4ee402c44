#include <gtest/gtest.h>

#include <type_traits>

#include <quor/quor.hpp>

namespace {

using quor::system::date_time::basic_date;

static_assert(sizeof(basic_date) == 12 && std::is_trivially_copyable_v<basic_date>);
static_assert(!std::is_polymorphic_v<basic_date>);

TEST(basic_date, default_has_all_fields_0) {
	constexpr basic_date fields;
	EXPECT_EQ(fields.year(), 0U);
	EXPECT_EQ(fields.month(), 0U);
	EXPECT_EQ(fields.day(), 0U);
}

TEST(basic_date, setters_store_whatever_they_are_given_and_return_it) {
	for (unsigned const value : {0U, 1U, 12U, 13U, 31U, 32U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
		SCOPED_TRACE(value);
		basic_date fields;
		EXPECT_EQ(fields.year(value), value);
		EXPECT_EQ(fields.month(value - 1), value - 1);
		EXPECT_EQ(fields.day(value - 2), value - 2);
		EXPECT_EQ(fields.year(), value);
		EXPECT_EQ(fields.month(), value - 1);
		EXPECT_EQ(fields.day(), value - 2);
		basic_date other;
		EXPECT_EQ(&(other = fields), &other);
		EXPECT_EQ(other.year(), value);
		EXPECT_EQ(other.month(), value - 1);
		EXPECT_EQ(other.day(), value - 2);
	}
}

} // namespace
