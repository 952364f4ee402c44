#ifndef QUOR_TESTS_REFERENCE_TEXT_HPP
#define QUOR_TESTS_REFERENCE_TEXT_HPP

// Slow, obvious versions of the text operations: they work on vectors of numbers, one
// rule after the other, with remainders and quotients in place of masks and shifts. The
// tests and the fuzz targets compare the library with them.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace quor_reference {

using number = std::uint32_t;
// The units of a text, or code points.
using numbers = std::vector<number>;

constexpr number all_ones = 0xFFFFFFFF;

// The units of a text, bytes as 0 to 255.
template <class Text>
numbers units_of(Text const &text) {
	numbers units;
	for (auto const unit : text) {
		units.push_back(sizeof(unit) == 1 ? static_cast<unsigned char>(unit) : static_cast<number>(unit));
	}
	return units;
}

// A text of these units.
template <class Text>
Text text_of(numbers const &units) {
	Text text;
	for (number const unit : units) {
		text.push_back(static_cast<typename Text::value_type>(unit));
	}
	return text;
}

// What stands at one place: a code point and its units; no units mark bad input.
struct character {
	number code_point;
	std::size_t units;
};

constexpr character bad{'?', 0};

// By the number of one bits that the first byte begins with.
inline character read_utf8(numbers const &text, std::size_t at) {
	number const first = text[at];
	int ones = 0;
	for (number bit = 128; bit != 0 && first / bit % 2 == 1; bit /= 2) {
		++ones;
	}
	static constexpr std::size_t sizes[] = {1, 0, 2, 3, 4, 0, 0, 0, 0};
	std::size_t const size = sizes[ones];
	if (size == 0) {
		return bad;
	}
	number value = first;
	for (number bit = 128; ones >= 0; --ones, bit /= 2) {
		value %= bit;
	}
	for (std::size_t i = 1; i != size; ++i) {
		if (at + i >= text.size() || text[at + i] / 64 != 2) {
			return bad;
		}
		value = value * 64 + text[at + i] % 64;
	}
	return {value, size};
}

inline bool is_high(number unit) {
	return unit / 0x400 == 0xD800 / 0x400;
}

inline bool is_low(number unit) {
	return unit / 0x400 == 0xDC00 / 0x400;
}

inline character read_utf16(numbers const &text, std::size_t at) {
	number const first = text[at];
	if (is_low(first)) {
		return bad;
	}
	if (!is_high(first)) {
		return {first, 1};
	}
	if (at + 1 == text.size() || !is_low(text[at + 1])) {
		return bad;
	}
	return {0x10000 + first % 0x400 * 0x400 + text[at + 1] % 0x400, 2};
}

inline character read_utf32(numbers const &text, std::size_t at) {
	return {text[at], 1};
}

// The answer of unichar: the code point and what was consumed.
struct decoded {
	number code_point;
	number consumed;
	bool operator==(decoded const &) const = default;
};

template <class Read>
decoded unichar(numbers const &text, std::size_t index, Read read) {
	if (index >= text.size()) {
		return {'?', all_ones};
	}
	character const next = read(text, index);
	return next.units == 0 ? decoded{'?', all_ones} : decoded{next.code_point, static_cast<number>(next.units)};
}

// The standard form of a code point below 0x110000: its digits in base 64 behind a first
// byte that tells how many there are.
inline void write_utf8(numbers &to, number code_point) {
	int const size = code_point < 0x80 ? 1 : code_point < 0x800 ? 2 : code_point < 0x10000 ? 3 : 4;
	static constexpr number marks[] = {0, 0, 192, 224, 240};
	numbers digits;
	for (int i = 1; i != size; ++i) {
		digits.push_back(code_point % 64 + 128);
		code_point /= 64;
	}
	to.push_back(code_point + marks[size]);
	to.insert(to.end(), digits.rbegin(), digits.rend());
}

// The library's pairs: nothing is taken off the code point.
inline void write_shifted_pair(numbers &to, number code_point) {
	to.push_back(0xD800 + code_point / 1024);
	to.push_back(0xDC00 + code_point % 1024);
}

inline numbers minus_one() {
	return {'-', '1'};
}

inline numbers utf8_to_utf16(numbers const &text) {
	numbers result;
	for (std::size_t at = 0; at != text.size();) {
		character const next = read_utf8(text, at);
		if (next.units == 0) {
			return minus_one();
		}
		if (next.units < 4) {
			result.push_back(next.code_point);
		} else {
			write_shifted_pair(result, next.code_point);
		}
		at += next.units;
	}
	return result;
}

// The loop as it is told, in 32 bits; nothing when the result outgrows every result that
// ends.
inline std::optional<numbers> utf8_to_utf32(numbers const &text) {
	numbers result;
	auto const size = static_cast<number>(text.size());
	for (number offset = 0; offset < size;) {
		decoded const next = unichar(numbers(text.begin() + offset, text.end()), 0, read_utf8);
		result.push_back(next.code_point);
		offset += next.consumed;
		if (result.size() > 2 * text.size()) {
			return std::nullopt;
		}
	}
	return result;
}

