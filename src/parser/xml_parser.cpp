#include <quor/export.hpp>
#include <quor/parser/xml_parser.hpp>

#include <cstddef>
#include <memory>
#include <string_view>

#include "parser/xml_reader.hpp"
#include "support/short_copy.hpp"

namespace QUOR_2_9::parser {

using strings::ustring8;

// One reading of a parser's text. Hands the events on to the delegates, in the same strings
// again and again. The caller's iterator goes where the reader goes, and is there whenever
// somebody else comes to see it: in a delegate and when the reading is over.
class QUOR_LOCAL xml_parser::reading {
public:
	reading(xml_parser const &parser, const_iterator &it, const_iterator const &end)
	    : m_parser(parser), m_it(it), m_begin(it), m_text(std::to_address(it)),
	      m_reader(*this,
	               {parser.m_elements, {parser.m_attributes, parser.m_more_attributes}, parser.m_in_tag, parser.m_line},
	               m_text, m_text + (end - it)) {}
	~reading() { move_iterator(); }
	reading(reading const &) = delete;
	reading &operator=(reading const &) = delete;

	detail::xml_reader<reading> *operator->() noexcept { return &m_reader; }

	void element_start(std::string_view name) { report(m_parser.m_element_start, name); }
	void element_end(std::string_view name) { report(m_parser.m_element_end, name); }
	void character(std::string_view text) { report(m_parser.m_character, text); }
	void space(std::string_view run) { report(m_parser.m_space, run); }
	void comment(std::string_view body) { report(m_parser.m_comment, body); }
	void attribute(std::string_view name, std::string_view value) {
		if (m_parser.m_attribute) {
			move_iterator();
			refill(m_first, name);
			refill(m_second, value);
			m_parser.m_attribute(m_first, m_second);
		}
	}

private:
	xml_parser const &m_parser;
	const_iterator &m_it;
	const_iterator const m_begin;
	char const *const m_text;
	detail::xml_reader<reading> m_reader;
	ustring8 m_first;
	ustring8 m_second;

	static void refill(ustring8 &string, std::string_view text) {
#ifdef __cpp_lib_string_resize_and_overwrite
		string.resize_and_overwrite(text.size(), [text](char *units, std::size_t /*offered*/) {
			support::copy_short(units, text.data(), text.size());
			return text.size();
		});
#else
		string.assign(text);
#endif
	}

	void move_iterator() noexcept {
		m_it = m_begin + (m_reader.at() - m_text);
	}

	void report(text_delegate const &delegate, std::string_view text) {
		if (delegate) {
			move_iterator();
			refill(m_first, text);
			delegate(m_first);
		}
	}
};

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
		m_more_attributes = other.m_more_attributes;
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
	reading text(*this, begin, end);
	try {
		text->start();
		while (!text->is_at_end()) {
			text->step();
		}
		text->finish();
	} catch (parse_error const &error) {
		return error;
	}
	return parse_error(parse_error::error_none, 0, ustring8());
}

ustring8 xml_parser::parse_name(const_iterator &it, const_iterator const &end) const {
	return ustring8(reading(*this, it, end)->read_name());
}

ustring8 xml_parser::parse_attrib_value(const_iterator &it, const_iterator const &end) const {
	reading value(*this, it, end);
	return ustring8(value->read_value());
}

ustring8 xml_parser::parse_character(const_iterator &it, const_iterator const &end) const {
	return ustring8(1, reading(*this, it, end)->read_one_entity());
}

ustring8 xml_parser::parse_whitespace(const_iterator &it, const_iterator const &end) const {
	const_iterator const first = it;
	reading(*this, it, end)->skip_space();
	return ustring8(first, it);
}

bool xml_parser::is_white_space(const_iterator const &it) const {
	return detail::is_space(*it);
}

} // namespace QUOR_2_9::parser
