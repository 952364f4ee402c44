#ifndef QUOR_SRC_SERIALIZATION_FRAMED_WRITER_HPP
#define QUOR_SRC_SERIALIZATION_FRAMED_WRITER_HPP

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include "serialization/text_fields.hpp"

namespace QUOR_2_9::serialization::detail {

/// Builds a text of framed strings from its end to its beginning, so that what is nested is
/// written in its place before its length is known. A byte is copied a few times, whatever
/// it is nested in.
class framed_writer {
public:
	/// Takes the memory of `text`, whose bytes are lost. A text of the same size as `text` is
	/// written without moving a byte.
	explicit framed_writer(std::string &&text) noexcept : m_text(std::move(text)), m_begin(m_text.size()) {}

	/// How many bytes are written.
	std::size_t size() const noexcept { return m_text.size() - m_begin; }

	/// Puts the string `text` with `tail` behind it in front, with its length.
	void put(std::string_view text, std::string_view tail = {}) {
		char digits[number_field_size];
		std::string_view const length = number_field(text.size() + tail.size(), digits);
		make_room(length.size() + text.size() + tail.size() + 1);
		put_bytes({&separator, 1});
		put_bytes(tail);
		put_bytes(text);
		put_bytes(length);
	}

	/// Puts the end of a string in front, whose bytes are put next, and then its length.
	void end_string() {
		make_room(1);
		put_bytes({&separator, 1});
	}

	/// Puts the length of a string in front, all of whose bytes are written.
	void begin_string(std::size_t size) {
		char digits[number_field_size];
		std::string_view const length = number_field(size, digits);
		make_room(length.size());
		put_bytes(length);
	}

	/// The text.
	std::string take() {
		m_text.erase(0, m_begin);
		return std::move(m_text);
	}

private:
	/// Makes room in front, at least doubling what there is; more than that of what the string
	/// has is not touched, as it may be much larger than the text.
	void make_room(std::size_t count) {
		if (m_begin >= count) {
			return;
		}
		std::size_t const written = size();
		std::size_t const begin = m_begin;
		std::size_t const wanted = 2 * m_text.size() + count;
		if (m_text.capacity() >= written + count) {
			m_text.resize(std::min(wanted, m_text.capacity()));
			m_begin = m_text.size() - written;
			std::memmove(m_text.data() + m_begin, m_text.data() + begin, written);
		} else {
			std::string larger(wanted, '\0');
			m_begin = wanted - written;
			m_text.copy(larger.data() + m_begin, written, begin);
			m_text.swap(larger);
		}
	}

	void put_bytes(std::string_view bytes) noexcept {
		m_begin -= bytes.size();
		bytes.copy(m_text.data() + m_begin, bytes.size());
	}

	std::string m_text;
	std::size_t m_begin = 0;
};

} // namespace QUOR_2_9::serialization::detail

#endif
