#include <quor/serialization/serialize_binary_buf.hpp>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

#include "generic/convert/byte_image.hpp"
#include "serialization/contents.hpp"
#include "serialization/formatted_buffer_bodies.hpp"

namespace QUOR_2_9::serialization {

using generic::abilities::create_dynamic;
using types::uint32;

namespace {

using generic::convert::detail::load_number;
using generic::convert::detail::store_number;

/// Reads a number of which the last bytes may be missing.
template <class Number>
[[gnu::noinline]] Number get_cut(std::string_view contents, uint32 &position) noexcept {
	char image[sizeof(Number)] = {};
	if (!detail::is_at_end(contents, position)) {
		contents.substr(position).copy(image, sizeof image);
		position = detail::advanced(position, sizeof image);
	}
	return load_number<Number, std::endian::little>(image);
}

template <class Number>
Number get(std::string_view contents, uint32 &position) noexcept {
	std::uint64_t const end = std::uint64_t(position) + sizeof(Number);
	if (end > contents.size() || end >= detail::no_position) {
		return get_cut<Number>(contents, position);
	}
	char const *const image = contents.data() + position;
	position = static_cast<uint32>(end);
	return load_number<Number, std::endian::little>(image);
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
bool get_text(std::string_view contents, uint32 &position, std::string_view &text) noexcept {
	if (detail::is_at_end(contents, position)) {
		return false;
	}
	auto const count = get<uint32>(contents, position);
	if (detail::is_at_end(contents, position)) {
		return false;
	}
	text = contents.substr(position, count);
	position = detail::advanced(position, count);
	return true;
}

} // namespace

namespace detail {

struct binary_format {
	template <class Number>
	static void append_number(stored_bytes &stored, Number value) {
		append_written<sizeof value>(stored, [value](char *to) noexcept {
			store_number<std::endian::little>(value, to);
			return sizeof value;
		});
	}

	template <class Number>
	static void append_floating(stored_bytes &stored, Number value, uint32 /*precision*/) {
		append_number(stored, value);
	}

	static void append_text(stored_bytes &stored, std::string const &value) {
		std::size_t const size = value.size();
		if (room_of(stored) < sizeof(uint32) + size) {
			append_text_to_full(stored, value);
			return;
		}
		char *const to = next_byte(stored);
		store_number<std::endian::little>(static_cast<uint32>(size), to);
		copy_text(to + sizeof(uint32), value.data(), size);
		stored.size += sizeof(uint32) + size;
	}

	// The room is there before the count is written: an appended string that is this buffer's
	// own stays where it is, and so does the buffer when there is no memory.
	[[gnu::noinline]] static void append_text_to_full(stored_bytes &stored, std::string const &value) {
		std::size_t const size = value.size();
		make_room(stored, sizeof(uint32) + size);
		append_number(stored, static_cast<uint32>(size));
		append_bytes(stored, value.data(), size);
	}

	template <class Number>
	static Number read_number(stored_bytes &stored) noexcept {
		return get<Number>(contents_of(stored), stored.position);
	}

	static std::string read_text(serialize_buffer const & /*buffer*/, stored_bytes &stored) {
		std::string_view const contents = contents_of(stored);
		std::uint64_t const start = std::uint64_t(stored.position) + sizeof(uint32);
		if (start + short_size <= contents.size() && start + short_size < no_position) {
			char const *const bytes = contents.data() + start;
			auto const count = load_number<uint32, std::endian::little>(bytes - sizeof(uint32));
			if (count <= short_size) {
				stored.position = static_cast<uint32>(start + count);
				return short_text(bytes, count);
			}
		}
		std::string_view text;
		return get_text(contents, stored.position, text) ? std::string(text) : std::string();
	}
};

template class formatted_buffer<binary_format>;

} // namespace detail

serialize_binary_buf::serialize_binary_buf(serialize_buffer const &other) : formatted_buffer(other) {}

serialize_binary_buf::serialize_binary_buf(std::string const &bytes) : formatted_buffer(bytes) {}

serialize_binary_buf::~serialize_binary_buf() = default;

serialize_binary_buf &serialize_binary_buf::operator=(serialize_binary_buf const &other) {
	formatted_buffer::operator=(other);
	return *this;
}

serialize_buffer *serialize_binary_buf::read_buffer() const {
	std::string_view text;
	if (!get_text(detail::contents_of(stored), stored.position, text)) {
		return nullptr;
	}
	std::unique_ptr<serialize_binary_buf> result(create_dynamic<serialize_binary_buf>());
	detail::take_bytes(result->stored, text);
	return result.release();
}

serialize_binary_buf *serialize_binary_buf::create() const {
	return create_dynamic<serialize_binary_buf>();
}

serialize_binary_buf *serialize_binary_buf::clone() const {
	return create_dynamic<serialize_binary_buf>(*this);
}

} // namespace QUOR_2_9::serialization
