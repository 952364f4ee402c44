#include "xml_stream/input_window.hpp"

#include <algorithm>
#include <cstring>
#include <utility>

#include "platform/file_stream.hpp"

namespace QUOR_2_9::xml_stream::detail {

input_window::input_window(types::wide_string path) : m_path(std::move(path)), m_buffer(capacity, '\0') {
	read.at = committed.at = end = m_filled = m_buffer.data();
}

bool input_window::opens() const {
	return platform::input_file(m_path).is_open();
}

std::uint64_t input_window::file_length() const {
	platform::input_file file(m_path);
	return file.is_open() ? static_cast<std::uint64_t>(std::max<std::int64_t>(file.size(), 0)) : 0;
}

input_window::outcome input_window::load() {
	if (end != m_filled) {
		std::uint64_t const before = offset_of(end);
		promise();
		step_back();
		return offset_of(end) != before ? outcome::more : outcome::full;
	}
	outcome const result = fill();
	m_promised = offset_of(m_filled);
	end = m_filled;
	return result;
}

void input_window::promise() noexcept {
	m_promised = offset() + capacity;
	show_up_to(m_promised);
}

input_window::outcome input_window::catch_up() {
	outcome const result = fill();
	show_up_to(m_promised);
	return result;
}

void input_window::show_up_to(std::uint64_t position) noexcept {
	end = m_filled - (m_position - std::min(position, m_position));
}

/// Moves what isn't committed to the front of the buffer and fills it up.
input_window::outcome input_window::fill() {
	platform::input_file file(m_path);
	if (!file.is_open()) {
		return outcome::not_opened;
	}
	std::int64_t const size = file.size();
	if (size < 0 || static_cast<std::uint64_t>(size) <= m_position) {
		return outcome::none;
	}
	auto const kept = static_cast<std::size_t>(m_filled - committed.at);
	std::size_t const room = capacity - kept;
	std::memmove(m_buffer.data(), committed.at, kept);
	committed.at = m_buffer.data();
	step_back();
	auto const count = std::min<std::uint64_t>(room, static_cast<std::uint64_t>(size) - m_position);
	std::size_t const taken = file.read_at(m_position, m_buffer.data() + kept, static_cast<std::size_t>(count));
	m_filled = m_buffer.data() + kept + taken;
	m_position += taken;
	if (taken != 0) {
		return outcome::more;
	}
	return room == 0 ? outcome::full : outcome::none;
}

} // namespace QUOR_2_9::xml_stream::detail
