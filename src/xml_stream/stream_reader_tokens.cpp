#include <string_view>

#include "xml_stream/stream_reader.hpp"

namespace QUOR_2_9::xml_stream::detail {
namespace {

using strings::ustring8;
using parser = xml_stream_parser;

constexpr std::size_t long_queue = 100;

} // namespace

void stream_reader::parse_next() {
	m_queue_was_long = false;
	window.step_back();
	try {
		if (m_in_comment) {
			if (!finish_comment()) {
				fail(parser::status_more_input);
			}
			window.commit();
		}
		while (!window.at_end() && parse_token()) {
		}
	} catch (error_type const &error) {
		status = error;
	}
	if (m_in_tag && !m_names_kept) {
		keep_attribute_names();
	}
}

/// One token, which is committed; false to leave.
bool stream_reader::parse_token() {
	cursor &read = window.read;
	switch (*read.at) {
	case '\n':
		++read.line;
		[[fallthrough]];
	case '\t':
	case '\r':
	case ' ':
		++read.at;
		break;
	case '<':
		if (m_in_tag) {
			fail(parser::status_syntax);
		}
		return parse_markup();
	case '>':
		if (m_in_tag) {
			m_in_tag = false;
		} else if (!m_closing_tag_pending) {
			fail(parser::status_syntax);
		} else {
			m_closing_tag_pending = false;
			if (m_finished) {
				return false;
			}
		}
		++read.at;
		break;
	case '/':
		if (m_in_tag) {
			return parse_empty_end();
		}
		parse_text();
		break;
	default:
		m_in_tag ? parse_attribute() : parse_text();
	}
	window.commit();
	return true;
}

bool stream_reader::parse_markup() {
	cursor &read = window.read;
	if (window.remaining() < 2) {
		fail(parser::status_more_input);
	}
	if (read.at[1] == '/') {
		parse_closing_tag();
	} else if (read.at[1] != '!') {
		return parse_opening_tag();
	} else if (window.remaining() < 4) {
		fail(parser::status_more_input);
	} else if (read.at[2] == '-' && read.at[3] == '-') {
		read.at += 4;
		m_in_comment = true;
		if (!finish_comment()) {
			fail(parser::status_more_input);
		}
	} else {
		++read.at;
	}
	window.commit();
	return true;
}

bool stream_reader::parse_opening_tag() {
	if (is_queue_long(long_queue)) {
		m_queue_was_long = true;
		return false;
	}
	++window.read.at;
	std::string_view const name = parse_name();
	if (window.at_end()) {
		fail(parser::status_more_input);
	}
	if (name.empty()) {
		fail(parser::status_syntax);
	}
	bool const available = m_path.size() < m_open_depth && name != "include";
	if (available && root.empty()) {
		root = name;
	}
	new_node(name, parser::status_more_input, available);
	forget_attribute_names();
	m_in_tag = true;
	window.commit();
	return true;
}

void stream_reader::fill(node &made, std::string_view name, error_type node_status, bool available, unsigned int id,
                         unsigned int parent_id) const {
	made.m_status = node_status;
	made.m_available = available;
	made.m_tag = name;
	made.m_line = window.read.line;
	made.m_id = id;
	made.m_parent_id = parent_id;
	made.m_attributes.clear();
	made.m_data.clear();
}

void stream_reader::new_node(std::string_view name, error_type node_status, bool available) {
	auto const position = queue.prepare();
	m_open.emplace_back(name, position, !available);
	if (available) {
		m_path.emplace_back(name);
	}
	unsigned int const parent_id = m_ids.empty() ? 0 : m_ids.back();
	fill(position->value, name, node_status, available, m_next_id, parent_id);
	m_ids.push_back(m_next_id);
	++m_next_id;
	queue.push(true);
}

bool stream_reader::parse_empty_end() {
	++window.read.at;
	if (window.at_end()) {
		fail(parser::status_more_input);
	}
	if (*window.read.at != '>') {
		fail(parser::status_syntax);
	}
	++window.read.at;
	m_in_tag = false;
	bool const was_finished = m_finished;
	close_tag();
	window.commit();
	return was_finished == m_finished;
}

void stream_reader::close_tag() {
	if (m_open.empty()) {
		fail(parser::status_tag_mismatch);
	}
	open_element const &closed = m_open.back();
	closed.node->value.m_status = parser::status_ok;
	closed.node->value.m_available = true;
	queue.close(closed.node);
	if (!closed.deep) {
		leave_path();
	}
	m_open.pop_back();
	m_ids.pop_back();
	forget_attribute_names();
}

/// The innermost open element, a shallow one, ends.
void stream_reader::leave_path() {
	m_finished = m_finished || m_path.back() == root;
	m_path.pop_back();
}

void stream_reader::parse_closing_tag() {
	window.read.at += 2;
	std::string_view const name = parse_name();
	if (name.empty() || window.at_end()) {
		fail(parser::status_more_input);
	}
	close_element(name);
}

void stream_reader::close_element(std::string_view name) {
	if (m_open.empty() || m_open.back().name != name) {
		fail(parser::status_tag_mismatch);
	}
	if (m_open.back().deep) {
		close_tag();
	} else {
		end_of_open_node(name, name == root ? parser::status_end_of_document : parser::status_ok);
		queue.close(m_open.back().node);
		leave_path();
		m_open.pop_back();
	}
	m_closing_tag_pending = true;
}

void stream_reader::end_of_open_node(std::string_view name, error_type node_status) {
	fill(queue.prepare()->value, name, node_status, true, static_cast<unsigned int>(m_path.size()), 0);
	if (!m_ids.empty()) {
		m_ids.pop_back();
	}
	queue.push(false);
}

/// Where the file ends right behind the root's name in its closing tag, the document is
/// finished. Elsewhere a name at the end may go on.
bool stream_reader::close_root_at_end() {
	std::string_view const rest = window.uncommitted();
	bool const closes = !m_in_tag && !m_in_comment && !m_open.empty() && !m_open.back().deep &&
	                    m_open.back().name == root && rest.size() == root.size() + 2 &&
	                    rest.size() < input_window::capacity && rest.substr(0, 2) == "</" && rest.substr(2) == root;
	if (closes) {
		window.step_back();
		window.read.at = window.end;
		close_element(root);
		window.commit();
	}
	return closes;
}

bool stream_reader::finish_comment() {
	cursor &read = window.read;
	char const *at = read.at;
	char const *const end = window.end;
	while (end - at >= 3 && !(at[0] == '-' && at[1] == '-' && at[2] == '>')) {
		read.line += *at == '\n' ? 1 : 0;
		++at;
	}
	read.at = at;
	if (end - at < 3) {
		window.commit();
		return false;
	}
	read.at += 3;
	m_in_comment = false;
	return true;
}

} // namespace QUOR_2_9::xml_stream::detail
