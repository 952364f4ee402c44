#ifndef QUOR_TESTS_REFERENCE_XML_STREAM_HPP
#define QUOR_TESTS_REFERENCE_XML_STREAM_HPP

// The stream parser once more, byte by byte, on a file in memory of which it sees a window
// of 64 KiB. A buffer is a copy of the file's bytes, a position a number, a fault an int
// that is thrown.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace reference {

struct stream_node {
	int status = 1;
	bool available = false;
	std::string tag;
	std::uint32_t line = 0;
	std::uint32_t id = 0;
	std::uint32_t parent_id = 0;
	std::vector<std::pair<std::string, std::string>> attributes;
	std::string data;

	bool operator==(stream_node const &other) const {
		return status == other.status && available == other.available && tag == other.tag && line == other.line &&
		       id == other.id && parent_id == other.parent_id && attributes == other.attributes && data == other.data;
	}
};

class xml_stream {
public:
	static constexpr std::size_t window = 65536;

	explicit xml_stream(std::optional<std::string> content, std::size_t open_depth)
	    : file(std::move(content)), m_open_depth(open_depth), m_status(file ? 0 : 11) {}

	std::optional<std::string> file; // nothing where it doesn't open

	int parse() {
		if (m_status >= 10 || m_finished) {
			return m_status;
		}
		if (!m_positioned) {
			return m_status = 2;
		}
		m_status = 0;
		if (m_header_read || header()) {
			body();
		}
		return m_status;
	}

	int recover(std::vector<std::string> const &tags) {
		if (m_root.empty()) {
			return m_status = 10;
		}
		if (m_finished) {
			return m_status = 3;
		}
		if (tags.empty()) {
			return m_status = 2;
		}
		m_names.clear();
		m_in_tag = m_pending = m_in_comment = false;
		while (m_open.size() > path().size()) {
			m_open.pop_back();
		}
		m_queue.clear();
		m_positioned = false;
		while (true) {
			std::size_t const found = look_for(tags);
			m_read.at = found == none ? m_buffer.size() : found;
			bool const matches = found != none && !is_cut(found);
			m_done = m_read;
			if (matches) {
				m_positioned = true;
				return m_status = 0;
			}
			if (load() == 0) {
				return m_status = 2;
			}
		}
	}

	int error() const { return m_status; }
	std::string const &root() const { return m_root; }
	std::uint32_t line() const { return m_done.line; }
	std::uint64_t offset() const { return m_position - (m_buffer.size() - m_done.at); }

	std::size_t queue_size() const {
		std::size_t count = 0;
		while (count != m_queue.size() && m_queue[count]->available) {
			++count;
		}
		return count;
	}

	stream_node pop() {
		stream_node const result = *m_queue.front();
		m_queue.pop_front();
		return result;
	}

private:
	static constexpr std::size_t none = static_cast<std::size_t>(-1);

	struct place {
		std::size_t at = 0;
		std::uint32_t line = 1;
	};

	struct element {
		std::string name;
		std::shared_ptr<stream_node> node;
		bool deep;
	};

