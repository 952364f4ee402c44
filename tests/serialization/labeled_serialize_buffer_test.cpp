#include <quor/serialization/labeled_serialize_buffer.hpp>

#include <string>

#include <gtest/gtest.h>

#include "serialization/slots.hpp"

namespace {

using record = QUOR_2_9::serialization::labeled_serialize_buffer;

TEST(labeled_serialize_buffer, results_have_their_values) {
	EXPECT_EQ(static_cast<int>(record::value_stored), 0);
	EXPECT_EQ(static_cast<int>(record::value_replaced), 1);
}

#if defined(QUOR_TESTS_KNOW_SLOTS)

using quor_test::slot_of;

TEST(labeled_serialize_buffer, virtual_functions_stand_in_their_order) {
	using text = std::string const &;
	EXPECT_EQ(slot_of(static_cast<record &(record::*)(char const *, int)>(&record::assign)), 1U);
	EXPECT_EQ(slot_of(static_cast<record &(record::*)(text)>(&record::assign)), 2U);
	EXPECT_EQ(slot_of(static_cast<record &(record::*)(record const &)>(&record::assign)), 3U);
	EXPECT_EQ(slot_of(&record::as_str), 4U);
	EXPECT_EQ(slot_of(&record::add_value), 5U);
	EXPECT_EQ(slot_of(&record::create_group), 6U);
	EXPECT_EQ(slot_of(&record::has_label), 7U);
	EXPECT_EQ(slot_of(&record::has_value), 8U);
	EXPECT_EQ(slot_of(&record::has_group), 9U);
	EXPECT_EQ(slot_of(&record::is_empty), 10U);
	EXPECT_EQ(slot_of(&record::retrieve_value), 11U);
	EXPECT_EQ(slot_of(static_cast<record *(record::*)(text)>(&record::retrieve_group)), 12U);
	EXPECT_EQ(slot_of(static_cast<record const *(record::*)(text) const>(&record::retrieve_group)), 13U);
	EXPECT_EQ(slot_of(&record::create), 14U);
	EXPECT_EQ(slot_of(&record::clone), 15U);
}

#endif

} // namespace
