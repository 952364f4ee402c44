#ifndef QUOR_SRC_PARSER_XML_SCAN_HPP
#define QUOR_SRC_PARSER_XML_SCAN_HPP

// Steps over the bytes of a name, a text or a value up to the one that ends it, a block at a
// time where there are as many.

#include <array>
#include <climits>
#include <cstddef>
#include <cstring>
#include <string_view>

#include <quor/types/widths.hpp>

#include "kernels/kernels.hpp"
#include "parser/xml_bytes.hpp"

namespace QUOR_2_9::parser::detail {

// What a byte can be to the reader; a bit each.
enum byte_class : unsigned char { name_byte = 1, space_byte = 2, letter_byte = 4 };

inline constexpr std::array<unsigned char, UCHAR_MAX + 1> byte_classes = [] {
	std::array<unsigned char, UCHAR_MAX + 1> classes = {};
	for (std::size_t i = 0; i != classes.size(); ++i) {
		char const c = static_cast<char>(static_cast<unsigned char>(i));
		classes[i] =
		    static_cast<unsigned char>((is_name_character(c) ? name_byte : 0) | (is_space(c) ? space_byte : 0) |
		                               (support::is_letter(c) ? letter_byte : 0));
	}
	return classes;
}();

inline bool is_of(char c, byte_class wanted) noexcept {
	return (byte_classes[static_cast<unsigned char>(c)] & wanted) != 0;
}

inline std::string_view between(char const *first, char const *last) noexcept {
	return {first, static_cast<std::size_t>(last - first)};
}

using kernels::blocks_work;

inline bool has_block(char const *at, char const *end, std::size_t size) noexcept {
	return end - at >= static_cast<std::ptrdiff_t>(size);
}

inline char const *end_of_name(char const *at, char const *end) noexcept {
	while (at != end && is_of(*at, name_byte)) {
		++at;
	}
	return at;
}

// Steps over white space and counts its line feeds.
inline char const *end_of_space(char const *at, char const *end, types::uint32 &line) noexcept {
	while (at != end && is_of(*at, space_byte)) {
		line += *at == '\n' ? 1U : 0U;
		++at;
	}
	return at;
}

inline bool ends_text(char const *at, char const *end) noexcept {
	return *at == '<' || *at == '&' || (is_space(*at) && end - at > 1 && is_space(at[1]));
}

// The first "<", "&" or white space in front of other white space, or the end.
template <class Block = kernels::byte_block>
char const *end_of_text(char const *at, char const *end) noexcept {
	if constexpr (blocks_work) {
		while (has_block(at, end, Block::size)) {
			Block const bytes(at);
			auto const blanks = bytes.up_to(' ');
			auto const found = bytes.equal_to('<') | bytes.equal_to('&') | (blanks & Block::moved(blanks));
			if (found == 0) {
				// The last byte may be the first of two.
				at += Block::size - 1;
				continue;
			}
			at += Block::position(found);
			if (ends_text(at, end)) {
				return at;
			}
			++at;
		}
	}
	while (at != end && !ends_text(at, end)) {
		++at;
	}
	return at;
}

inline bool ends_value(char c, char quote) noexcept {
	return c == quote || c == '<' || c == '&';
}

// The first quote of this kind, "<" or "&", or the end.
template <class Block = kernels::byte_block>
char const *end_of_value(char const *at, char const *end, char quote) noexcept {
	if constexpr (blocks_work) {
		for (; has_block(at, end, Block::size); at += Block::size) {
			Block const bytes(at);
			auto const found = bytes.equal_to(quote) | bytes.equal_to('<') | bytes.equal_to('&');
			if (found != 0) {
				return at + Block::position(found);
			}
		}
	}
	while (at != end && !ends_value(*at, quote)) {
		++at;
	}
	return at;
}

// The first "-->", or the end.
inline char const *end_of_comment(char const *at, char const *end) noexcept {
	for (char const *from = at; end - from > 2;) {
		auto const *const close =
		    static_cast<char const *>(std::memchr(from + 2, '>', static_cast<std::size_t>(end - from - 2)));
		if (close == nullptr) {
			break;
		}
		if (close[-1] == '-' && close[-2] == '-') {
			return close - 2;
		}
		from = close - 1;
	}
	return end;
}

} // namespace QUOR_2_9::parser::detail

#endif
