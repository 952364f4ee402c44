#include <algorithm>
#include <array>
#include <string_view>

#include <quor/generic/convert/str_to_x.hpp>

#include "support/ascii.hpp"
#include "xml_stream/stream_bytes.hpp"
#include "xml_stream/stream_reader.hpp"

namespace QUOR_2_9::xml_stream::detail {
namespace {

using strings::ustring8;
using parser = xml_stream_parser;

/// From as many attributes on their names are looked up in a set.
constexpr std::size_t long_list = 16;

constexpr std::size_t shortest_entity_room = 5;
struct named_entity {
	std::string_view text;
	char byte;
};

constexpr named_entity named_entities[] = {
    {"&lt;", '<'}, {"&gt;", '>'}, {"&amp;", '&'}, {"&apos;", '\''}, {"&quot;", '"'}, {"&nbsp;", ' '},
};

constexpr std::array<bool, 256> make_plain_in_value() {
	std::array<bool, 256> result = {};
	for (unsigned int byte = 0; byte != result.size(); ++byte) {
		result[byte] = byte != '"' && byte != '\'' && byte != '<' && byte != '&';
	}
	return result;
}

constexpr std::array<bool, 256> plain_in_value = make_plain_in_value();

/// Behind the bytes that stand for themselves in either kind of quotes.
char const *end_of_plain(char const *at, char const *end) noexcept {
	while (at != end && plain_in_value[static_cast<unsigned char>(*at)]) {
		++at;
	}
	return at;
}

} // namespace

void stream_reader::parse_attribute() {
	std::string_view const name = parse_name();
	if (window.at_end()) {
		fail(parser::status_more_input);
	}
	if (name.empty()) {
		fail(parser::status_syntax);
	}
	if (*window.read.at != '=') {
		fail(parser::status_expected_equals);
	}
	++window.read.at;
	std::string_view const value = parse_attrib_value();
	if (value.empty() && !m_value_is_empty) {
		fail(parser::status_more_input);
	}
	if (!is_new_attribute(name)) {
		fail(parser::status_duplicate_attribute);
	}
	auto &entry = *m_open.back().node;
	if (!entry.unseen) {
		entry.value.m_attributes.emplace_back(name, value);
	}
}

/// As long as the caller can't have changed them, the node's own attributes tell.
bool stream_reader::is_new_attribute(std::string_view name) {
	if (!m_names_kept) {
		auto const &attributes = m_open.back().node->value.m_attributes;
		if (attributes.size() < long_list) {
			return std::none_of(attributes.begin(), attributes.end(),
			                    [name](auto const &attribute) { return attribute.first == name; });
		}
		keep_attribute_names();
	}
	return m_attribute_names.emplace(name).second;
}

void stream_reader::keep_attribute_names() {
	for (auto const &attribute : m_open.back().node->value.m_attributes) {
		m_attribute_names.insert(attribute.first);
	}
	m_names_kept = true;
}

void stream_reader::forget_attribute_names() noexcept {
	if (m_names_kept) {
		m_attribute_names.clear();
		m_names_kept = false;
	}
}

std::string_view stream_reader::parse_attrib_value() {
	cursor &read = window.read;
	m_value_is_empty = false;
	skip_whitespace();
	if (window.at_end()) {
		return {};
	}
	char const quote = *read.at;
	if (quote != '"' && quote != '\'') {
		fail(parser::status_attribute_quote);
	}
	++read.at;
	m_text.clear();
	char const *begin = read.at;
	char const *at = begin;
	while ((at = end_of_plain(at, window.end)) != window.end && *at != quote) {
		if (*at == '<') {
			read.at = at;
			fail(parser::status_syntax);
		}
		if (*at != '&') {
			++at; // the other quote
			continue;
		}
		m_text.append(begin, at);
		read.at = at;
		ustring8 const entity = parse_entity();
		if (entity.empty()) {
			return {};
		}
		m_text.append(entity);
		begin = at = read.at;
	}
	read.at = at;
	if (window.at_end()) {
		return {};
	}
	std::string_view value = between(begin, at);
	if (!m_text.empty()) {
		m_text.append(value);
		value = m_text;
	}
	m_value_is_empty = value.empty();
	++read.at;
	skip_whitespace();
	return value;
}

void stream_reader::parse_text() {
	cursor &read = window.read;
	char const *const begin = read.at;
	char const *const end = find_byte(begin, window.end, '<');
	bool const plain = find_byte(begin, end, '&') == end;
	if (plain) {
		read.at = end;
	} else {
		decode_text(end);
	}
	if (window.at_end()) {
		fail(parser::status_more_input);
	}
	if (m_open.size() <= 1) {
		fail(parser::status_syntax);
	}
	auto &entry = *m_open.back().node;
	if (!entry.unseen) {
		entry.value.m_data = plain ? between(begin, end) : std::string_view(m_text);
	}
}

/// Steps up to `end`, which stands behind the text; what it says becomes `m_text`.
void stream_reader::decode_text(char const *end) {
	cursor &read = window.read;
	m_text.clear();
	while (read.at != end) {
		char const *const stop = find_byte(read.at, end, '&');
		m_text.append(read.at, stop);
		read.at = stop;
		if (stop != end) {
			ustring8 const entity = parse_entity();
			if (entity.empty()) {
				fail(parser::status_more_input);
			}
			m_text.append(entity);
		}
	}
}

ustring8 stream_reader::parse_entity() {
	std::string_view const rest = between(window.read.at, window.end);
	if (rest.size() < shortest_entity_room) {
		return {};
	}
	if (rest[0] != '&') {
		fail(parser::status_syntax);
	}
	if (rest[1] == '#') {
		return parse_reference();
	}
	for (auto const &[text, byte] : named_entities) {
		std::string_view const start = rest.substr(0, text.size());
		if (start == text) {
			window.read.at += text.size();
			return ustring8(1, byte);
		}
		if (start == text.substr(0, start.size())) {
			return {};
		}
	}
	fail(parser::status_syntax);
}

/// The same for a number, which becomes one byte.
ustring8 stream_reader::parse_reference() {
	bool const hexadecimal = window.read.at[2] == 'x';
	char const *const digits = window.read.at + (hexadecimal ? 3 : 2);
	char const *at = digits;
	while (at != window.end && (hexadecimal ? support::is_hex_digit(*at) : support::is_digit(*at))) {
		++at;
	}
	if (at == window.end) {
		return {};
	}
	if (*at != ';') {
		fail(parser::status_syntax);
	}
	window.read.at = at + 1;
	auto const length = static_cast<types::uint32>(at - digits);
	auto const byte = generic::convert::str_to_uint8(digits, length, hexadecimal ? 16 : 0, false);
	return ustring8(1, static_cast<char>(byte));
}

} // namespace QUOR_2_9::xml_stream::detail