	static bool is_name(char byte) {
		return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
		       byte == '_' || (byte & 0x80) != 0;
	}
	static bool is_space(char byte) { return byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n'; }

	bool at_end() const { return m_read.at == m_buffer.size(); }
	std::size_t left() const { return m_buffer.size() - m_read.at; }
	char now() const { return m_buffer[m_read.at]; }
	bool ahead(std::string const &text) const { return m_buffer.compare(m_read.at, text.size(), text) == 0; }

	// The names of the open elements that are shallow.
	std::vector<std::string> path() const {
		std::vector<std::string> result;
		for (element const &one : m_open) {
			if (!one.deep) {
				result.push_back(one.name);
			}
		}
		return result;
	}

	std::size_t load() {
		if (m_finished) {
			return 0;
		}
		if (!file) {
			m_status = 11;
			return 0;
		}
		m_status = 0;
		if (m_position >= file->size()) {
			return 0;
		}
		m_buffer.erase(0, m_done.at);
		m_done.at = 0;
		m_read = m_done;
		std::string const more = file->substr(static_cast<std::size_t>(m_position), window - m_buffer.size());
		m_buffer += more;
		m_position += more.size();
		return more.size();
	}

	bool header() {
		if (load() == 0) {
			m_status = m_status == 11 ? 11 : 1;
			return false;
		}
		m_read = m_done;
		if (m_buffer.size() < 50) {
			m_status = 1;
			return false;
		}
		if (m_buffer[3] == '<') {
			m_read.at = 3;
		} else {
			spaces();
		}
		if (left() <= 5 || !ahead("<?xml")) {
			m_status = 12;
			return false;
		}
		std::size_t const end = m_buffer.find("?>", m_read.at + 5);
		if (end == std::string::npos) {
			m_status = 1;
			return false;
		}
		m_read.at = end + 2;
		m_header_read = true;
		spaces();
		m_done = m_read;
		return true;
	}

	bool is_long(std::size_t limit) const { return m_queue.size() >= limit && queue_size() >= 2; }

	void body() {
		while (!is_long(100)) {
			bool const left_for_queue = !buffer();
			if (m_finished) {
				m_status = 3;
				return;
			}
			if (m_status > 1) {
				return;
			}
			bool const inside = m_status == 1 || m_in_comment || m_pending || !m_open.empty();
			if (load() != 0) {
				continue;
			}
			if (left_for_queue) {
				m_status = 0;
			} else if (m_status != 11) {
				m_status = inside ? 1 : 0;
				finish_root();
			}
			return;
		}
	}

	// The file ends behind the root's name.
	void finish_root() {
		bool const at_file_end = file && m_position >= file->size();
		std::string const rest = m_buffer.substr(m_done.at);
		if (at_file_end && !m_in_comment && !m_open.empty() && !m_open.back().deep && m_open.back().name == m_root &&
		    rest == "</" + m_root && rest.size() < window) {
			m_read = {m_buffer.size(), m_done.line};
			close(m_root);
			m_done = m_read;
			m_status = 3;
		}
	}

	// False where it left because the queue is long.
	bool buffer() {
		m_read = m_done;
		try {
			if (m_in_comment) {
				comment();
				m_done = m_read;
			}
			while (!at_end()) {
				if (now() == '<' && !m_in_tag && left() >= 2 && m_buffer[m_read.at + 1] != '/' &&
				    m_buffer[m_read.at + 1] != '!' && is_long(101)) {
					return false;
				}
				if (m_finished && !m_in_tag && m_pending && now() == '>') {
					m_pending = false;
					return true;
				}
				token();
				m_done = m_read;
				if (m_finished && !m_pending) {
					return true;
				}
			}
		} catch (int status) {
			m_status = status;
		}
		return true;
	}

	void token() {
		char const byte = now();
		if (is_space(byte)) {
			space();
		} else if (m_in_tag) {
			in_tag(byte);
		} else if (byte == '<') {
			markup();
		} else if (byte == '>') {
			if (!m_pending) {
				throw 6;
			}
			m_pending = false;
			++m_read.at;
		} else {
			text();
		}
	}

	void in_tag(char byte) {
		if (byte == '<') {
			throw 6;
		}
		if (byte == '>') {
			m_in_tag = false;
			++m_read.at;
		} else if (byte == '/') {
			++m_read.at;
			need_byte();
			if (now() != '>') {
				throw 6;
			}
			++m_read.at;
			m_in_tag = false;
			bool const root = !m_finished && !m_open.back().deep && m_open.back().name == m_root;
			complete();
			m_finished = m_finished || root;
			m_pending = m_pending && !root;
		} else {
			attribute();
		}
	}

	void markup() {
		if (left() < 2) {
			throw 1;
		}
		char const next = m_buffer[m_read.at + 1];
		if (next == '/') {
			m_read.at += 2;
			std::string const closing = name();
			if (closing.empty() || at_end()) {
				throw 1;
			}
			close(closing);
		} else if (next == '!') {
			if (left() < 4) {
				throw 1;
			}
			if (!ahead("<!--")) {
				++m_read.at;
				return;
			}
			m_read.at += 4;
			m_in_comment = true;
			comment();
		} else {
			++m_read.at;
			open();
		}
	}

	void open() {
		std::string const tag = name();
		need_byte();
		if (tag.empty()) {
			throw 6;
		}
		bool const shallow = path().size() < m_open_depth && tag != "include";
		if (shallow && m_root.empty()) {
			m_root = tag;
		}
		auto const made = std::make_shared<stream_node>();
		*made = {1, shallow, tag, m_read.line, m_next_id, m_ids.empty() ? 0 : m_ids.back(), {}, ""};
		m_ids.push_back(m_next_id);
		++m_next_id;
		m_queue.push_back(made);
		m_open.push_back({tag, made, !shallow});
		m_names.clear();
		m_in_tag = true;
	}

	void complete() {
		m_open.back().node->status = 0;
		m_open.back().node->available = true;
		m_open.pop_back();
		m_ids.pop_back();
	}

	void close(std::string const &closing) {
		if (m_open.empty() || m_open.back().name != closing) {
			throw 4;
		}
		if (m_open.back().deep) {
			complete();
		} else {
			bool const root = closing == m_root;
			auto const made = std::make_shared<stream_node>();
			*made = {root ? 3 : 0, true, closing, m_read.line, static_cast<std::uint32_t>(path().size()), 0, {}, ""};
			m_queue.push_back(made);
			m_ids.pop_back();
			m_open.pop_back();
			m_finished = m_finished || root;
		}
		m_pending = true;
	}

	void attribute() {
		std::string const key = name();
		need_byte();
		if (key.empty()) {
			throw 6;
		}
		if (now() != '=') {
			throw 9;
		}
		++m_read.at;
		std::string const text = value();
		if (!m_names.insert(key).second) {
			throw 5;
		}
		m_open.back().node->attributes.emplace_back(key, text);
	}

	std::string value() {
		spaces();
		need_byte();
		char const quote = now();
		if (quote != '"' && quote != '\'') {
			throw 7;
		}
		++m_read.at;
		std::string result;
		for (need_byte(); now() != quote; need_byte()) {
			if (now() == '<') {
				throw 6;
			}
			result += now() == '&' ? entity() : byte();
		}
		++m_read.at;
		spaces();
		return result;
	}

	void text() {
		std::string result;
		while (!at_end() && now() != '<') {
			result += now() == '&' ? entity() : byte();
		}
		need_byte();
		if (m_open.size() <= 1) {
			throw 6;
		}
		m_open.back().node->data = result;
	}

	std::string entity() {
		if (left() < 5) {
			throw 1;
		}
		if (m_buffer[m_read.at + 1] == '#') {
			return number();
		}
		static std::vector<std::pair<std::string, char>> const known = {
		    {"&lt;", '<'}, {"&gt;", '>'}, {"&amp;", '&'}, {"&apos;", '\''}, {"&quot;", '"'}, {"&nbsp;", ' '}};
		for (auto const &[text, byte] : known) {
			if (ahead(text)) {
				m_read.at += text.size();
				return std::string(1, byte);
			}
			if (left() < text.size() && text.compare(0, left(), m_buffer, m_read.at) == 0) {
				throw 1;
			}
		}
		throw 6;
	}

	std::string number() {
		m_read.at += 2;
		int base = 10;
		if (now() == 'x') {
			base = 16;
			++m_read.at;
		} else if (now() == '0') {
			base = 8;
		}
		bool counts = true;
		unsigned int value = 0;
		for (need_byte(); now() != ';'; need_byte()) {
			std::size_t const digit = std::string("0123456789abcdefABCDEF").find(byte());
			if (digit == std::string::npos || (base != 16 && digit > 9)) {
				throw 6;
			}
			unsigned int const worth = static_cast<unsigned int>(digit > 15 ? digit - 6 : digit);
			counts = counts && worth < static_cast<unsigned int>(base);
			value = counts ? std::min(255U, value * static_cast<unsigned int>(base) + worth) : value;
		}
		++m_read.at;
		return std::string(1, static_cast<char>(value));
	}

	void comment() {
		for (; left() >= 3; byte()) {
			if (ahead("-->")) {
				m_read.at += 3;
				m_in_comment = false;
				return;
			}
			m_read.line += now() == '\n' ? 1 : 0;
		}
		m_done = m_read;
		throw 1;
	}

	void need_byte() const {
		if (at_end()) {
			throw 1;
		}
	}
	std::string byte() { return std::string(1, m_buffer[m_read.at++]); }
	std::string name() {
		std::string result;
		while (!at_end() && is_name(now())) {
			result += byte();
		}
		return result;
	}
	void space() {
		m_read.line += now() == '\n' ? 1 : 0;
		++m_read.at;
	}
	void spaces() {
		while (!at_end() && is_space(now())) {
			space();
		}
	}

	// Where a tag with one of the names begins, or what may be one that the buffer cuts.
	std::size_t look_for(std::vector<std::string> const &tags) const {
		for (std::size_t at = m_read.at; at < m_buffer.size(); ++at) {
			if (m_buffer[at] != '<') {
				continue;
			}
			if (is_cut(at)) {
				return at;
			}
			char const next = m_buffer[at + 1];
			std::string const found = m_buffer.substr(at + 1, end_of_name(at + 1) - at - 1);
			for (std::string const &tag : tags) {
				if (next != '/' && next != '!' && tag == found) {
					return at;
				}
			}
		}
		return none;
	}
	std::size_t end_of_name(std::size_t at) const {
		while (at < m_buffer.size() && is_name(m_buffer[at])) {
			++at;
		}
		return at;
	}
	bool is_cut(std::size_t at) const { return end_of_name(at + 1) == m_buffer.size(); }

	std::size_t const m_open_depth;
	int m_status;
	std::string m_buffer;
	std::uint64_t m_position = 0; // in the file, behind the buffer
	place m_read;
	place m_done;
	std::string m_root;
	bool m_in_tag = false;
	bool m_pending = false;
	bool m_in_comment = false;
	bool m_header_read = false;
	bool m_finished = false;
	bool m_positioned = true;
	std::uint32_t m_next_id = 1;
	std::vector<element> m_open;
	std::vector<std::uint32_t> m_ids;
	std::set<std::string> m_names;
	std::deque<std::shared_ptr<stream_node>> m_queue;
};

} // namespace reference

#endif
