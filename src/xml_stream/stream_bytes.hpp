#ifndef QUOR_SRC_XML_STREAM_STREAM_BYTES_HPP
#define QUOR_SRC_XML_STREAM_STREAM_BYTES_HPP

#include <array>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "support/ascii.hpp"

// The byte classes of the stream parser's dialect, by value and in no locale.

namespace QUOR_2_9::xml_stream::detail {

constexpr std::array<bool, 256> make_name_bytes() {
	std::array<bool, 256> result = {};
	for (unsigned int byte = 0; byte != result.size(); ++byte) {
		result[byte] = byte >= 0x80 || byte == '_' || support::is_letter(byte) || support::is_digit(byte);
	}
	return result;
}

inline constexpr std::array<bool, 256> name_bytes = make_name_bytes();

inline bool is_name_byte(char byte) noexcept {
	return name_bytes[static_cast<unsigned char>(byte)];
}

inline bool is_whitespace(char byte) noexcept {
	return byte == ' ' || byte == '\t' || byte == '\r' || byte == '\n';
}

/// The first such byte; `end` where there is none.
inline char const *find_byte(char const *begin, char const *end, char byte) noexcept {
	void const *const found = std::memchr(begin, byte, static_cast<std::size_t>(end - begin));
	return found != nullptr ? static_cast<char const *>(found) : end;
}

inline std::string_view between(char const *begin, char const *end) noexcept {
	return {begin, static_cast<std::size_t>(end - begin)};
}

} // namespace QUOR_2_9::xml_stream::detail

#endif
