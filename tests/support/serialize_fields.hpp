#ifndef QUOR_TESTS_SUPPORT_SERIALIZE_FIELDS_HPP
#define QUOR_TESTS_SUPPORT_SERIALIZE_FIELDS_HPP

// Appends fields of the reference to the library's buffers and reads any type from them, as
// the reference does.

#include <memory>
#include <string>

#include <quor/serialization/serialize_buffer.hpp>

#include "reference/serialize_buffers.hpp"

namespace quor_test {

using QUOR_2_9::serialization::serialize_buffer;
using quor_reference::field;
using quor_reference::field_type;

inline void append_field(serialize_buffer &to, field const &value) {
	namespace types = QUOR_2_9::types;
	std::uint64_t const bits = value.bits;
	switch (value.type) {
	case field_type::int8:
		return to.append_int8(static_cast<signed char>(bits));
	case field_type::int16:
		return to.append_int16(static_cast<short>(bits));
	case field_type::int32:
		return to.append_int32(static_cast<types::int32>(bits));
	case field_type::int64:
		return to.append_int64(static_cast<types::int64>(bits));
	case field_type::uint8:
		return to.append_uint8(static_cast<unsigned char>(bits));
	case field_type::uint16:
		return to.append_uint16(static_cast<unsigned short>(bits));
	case field_type::uint32:
		return to.append_uint32(static_cast<types::uint32>(bits));
	case field_type::uint64:
		return to.append_uint64(bits);
	case field_type::single:
		return to.append_float(static_cast<float>(value.number), value.precision);
	case field_type::number:
		return to.append_double(value.number, value.precision);
	case field_type::string:
		return to.append_string(value.bytes);
	case field_type::buffer:
		break;
	}
	std::unique_ptr<serialize_buffer> const nested(to.create());
	nested->assign(value.bytes);
	to.append_buffer(*nested);
}

inline std::string nested_text(serialize_buffer const &from) {
	std::unique_ptr<serialize_buffer> const nested(from.read_buffer());
	return nested == nullptr ? "null" : quor_reference::buffer_text(nested->as_str());
}

inline std::string read_field(serialize_buffer const &from, field_type type) {
	switch (type) {
	case field_type::int8:
		return std::to_string(from.read_int8());
	case field_type::int16:
		return std::to_string(from.read_int16());
	case field_type::int32:
		return std::to_string(from.read_int32());
	case field_type::int64:
		return std::to_string(from.read_int64());
	case field_type::uint8:
		return std::to_string(from.read_uint8());
	case field_type::uint16:
		return std::to_string(from.read_uint16());
	case field_type::uint32:
		return std::to_string(from.read_uint32());
	case field_type::uint64:
		return std::to_string(from.read_uint64());
	case field_type::single:
		return quor_reference::number_text(static_cast<double>(from.read_float()));
	case field_type::number:
		return quor_reference::number_text(from.read_double());
	case field_type::string:
		return from.read_string();
	case field_type::buffer:
		break;
	}
	return nested_text(from);
}

} // namespace quor_test

#endif
