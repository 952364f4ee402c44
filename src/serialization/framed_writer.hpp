#ifndef QUOR_SRC_SERIALIZATION_FRAMED_WRITER_HPP
#define QUOR_SRC_SERIALIZATION_FRAMED_WRITER_HPP

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include "serialization/contents.hpp"
#include "serialization/text_fields.hpp"

namespace QUOR_2_9::serialization::detail {

/// Builds a text of framed strings from its end to its beginning, so that what is nested is
/// written in its place before its length is known. A byte is copied a few times, whatever
/// it is nested in.
class framed_writer {
public:
	/// Takes the memory of `text`, whose bytes are lost. Texts that are short, or of the same size
	/// as `text`, are written without moving a byte more than once.
	explicit framed_writer(std::string &&text) noexcept : m_text(std::move(text)) {}
	framed_writer(framed_writer const &) = delete;
	framed_writer &operator=(framed_writer const &) = delete;
	~framed_writer() = default;

	/// How many bytes are written.
	std::size_t size() const noexcept { return m_capacity - m_begin; }

	/// Puts the string `text` with `tail` behind it in front, with its length.
	void put(std::string_view text, std::string_view tail = {}) {
		std::size_t const length = text.size() + tail.size();
		make_room(length_size(length) + length + 1);
		put_byte(separator);
		put_bytes(tail);
		put_bytes(text);
		put_length(length);
	}

	/// Puts the end of a string in front, whose bytes are put next, and then its length.
	void end_string() {
		make_room(1);
		put_byte(separator);
	}

	/// Puts the length of a string in front, all of whose bytes are written.
	void begin_string(std::size_t length) {
		make_room(length_size(length));
		put_length(length);
	}

	/// The text.
	std::string take() {
		if (m_first == m_short) {
			m_text.assign(m_short + m_begin, size());
		} else {
			m_text.erase(0, m_begin);
		}
		return std::move(m_text);
	}

private:
	/// Longer texts are written into the string.
	static constexpr std::size_t short_size = 1024;

	/// Makes room in front, at least doubling what there is; more than that, or than the last
	/// text had, of what the string has is not touched, as it may be much larger than the text.
	void make_room(std::size_t count) {
		if (m_begin < count) {
			grow(count);
		}
	}

	void grow(std::size_t count) {
		std::size_t const written = size();
		bool const fits_last = m_text.size() >= written + count;
		std::size_t const wanted = fits_last ? m_text.size() : 2 * m_capacity + count;
		if (m_text.capacity() >= written + count) {
			m_text.resize(std::min(wanted, m_text.capacity()));
			m_capacity = m_text.size();
			std::memmove(m_text.data() + m_capacity - written, m_first + m_begin, written);
		} else {
			std::string larger(wanted, '\0');
			std::memcpy(larger.data() + wanted - written, m_first + m_begin, written);
			m_text.swap(larger);
			m_capacity = wanted;
		}
		m_first = m_text.data();
		m_begin = m_capacity - written;
	}

	static std::size_t length_size(std::size_t length) noexcept {
		std::size_t size = 2;
		for (; length > 9; length /= 10) {
			++size;
		}
		return size;
	}

	/// Puts a length as a field, its last digit first.
	void put_length(std::size_t length) noexcept {
		put_byte(separator);
		for (; length > 9; length /= 10) {
			put_byte(static_cast<char>('0' + length % 10));
		}
		put_byte(static_cast<char>('0' + length));
	}

	void put_byte(char byte) noexcept { m_first[--m_begin] = byte; }

	void put_bytes(std::string_view bytes) noexcept {
		m_begin -= bytes.size();
		copy_text(m_first + m_begin, bytes.data(), bytes.size());
	}

	std::string m_text;
	char m_short[short_size];
	/// Where the text is written: the one or the other.
	char *m_first = m_short;
	std::size_t m_capacity = short_size;
	std::size_t m_begin = short_size;
};

} // namespace QUOR_2_9::serialization::detail

#endif
