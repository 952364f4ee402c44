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

template <class Number>
void append_digits(std::string &text, Number value) {
	char digits[detail::number_field_size];
	text.append(detail::number_field(value, digits));
}

void append_floating(std::string &text, double value, uint32 precision) {
	char digits[convert::detail::gcvt_size + 1];
	auto const count = static_cast<int>(std::min<uint32>(precision, convert::detail::gcvt_size));
	std::size_t const length = convert::detail::gcvt(value, count, digits);
	digits[length] = detail::separator;
	text.append(digits, length + 1);
}

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

template <class Number>
Number read_number(std::string_view text, uint32 &position) {
	int32 plain = 0;
	if (detail::take_plain_number(text, position, plain)) {
		return clipped<Number>(plain);
	}
	return convert_field(detail::take_field(text, position), Number());
}

} // namespace

serialize_text_buf::serialize_text_buf(serialize_buffer const &other) : buffer(other.as_str()) {}

serialize_text_buf::serialize_text_buf(std::string const &bytes) : buffer(bytes) {}

serialize_text_buf::~serialize_text_buf() = default;

serialize_text_buf &serialize_text_buf::operator=(serialize_text_buf const &other) {
	buffer = other.buffer;
	read_pos = other.read_pos;
	return *this;
}

serialize_buffer &serialize_text_buf::assign(char const *data, int length) {
	detail::assign_bytes(buffer, data, length);
	return *this;
}

serialize_buffer &serialize_text_buf::assign(std::string const &bytes) {
	buffer = bytes;
	return *this;
}

serialize_buffer &serialize_text_buf::assign(serialize_buffer const &other) {
	buffer = other.as_str();
	return *this;
}

std::string const &serialize_text_buf::as_str() const {
	return buffer;
}

void serialize_text_buf::append_int8(signed char const &value) {
	append_digits(buffer, value);
}

void serialize_text_buf::append_int16(short const &value) {
	append_digits(buffer, value);
}

void serialize_text_buf::append_int32(int32 const &value) {
	append_digits(buffer, value);
}

void serialize_text_buf::append_int64(int64 const &value) {
	append_digits(buffer, value);
}

void serialize_text_buf::append_uint8(unsigned char const &value) {
	append_digits(buffer, value);
}

void serialize_text_buf::append_uint16(unsigned short const &value) {
	append_digits(buffer, value);
}

void serialize_text_buf::append_uint32(uint32 const &value) {
	append_digits(buffer, value);
}

void serialize_text_buf::append_uint64(uint64 const &value) {
	append_digits(buffer, value);
}

void serialize_text_buf::append_float(float const &value, uint32 const &precision) {
	append_floating(buffer, static_cast<double>(value), precision);
}

void serialize_text_buf::append_double(double const &value, uint32 const &precision) {
	append_floating(buffer, value, precision);
}

void serialize_text_buf::append_string(std::string const &value) {
	detail::append_framed(buffer, value);
}

void serialize_text_buf::append_buffer(serialize_buffer const &value) {
	detail::append_framed(buffer, value.as_str());
}

signed char serialize_text_buf::read_int8() const {
	return read_number<signed char>(buffer, read_pos);
}

short serialize_text_buf::read_int16() const {
	return read_number<short>(buffer, read_pos);
}

int32 serialize_text_buf::read_int32() const {
	return detail::take_int32(buffer, read_pos);
}

int64 serialize_text_buf::read_int64() const {
	return read_number<int64>(buffer, read_pos);
}

unsigned char serialize_text_buf::read_uint8() const {
	return read_number<unsigned char>(buffer, read_pos);
}

unsigned short serialize_text_buf::read_uint16() const {
	return read_number<unsigned short>(buffer, read_pos);
}

uint32 serialize_text_buf::read_uint32() const {
	return read_number<uint32>(buffer, read_pos);
}

uint64 serialize_text_buf::read_uint64() const {
	return read_number<uint64>(buffer, read_pos);
}

// A number beyond the range of a single narrows to an infinity.
float serialize_text_buf::read_float() const {
	return static_cast<float>(serialize_text_buf::read_double());
}

double serialize_text_buf::read_double() const {
	std::string_view const field = detail::take_field(buffer, read_pos);
	return convert::detail::atof(field.data(), field.size());
}

/// Reads a string as a part of the buffer; its count is read as any number.
std::string_view serialize_text_buf::get_text() const {
	if (read_pos == detail::no_position) {
		return {};
	}
	int32 const count = read_int32();
	return detail::take_framed(buffer, read_pos, count);
}

std::string serialize_text_buf::read_string() const {
	return std::string(get_text());
}

serialize_buffer *serialize_text_buf::read_buffer() const {
	std::unique_ptr<serialize_text_buf> result(create_dynamic<serialize_text_buf>());
	result->buffer = get_text();
	return result.release();
}

bool serialize_text_buf::at_end() const {
	return detail::is_at_end(buffer, read_pos);
}

void serialize_text_buf::reset_read() const {
	read_pos = 0;
}

serialize_text_buf *serialize_text_buf::create() const {
	return create_dynamic<serialize_text_buf>();
}

serialize_text_buf *serialize_text_buf::clone() const {
	return create_dynamic<serialize_text_buf>(*this);
}

} // namespace QUOR_2_9::serialization
