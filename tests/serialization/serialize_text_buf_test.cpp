#include <quor/serialization/serialize_text_buf.hpp>

#include <cstdint>
#include <limits>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "serialization/golden_files.hpp"
#include "support/serialize_fields.hpp"

namespace {

using QUOR_2_9::serialization::serialize_buffer;
using QUOR_2_9::serialization::serialize_text_buf;
using quor_reference::field_type;
using quor_test::unescaped;

TEST(serialize_text_buf, values_are_fields_in_their_order) {
	serialize_text_buf buffer;
	buffer.append_int32(-5);
	buffer.append_string("ab");
	buffer.append_double(1.5, 6);
	EXPECT_EQ(buffer.as_str(), unescaped("-5^2^ab^1.5^"));
	EXPECT_EQ(buffer.read_int32(), -5);
	EXPECT_EQ(buffer.read_string(), "ab");
	EXPECT_EQ(buffer.read_double(), 1.5);
	EXPECT_TRUE(buffer.at_end());
}

TEST(serialize_text_buf, float_keeps_its_point) {
	serialize_text_buf buffer;
	buffer.append_float(1.0F, 6);
	EXPECT_EQ(buffer.as_str(), unescaped("1.^"));
	EXPECT_EQ(buffer.read_float(), 1.0F);
}

// Where the read position stands: at the last place where a content of that size is at its end.
// -1 for one that no content reaches.
int position_of(serialize_text_buf const &buffer) {
	serialize_text_buf probe(buffer);
	for (int size = 0; size != 1000; ++size) {
		probe.assign(std::string(static_cast<std::size_t>(size) + 1, 'x'));
		if (!probe.at_end()) {
			return size;
		}
	}
	return -1;
}

constexpr int nowhere = -1;

// A content, what reading it as a type gives, and where the position is then.
struct read_row {
	char const *content;
	char const *expected;
	field_type type;
	int position;
};

void check(read_row const &row) {
	SCOPED_TRACE(std::string(row.content) + " as type " + std::to_string(static_cast<int>(row.type)));
	serialize_text_buf const buffer(unescaped(row.content));
	EXPECT_EQ(quor_test::read_field(buffer, row.type), unescaped(row.expected));
	EXPECT_EQ(position_of(buffer), row.position);
	EXPECT_EQ(buffer.at_end(), row.position == nowhere || row.position >= static_cast<int>(buffer.as_str().size()));
}

template <std::size_t Count>
void check(read_row const (&rows)[Count]) {
	for (read_row const &row : rows) {
		check(row);
	}
}

TEST(serialize_text_buf, integers_are_fields_with_a_radix_of_their_own) {
	read_row const rows[] = {{"", "0", field_type::int32, nowhere},
	                         {"^", "0", field_type::int32, 1},
	                         {"^^", "0", field_type::uint8, 1},
	                         {"123", "123", field_type::int32, nowhere},
	                         {"123^", "123", field_type::int32, 4},
	                         {"123^4^", "123", field_type::int32, 4},
	                         {"0^", "0", field_type::int32, 2},
	                         {"-0^", "0", field_type::int32, 3},
	                         {"+7^", "7", field_type::int32, 3},
	                         {"\\20\\09\\0a\\0b\\0c\\0d8^", "8", field_type::int32, 8},
	                         {"0x10^", "16", field_type::int32, 5},
	                         {"-0x10^", "-16", field_type::int32, 6},
	                         {"0b101^", "5", field_type::int32, 6},
	                         {"010^", "8", field_type::int32, 4},
	                         {"00^", "0", field_type::int32, 3},
	                         {"08^", "0", field_type::int32, 3},
	                         {"\\5cx1f^", "31", field_type::int32, 5},
	                         {"12ab^", "12", field_type::int32, 5},
	                         {"abc^", "0", field_type::int32, 4},
	                         {"1\\002^", "1", field_type::int32, 4},
	                         {"\\ff1^", "0", field_type::int32, 3},
	                         {"\\a01^", "0", field_type::int32, 3},
	                         {"-^", "0", field_type::int32, 2},
	                         {"- 1^", "0", field_type::int32, 4},
	                         {"--1^", "0", field_type::int32, 4},
	                         {"999999999^", "999999999", field_type::int32, 10},
	                         {"1000000000^", "1000000000", field_type::int32, 11},
	                         {"-999999999^", "-999999999", field_type::int32, 11},
	                         {"2147483647^", "2147483647", field_type::int32, 11},
	                         {"2147483648^", "2147483647", field_type::int32, 11},
	                         {"-2147483648^", "-2147483648", field_type::int32, 12},
	                         {"-2147483649^", "-2147483648", field_type::int32, 12},
	                         {"99999999999999999999^", "2147483647", field_type::int32, 21},
	                         {"-99999999999999999999^", "-2147483648", field_type::int32, 22}};
	check(rows);
}

TEST(serialize_text_buf, integers_are_clipped_at_the_limits_of_their_type) {
	read_row const rows[] = {{"127^", "127", field_type::int8, 4},
	                         {"128^", "127", field_type::int8, 4},
	                         {"99999999999^", "127", field_type::int8, 12},
	                         {"255^", "255", field_type::uint8, 4},
	                         {"256^", "255", field_type::uint8, 4},
	                         {"-1^", "0", field_type::uint8, 3},
	                         {"-9999999999^", "0", field_type::uint8, 12},
	                         {"32767^", "32767", field_type::int16, 6},
	                         {"32768^", "32767", field_type::int16, 6},
	                         {"65535^", "65535", field_type::uint16, 6},
	                         {"65536^", "65535", field_type::uint16, 6},
	                         {"-1^", "0", field_type::uint16, 3},
	                         {"4294967295^", "4294967295", field_type::uint32, 11},
	                         {"4294967296^", "4294967295", field_type::uint32, 11},
	                         {"-1^", "0", field_type::uint32, 3},
	                         {"-4294967296^", "0", field_type::uint32, 12},
	                         {"9223372036854775807^", "9223372036854775807", field_type::int64, 20},
	                         {"9223372036854775808^", "9223372036854775807", field_type::int64, 20},
	                         {"-9223372036854775808^", "-9223372036854775808", field_type::int64, 21},
	                         {"-9223372036854775809^", "-9223372036854775808", field_type::int64, 21},
	                         {"18446744073709551615^", "18446744073709551615", field_type::uint64, 21},
	                         {"18446744073709551616^", "18446744073709551615", field_type::uint64, 21},
	                         {"-1^", "0", field_type::uint64, 3}};
	check(rows);
}

TEST(serialize_text_buf, narrow_negative_numbers_are_themselves_or_the_smallest) {
	read_row const rows[] = {{"-0^", "0", field_type::int8, 3},
	                         {"-1^", "-1", field_type::int8, 3},
	                         {"-127^", "-127", field_type::int8, 5},
	                         {"-128^", "-128", field_type::int8, 5},
	                         {"-129^", "-128", field_type::int8, 5},
	                         {"-128", "-128", field_type::int8, nowhere},
	                         {"-2147483649^", "-128", field_type::int8, 12},
	                         {"-21474836480^", "-128", field_type::int8, 13},
	                         {"-92233720368547758080^", "-128", field_type::int8, 22},
	                         {" -5^", "-5", field_type::int8, 4},
	                         {"-0x10^", "-16", field_type::int8, 6},
	                         {"-0x80^", "-128", field_type::int8, 6},
	                         {"-0x81^", "-128", field_type::int8, 6},
	                         {"-010^", "-8", field_type::int8, 5},
	                         {"-\\5cx10^", "-16", field_type::int8, 6},
	                         {"-5x^", "-5", field_type::int8, 4},
	                         {"-^", "0", field_type::int8, 2},
	                         {"-x^", "0", field_type::int8, 3},
	                         {"- 5^", "0", field_type::int8, 4},
	                         {"--5^", "0", field_type::int8, 4},
	                         {"-+5^", "0", field_type::int8, 4},
	                         {"-O^", "0", field_type::int8, 3},
	                         {"-32767^", "-32767", field_type::int16, 7},
	                         {"-32768^", "-32768", field_type::int16, 7},
	                         {"-32769^", "-32768", field_type::int16, 7},
	                         {"-0x8000^", "-32768", field_type::int16, 8},
	                         {" -0b11^", "-3", field_type::int16, 7},
	                         {"-99999999999999999999^", "-32768", field_type::int16, 22}};
	check(rows);
}

TEST(serialize_text_buf, smallest_64_bit_number_has_a_text_of_its_own) {
	serialize_text_buf buffer;
	buffer.append_int64(std::numeric_limits<long long>::min());
	EXPECT_EQ(buffer.as_str(), unescaped("-O^"));
	EXPECT_EQ(buffer.read_int64(), std::numeric_limits<long long>::min());
	read_row const rows[] = {{"-O", "-9223372036854775808", field_type::int64, nowhere},
	                         {"-O ^", "0", field_type::int64, 4},
	                         {" -O^", "0", field_type::int64, 4},
	                         {"-o^", "0", field_type::int64, 3},
	                         {"O^", "0", field_type::int64, 2},
	                         {"-O^", "0", field_type::int32, 3},
	                         {"-O^", "0", field_type::uint64, 3}};
	check(rows);
}

std::string number(double value) {
	return quor_reference::number_text(value);
}

TEST(serialize_text_buf, floating_numbers_are_decimal) {
	struct row {
		char const *content;
		double expected;
	};
	row const rows[] = {{"", 0.0},
	                    {"^", 0.0},
	                    {"1.^", 1.0},
	                    {".5^", 0.5},
	                    {"1.e+010^", 1e10},
	                    {"2.5e-002^", 0.025},
	                    {" -1.5x^", -1.5},
	                    {"1,5^", 1.0},
	                    {"0x10^", 0.0},
	                    {"-0.^", -0.0},
	                    {"abc^", 0.0},
	                    {"inf^", std::numeric_limits<double>::infinity()},
	                    {"-inf^", -std::numeric_limits<double>::infinity()},
	                    {"nan^", std::numeric_limits<double>::quiet_NaN()},
	                    {"1e400^", std::numeric_limits<double>::infinity()},
	                    {"1e-400^", 0.0},
	                    {"5.e-324^", std::numeric_limits<double>::denorm_min()}};
	for (row const &r : rows) {
		SCOPED_TRACE(r.content);
		serialize_text_buf const buffer(unescaped(r.content));
		EXPECT_EQ(number(buffer.read_double()), number(r.expected));
		buffer.reset_read();
		EXPECT_EQ(number(static_cast<double>(buffer.read_float())),
		          number(static_cast<double>(static_cast<float>(r.expected))));
		EXPECT_TRUE(buffer.at_end());
	}
}

TEST(serialize_text_buf, single_beyond_its_range_is_an_infinity) {
	serialize_text_buf const buffer(unescaped("1e39^-1e39^3.4028236e38^3.4028234e38^1e-46^"));
	EXPECT_EQ(buffer.read_float(), std::numeric_limits<float>::infinity());
	EXPECT_EQ(buffer.read_float(), -std::numeric_limits<float>::infinity());
	EXPECT_EQ(buffer.read_float(), std::numeric_limits<float>::infinity());
	EXPECT_EQ(buffer.read_float(), std::numeric_limits<float>::max());
	EXPECT_EQ(buffer.read_float(), 0.0F);
	EXPECT_TRUE(buffer.at_end());
}

TEST(serialize_text_buf, any_precision_is_taken) {
	for (unsigned int const precision : {340U, 341U, 348U, 349U, 350U, 2147483647U, 2147483648U, 4294967295U}) {
		SCOPED_TRACE(precision);
		serialize_text_buf buffer;
		buffer.append_double(0.1, precision);
		EXPECT_EQ(buffer.as_str(), unescaped("0.1000000000000000055511151231257827021181583404541015625^"));
		EXPECT_EQ(buffer.read_double(), 0.1);
		serialize_text_buf longest;
		longest.append_double(-std::numeric_limits<double>::denorm_min(), precision);
		EXPECT_EQ(longest.as_str().size(), 1U + 341U + 5U + 1U);
		EXPECT_EQ(longest.read_double(), -std::numeric_limits<double>::denorm_min());
	}
	serialize_text_buf buffer;
	buffer.append_double(2.5, 0);
	buffer.append_double(2.5, 1);
	buffer.append_double(3.5, 0);
	EXPECT_EQ(buffer.as_str(), unescaped("2.^2.^4.^"));
}

TEST(serialize_text_buf, strings_are_framed_by_their_length) {
	read_row const rows[] = {{"0^^", "", field_type::string, 3},
	                         {"2^ab^", "ab", field_type::string, 5},
	                         {"3^a^b^7^", "a^b", field_type::string, 6},
	                         {"2^ab", "ab", field_type::string, 5},
	                         {"2^a", "a", field_type::string, 5},
	                         {"2^", "", field_type::string, 5},
	                         {"9^ab^", "ab^", field_type::string, 12},
	                         {"0x2^ab^", "ab", field_type::string, 7},
	                         {"x^ab^", "", field_type::string, 3},
	                         {"^ab^", "", field_type::string, 2},
	                         {"2147483647^ab", "ab", field_type::string, nowhere},
	                         {"4294967295^ab", "ab", field_type::string, nowhere},
	                         {"99999999999^ab", "ab", field_type::string, nowhere}};
	check(rows);
}

TEST(serialize_text_buf, negative_length_gives_the_rest_and_goes_back) {
	read_row const rows[] = {{"-1^ab", "ab", field_type::string, 3},
	                         {"-1^", "", field_type::string, 3},
	                         {"-2^ab", "ab", field_type::string, 2},
	                         {"-4^ab", "ab", field_type::string, 0},
	                         {"-5^ab", "ab", field_type::string, nowhere},
	                         {"-100^ab^cd", "ab^cd", field_type::string, nowhere},
	                         {"-2147483648^ab", "ab", field_type::string, nowhere}};
	check(rows);
	serialize_text_buf const buffer(unescaped("-1^7^"));
	EXPECT_EQ(buffer.read_string(), unescaped("7^"));
	EXPECT_EQ(buffer.read_int32(), 7);
	EXPECT_TRUE(buffer.at_end());
	serialize_text_buf const again(unescaped("-4^ab"));
	for (int i = 0; i != 5; ++i) {
		EXPECT_EQ(again.read_string(), "ab");
		EXPECT_FALSE(again.at_end());
	}
}

TEST(serialize_text_buf, length_without_separator_leaves_nothing_to_read) {
	for (char const *const content : {"", "2", "0", "-1", "-2", "4294967295", "ab", "-"}) {
		SCOPED_TRACE(content);
		read_row const row{content, "", field_type::string, nowhere};
		check(row);
		serialize_text_buf buffer(content);
		EXPECT_EQ(buffer.read_string(), "");
		EXPECT_EQ(buffer.read_string(), "");
		buffer.append_int32(5);
		EXPECT_TRUE(buffer.at_end());
		EXPECT_EQ(buffer.read_int32(), 0);
		buffer.reset_read();
		EXPECT_FALSE(buffer.at_end());
	}
}

TEST(serialize_text_buf, read_behind_the_last_field_ends_for_good) {
	serialize_text_buf buffer;
	buffer.append_int32(5);
	EXPECT_EQ(buffer.read_int32(), 5);
	EXPECT_TRUE(buffer.at_end());
	buffer.append_int32(6);
	EXPECT_FALSE(buffer.at_end());
	EXPECT_EQ(buffer.read_int32(), 6);
	EXPECT_EQ(buffer.read_int32(), 0);
	buffer.append_int32(7);
	EXPECT_TRUE(buffer.at_end());
	serialize_text_buf const copy(buffer);
	EXPECT_TRUE(copy.at_end());
	std::unique_ptr<serialize_buffer> const clone(buffer.clone());
	EXPECT_TRUE(clone->at_end());
	buffer.assign(buffer.as_str() + "8");
	EXPECT_TRUE(buffer.at_end());
	buffer.reset_read();
	EXPECT_EQ(buffer.read_int32(), 5);
	EXPECT_EQ(buffer.read_int32(), 6);
	EXPECT_EQ(buffer.read_int32(), 7);
	EXPECT_EQ(buffer.read_int32(), 8);
	EXPECT_TRUE(buffer.at_end());
}

TEST(serialize_text_buf, nested_buffer_is_never_null) {
	for (char const *const content : {"", "0^^", "2", "x^", "5^"}) {
		SCOPED_TRACE(content);
		serialize_text_buf const buffer(unescaped(content));
		for (int i = 0; i != 3; ++i) {
			std::unique_ptr<serialize_buffer> const nested(buffer.read_buffer());
			ASSERT_NE(nested, nullptr);
			EXPECT_EQ(nested->as_str(), "");
			EXPECT_TRUE(nested->is_created_dynamic());
		}
	}
	serialize_text_buf const backwards(unescaped("-1^ab"));
	std::unique_ptr<serialize_buffer> const rest(backwards.read_buffer());
	EXPECT_EQ(rest->as_str(), "ab");
}

// The length of a string is read by the virtual operation, but not behind the end.
TEST(serialize_text_buf, length_is_read_by_read_int32) {
	class doubling : public serialize_text_buf {
	public:
		using serialize_text_buf::serialize_text_buf;
		QUOR_2_9::types::int32 read_int32() const override {
			++calls;
			return 2 * serialize_text_buf::read_int32();
		}
		mutable int calls = 0;
	};
	doubling const buffer(unescaped("1^ab^1^cd^"));
	EXPECT_EQ(buffer.read_string(), "ab");
	std::unique_ptr<serialize_buffer> const nested(buffer.read_buffer());
	EXPECT_EQ(nested->as_str(), "cd");
	EXPECT_TRUE(buffer.at_end());
	EXPECT_EQ(buffer.calls, 2);
	EXPECT_EQ(buffer.read_string(), "");
	EXPECT_EQ(buffer.calls, 3);
	EXPECT_EQ(buffer.read_string(), "");
	std::unique_ptr<serialize_buffer> const nothing(buffer.read_buffer());
	EXPECT_EQ(nothing->as_str(), "");
	EXPECT_EQ(buffer.calls, 3);
}

} // namespace
