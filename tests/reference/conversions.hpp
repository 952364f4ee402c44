#ifndef QUOR_TESTS_REFERENCE_CONVERSIONS_HPP
#define QUOR_TESTS_REFERENCE_CONVERSIONS_HPP

// What a kernel must make of a text: all that stands before malformed input, by the slow
// rules, and where that ends.

#include <cstddef>

#include "reference/text.hpp"

namespace quor_reference {

struct made {
	std::size_t read;
	numbers units;
};

// Writes one code point of a sequence that takes `units`, by the rules of the encoding.
using write_units = void (*)(numbers &to, number code_point, std::size_t units);

inline void write_utf32(numbers &to, number code_point, std::size_t) {
	to.push_back(code_point);
}

inline void write_utf16_of_utf8(numbers &to, number code_point, std::size_t units) {
	if (units == 4) {
		write_shifted_pair(to, code_point);
	} else {
		to.push_back(code_point);
	}
}

inline void write_utf16_of_utf32(numbers &to, number code_point, std::size_t) {
	if (code_point >= 0xFFFF) {
		write_shifted_pair(to, code_point);
	} else {
		to.push_back(code_point);
	}
}

inline void write_utf8_of_any(numbers &to, number code_point, std::size_t) {
	if (code_point <= 0x10FFFF) {
		write_utf8(to, code_point);
	}
}

inline character read_utf32_as_utf8(numbers const &text, std::size_t at) {
	return is_high(text[at]) || is_low(text[at]) ? bad : read_utf32(text, at);
}

inline character read_utf32_as_utf16(numbers const &text, std::size_t at) {
	return text[at] > 0x10FFFF ? bad : read_utf32_as_utf8(text, at);
}

inline made convert(numbers const &text, character (*read)(numbers const &, std::size_t), write_units write) {
	made result{0, {}};
	while (result.read != text.size()) {
		character const next = read(text, result.read);
		if (next.units == 0) {
			break;
		}
		write(result.units, next.code_point, next.units);
		result.read += next.units;
	}
	return result;
}

} // namespace quor_reference

#endif
