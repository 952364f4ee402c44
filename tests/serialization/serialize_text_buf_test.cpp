#include <quor/serialization/serialize_text_buf.hpp>

#include <string>

#include <gtest/gtest.h>

namespace {

using QUOR_2_9::serialization::serialize_text_buf;

TEST(serialize_text_buf, values_are_read_in_their_order) {
	serialize_text_buf buffer;
	buffer.append_int32(-5);
	buffer.append_string("ab");
	buffer.append_double(1.5, 6);
	EXPECT_EQ(buffer.read_int32(), -5);
	EXPECT_EQ(buffer.read_string(), "ab");
	EXPECT_EQ(buffer.read_double(), 1.5);
	EXPECT_TRUE(buffer.at_end());
}

} // namespace
