#include "xml_stream/stream_reader.hpp"

#include <algorithm>
#include <cstring>

namespace QUOR_2_9::xml_stream::detail {
namespace {

using strings::ustring16;
using strings::ustring8;
using outcome = input_window::outcome;

constexpr std::size_t shortest_file = 50;
constexpr std::size_t long_queue = 100;
constexpr std::string_view header_start = "<?xml";

} // namespace

stream_reader::stream_reader(ustring16 const &path, unsigned int open_depth) : window(path), m_open_depth(open_depth) {
	if (!window.opens()) {
		status = xml_stream_parser::status_file;
	}
}

stream_reader::error_type const &stream_reader::parse() {
	if (status >= xml_stream_parser::status_no_root || m_finished) {
		return status;
	}
	if (!m_positioned) {
		return status = xml_stream_parser::status_no_position;
	}
	status = xml_stream_parser::status_ok;
	return m_header_read || read_header() ? do_parse() : status;
}

/// Reads the header, of which nothing is committed before all of it is there.
bool stream_reader::read_header() {
	bool const loaded = load() != 0;
	if (!loaded && status == xml_stream_parser::status_file) {
		return false;
	}
	window.step_back();
	if (!loaded || window.remaining() < shortest_file) {
		status = xml_stream_parser::status_more_input;
		return false;
	}
	if (window.read.at[3] == '<') {
		window.read.at += 3;
	} else {
		skip_whitespace();
	}
	std::string_view rest(window.read.at, window.remaining());
	if (rest.size() <= header_start.size() || rest.substr(0, header_start.size()) != header_start) {
		status = xml_stream_parser::status_bad_header;
		return false;
	}
	rest.remove_prefix(header_start.size());
	std::size_t const end = rest.find("?>");
	if (end == std::string_view::npos) {
		status = xml_stream_parser::status_more_input;
		return false;
	}
	window.read.at += header_start.size() + end + 2;
	m_header_read = true;
	skip_whitespace();
	window.commit();
	return true;
}

stream_reader::error_type const &stream_reader::do_parse() {
	while (!is_queue_long(long_queue - 1)) {
		parse_next();
		while (wants_promised() && window.catch_up() == outcome::more) {
			status = xml_stream_parser::status_ok;
			parse_next();
		}
		if (m_finished) {
			status = xml_stream_parser::status_end_of_document;
			break;
		}
		if (status > xml_stream_parser::status_more_input) {
			break;
		}
		if (m_queue_was_long) {
			window.promise();
			break;
		}
		error_type const stopped = status;
		if (load() == 0) {
			settle(stopped);
			break;
		}
	}
	return status;
}

/// Whether `parse_next` left because something in view isn't in memory.
bool stream_reader::wants_promised() const noexcept {
	return status <= xml_stream_parser::status_more_input && !m_finished && !m_queue_was_long && window.is_behind();
}

/// The status where nothing more came: what `stopped` says is that of `parse_next`.
void stream_reader::settle(error_type stopped) {
	if (status == xml_stream_parser::status_file) {
		return;
	}
	bool const inside = stopped == xml_stream_parser::status_more_input || m_in_comment || m_closing_tag_pending;
	status = inside || !m_open.empty() ? xml_stream_parser::status_more_input : xml_stream_parser::status_ok;
	if (close_root_at_end()) {
		status = xml_stream_parser::status_end_of_document;
	}
}

std::size_t stream_reader::load() {
	if (m_finished) {
		return 0;
	}
	std::size_t const before = window.uncommitted().size();
	outcome const result = window.load();
	status = result == outcome::not_opened ? xml_stream_parser::status_file : xml_stream_parser::status_ok;
	return window.uncommitted().size() - before;
}

stream_reader::error_type const &stream_reader::recover(std::list<ustring8> const &tags) {
	if (root.empty()) {
		return status = xml_stream_parser::status_no_root;
	}
	if (m_finished) {
		return status = xml_stream_parser::status_end_of_document;
	}
	if (tags.empty()) {
		return status = xml_stream_parser::status_no_position;
	}
	forget_attribute_names();
	m_in_tag = m_closing_tag_pending = m_in_comment = false;
	give_up_deep_elements();
	queue.clear();
	m_positioned = false;
	bool more = true;
	while (more && !find_tag(tags)) {
		window.commit();
		more = (window.is_behind() && window.catch_up() == outcome::more) || load() != 0;
	}
	window.commit();
	m_positioned = more;
	return status = more ? xml_stream_parser::status_ok : xml_stream_parser::status_no_position;
}

/// The ids of these elements stay.
void stream_reader::give_up_deep_elements() {
	while (m_open.size() > m_path.size()) {
		if (!m_open.back().deep) {
			m_path.pop_back();
		}
		queue.close(m_open.back().node);
		m_open.pop_back();
	}
}

/// Moves to the next opening tag with one of the names, or, where the window ends, to what has
/// to be read again.
bool stream_reader::find_tag(std::list<ustring8> const &tags) {
	cursor &read = window.read;
	while (true) {
		void const *const found = std::memchr(read.at, '<', window.remaining());
		if (found == nullptr) {
			read.at = window.end;
			return false;
		}
		cursor const start = {static_cast<char const *>(found), read.line};
		read.at = start.at + 1;
		if (!window.at_end() && (*read.at == '/' || *read.at == '!')) {
			continue;
		}
		std::string_view const name = parse_name();
		if (window.at_end()) {
			read = start;
			return false;
		}
		if (std::find(tags.begin(), tags.end(), name) != tags.end()) {
			read = start;
			return true;
		}
	}
}

} // namespace QUOR_2_9::xml_stream::detail
