#include <quor/serialization/serialize_text_buf.hpp>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <memory>
#include <string_view>
#include <utility>

#include <quor/generic/convert/str_to_x.hpp>

#include "generic/convert/decimal_text.hpp"
#include "serialization/contents.hpp"
#include "serialization/formatted_buffer_bodies.hpp"
#include "serialization/text_fields.hpp"
#include "support/ascii.hpp"

namespace QUOR_2_9::serialization {

namespace convert = generic::convert;
using generic::abilities::create_dynamic;
using types::int32;
using types::int64;
using types::uint32;
using types::uint64;

namespace {

/// A plain number in the range of its type.
template <class Number>
Number clipped(int32 value) noexcept {
	using limits = std::numeric_limits<Number>;
	if (std::cmp_less(value, limits::min())) {
		return limits::min();
	}
	return std::cmp_greater(value, limits::max()) ? limits::max() : static_cast<Number>(value);
}

/// A field as a number, by a conversion that finds the radix and reports nothing. An empty field
/// is not shown to it.
template <class Number>
Number field_number(std::string_view field, Number (*conversion)(char const *, uint32, types::radix_t::base, bool)) {
	auto const length = static_cast<uint32>(std::min<std::size_t>(field.size(), detail::no_position));
	return length == 0 ? Number() : conversion(field.data(), length, types::radix_t::detect, false);
}

/// The same for 8 or 16 bits. The narrow conversions clip negative numbers that are in range, so
/// these are read without their sign.
template <class Number>
Number narrow_field_number(std::string_view field,
                           Number (*conversion)(char const *, uint32, types::radix_t::base, bool)) {
	std::size_t sign = 0;
	while (sign != field.size() && support::is_blank(field[sign])) {
		++sign;
	}
	if (sign == field.size() || field[sign] != '-') {
		return field_number(field, conversion);
	}
	std::string_view const digits = field.substr(sign + 1);
	if (digits.empty() || (!support::is_digit(digits[0]) && digits[0] != '\\')) {
		return 0;
	}
	using limits = std::numeric_limits<Number>;
	uint64 const magnitude = field_number<uint64>(digits, convert::str_to_uint64);
	if (std::cmp_greater(magnitude, limits::max())) {
		return limits::min();
	}
	return static_cast<Number>(-static_cast<int>(magnitude));
}

signed char convert_field(std::string_view field, signed char /*type*/) {
	return narrow_field_number<signed char>(field, convert::str_to_int8);
}

short convert_field(std::string_view field, short /*type*/) {
	return narrow_field_number<short>(field, convert::str_to_int16);
}

/// The smallest value has a text of its own.
int64 convert_field(std::string_view field, int64 /*type*/) {
	return field == "-O" ? std::numeric_limits<int64>::min() : field_number<int64>(field, convert::str_to_int64);
}

unsigned char convert_field(std::string_view field, unsigned char /*type*/) {
	return field_number<unsigned char>(field, convert::str_to_uint8);
}

unsigned short convert_field(std::string_view field, unsigned short /*type*/) {
	return field_number<unsigned short>(field, convert::str_to_uint16);
}

uint32 convert_field(std::string_view field, uint32 /*type*/) {
	return field_number<uint32>(field, convert::str_to_uint32);
}

uint64 convert_field(std::string_view field, uint64 /*type*/) {
	return field_number<uint64>(field, convert::str_to_uint64);
}

} // namespace

namespace detail {

struct text_format {
	template <class Number>
	static void append_number(stored_bytes &stored, Number value) {
		append_written<number_field_size>(stored, [value](char *to) noexcept { return write_number_field(value, to); });
	}

	static void append_floating(stored_bytes &stored, double value, uint32 precision) {
		char field[convert::detail::gcvt_size + 1];
		auto const digits = static_cast<int>(std::min<uint32>(precision, convert::detail::gcvt_size));
		std::size_t const length = convert::detail::gcvt(value, digits, field);
		field[length] = separator;
		append_bytes(stored, field, length + 1);
	}

	static void append_text(stored_bytes &stored, std::string const &value) { append_framed(stored, value); }

	template <class Number>
	static Number read_number(stored_bytes &stored) {
		std::string_view const text = contents_of(stored);
		int32 plain = 0;
		if (take_plain_number(text, stored.position, plain)) {
			return clipped<Number>(plain);
		}
		return convert_field(take_field(text, stored.position), Number());
	}

	/// Reads a string as a part of the buffer; its count is read as any number.
	static std::string_view take_text(serialize_buffer const &buffer, stored_bytes &stored) {
		if (stored.position == no_position) {
			return {};
		}
		int32 const count = buffer.read_int32();
		return take_framed(contents_of(stored), stored.position, count);
	}

	static std::string read_text(serialize_buffer const &buffer, stored_bytes &stored) {
		return std::string(take_text(buffer, stored));
	}
};

template <>
int32 text_format::read_number<int32>(stored_bytes &stored) {
	return take_int32(contents_of(stored), stored.position);
}

template <>
double text_format::read_number<double>(stored_bytes &stored) {
	std::string_view const field = take_field(contents_of(stored), stored.position);
	return convert::detail::atof(field.data(), field.size());
}

// A number beyond the range of a single narrows to an infinity.
template <>
float text_format::read_number<float>(stored_bytes &stored) {
	return static_cast<float>(read_number<double>(stored));
}

template class formatted_buffer<text_format>;

} // namespace detail

serialize_text_buf::serialize_text_buf(serialize_buffer const &other) : formatted_buffer(other) {}

serialize_text_buf::serialize_text_buf(std::string const &bytes) : formatted_buffer(bytes) {}

serialize_text_buf::~serialize_text_buf() = default;

serialize_text_buf &serialize_text_buf::operator=(serialize_text_buf const &other) {
	formatted_buffer::operator=(other);
	return *this;
}

serialize_buffer *serialize_text_buf::read_buffer() const {
	std::unique_ptr<serialize_text_buf> result(create_dynamic<serialize_text_buf>());
	detail::take_bytes(result->stored, detail::text_format::take_text(*this, stored));
	return result.release();
}

serialize_text_buf *serialize_text_buf::create() const {
	return create_dynamic<serialize_text_buf>();
}

serialize_text_buf *serialize_text_buf::clone() const {
	return create_dynamic<serialize_text_buf>(*this);
}

} // namespace QUOR_2_9::serialization
