#ifndef QUOR_SRC_PARSER_XML_READER_HPP
#define QUOR_SRC_PARSER_XML_READER_HPP

// The dialect's one reader. It hands its events to an object of any class with the members
// element_start(name), element_end(name), attribute(name, value), character(text), space(run)
// and comment(body); they get views, which last as long as the call.

#include <algorithm>
#include <cstddef>
#include <deque>
#include <string>
#include <string_view>

#include <quor/parser/xml_parser.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/widths.hpp>

#include "parser/xml_bytes.hpp"
#include "parser/xml_entity.hpp"
#include "parser/xml_reader_state.hpp"
#include "parser/xml_scan.hpp"

namespace QUOR_2_9::parser::detail {

template <class Events, class Elements = std::deque<strings::ustring8>>
class xml_reader {
public:
	// Reads from `begin` to `end`. What is left open stays in the state.
	xml_reader(Events &events, xml_reader_state<Elements> const &state, char const *begin, char const *end)
	    : m_events(events), m_state(state), m_at(begin), m_end(end) {}

	// Where the reading ended, or the fault.
	char const *at() const noexcept { return m_at; }

	// A reading is the header, then pieces up to the end, each with a few events; at the end it
	// is known whether something is left open. A fault is thrown.
	void start() {
		m_state.line = 0;
		m_state.in_tag = false;
		m_root_seen = false;
		read_header();
	}
	bool is_at_end() const noexcept { return m_at == m_end; }
	void step() {
		if (is_of(*m_at, space_byte)) {
			char const *const first = m_at;
			skip_space();
			if (!m_state.in_tag) {
				m_events.space(between(first, m_at));
			}
			if (m_at == m_end) {
				return;
			}
		}
		if (*m_at == '<') {
			read_markup();
		} else if (*m_at == '>') {
			if (!m_state.in_tag) {
				fail_here();
			}
			m_state.in_tag = false;
			++m_at;
		} else if (!m_state.in_tag) {
			read_text();
		} else if (*m_at == '/') {
			read_empty_end();
		} else {
			read_attribute();
		}
	}
	void finish() const {
		if (!m_state.elements.empty()) {
			throw parse_error(parse_error::error_eof, 0, strings::ustring8());
		}
	}

	void skip_space() noexcept { m_at = end_of_space(m_at, m_end, m_state.line); }

	// Stops on the last character.
	std::string_view read_name() {
		if (m_at == m_end || !is_of(*m_at, letter_byte)) {
			fail_here();
		}
		char const *const first = m_at;
		char const *const last = end_of_name(m_at, m_end);
		m_at = last - 1;
		return between(first, last);
	}

	// Stops on the closing quote, or at the end where there is none.
	std::string_view read_value() {
		if (m_at == m_end) {
			fail_here();
		}
		char const quote = *m_at;
		if (quote != '\'' && quote != '"') {
			fail(parse_error::error_missing_quote);
		}
		++m_at;
		return read_resolved([this, quote](char const *from) {
			char const *const stop = end_of_value(from, m_end, quote);
			if (stop != m_end && *stop == '<') {
				m_at = stop;
				fail_here();
			}
			return stop;
		});
	}

	// Stops on the ";".
	char read_one_entity() { return read_entity(m_at, m_end, m_state.line); }

private:
	using parse_error = xml_parser::parse_error;

	[[noreturn]] void fail_here() const { detail::fail_at(m_at, m_end, m_state.line); }
	[[noreturn]] void fail(parse_error::error_code code, std::string_view text = {}) const {
		detail::fail(code, m_state.line, strings::ustring8(text));
	}

	std::size_t left() const noexcept { return static_cast<std::size_t>(m_end - m_at); }

	bool is_at(std::string_view text) const noexcept {
		return std::string_view(m_at, left()).substr(0, text.size()) == text;
	}

	// The header's end is looked for up to, but not including, the last byte: "<?xml>" has
	// nothing behind its header, "<?xml> " a broken one.
	void read_header() {
		if (left() >= 4 && m_at[3] == '<') {
			m_at += 3;
		}
		if (!is_at("<?xml")) {
			fail(parse_error::error_bad_header);
		}
		m_at += 5;
		while (left() > 1 && !is_at("?>")) {
			if (*m_at == '<' || *m_at == '>') {
				fail(parse_error::error_bad_header);
			}
			++m_at;
		}
		m_at += std::min<std::size_t>(2, left());
		skip_space();
		if (m_at == m_end) {
			fail(parse_error::error_no_root);
		}
	}

