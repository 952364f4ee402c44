#include "parser/compact_token_list.hpp"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <deque>
#include <limits>
#include <set>

#include "parser/xml_reader.hpp"

namespace QUOR_2_9::parser {

using strings::ustring8;
using token = xml_token_stream::token;

namespace {

// The bytes in front of a value of any size.
constexpr std::size_t longest_head = (std::numeric_limits<std::size_t>::digits + 2) / 7 + 2;

template <class Word>
void copy_ends(std::string_view from, char *to) {
	Word first;
	Word last;
	std::memcpy(&first, from.data(), sizeof first);
	std::memcpy(&last, from.data() + from.size() - sizeof last, sizeof last);
	std::memcpy(to, &first, sizeof first);
	std::memcpy(to + from.size() - sizeof last, &last, sizeof last);
}

// Most values are short, and then a call costs more than the copying.
void copy(std::string_view from, char *to) {
	std::size_t const size = from.size();
	if (size > 16) {
		std::memcpy(to, from.data(), size);
	} else if (size >= 8) {
		copy_ends<std::uint64_t>(from, to);
	} else if (size >= 4) {
		copy_ends<std::uint32_t>(from, to);
	} else {
		for (std::size_t i = 0; i != size; ++i) {
			to[i] = from[i];
		}
	}
}

} // namespace

// Turns events into tokens.
class compact_token_list::recorder {
public:
	explicit recorder(compact_token_list &to) noexcept : m_to(to) {}

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
	compact_token_list &m_to;
	bool m_attributes_closed = true;

	void close_attributes() {
		if (!m_attributes_closed) {
			append(token::token_attributes_end, std::string_view());
			m_attributes_closed = true;
		}
	}

	void append(token_type type, std::string_view value) {
		m_to.make_room(longest_head + value.size());
		char *to = m_to.m_bytes.get() + m_to.m_size;
		std::size_t size = value.size();
		auto byte = static_cast<unsigned int>(type) | static_cast<unsigned int>(size & 15U) << 3U;
		for (size >>= 4U; size != 0; size >>= 7U) {
			*to++ = static_cast<char>(byte | 0x80U);
			byte = static_cast<unsigned int>(size & 0x7FU);
		}
		*to++ = static_cast<char>(byte);
		copy(value, to);
		m_to.m_size = static_cast<std::size_t>(to - m_to.m_bytes.get()) + value.size();
	}
};

xml_parser::parse_error compact_token_list::parse(std::string_view text) {
	std::deque<ustring8> elements;
	std::string attributes;
	std::set<ustring8> more_attributes;
	bool in_tag = false;
	types::uint32 line = 0;
	m_size = 0;
	make_room(text.size());
	recorder events(*this);
	return detail::xml_reader<recorder>(events, {elements, {attributes, more_attributes}, in_tag, line}, text.data(),
	                                    text.data() + text.size())
	    .read();
}

void compact_token_list::grow(std::size_t wanted) {
	std::size_t const capacity = std::max(m_size + wanted, 2 * m_capacity);
	std::unique_ptr<char[]> bytes(new char[capacity]);
	std::copy_n(m_bytes.get(), m_size, bytes.get());
	m_bytes.swap(bytes);
	m_capacity = capacity;
}

} // namespace QUOR_2_9::parser
