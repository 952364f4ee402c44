#include <quor/serialization/serialize_binary_buf.hpp>

#include <bit>
#include <cstddef>
#include <cstdint>
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

namespace {

/// Appends the bytes of a number.
template <class Number>
void put(std::string &contents, Number const &value) {
	char image[sizeof value];
	generic::convert::detail::store_number<std::endian::little>(value, image);
	detail::append_few(contents, image);
}

/// Reads a number of which the last bytes may be missing.
template <class Number>
[[gnu::noinline]] Number get_cut(std::string const &contents, uint32 &position) noexcept {
	char image[sizeof(Number)] = {};
	if (!detail::is_at_end(contents, position)) {
		std::string_view(contents).substr(position).copy(image, sizeof image);
		position = detail::advanced(position, sizeof image);
	}
	return generic::convert::detail::load_number<Number, std::endian::little>(image);
}

template <class Number>
Number get(std::string const &contents, uint32 &position) noexcept {
	std::uint64_t const end = std::uint64_t(position) + sizeof(Number);
	if (end > contents.size() || end >= detail::no_position) {
		return get_cut<Number>(contents, position);
	}
	char const *const image = contents.data() + position;
	position = static_cast<uint32>(end);
	return generic::convert::detail::load_number<Number, std::endian::little>(image);
}

/// The longest text that a string keeps in itself.
constexpr std::size_t short_size = 15;

/// A short text, copied with what lies behind it: a copy of a size that is not known in advance
/// costs several times as much.
std::string short_text(char const *bytes, std::size_t size) {
	std::string result(bytes, short_size);
	result.erase(size);
	return result;
}

/// Reads the count of a string and moves behind its bytes; `text` is what there is of them.
/// False where nothing is left, before or behind the count.
bool get_text(std::string const &contents, uint32 &position, std::string_view &text) noexcept {
	if (detail::is_at_end(contents, position)) {
		return false;
	}
	auto const count = get<uint32>(contents, position);
	if (detail::is_at_end(contents, position)) {
		return false;
	}
	text = std::string_view(contents).substr(position, count);
	position = detail::advanced(position, count);
	return true;
}

} // namespace

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

void serialize_binary_buf::append_int8(signed char const &value) {
	put(buffer, value);
}

void serialize_binary_buf::append_int16(short const &value) {
	put(buffer, value);
}

void serialize_binary_buf::append_int32(int32 const &value) {
	put(buffer, value);
}

void serialize_binary_buf::append_int64(int64 const &value) {
	put(buffer, value);
}

void serialize_binary_buf::append_uint8(unsigned char const &value) {
	put(buffer, value);
}

void serialize_binary_buf::append_uint16(unsigned short const &value) {
	put(buffer, value);
}

void serialize_binary_buf::append_uint32(uint32 const &value) {
	put(buffer, value);
}

void serialize_binary_buf::append_uint64(uint64 const &value) {
	put(buffer, value);
}

void serialize_binary_buf::append_float(float const &value, uint32 const & /*precision*/) {
	put(buffer, value);
}

void serialize_binary_buf::append_double(double const &value, uint32 const & /*precision*/) {
	put(buffer, value);
}

// The room is there before the count is written: an appended string that is this buffer's
// own stays where it is, and so does the buffer when there is no memory.
void serialize_binary_buf::append_string(std::string const &value) {
	std::size_t const size = value.size();
	detail::make_room(buffer, sizeof(uint32) + size);
	put(buffer, static_cast<uint32>(size));
	buffer.append(value.data(), size);
}

void serialize_binary_buf::append_buffer(serialize_buffer const &value) {
	serialize_binary_buf::append_string(value.as_str());
}

signed char serialize_binary_buf::read_int8() const {
	return get<signed char>(buffer, read_pos);
}

short serialize_binary_buf::read_int16() const {
	return get<short>(buffer, read_pos);
}

int32 serialize_binary_buf::read_int32() const {
	return get<int32>(buffer, read_pos);
}

int64 serialize_binary_buf::read_int64() const {
	return get<int64>(buffer, read_pos);
}

unsigned char serialize_binary_buf::read_uint8() const {
	return get<unsigned char>(buffer, read_pos);
}

unsigned short serialize_binary_buf::read_uint16() const {
	return get<unsigned short>(buffer, read_pos);
}

uint32 serialize_binary_buf::read_uint32() const {
	return get<uint32>(buffer, read_pos);
}

uint64 serialize_binary_buf::read_uint64() const {
	return get<uint64>(buffer, read_pos);
}

float serialize_binary_buf::read_float() const {
	return get<float>(buffer, read_pos);
}

double serialize_binary_buf::read_double() const {
	return get<double>(buffer, read_pos);
}

std::string serialize_binary_buf::read_string() const {
	std::uint64_t const start = std::uint64_t(read_pos) + sizeof(uint32);
	if (start + short_size <= buffer.size() && start + short_size < detail::no_position) {
		char const *const bytes = buffer.data() + start;
		auto const count = generic::convert::detail::load_number<uint32, std::endian::little>(bytes - sizeof(uint32));
		if (count <= short_size) {
			read_pos = static_cast<uint32>(start + count);
			return short_text(bytes, count);
		}
	}
	std::string_view text;
	return get_text(buffer, read_pos, text) ? std::string(text) : std::string();
}

serialize_buffer *serialize_binary_buf::read_buffer() const {
	std::string_view text;
	if (!get_text(buffer, read_pos, text)) {
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
