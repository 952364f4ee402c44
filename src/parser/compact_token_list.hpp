#ifndef QUOR_SRC_PARSER_COMPACT_TOKEN_LIST_HPP
#define QUOR_SRC_PARSER_COMPACT_TOKEN_LIST_HPP

// The tokens of a document in one block of memory, for readers that only go forward.
// The same tokens as `xml_token_stream` makes, at about one byte a token beside its
// text, where a list node takes 64: large catalog files are read through this.

#include <cstddef>
#include <memory>
#include <string_view>

#include <quor/parser/xml_parser.hpp>
#include <quor/parser/xml_token_stream.hpp>

namespace QUOR_2_9::parser {

class compact_token_list {
public:
	using token_type = xml_token_stream::token::token_type;

	// A token where it stands in the list. The value is valid as long as the list is.
	class const_iterator {
	public:
		const_iterator(char const *at, char const *end) : m_next(at), m_end(end) { ++*this; }

		token_type type() const noexcept { return m_type; }
		std::string_view value() const noexcept { return m_value; }
		const_iterator const *operator->() const noexcept { return this; }

		const_iterator &operator++() noexcept {
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

		bool operator==(const_iterator const &other) const noexcept { return m_at == other.m_at; }
		bool operator!=(const_iterator const &other) const noexcept { return m_at != other.m_at; }

	private:
		char const *m_at = nullptr;
		char const *m_next;
		char const *m_end;
		token_type m_type = xml_token_stream::token::token_element_start;
		std::string_view m_value;
	};

	// Makes the list from a text; any other list is gone. Where the result is a fault the
	// list holds the tokens up to it.
	xml_parser::parse_error parse(std::string_view text);

	const_iterator begin() const { return const_iterator(m_bytes.get(), m_bytes.get() + m_size); }
	const_iterator end() const { return const_iterator(m_bytes.get() + m_size, m_bytes.get() + m_size); }

	std::size_t bytes() const noexcept { return m_size; }

private:
	class recorder;

	void make_room(std::size_t bytes) {
		if (m_capacity - m_size < bytes) {
			grow(bytes);
		}
	}
	void grow(std::size_t wanted);

	// Each token: its type in the low three bits and the size of its value above them,
	// seven bits a byte, the lowest first and the high bit set in all but the last; then
	// the value.
	std::unique_ptr<char[]> m_bytes;
	std::size_t m_size = 0;
	std::size_t m_capacity = 0;
};

} // namespace QUOR_2_9::parser

#endif
