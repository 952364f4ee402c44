#ifndef QUOR_SRC_PARSER_TOKEN_READER_HPP
#define QUOR_SRC_PARSER_TOKEN_READER_HPP

// The tokens of a document one by one, as they are read: the same ones as `xml_token_stream`
// holds, in no memory of their own.

#include <array>
#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <quor/parser/xml_parser.hpp>
#include <quor/parser/xml_token_stream.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/widths.hpp>

#include "parser/xml_reader.hpp"

namespace QUOR_2_9::parser {

class token_reader {
public:
	using token_type = xml_token_stream::token::token_type;

	// Where the reader is; stepping on moves all of a reader's. A value lasts until the next
	// step. Reading throws the document's fault.
	class iterator {
	public:
		iterator() = default;
		explicit iterator(token_reader &reader) : m_reader(&reader) {}

		token_type type() const noexcept { return m_reader->now().type; }
		std::string_view value() const noexcept { return m_reader->now().value; }
		iterator const *operator->() const noexcept { return this; }

		iterator &operator++() {
			m_reader->next();
			return *this;
		}

		bool operator==(iterator const &other) const noexcept { return is_at_end() == other.is_at_end(); }
		bool operator!=(iterator const &other) const noexcept { return !(*this == other); }

	private:
		token_reader *m_reader = nullptr;

		bool is_at_end() const noexcept { return m_reader == nullptr || m_reader->m_now == m_reader->m_count; }
	};

	// The text has to outlive the reader.
	explicit token_reader(std::string_view text)
	    : m_reader(*this, {m_elements, {m_attributes, m_more_attributes}, m_in_tag, m_line}, text.data(),
	               text.data() + text.size()) {}
	token_reader(token_reader const &) = delete;
	token_reader &operator=(token_reader const &) = delete;

	// Reads the header and the first token; to be called once.
	iterator begin() {
		m_reader.start();
		next();
		return iterator(*this);
	}
	static iterator end() { return {}; }

	// Reads all that is left.
	void finish() {
		while (!m_reader.is_at_end()) {
			m_count = 0;
			m_reader.step();
		}
		m_now = 0;
		m_count = 0;
		m_reader.finish();
	}

	// The events of the reading.
	void attribute(std::string_view name, std::string_view value) {
		append(xml_token_stream::token::token_attribute_name, name);
		append(xml_token_stream::token::token_attribute_value, value);
	}
	void element_start(std::string_view name) {
		close_attributes();
		m_attributes_closed = false;
		append(xml_token_stream::token::token_element_start, name);
	}
	void character(std::string_view text) {
		close_attributes();
		append(xml_token_stream::token::token_character, text);
	}
	void comment(std::string_view text) { append(xml_token_stream::token::token_comment, text); }
	void element_end(std::string_view name) {
		close_attributes();
		append(xml_token_stream::token::token_element_end, name);
	}
	void space(std::string_view run) {
		close_attributes();
		append(xml_token_stream::token::token_space, run);
	}

private:
	struct token {
		token_type type;
		std::string_view value;
	};

	// White space with the end of the attributes in front of it, and what stands behind it with
	// another one.
	std::array<token, 4> m_tokens = {};
	std::size_t m_now = 0;
	std::size_t m_count = 0;
	bool m_attributes_closed = true;

	std::vector<std::string_view> m_elements;
	std::string m_attributes;
	std::set<strings::ustring8> m_more_attributes;
	bool m_in_tag = false;
	types::uint32 m_line = 0;
	detail::xml_reader<token_reader, std::vector<std::string_view>> m_reader;

	token const &now() const noexcept { return m_tokens[m_now]; }

	void next() {
		if (++m_now < m_count) {
			return;
		}
		m_now = 0;
		m_count = 0;
		while (m_count == 0 && !m_reader.is_at_end()) {
			m_reader.step();
		}
	}

	void append(token_type type, std::string_view value) noexcept { m_tokens[m_count++] = {type, value}; }

	void close_attributes() noexcept {
		if (!m_attributes_closed) {
			append(xml_token_stream::token::token_attributes_end, std::string_view());
			m_attributes_closed = true;
		}
	}
};

} // namespace QUOR_2_9::parser

#endif
