#include "catalog/token_segments.hpp"

#include <algorithm>
#include <cstring>
#include <map>
#include <string_view>
#include <utility>

namespace quor_cli {

namespace {

using quor::parser::xml_parser;
using quor::strings::ustring8;
using token = token_segment::token;

// What stands in front of a place where the reading goes on, so that the parser finds the
// elements open that are open there. It overwrites text that has been read.
constexpr std::string_view reopen_top = "<?xml?><xmc>";
constexpr std::string_view reopen_catalog = "<?xml?><xmc><catalog>";
constexpr std::size_t room = reopen_catalog.size();

// Where the root and the catalog begin that are open, for when they are opened again.
using outer_tags = std::map<std::string, std::size_t>;

// Records the events of one parse as tokens, with their places.
class recorder {
public:
	recorder(std::string const &buffer, std::size_t first, outer_tags &outer, token_segment &segment)
	    : m_buffer(buffer), m_first(first), m_outer(outer), m_segment(segment) {
		using quor::functor::member_function_t;
		m_parser.on_element_start() = member_function_t(this, &recorder::element_start);
		m_parser.on_element_end() = member_function_t(this, &recorder::element_end);
		m_parser.on_attribute() = member_function_t(this, &recorder::attribute);
		m_parser.on_character() = member_function_t(this, &recorder::character);
		m_parser.on_space() = member_function_t(this, &recorder::space);
		m_parser.on_comment() = member_function_t(this, &recorder::comment);
	}
	recorder(recorder const &) = delete;
	recorder &operator=(recorder const &) = delete;

	// Parses from `from`, which is in front of the first byte to report where elements
	// are opened again. Returns where the parse ended.
	std::size_t run(std::size_t from) {
		m_at = m_buffer.begin() + static_cast<std::ptrdiff_t>(from);
		m_last = from;
		auto const error = m_parser.do_parse(m_at, m_buffer.end());
		std::size_t const end = std::min(offset(), m_buffer.size());
		if (error.code() != xml_parser::parse_error::error_none) {
			syntax_fault fault{error, std::max(end, m_first), {}, 0};
			if (!m_open.empty()) {
				fault.open_element = m_open.back().first;
				fault.open_offset = m_open.back().second;
			}
			fault.in_catalog =
			    std::any_of(m_open.begin(), m_open.end(), [](auto const &each) { return each.first == "catalog"; });
			m_segment.fault = std::move(fault);
		}
		return end;
	}

private:
	std::size_t offset() const { return static_cast<std::size_t>(m_at - m_buffer.begin()); }

	bool is_reopening() const { return offset() < m_first; }

	void add(token::token_type type, ustring8 const &value, std::size_t begin) {
		m_segment.tokens.emplace_back(type, value);
		m_segment.offsets.push_back(std::max(begin, m_first));
	}

	// The attribute list of the last start tag is over.
	void close_attributes() {
		if (!m_attributes_closed) {
			add(token::token_attributes_end, ustring8(), m_last);
			m_attributes_closed = true;
		}
	}

	std::size_t tag_begin(ustring8 const &name) const {
		std::size_t const behind = offset() + 1;
		return behind > name.size() + 1 ? behind - name.size() - 1 : 0;
	}

	// A run of text begins behind the tag that was read last.
	std::size_t text_begin() const {
		std::size_t const begin = m_buffer.find_first_not_of("\"'/> \t\r\n", m_last);
		return std::min(begin, offset());
	}

	void element_start(ustring8 const &name) {
		std::size_t begin = tag_begin(name);
		if (is_reopening()) {
			auto const found = m_outer.find(name);
			begin = found != m_outer.end() ? found->second : m_first;
		} else {
			close_attributes();
			m_attributes_closed = false;
			add(token::token_element_start, name, begin);
			if (name == "xmc" || name == "catalog") {
				m_outer[name] = begin;
			}
		}
		m_open.emplace_back(name, begin);
		m_last = offset() + 1;
	}

	void element_end(ustring8 const &name) {
		close_attributes();
		bool const empty_tag = *m_at == '>';
		add(token::token_element_end, name, empty_tag ? offset() : tag_begin(name));
		if (!m_open.empty()) {
			m_open.pop_back();
		}
		m_last = offset() + 1;
	}

	void attribute(ustring8 const &name, ustring8 const &value) {
		std::size_t const begin = std::min(m_buffer.find_first_not_of(" \t\r\n", m_last), offset());
		add(token::token_attribute_name, name, begin);
		add(token::token_attribute_value, value, begin);
		m_last = std::min(offset() + 1, m_buffer.size());
	}