	void read_markup() {
		if (m_state.in_tag) {
			fail_here();
		}
		m_state.in_tag = true;
		++m_at;
		if (m_at == m_end) {
			fail_here();
		}
		if (*m_at == '/') {
			++m_at;
			read_end_tag();
		} else if (*m_at == '!' && at_comment()) {
			read_comment();
		} else {
			read_start_tag();
		}
	}

	// The tag stays open for the ">", so attributes and even "/" are taken behind the name.
	void read_end_tag() {
		std::string_view const name = read_name();
		if (!m_state.elements.empty()) {
			if (m_state.elements.back() != name) {
				fail(parse_error::error_mismatched_end, name);
			}
			m_state.elements.pop_back();
		}
		if (left() == 1) {
			fail(parse_error::error_eof);
		}
		m_events.element_end(name);
		++m_at;
	}

	bool at_comment() const {
		constexpr std::string_view opening = "!--";
		if (!is_at(opening.substr(0, std::min(left(), opening.size())))) {
			return false;
		}
		if (left() < opening.size()) {
			detail::fail_at(m_end, m_end, m_state.line);
		}
		return true;
	}

	void read_comment() {
		m_at += 3;
		char const *const body = m_at;
		m_at = end_of_comment(m_at, m_end);
		if (m_at == m_end) {
			fail_here();
		}
		char const *const last = m_at;
		m_at += 2;
		m_state.in_tag = false;
		m_events.comment(between(body, last));
		++m_at;
	}

	void read_start_tag() {
		if (m_state.elements.empty() && m_root_seen) {
			fail(parse_error::error_data_after_root);
		}
		std::string_view const name = read_name();
		m_state.elements.emplace_back(name);
		m_state.attributes.clear();
		m_events.element_start(name);
		m_root_seen = true;
		++m_at;
	}

	void read_empty_end() {
		++m_at;
		if (m_at == m_end) {
			fail(parse_error::error_unexpected_char);
		}
		if (*m_at != '>') {
			fail_here();
		}
		if (m_state.elements.empty()) {
			fail(parse_error::error_mismatched_end);
		}
		m_events.element_end(m_state.elements.back());
		m_state.in_tag = false;
		// Unless the same parser has closed it since.
		if (!m_state.elements.empty()) {
			m_state.elements.pop_back();
		}
		m_state.attributes.clear();
		++m_at;
	}

	void read_attribute() {
		std::string_view const name = read_name();
		if (!m_state.attributes.add(name)) {
			fail(parse_error::error_attribute_redefined, name);
		}
		++m_at;
		skip_space();
		if (m_at == m_end) {
			fail_here();
		}
		if (*m_at != '=') {
			fail(parse_error::error_missing_equals, name);
		}
		++m_at;
		skip_space();
		m_events.attribute(name, read_value());
		if (m_at == m_end) {
			fail(parse_error::error_missing_quote, name);
		}
		++m_at;
	}

	void read_text() {
		m_events.character(read_resolved([this](char const *from) { return end_of_text(from, m_end); }));
	}

	// Reads up to where `stop` tells, which may be an entity: then on behind that. The view is
	// one of the input where no entity stands in it.
	template <class Stop>
	std::string_view read_resolved(Stop stop) {
		char const *run = m_at;
		m_at = stop(run);
		if (m_at == m_end || *m_at != '&') {
			return between(run, m_at);
		}
		m_resolved.clear();
		while (m_at != m_end && *m_at == '&') {
			m_resolved.append(run, m_at);
			m_resolved.push_back(read_entity(m_at, m_end, m_state.line));
			run = ++m_at;
			m_at = stop(run);
		}
		m_resolved.append(run, m_at);
		return m_resolved;
	}

	Events &m_events;
	xml_reader_state<Elements> m_state;
	char const *m_at;
	char const *m_end;
	bool m_root_seen = false;
	std::string m_resolved;
};

} // namespace QUOR_2_9::parser::detail

#endif
