#ifndef QUOR_SRC_SERIALIZATION_FRAMED_WRITER_HPP
#define QUOR_SRC_SERIALIZATION_FRAMED_WRITER_HPP

#include <charconv>
#include <cstddef>
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
	/// Takes the memory of `text`, whose bytes are lost.
	explicit framed_writer(std::string &&text) : m_text(std::move(text)) {
		m_text.resize(m_text.capacity());
		m_begin = m_text.size();
	}

	/// How many bytes are written.
	std::size_t size() const noexcept { return m_text.size() - m_begin; }

	/// Puts the string `text` with `tail` behind it in front, with its length.
	void put(std::string_view text, std::string_view tail = {}) {
		make_room(text.size() + tail.size() + most_length);
		put_bytes({&separator, 1});
		put_bytes(tail);
		put_bytes(text);
		put_length(text.size() + tail.size());
	}

	/// Puts the end of a string in front, whose bytes are put next, and then its length.
	void end_string() {
		make_room(1);
		put_bytes({&separator, 1});
	}

	/// Puts the length of a string in front, all of whose bytes are written.
	void begin_string(std::size_t size) {
		make_room(most_length);
		put_length(size);
	}

	/// The text.
	std::string take() {
		m_text.erase(0, m_begin);
		return std::move(m_text);
	}

private:
	/// Digits of a length, and the separators.
	static constexpr std::size_t most_length = 22;

	void make_room(std::size_t count) {
		if (m_begin >= count) {
			return;
		}
		std::string larger(2 * m_text.size() + count, '\0');
		larger.replace(larger.size() - size(), size(), m_text, m_begin, size());
		m_begin += larger.size() - m_text.size();
		m_text.swap(larger);
	}

	void put_bytes(std::string_view bytes) noexcept {
		m_begin -= bytes.size();
		bytes.copy(m_text.data() + m_begin, bytes.size());
	}

	void put_length(std::size_t length) noexcept {
		char digits[most_length];
		char *const end = std::to_chars(digits, digits + most_length - 1, length).ptr;
		*end = separator;
		put_bytes({digits, static_cast<std::size_t>(end + 1 - digits)});
	}

	std::string m_text;
	std::size_t m_begin = 0;
};

} // namespace QUOR_2_9::serialization::detail

#endif
