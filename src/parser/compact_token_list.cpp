#include "parser/compact_token_list.hpp"

#include <quor/functor/member_function.hpp>

namespace QUOR_2_9::parser {

using strings::ustring8;
using token = xml_token_stream::token;

compact_token_list::const_iterator &compact_token_list::const_iterator::operator++() noexcept {
	m_at = m_next;
	if (m_at == m_end) {
		return *this;
	}
	auto byte = static_cast<unsigned char>(*m_next++);
	m_type = static_cast<token_type>(byte & 7U);
	std::size_t size = (byte & 0x7FU) >> 3U;
	for (unsigned int shift = 4; (byte & 0x80U) != 0; shift += 7) {
		byte = static_cast<unsigned char>(*m_next++);
		size |= static_cast<std::size_t>(byte & 0x7FU) << shift;
	}
	m_value = std::string_view(m_next, size);
	m_next += size;
	return *this;
}

xml_parser::parse_error compact_token_list::parse(ustring8 const &text) {
	using text_event = functor::member_function_t<compact_token_list, void(ustring8 const &)>;
	using attribute_event = functor::member_function_t<compact_token_list, void(ustring8 const &, ustring8 const &)>;
	m_bytes.clear();
	m_attributes_closed = true;
	xml_parser parser;
	parser.on_attribute() = attribute_event(this, &compact_token_list::on_attribute);
	parser.on_element_start() = text_event(this, &compact_token_list::on_element_start);
	parser.on_character() = text_event(this, &compact_token_list::on_character);
	parser.on_comment() = text_event(this, &compact_token_list::on_comment);
	parser.on_element_end() = text_event(this, &compact_token_list::on_element_end);
	parser.on_space() = text_event(this, &compact_token_list::on_space);
	return parser.parse(text);
}

void compact_token_list::on_attribute(ustring8 const &name, ustring8 const &value) {
	append(token::token_attribute_name, name);
	append(token::token_attribute_value, value);
}

void compact_token_list::on_element_start(ustring8 const &name) {
	close_attributes();
	m_attributes_closed = false;
	append(token::token_element_start, name);
}

void compact_token_list::on_character(ustring8 const &text) {
	close_attributes();
	append(token::token_character, text);
}

void compact_token_list::on_comment(ustring8 const &text) {
	append(token::token_comment, text);
}

void compact_token_list::on_element_end(ustring8 const &name) {
	close_attributes();
	append(token::token_element_end, name);
}

void compact_token_list::on_space(ustring8 const &text) {
	close_attributes();
	append(token::token_space, text);
}

void compact_token_list::close_attributes() {
	if (!m_attributes_closed) {
		append(token::token_attributes_end, std::string_view());
		m_attributes_closed = true;
	}
}

void compact_token_list::append(token_type type, std::string_view value) {
	std::size_t size = value.size();
	auto byte = static_cast<unsigned int>(type) | static_cast<unsigned int>(size & 15U) << 3U;
	for (size >>= 4U; size != 0; size >>= 7U) {
		m_bytes.push_back(static_cast<char>(byte | 0x80U));
		byte = static_cast<unsigned int>(size & 0x7FU);
	}
	m_bytes.push_back(static_cast<char>(byte));
	m_bytes.append(value);
}

} // namespace QUOR_2_9::parser