inline numbers utf16_to_utf8(numbers const &text) {
	numbers result;
	for (std::size_t at = 0; at != text.size();) {
		character const next = read_utf16(text, at);
		if (next.units == 0) {
			return minus_one();
		}
		write_utf8(result, next.code_point);
		at += next.units;
	}
	return result;
}

inline numbers utf16_to_utf32(numbers const &text) {
	numbers result;
	for (std::size_t at = 0; at != text.size();) {
		character const next = read_utf16(text, at);
		if (next.units == 0) {
			return minus_one();
		}
		result.push_back(next.code_point);
		at += next.units;
	}
	return result;
}

inline numbers utf32_to_utf8(numbers const &text) {
	numbers result;
	for (number const unit : text) {
		if (is_high(unit) || is_low(unit)) {
			return minus_one();
		}
		if (unit <= 0x10FFFF) {
			write_utf8(result, unit);
		}
	}
	return result;
}

inline numbers utf32_to_utf16(numbers const &text) {
	numbers result;
	for (number const unit : text) {
		if (is_high(unit) || is_low(unit) || unit > 0x10FFFF) {
			return minus_one();
		}
		if (unit <= 0xFFFE) {
			result.push_back(unit);
		} else {
			write_shifted_pair(result, unit);
		}
	}
	return result;
}

// The answer of character_index, and how often a unit behind the terminating zero was
// asked for.
struct offset_of {
	number offset;
	std::size_t stops;
	bool operator==(offset_of const &) const = default;
};

inline offset_of character_index_utf8(numbers const &text, number index) {
	if (index >= text.size()) {
		return {all_ones, 0};
	}
	numbers padded(text);
	padded.resize(3 * text.size() + 8);
	std::size_t offset = 0;
	std::size_t stops = 0;
	for (number i = 0; i != index; ++i) {
		if (offset > text.size()) {
			++stops;
		}
		character const next = read_utf8(padded, offset);
		if (next.units == 0) {
			return {all_ones, stops};
		}
		offset += next.units;
	}
	return {static_cast<number>(offset), stops};
}

inline offset_of character_index_utf16(numbers const &text, number index) {
	if (index >= text.size()) {
		return {all_ones, 0};
	}
	numbers padded(text);
	padded.resize(3 * text.size() + 8);
	std::size_t offset = 0;
	std::size_t stops = 0;
	for (number i = 0; i != index; ++i) {
		if (offset > text.size()) {
			++stops;
		}
		if (is_high(padded[offset])) {
			if (!is_low(padded[offset + 1])) {
				return {all_ones, stops};
			}
			offset += 2;
		} else if (is_low(padded[0])) {
			return {all_ones, stops};
		} else {
			offset += 1;
		}
	}
	return {static_cast<number>(offset), stops};
}

inline bool stands_at(numbers const &text, std::size_t at, numbers const &part) {
	for (std::size_t i = 0; i != part.size(); ++i) {
		if (at + i >= text.size() || text[at + i] != part[i]) {
			return false;
		}
	}
	return true;
}

inline std::vector<numbers> split(numbers const &text, numbers const &separator, int max_splits) {
	if (separator.empty()) {
		return {text};
	}
	std::vector<numbers> pieces;
	numbers piece;
	std::size_t at = 0;
	int splits = 0;
	bool searching = true;
	while (at < text.size()) {
		if (searching && stands_at(text, at, separator)) {
			pieces.push_back(piece);
			piece.clear();
			at += separator.size();
			searching = ++splits != max_splits;
		} else {
			piece.push_back(text[at++]);
		}
	}
	if (!piece.empty()) {
		pieces.push_back(piece);
	}
	return pieces;
}

struct replaced {
	numbers text;
	std::int32_t count;
};

inline replaced replace(numbers const &text, numbers const &from, numbers const &to) {
	replaced result{{}, 0};
	for (std::size_t at = 0; at < text.size();) {
		if (stands_at(text, at, from)) {
			result.text.insert(result.text.end(), to.begin(), to.end());
			at += from.size();
			++result.count;
		} else {
			result.text.push_back(text[at++]);
		}
	}
	return result;
}

inline numbers lower(numbers text) {
	for (number &unit : text) {
		for (char const *letter = "ABCDEFGHIJKLMNOPQRSTUVWXYZ"; *letter != '\0'; ++letter) {
			if (unit == static_cast<number>(*letter)) {
				unit += 'a' - 'A';
				break;
			}
		}
	}
	return text;
}

inline numbers upper(numbers text) {
	for (number &unit : text) {
		for (char const *letter = "abcdefghijklmnopqrstuvwxyz"; *letter != '\0'; ++letter) {
			if (unit == static_cast<number>(*letter)) {
				unit -= 'a' - 'A';
				break;
			}
		}
	}
	return text;
}

} // namespace quor_reference

#endif
