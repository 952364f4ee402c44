#include <quor/parser/xml_parser.hpp>

#include <algorithm>
#include <cstddef>

#include "parser/xml_bytes.hpp"
#include "parser/xml_entity.hpp"
#include "support/ascii.hpp"

namespace QUOR_2_9::parser {

namespace {

using detail::fail;
using detail::fail_at;
using detail::is_name_character;
using detail::is_space;
using detail::read_entity;
using strings::ustring8;
using support::is_letter;

template <class Delegate, class... Texts>
void report(Delegate const &delegate, Texts const &...texts) {
	if (delegate) {
		delegate(texts...);
	}
}

} // namespace

xml_parser::xml_parser() = default;
xml_parser::xml_parser(xml_parser const &other) = default;
xml_parser &xml_parser::operator=(xml_parser const &other) {
	if (this != &other) {
		m_element_start = other.m_element_start;
		m_element_end = other.m_element_end;
		m_attribute = other.m_attribute;
		m_character = other.m_character;
		m_space = other.m_space;
		m_comment = other.m_comment;
		m_elements = other.m_elements;
		m_attributes = other.m_attributes;
		m_in_tag = other.m_in_tag;
		m_line = other.m_line;
	}
	return *this;
}
xml_parser::~xml_parser() = default;

xml_parser::parse_error xml_parser::parse(ustring8 const &text) const {
	return parse(text.begin(), text.end());
}

xml_parser::parse_error xml_parser::parse(const_iterator begin, const_iterator end) const {
	return do_parse(begin, end);
}

xml_parser::parse_error xml_parser::do_parse(const_iterator &begin, const_iterator const &end) const {
	m_line = 0;
	m_in_tag = false;
	try {
		skip_header(begin, end);
		bool root_seen = false;
		while (begin != end) {
			ustring8 const space = parse_whitespace(begin, end);
			if (!space.empty() && !m_in_tag) {
				report(m_space, space);
			}
			if (begin == end) {
				break;
			}
			if (*begin == '<') {
				parse_markup(begin, end, root_seen);
			} else if (*begin == '>') {
				if (!m_in_tag) {
					fail_at(begin, end, m_line);
				}
				m_in_tag = false;
				++begin;
			} else if (!m_in_tag) {
				parse_text(begin, end);
			} else if (*begin == '/') {
				parse_empty_end(begin, end);
			} else {
				parse_attribute(begin, end);
			}
		}
	} catch (parse_error const &error) {
		return error;
	}
	return parse_error(m_elements.empty() ? parse_error::error_none : parse_error::error_eof, 0, ustring8());
}

// The header's end is looked for up to, but not including, the last byte: "<?xml>" has
// nothing behind its header, "<?xml> " a broken one.
void xml_parser::skip_header(const_iterator &it, const_iterator const &end) const {
	static constexpr char opening[] = {'<', '?', 'x', 'm', 'l'};
	if (end - it >= 4 && it[3] == '<') {
		it += 3;
	}
	if (end - it < 5 || !std::equal(opening, opening + 5, it)) {
		fail(parse_error::error_bad_header, m_line, ustring8());
	}
	it += 5;
	while (end - it > 1 && !(it[0] == '?' && it[1] == '>')) {
		if (*it == '<' || *it == '>') {
			fail(parse_error::error_bad_header, m_line, ustring8());
		}
		++it;
	}
	it += std::min<std::ptrdiff_t>(2, end - it);
	count_whitespace(it, end);
	if (it == end) {
		fail(parse_error::error_no_root, m_line, ustring8());
	}
}

void xml_parser::parse_markup(const_iterator &it, const_iterator const &end, bool &root_seen) const {
	if (m_in_tag) {
		fail_at(it, end, m_line);
	}
	m_in_tag = true;
	++it;
	if (it == end) {
		fail_at(it, end, m_line);
	}
	if (*it == '/') {
		++it;
		parse_end_tag(it, end);
	} else if (at_comment(it, end)) {
		parse_comment(it, end);
	} else {
		parse_start_tag(it, end, root_seen);
	}
	++it;
}

// The tag stays open for the ">", so attributes and even "/" are taken behind the name.
void xml_parser::parse_end_tag(const_iterator &it, const_iterator const &end) const {
	ustring8 const name = parse_name(it, end);
	if (!m_elements.empty()) {
		if (m_elements.back() != name) {
			fail(parse_error::error_mismatched_end, m_line, name);
		}
		m_elements.pop_back();
	}
	if (end - it == 1) {
		fail(parse_error::error_eof, m_line, ustring8());
	}
	report(m_element_end, name);
}

void xml_parser::parse_comment(const_iterator &it, const_iterator const &end) const {
	it += 3;
	const_iterator const body = it;
	while (end - it > 2 && !(it[0] == '-' && it[1] == '-' && it[2] == '>')) {
		++it;
	}
	if (end - it <= 2) {
		it = end;
		fail_at(it, end, m_line);
	}
	ustring8 const text(body, it);
	it += 2;
	m_in_tag = false;
	report(m_comment, text);
}

void xml_parser::parse_start_tag(const_iterator &it, const_iterator const &end, bool &root_seen) const {
	if (m_elements.empty() && root_seen) {
		fail(parse_error::error_data_after_root, m_line, ustring8());
	}
	ustring8 const name = parse_name(it, end);
	m_elements.push_back(name);
	m_attributes.clear();
	report(m_element_start, name);
	root_seen = true;
}

void xml_parser::parse_empty_end(const_iterator &it, const_iterator const &end) const {
	++it;
	if (it == end) {
		fail(parse_error::error_unexpected_char, m_line, ustring8());
	}
	if (*it != '>') {
		fail_at(it, end, m_line);
	}
	if (m_elements.empty()) {
		fail(parse_error::error_mismatched_end, m_line, ustring8());
	}
	report(m_element_end, m_elements.back());
	m_in_tag = false;
	m_elements.pop_back();
	m_attributes.clear();
	++it;
}

void xml_parser::parse_attribute(const_iterator &it, const_iterator const &end) const {
	ustring8 const name = parse_name(it, end);
	if (!m_attributes.insert(name).second) {
		fail(parse_error::error_attribute_redefined, m_line, name);
	}
	++it;
	count_whitespace(it, end);
	if (it == end) {
		fail_at(it, end, m_line);
	}
	if (*it != '=') {
		fail(parse_error::error_missing_equals, m_line, name);
	}
	++it;
	count_whitespace(it, end);
	ustring8 const value = parse_attrib_value(it, end);
	report(m_attribute, name, value);
	if (it == end) {
		fail(parse_error::error_missing_quote, m_line, name);
	}
	++it;
}

void xml_parser::parse_text(const_iterator &it, const_iterator const &end) const {
	ustring8 text;
	const_iterator run = it;
	while (it != end && *it != '<') {
		if (*it == '&') {
			text.append(run, it);
			text.push_back(read_entity(it, end, m_line));
			run = it + 1;
		} else if (is_space(*it) && end - it > 1 && is_space(it[1])) {
			break;
		}
		++it;
	}
	text.append(run, it);
	report(m_character, text);
}

ustring8 xml_parser::parse_name(const_iterator &it, const_iterator const &end) const {
	if (it == end || !is_letter(*it)) {
		fail_at(it, end, m_line);
	}
	const_iterator const first = it;
	const_iterator const last = std::find_if_not(first, end, is_name_character);
	it = last - 1;
	return ustring8(first, last);
}

ustring8 xml_parser::parse_attrib_value(const_iterator &it, const_iterator const &end) const {
	if (it == end) {
		fail_at(it, end, m_line);
	}
	if (*it != '\'' && *it != '"') {
		fail(parse_error::error_missing_quote, m_line, ustring8());
	}
	char const quote = *it;
	++it;
	ustring8 value;
	const_iterator run = it;
	while (it != end && *it != quote) {
		if (*it == '<') {
			fail_at(it, end, m_line);
		}
		if (*it == '&') {
			value.append(run, it);
			value.push_back(read_entity(it, end, m_line));
			run = it + 1;
		}
		++it;
	}
	value.append(run, it);
	return value;
}

ustring8 xml_parser::parse_character(const_iterator &it, const_iterator const &end) const {
	return ustring8(1, read_entity(it, end, m_line));
}

ustring8 xml_parser::parse_whitespace(const_iterator &it, const_iterator const &end) const {
	const_iterator const first = it;
	count_whitespace(it, end);
	return ustring8(first, it);
}

void xml_parser::count_whitespace(const_iterator &it, const_iterator const &end) const {
	for (; it != end && is_space(*it); ++it) {
		if (*it == '\n') {
			++m_line;
		}
	}
}

bool xml_parser::is_white_space(const_iterator const &it) const {
	return is_space(*it);
}

bool xml_parser::at_comment(const_iterator const &it, const_iterator const &end) const {
	static constexpr char opening[] = {'!', '-', '-'};
	for (std::ptrdiff_t i = 0; i != 3; ++i) {
		if (end - it == i) {
			fail_at(end, end, m_line);
		}
		if (it[i] != opening[i]) {
			return false;
		}
	}
	return true;
}

} // namespace QUOR_2_9::parser