	void character(ustring8 const &text) { add_text(token::token_character, text); }

	void space(ustring8 const &text) { add_text(token::token_space, text); }

	void add_text(token::token_type type, ustring8 const &text) {
		if (!is_reopening()) {
			close_attributes();
			add(type, text, text_begin());
			m_last = offset();
		}
	}

	void comment(ustring8 const &text) {
		add(token::token_comment, text, text_begin());
		m_last = offset() + 1;
	}

	std::string const &m_buffer;
	std::size_t m_first;
	outer_tags &m_outer;
	token_segment &m_segment;
	xml_parser m_parser;
	xml_parser::const_iterator m_at;
	std::size_t m_last = 0;
	bool m_attributes_closed = true;
	std::vector<std::pair<std::string, std::size_t>> m_open;
};

bool is_tag(std::string_view rest, std::string_view tag) {
	if (rest.substr(0, tag.size()) != tag || rest.size() == tag.size()) {
		return false;
	}
	char const next = rest[tag.size()];
	return next == '>' || next == '/' || next == ' ' || next == '\t' || next == '\r' || next == '\n';
}

struct resume_point {
	std::size_t offset = std::string::npos;
	bool in_catalog = false;
};

// The next place behind a fault at which the reading can go on.
resume_point find_resume_point(std::string_view text, std::size_t from, bool in_catalog) {
	for (std::size_t at = text.find('<', from); at != std::string_view::npos; at = text.find('<', at + 1)) {
		std::string_view const rest = text.substr(at);
		if (is_tag(rest, "<msg") || is_tag(rest, "</catalog")) {
			return {at, true};
		}
		if (in_catalog && is_tag(rest, "</msg")) {
			return {std::min(text.find('>', at), text.size() - 1) + 1, true};
		}
		if (is_tag(rest, "<catalog") || is_tag(rest, "<include")) {
			return {at, false};
		}
		if (rest.substr(0, 4) == "<!--") {
			std::size_t const end = text.find("-->", at + 4);
			if (end == std::string_view::npos) {
				return {};
			}
			at = end;
		}
	}
	return {};
}

// Where the search for the next tag begins: at the faulty tag itself where it may be sound
// and only stands in a wrong place, else behind the fault.
std::size_t search_from(std::string const &buffer, std::size_t begin, std::size_t fault,
                        xml_parser::parse_error const &error) {
	using parse_error = xml_parser::parse_error;
	bool const sound = error.code() == parse_error::error_mismatched_end ||
	                   error.code() == parse_error::error_data_after_root ||
	                   (fault < buffer.size() && buffer[fault] == '<');
	std::size_t const tag = sound ? buffer.rfind('<', std::min(fault, buffer.size() - 1)) : std::string::npos;
	return tag == std::string::npos || tag <= begin ? std::max(fault, begin + 1) : tag;
}

} // namespace

std::list<token_segment> read_segments(std::string const &text) {
	std::string buffer(room, ' ');
	buffer.append(text);
	std::list<token_segment> segments;
	std::size_t begin = room;
	std::size_t from = room;
	outer_tags outer;
	quor::types::uint32 lines = 0; // that the parser would have counted so far
	while (true) {
		token_segment &segment = segments.emplace_back();
		segment.in_catalog = from != begin && begin - from == reopen_catalog.size();
		std::size_t const end = recorder(buffer, begin, outer, segment).run(from);
		for (std::size_t &offset : segment.offsets) {
			offset -= room;
		}
		if (!segment.fault) {
			return segments;
		}
		syntax_fault &fault = *segment.fault;
		xml_parser::parse_error const error = fault.error;
		std::size_t const search =
		    error.code() == xml_parser::parse_error::error_bad_header ? begin : search_from(buffer, begin, end, error);
		resume_point const next = find_resume_point(buffer, search, fault.in_catalog);
		lines += error.line();
		fault.error = xml_parser::parse_error(error.code(), lines, error.text());
		fault.offset -= room;
		fault.open_offset = std::max(fault.open_offset, room) - room;
		if (next.offset >= buffer.size()) {
			return segments;
		}
		std::size_t const skipped = std::min(end, next.offset);
		lines +=
		    static_cast<quor::types::uint32>(std::count(buffer.data() + skipped, buffer.data() + next.offset, '\n'));
		std::string_view const prefix = next.in_catalog ? reopen_catalog : reopen_top;
		begin = next.offset;
		from = begin - prefix.size();
		std::memcpy(buffer.data() + from, prefix.data(), prefix.size());
	}
}

} // namespace quor_cli
