#ifndef QUOR_TESTS_SUPPORT_BUFFER_CALLS_HPP
#define QUOR_TESTS_SUPPORT_BUFFER_CALLS_HPP

// What the fuzz targets of the buffers do with an input: a byte that counts calls, a byte for
// each call, and the content that is read.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <quor/serialization/serialize_binary_buf.hpp>
#include <quor/serialization/serialize_text_buf.hpp>

#include "support/serialize_fields.hpp"

namespace quor_test {

using QUOR_2_9::serialization::serialize_binary_buf;
using QUOR_2_9::serialization::serialize_text_buf;

inline void check(bool holds, char const *what) {
	if (!holds) {
		std::cerr << "fails: " << what << '\n';
		std::abort();
	}
}

// A value as it is read, to be appended elsewhere.
inline field value_of(serialize_buffer const &from, field_type type) {
	field result{type};
	constexpr std::uint32_t all_digits = 17;
	switch (type) {
	case field_type::int8:
		result.bits = static_cast<std::uint64_t>(from.read_int8());
		break;
	case field_type::int16:
		result.bits = static_cast<std::uint64_t>(from.read_int16());
		break;
	case field_type::int32:
		result.bits = static_cast<std::uint64_t>(from.read_int32());
		break;
	case field_type::int64:
		result.bits = static_cast<std::uint64_t>(from.read_int64());
		break;
	case field_type::uint8:
		result.bits = from.read_uint8();
		break;
	case field_type::uint16:
		result.bits = from.read_uint16();
		break;
	case field_type::uint32:
		result.bits = from.read_uint32();
		break;
	case field_type::uint64:
		result.bits = from.read_uint64();
		break;
	case field_type::single:
		result.number = static_cast<double>(from.read_float());
		result.precision = all_digits;
		break;
	case field_type::number:
		result.number = from.read_double();
		result.precision = all_digits;
		break;
	case field_type::string:
		result.bytes = from.read_string();
		break;
	case field_type::buffer:
		std::unique_ptr<serialize_buffer> const nested(from.read_buffer());
		result.bytes = nested == nullptr ? std::string() : nested->as_str();
		break;
	}
	return result;
}

// Values that are appended are read back.
template <class Buffer>
void check_round_trip(std::vector<field> const &values) {
	Buffer buffer;
	for (field const &value : values) {
		append_field(buffer, value);
	}
	buffer.append_int8(1);
	for (field const &value : values) {
		check(read_field(buffer, value.type) == quor_reference::text_of_field(value), "an appended value is read back");
	}
	check(buffer.read_int8() == 1 && buffer.at_end(), "the read position ends behind the values");
}

template <class Buffer, class Reference>
void run_buffer_calls(std::uint8_t const *data, std::size_t size) {
	if (size == 0) {
		return;
	}
	std::size_t const count = std::size_t(data[0]) < size - 1 ? data[0] : size - 1;
	std::string const content(reinterpret_cast<char const *>(data) + 1 + count, size - 1 - count);
	constexpr std::size_t enough = 4096;
	Buffer buffer(content);
	Reference expected;
	expected.contents = content;
	std::vector<field> values;
	for (std::size_t i = 1; i <= count; ++i) {
		int const call = data[i] % 16;
		if (call < quor_reference::field_types) {
			auto const type = static_cast<field_type>(call);
			Buffer const copy(buffer);
			check(read_field(buffer, type) == expected.read(type), "a value is the reference's");
			values.push_back(value_of(copy, type));
		} else if (call < 14) {
			buffer.reset_read();
			expected.position = 0;
		} else if (call == 14 && expected.contents.size() < enough) {
			buffer.append_buffer(buffer);
			expected.append({field_type::buffer, 0, 0, 0, expected.contents});
		} else if (!values.empty() && expected.contents.size() < enough) {
			append_field(buffer, values.back());
			expected.append(values.back());
		}
		check(buffer.at_end() == expected.at_end(), "the end is the reference's");
	}
	check(buffer.as_str() == expected.contents, "the content is the reference's");
	check_round_trip<serialize_binary_buf>(values);
	check_round_trip<serialize_text_buf>(values);
}

} // namespace quor_test

#endif
