#include <quor/serialization/serialize_buffer.hpp>

#include <string>

#include <gtest/gtest.h>

#include "serialization/slots.hpp"

namespace {

using buffer = QUOR_2_9::serialization::serialize_buffer;

#if defined(QUOR_TESTS_KNOW_SLOTS)

using quor_test::slot_of;

TEST(serialize_buffer, virtual_functions_stand_in_their_order) {
	EXPECT_EQ(slot_of(static_cast<buffer &(buffer::*)(char const *, int)>(&buffer::assign)), 1U);
	EXPECT_EQ(slot_of(static_cast<buffer &(buffer::*)(std::string const &)>(&buffer::assign)), 2U);
	EXPECT_EQ(slot_of(static_cast<buffer &(buffer::*)(buffer const &)>(&buffer::assign)), 3U);
	EXPECT_EQ(slot_of(&buffer::as_str), 4U);
	EXPECT_EQ(slot_of(&buffer::append_int8), 5U);
	EXPECT_EQ(slot_of(&buffer::append_int16), 6U);
	EXPECT_EQ(slot_of(&buffer::append_int32), 7U);
	EXPECT_EQ(slot_of(&buffer::append_int64), 8U);
	EXPECT_EQ(slot_of(&buffer::append_uint8), 9U);
	EXPECT_EQ(slot_of(&buffer::append_uint16), 10U);
	EXPECT_EQ(slot_of(&buffer::append_uint32), 11U);
	EXPECT_EQ(slot_of(&buffer::append_uint64), 12U);
	EXPECT_EQ(slot_of(&buffer::append_float), 13U);
	EXPECT_EQ(slot_of(&buffer::append_double), 14U);
	EXPECT_EQ(slot_of(&buffer::append_string), 15U);
	EXPECT_EQ(slot_of(&buffer::append_buffer), 16U);
	EXPECT_EQ(slot_of(&buffer::read_int8), 17U);
	EXPECT_EQ(slot_of(&buffer::read_int16), 18U);
	EXPECT_EQ(slot_of(&buffer::read_int32), 19U);
	EXPECT_EQ(slot_of(&buffer::read_int64), 20U);
	EXPECT_EQ(slot_of(&buffer::read_uint8), 21U);
	EXPECT_EQ(slot_of(&buffer::read_uint16), 22U);
	EXPECT_EQ(slot_of(&buffer::read_uint32), 23U);
	EXPECT_EQ(slot_of(&buffer::read_uint64), 24U);
	EXPECT_EQ(slot_of(&buffer::read_float), 25U);
	EXPECT_EQ(slot_of(&buffer::read_double), 26U);
	EXPECT_EQ(slot_of(&buffer::read_string), 27U);
	EXPECT_EQ(slot_of(&buffer::read_buffer), 28U);
	EXPECT_EQ(slot_of(&buffer::at_end), 29U);
	EXPECT_EQ(slot_of(&buffer::reset_read), 30U);
	EXPECT_EQ(slot_of(&buffer::create), 31U);
	EXPECT_EQ(slot_of(&buffer::clone), 32U);
}

#endif

} // namespace
