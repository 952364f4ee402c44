#include <quor/serialization/serialize_binary_buf.hpp>

#include <bit>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

#include "generic/convert/byte_image.hpp"
#include "serialization/contents.hpp"

namespace QUOR_2_9::serialization {

using generic::abilities::create_dynamic;
using types::int32;
using types::int64;
using types::uint32;
using types::uint64;

serialize_binary_buf::serialize_binary_buf(serialize_buffer const &other) : buffer(other.as_str()) {}

serialize_binary_buf::serialize_binary_buf(std::string const &bytes) : buffer(bytes) {}

serialize_binary_buf::~serialize_binary_buf() = default;

serialize_binary_buf &serialize_binary_buf::operator=(serialize_binary_buf const &other) {
	buffer = other.buffer;
	read_pos = other.read_pos;
	return *this;
}

serialize_buffer &serialize_binary_buf::assign(char const *data, int length) {
	detail::assign_bytes(buffer, data, length);
	return *this;
}

serialize_buffer &serialize_binary_buf::assign(std::string const &bytes) {
	buffer = bytes;
	return *this;
}

serialize_buffer &serialize_binary_buf::assign(serialize_buffer const &other) {
	buffer = other.as_str();
	return *this;
}

std::string const &serialize_binary_buf::as_str() const {
	return buffer;
}

template <class Number>
void serialize_binary_buf::put(Number const &value) {
	char image[sizeof value];
	generic::convert::detail::store_number<std::endian::little>(value, image);
	buffer.append(image, sizeof image);
}

void serialize_binary_buf::append_int8(signed char const &value) {
	put(value);
}

void serialize_binary_buf::append_int16(short const &value) {
	put(value);
}

void serialize_binary_buf::append_int32(int32 const &value) {
	put(value);
}

void serialize_binary_buf::append_int64(int64 const &value) {
	put(value);
}

void serialize_binary_buf::append_uint8(unsigned char const &value) {
	put(value);
}

void serialize_binary_buf::append_uint16(unsigned short const &value) {
	put(value);
}

void serialize_binary_buf::append_uint32(uint32 const &value) {
	put(value);
}

void serialize_binary_buf::append_uint64(uint64 const &value) {
	put(value);
}

void serialize_binary_buf::append_float(float const &value, uint32 const & /*precision*/) {
	put(value);
}

void serialize_binary_buf::append_double(double const &value, uint32 const & /*precision*/) {
	put(value);
}

// The room is there before the count is written: an appended string that is this buffer's
// own stays where it is, and so does the buffer when there is no memory.
void serialize_binary_buf::append_string(std::string const &value) {
	std::size_t const size = value.size();
	detail::make_room(buffer, sizeof(uint32) + size);
	put(static_cast<uint32>(size));
	buffer.append(value.data(), size);
}

void serialize_binary_buf::append_buffer(serialize_buffer const &value) {
	serialize_binary_buf::append_string(value.as_str());
}

template <class Number>
Number serialize_binary_buf::get() const noexcept {
	if (detail::is_at_end(buffer, read_pos)) {
		return Number();
	}
	char const *const at = buffer.data() + read_pos;
	std::size_t const left = buffer.size() - read_pos;
	read_pos = detail::advanced(read_pos, sizeof(Number));
	if (left >= sizeof(Number)) {
		return generic::convert::detail::load_number<Number, std::endian::little>(at);
	}
	char image[sizeof(Number)] = {};
	std::memcpy(image, at, left);
	return generic::convert::detail::load_number<Number, std::endian::little>(image);
}

signed char serialize_binary_buf::read_int8() const {
	return get<signed char>();
}

short serialize_binary_buf::read_int16() const {
	return get<short>();
}

int32 serialize_binary_buf::read_int32() const {
	return get<int32>();
}

int64 serialize_binary_buf::read_int64() const {
	return get<int64>();
}

unsigned char serialize_binary_buf::read_uint8() const {
	return get<unsigned char>();
}

unsigned short serialize_binary_buf::read_uint16() const {
	return get<unsigned short>();
}

uint32 serialize_binary_buf::read_uint32() const {
	return get<uint32>();
}

uint64 serialize_binary_buf::read_uint64() const {
	return get<uint64>();
}

float serialize_binary_buf::read_float() const {
	return get<float>();
}

double serialize_binary_buf::read_double() const {
	return get<double>();
}

/// Reads the count of a string and moves behind its bytes; `text` is what there is of them.
/// False where nothing is left, before or behind the count.
bool serialize_binary_buf::get_text(std::string_view &text) const noexcept {
	if (detail::is_at_end(buffer, read_pos)) {
		return false;
	}
	uint32 const count = get<uint32>();
	if (detail::is_at_end(buffer, read_pos)) {
		return false;
	}
	text = std::string_view(buffer).substr(read_pos, count);
	read_pos = detail::advanced(read_pos, count);
	return true;
}

std::string serialize_binary_buf::read_string() const {
	std::string_view text;
	return get_text(text) ? std::string(text) : std::string();
}

serialize_buffer *serialize_binary_buf::read_buffer() const {
	std::string_view text;
	if (!get_text(text)) {
		return nullptr;
	}
	std::unique_ptr<serialize_binary_buf> result(create_dynamic<serialize_binary_buf>());
	result->buffer = text;
	return result.release();
}

bool serialize_binary_buf::at_end() const {
	return detail::is_at_end(buffer, read_pos);
}

void serialize_binary_buf::reset_read() const {
	read_pos = 0;
}

serialize_binary_buf *serialize_binary_buf::create() const {
	return create_dynamic<serialize_binary_buf>();
}

serialize_binary_buf *serialize_binary_buf::clone() const {
	return create_dynamic<serialize_binary_buf>(*this);
}

} // namespace QUOR_2_9::serialization
