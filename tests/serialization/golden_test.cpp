// The two formats byte by byte: what is appended is what stands in the golden files, and what
// stands there is read back, on every target.

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <quor/serialization/serialize_binary_buf.hpp>
#include <quor/serialization/serialize_text_buf.hpp>

#include "serialization/golden_files.hpp"
#include "support/comma_locale.hpp"
#include "support/serialize_fields.hpp"

namespace {

using QUOR_2_9::serialization::serialize_binary_buf;
using QUOR_2_9::serialization::serialize_buffer;
using QUOR_2_9::serialization::serialize_text_buf;
using quor_reference::field;
using quor_reference::field_type;
using quor_test::append_field;
using quor_test::golden_row;
using quor_test::read_field;

// Whether a text of the value keeps all of it.
bool keeps_all(field const &value) {
	return value.type == field_type::single ? value.precision >= 9
	                                        : value.type != field_type::number || value.precision >= 17;
}

template <class Buffer>
void check_rows(char const *file, std::size_t least, bool exact) {
	std::vector<golden_row> const rows = quor_test::golden_rows(file);
	ASSERT_GE(rows.size(), least);
	Buffer all;
	for (golden_row const &row : rows) {
		SCOPED_TRACE(row.text);
		Buffer buffer;
		append_field(buffer, row.value);
		EXPECT_EQ(buffer.as_str(), row.bytes);
		append_field(all, row.value);
	}
	for (golden_row const &row : rows) {
		SCOPED_TRACE(row.text);
		EXPECT_FALSE(all.at_end());
		std::string const found = read_field(all, row.value.type);
		if (exact || keeps_all(row.value)) {
			EXPECT_EQ(found, quor_reference::text_of_field(row.value));
		}
	}
	EXPECT_TRUE(all.at_end());
}

TEST(golden, binary_rows_are_written_and_read) {
	check_rows<serialize_binary_buf>("binary_rows.txt", 200, true);
}

TEST(golden, text_rows_are_written_and_read) {
	check_rows<serialize_text_buf>("text_rows.txt", 500, false);
}

TEST(golden, formats_depend_on_no_locale) {
	// The values are made before, with the C library's own conversions.
	std::vector<golden_row> const rows = quor_test::golden_rows("text_rows.txt");
	field const long_text{field_type::string, 0, 0, 0, std::string(1234, 'x')};
	quor_test::comma_locale const comma;
	for (golden_row const &row : rows) {
		SCOPED_TRACE(row.text);
		serialize_text_buf buffer;
		append_field(buffer, row.value);
		EXPECT_EQ(buffer.as_str(), row.bytes);
	}
	serialize_text_buf buffer;
	append_field(buffer, long_text);
	EXPECT_EQ(buffer.as_str().substr(0, 5), "1234\x01");
	EXPECT_EQ(buffer.read_string().size(), 1234U);
	buffer.append_double(1234.5, 17);
	EXPECT_EQ(buffer.read_double(), 1234.5);
}

template <class Buffer>
std::string appended(std::vector<field> const &fields) {
	Buffer buffer;
	for (field const &value : fields) {
		append_field(buffer, value);
	}
	return buffer.as_str();
}

// Reads a record and those nested in it.
template <class Buffer>
void check_record(std::string const &bytes) {
	std::unique_ptr<serialize_buffer> record(new Buffer(bytes));
	for (int depth = 0; depth != 4; ++depth) {
		SCOPED_TRACE(depth);
		std::unique_ptr<serialize_buffer> nested;
		for (field const &value : quor_test::golden_record(depth, "nested")) {
			if (value.type == field_type::buffer && value.bytes == "nested") {
				nested.reset(record->read_buffer());
			} else {
				EXPECT_EQ(read_field(*record, value.type), quor_reference::text_of_field(value));
			}
		}
		EXPECT_TRUE(record->at_end());
		if (depth != 3) {
			ASSERT_NE(nested, nullptr);
			EXPECT_NE(dynamic_cast<Buffer *>(nested.get()), nullptr);
			record = std::move(nested);
		}
	}
}

TEST(golden, binary_record_is_written_and_read) {
	std::string const bytes = quor_test::golden_bytes("record.binary");
	EXPECT_EQ(quor_test::golden_record_bytes(appended<serialize_binary_buf>), bytes);
	check_record<serialize_binary_buf>(bytes);
}

TEST(golden, text_record_is_written_and_read) {
	std::string const bytes = quor_test::golden_bytes("record.text");
	EXPECT_EQ(quor_test::golden_record_bytes(appended<serialize_text_buf>), bytes);
	check_record<serialize_text_buf>(bytes);
}

} // namespace
