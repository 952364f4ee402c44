#include <quor/serialization/serialize_binary_buf.hpp>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "support/serialize_fields.hpp"

namespace {

using QUOR_2_9::serialization::serialize_binary_buf;
using QUOR_2_9::serialization::serialize_buffer;
using quor_reference::field_type;

std::string bytes(char const *data, std::size_t size) {
	return std::string(data, size);
}

TEST(serialize_binary_buf, values_are_bytes_in_their_order) {
	serialize_binary_buf buffer;
	buffer.append_uint16(0x0102);
	buffer.append_string("ab");
	EXPECT_EQ(buffer.as_str(), bytes("\x02\x01\x02\0\0\0ab", 8));
	EXPECT_EQ(buffer.read_uint16(), 0x0102);
	EXPECT_EQ(buffer.read_string(), "ab");
	EXPECT_TRUE(buffer.at_end());
}

TEST(serialize_binary_buf, precision_is_ignored) {
	for (unsigned int const precision : {0U, 1U, 6U, 400U, 4294967295U}) {
		serialize_binary_buf buffer;
		buffer.append_float(0.1F, precision);
		buffer.append_double(0.1, precision);
		EXPECT_EQ(buffer.as_str(), bytes("\xCD\xCC\xCC\x3D\x9A\x99\x99\x99\x99\x99\xB9\x3F", 12));
		EXPECT_EQ(buffer.read_float(), 0.1F);
		EXPECT_EQ(buffer.read_double(), 0.1);
	}
}

TEST(serialize_binary_buf, bits_of_doubles_are_kept) {
	for (std::uint64_t const bits : {0x7FF8000000000001ULL, 0xFFF8000000000000ULL, 0x8000000000000000ULL, 1ULL}) {
		double value = 0;
		std::memcpy(&value, &bits, sizeof value);
		serialize_binary_buf buffer;
		buffer.append_double(value, 17);
		double const found = buffer.read_double();
		std::uint64_t found_bits = 0;
		std::memcpy(&found_bits, &found, sizeof found_bits);
		EXPECT_EQ(found_bits, bits);
	}
}

TEST(serialize_binary_buf, empty_buffer_gives_zero_values) {
	serialize_binary_buf const buffer;
	EXPECT_TRUE(buffer.at_end());
	EXPECT_EQ(buffer.read_int8(), 0);
	EXPECT_EQ(buffer.read_int16(), 0);
	EXPECT_EQ(buffer.read_int32(), 0);
	EXPECT_EQ(buffer.read_int64(), 0);
	EXPECT_EQ(buffer.read_uint8(), 0U);
	EXPECT_EQ(buffer.read_uint16(), 0U);
	EXPECT_EQ(buffer.read_uint32(), 0U);
	EXPECT_EQ(buffer.read_uint64(), 0U);
	EXPECT_EQ(buffer.read_float(), 0.0F);
	EXPECT_EQ(buffer.read_double(), 0.0);
	EXPECT_EQ(buffer.read_string(), "");
	EXPECT_EQ(buffer.read_buffer(), nullptr);
	EXPECT_TRUE(buffer.at_end());
}

TEST(serialize_binary_buf, reads_at_the_end_leave_the_position) {
	serialize_binary_buf buffer;
	buffer.append_uint8(1);
	EXPECT_EQ(buffer.read_uint8(), 1U);
	EXPECT_EQ(buffer.read_int64(), 0);
	EXPECT_EQ(buffer.read_string(), "");
	EXPECT_EQ(buffer.read_buffer(), nullptr);
	buffer.append_uint8(2);
	EXPECT_EQ(buffer.read_uint8(), 2U);
}

TEST(serialize_binary_buf, missing_bytes_count_as_zero_and_the_position_moves_by_the_width) {
	struct row {
		field_type type;
		std::string content;
		std::string expected;
		std::size_t width;
	};
	row const rows[] = {
	    {field_type::int16, "\xFF", "255", 2},
	    {field_type::uint16, "\x01", "1", 2},
	    {field_type::int32, "\xFF\xFF\xFF", "16777215", 4},
	    {field_type::uint32, "\x01", "1", 4},
	    {field_type::int64, "\xFF\xFF\xFF\xFF\xFF\xFF\xFF", "72057594037927935", 8},
	    {field_type::uint64, "\x01\x02", "513", 8},
	    {field_type::single, bytes("\0\0\x80", 3), quor_reference::number_text(std::ldexp(1.0, -126)), 4},
	    {field_type::number, bytes("\0\0\0\0\0\0\xF0", 7), quor_reference::number_text(std::ldexp(1.0, -1008)), 8}};
	for (row const &r : rows) {
		SCOPED_TRACE(r.expected);
		serialize_binary_buf buffer(r.content);
		EXPECT_EQ(quor_test::read_field(buffer, r.type), r.expected);
		EXPECT_TRUE(buffer.at_end());
		// The position is exactly behind the width.
		buffer.assign(std::string(r.width, 'x') + "y");
		EXPECT_EQ(buffer.read_uint8(), 'y');
	}
}

TEST(serialize_binary_buf, mismatched_types_are_not_noticed) {
	serialize_binary_buf buffer;
	buffer.append_int32(0x01020304);
	EXPECT_EQ(buffer.read_int8(), 4);
	EXPECT_EQ(buffer.read_int8(), 3);
	EXPECT_EQ(buffer.read_uint16(), 0x0102U);
	EXPECT_TRUE(buffer.at_end());
}

TEST(serialize_binary_buf, empty_strings_are_read_in_the_middle_and_at_the_end) {
	serialize_binary_buf buffer;
	buffer.append_string("");
	buffer.append_int8(5);
	buffer.append_string("");
	EXPECT_EQ(buffer.read_string(), "");
	EXPECT_FALSE(buffer.at_end());
	EXPECT_EQ(buffer.read_int8(), 5);
	EXPECT_FALSE(buffer.at_end());
	EXPECT_EQ(buffer.read_string(), "");
	EXPECT_TRUE(buffer.at_end());
}

TEST(serialize_binary_buf, empty_nested_buffer_is_null_at_the_very_end_only) {
	serialize_binary_buf buffer;
	buffer.append_buffer(serialize_binary_buf());
	buffer.append_int8(5);
	buffer.append_buffer(serialize_binary_buf());
	std::unique_ptr<serialize_buffer> const middle(buffer.read_buffer());
	ASSERT_NE(middle, nullptr);
	EXPECT_EQ(middle->as_str(), "");
	EXPECT_TRUE(middle->at_end());
	EXPECT_EQ(buffer.read_int8(), 5);
	EXPECT_EQ(buffer.read_buffer(), nullptr);
	EXPECT_TRUE(buffer.at_end());
}

TEST(serialize_binary_buf, nested_buffer_reads_from_its_start) {
	serialize_binary_buf inner;
	inner.append_int32(1);
	inner.append_int32(2);
	inner.read_int32();
	serialize_binary_buf outer;
	outer.append_buffer(inner);
	outer.append_int8(3);
	std::unique_ptr<serialize_buffer> const nested(outer.read_buffer());
	EXPECT_EQ(nested->read_int32(), 1);
	EXPECT_EQ(nested->read_int32(), 2);
	EXPECT_TRUE(nested->at_end());
	EXPECT_EQ(outer.read_int8(), 3);
	EXPECT_EQ(inner.read_int32(), 2);
}

TEST(serialize_binary_buf, too_large_a_length_gives_what_there_is) {
	struct row {
		std::string content;
		std::string expected;
	};
	row const rows[] = {{bytes("\x03\0\0\0ab", 6), "ab"},
	                    {bytes("\xFF\xFF\xFF\x7F"
	                           "ab",
	                           6),
	                     "ab"},
	                    {bytes("\0\0\0\x80"
	                           "ab",
	                           6),
	                     "ab"},
	                    {bytes("\xFE\xFF\xFF\xFF"
	                           "ab",
	                           6),
	                     "ab"},
	                    {bytes("\xFF\xFF\xFF\xFF"
	                           "ab",
	                           6),
	                     "ab"},
	                    {bytes("\xFF\xFF\xFF\xFF", 4), ""},
	                    {bytes("\x01\0\0", 3), ""},
	                    {bytes("\x01", 1), ""}};
	for (row const &r : rows) {
		SCOPED_TRACE(testing::PrintToString(r.content));
		serialize_binary_buf buffer(r.content);
		EXPECT_EQ(buffer.read_string(), r.expected);
		EXPECT_TRUE(buffer.at_end());
		EXPECT_EQ(buffer.read_string(), "");
		buffer.reset_read();
		std::unique_ptr<serialize_buffer> const nested(buffer.read_buffer());
		EXPECT_EQ(nested == nullptr ? std::string() : nested->as_str(), r.expected);
		EXPECT_EQ(nested == nullptr, r.expected.empty());
		EXPECT_TRUE(buffer.at_end());
	}
}

TEST(serialize_binary_buf, strings_of_any_length_stand_before_any_rest) {
	for (std::size_t size = 0; size != 20; ++size) {
		for (std::size_t rest = 0; rest != 20; ++rest) {
			SCOPED_TRACE(std::to_string(size) + " and " + std::to_string(rest));
			std::string const text = std::string("0\x00\xFF\x01-abcdefghijklmnopqrs", 23).substr(0, size);
			serialize_binary_buf buffer;
			buffer.append_int8(1);
			buffer.append_string(text);
			buffer.assign(buffer.as_str() + std::string(rest, '\x05'));
			EXPECT_EQ(buffer.read_int8(), 1);
			EXPECT_EQ(buffer.read_string(), text);
			for (std::size_t i = 0; i != rest; ++i) {
				EXPECT_EQ(buffer.read_int8(), 5);
			}
			EXPECT_TRUE(buffer.at_end());
		}
	}
}

TEST(serialize_binary_buf, position_moves_by_the_declared_length) {
	serialize_binary_buf buffer(bytes("\x0A\0\0\0ab", 6));
	EXPECT_EQ(buffer.read_string(), "ab");
	buffer.assign(std::string(14, 'x') + "y");
	EXPECT_EQ(buffer.read_int8(), 'y');
}

TEST(serialize_binary_buf, length_beyond_32_bits_leaves_nothing_to_read) {
	serialize_binary_buf buffer(bytes("\xFF\xFF\xFF\xFF"
	                                  "ab",
	                                  6));
	EXPECT_EQ(buffer.read_string(), "ab");
	buffer.assign(std::string(100000, 'x'));
	EXPECT_TRUE(buffer.at_end());
	EXPECT_EQ(buffer.read_int8(), 0);
	EXPECT_EQ(buffer.read_string(), "");
	EXPECT_EQ(buffer.read_buffer(), nullptr);
	serialize_binary_buf const copy(buffer);
	EXPECT_TRUE(copy.at_end());
	buffer.reset_read();
	EXPECT_EQ(buffer.read_int8(), 'x');
}

} // namespace
