#include <quor/parser/xml_token_stream.hpp>

#include <utility>

#include <quor/functor/member_function.hpp>

#include "parser/token_storage.hpp"

namespace QUOR_2_9::parser {

using strings::ustring8;

xml_token_stream::xml_token_stream() : m_storage(std::make_unique<storage>()) {
	bind();
}

xml_token_stream::xml_token_stream(xml_token_stream const &other)
    : m_attributes_closed(other.m_attributes_closed), m_storage(std::make_unique<storage>(*other.m_storage)),
      m_parser(other.m_parser) {
	bind();
}

xml_token_stream &xml_token_stream::operator=(xml_token_stream const &other) {
	if (this != &other) {
		auto copy = std::make_unique<storage>(*other.m_storage);
		m_attributes_closed = other.m_attributes_closed;
		m_parser = other.m_parser;
		bind();
		m_storage.swap(copy);
	}
	return *this;
}

xml_token_stream::~xml_token_stream() = default;

void xml_token_stream::bind() {
	using text_event = functor::member_function_t<xml_token_stream, void(ustring8 const &)>;
	using attribute_event = functor::member_function_t<xml_token_stream, void(ustring8 const &, ustring8 const &)>;
	m_parser.on_attribute() = attribute_event(this, &xml_token_stream::on_attribute);
	m_parser.on_element_start() = text_event(this, &xml_token_stream::on_element_start);
	m_parser.on_character() = text_event(this, &xml_token_stream::on_character);
	m_parser.on_comment() = text_event(this, &xml_token_stream::on_comment);
	m_parser.on_element_end() = text_event(this, &xml_token_stream::on_element_end);
	m_parser.on_space() = text_event(this, &xml_token_stream::on_space);
}

xml_token_stream::parse_error xml_token_stream::parse(ustring8 const &text) {
	return parse(text.begin(), text.end());
}

xml_token_stream::parse_error xml_token_stream::parse(text_iterator const &begin, text_iterator const &end) {
	m_attributes_closed = true;
	return m_parser.parse(begin, end);
}

xml_token_stream::iterator xml_token_stream::begin() noexcept {
	return m_storage->tokens.begin();
}

xml_token_stream::iterator xml_token_stream::end() noexcept {
	return m_storage->tokens.end();
}

xml_token_stream::const_iterator xml_token_stream::begin() const noexcept {
	return std::as_const(*m_storage).tokens.begin();
}

xml_token_stream::const_iterator xml_token_stream::end() const noexcept {
	return std::as_const(*m_storage).tokens.end();
}

std::size_t xml_token_stream::size() const noexcept {
	return m_storage->tokens.size();
}

void xml_token_stream::on_attribute(ustring8 const &name, ustring8 const &value) {
	append(token::token_attribute_name, name);
	append(token::token_attribute_value, value);
}

void xml_token_stream::on_element_start(ustring8 const &name) {
	close_attributes();
	m_attributes_closed = false;
	append(token::token_element_start, name);
}

void xml_token_stream::on_character(ustring8 const &text) {
	close_attributes();
	append(token::token_character, text);
}

void xml_token_stream::on_comment(ustring8 const &text) {
	append(token::token_comment, text);
}

void xml_token_stream::on_element_end(ustring8 const &name) {
	close_attributes();
	append(token::token_element_end, name);
}

void xml_token_stream::on_space(ustring8 const &text) {
	close_attributes();
	append(token::token_space, text);
}

void xml_token_stream::close_attributes() {
	if (!m_attributes_closed) {
		append(token::token_attributes_end, ustring8());
		m_attributes_closed = true;
	}
}

void xml_token_stream::append(token::token_type type, ustring8 const &value) {
	m_storage->tokens.emplace_back(type, value);
}

} // namespace QUOR_2_9::parser
