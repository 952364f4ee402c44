#include "parser/compact_token_list.hpp"

#include <deque>
#include <set>

#include "parser/xml_reader.hpp"

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

// Turns events into tokens.
class compact_token_list::recorder {
public:
	explicit recorder(std::string &bytes) noexcept : m_bytes(bytes) {}

	void attribute(std::string_view name, std::string_view value) {
		append(token::token_attribute_name, name);
		append(token::token_attribute_value, value);
	}
	void element_start(std::string_view name) {
		close_attributes();
		m_attributes_closed = false;
		append(token::token_element_start, name);
	}
	void character(std::string_view text) {
		close_attributes();
		append(token::token_character, text);
	}
	void comment(std::string_view text) { append(token::token_comment, text); }
	void element_end(std::string_view name) {
		close_attributes();
		append(token::token_element_end, name);
	}
	void space(std::string_view run) {
		close_attributes();
		append(token::token_space, run);
	}

private:
	std::string &m_bytes;
	bool m_attributes_closed = true;

	void close_attributes() {
		if (!m_attributes_closed) {
			append(token::token_attributes_end, std::string_view());
			m_attributes_closed = true;
		}
	}

	void append(token_type type, std::string_view value) {
		std::size_t size = value.size();
		auto byte = static_cast<unsigned int>(type) | static_cast<unsigned int>(size & 15U) << 3U;
		for (size >>= 4U; size != 0; size >>= 7U) {
			m_bytes.push_back(static_cast<char>(byte | 0x80U));
			byte = static_cast<unsigned int>(size & 0x7FU);
		}
		m_bytes.push_back(static_cast<char>(byte));
		m_bytes.append(value);
	}
};

xml_parser::parse_error compact_token_list::parse(std::string_view text) {
	std::deque<ustring8> elements;
	std::string attributes;
	std::set<ustring8> more_attributes;
	bool in_tag = false;
	types::uint32 line = 0;
	m_bytes.clear();
	recorder events(m_bytes);
	return detail::xml_reader<recorder>(events, {elements, {attributes, more_attributes}, in_tag, line}, text.data(),
	                                    text.data() + text.size())
	    .read();
}

} // namespace QUOR_2_9::parser
