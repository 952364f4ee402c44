#ifndef QUOR_KERNELS_DECODE_HPP
#define QUOR_KERNELS_DECODE_HPP

#include <cstddef>

#include <quor/types/widths.hpp>

namespace QUOR_2_9::kernels {

/// One code point and how many units it takes; 0 units mark bad input.
struct decoded {
	types::uint32 code_point;
	unsigned int units;
};

constexpr bool is_continuation(char unit) noexcept {
	return (static_cast<unsigned char>(unit) & 0xC0U) == 0x80U;
}

/// The form of the sequence is all that is tested; `remaining` is above 0.
inline decoded decode_utf8(char const *text, std::size_t remaining) noexcept {
	auto const byte = [text](std::size_t i) { return static_cast<types::uint32>(static_cast<unsigned char>(text[i])); };
	types::uint32 const first = byte(0);
	if (first < 0x80) {
		return {first, 1};
	}
	if ((first & 0xE0) == 0xC0 && remaining >= 2 && is_continuation(text[1])) {
		return {(first & 31) << 6 | (byte(1) & 63), 2};
	}
	if ((first & 0xF0) == 0xE0 && remaining >= 3 && is_continuation(text[1]) && is_continuation(text[2])) {
		return {(first & 15) << 12 | (byte(1) & 63) << 6 | (byte(2) & 63), 3};
	}
	if ((first & 0xF8) == 0xF0 && remaining >= 4 && is_continuation(text[1]) && is_continuation(text[2]) &&
	    is_continuation(text[3])) {
		return {(first & 7) << 18 | (byte(1) & 63) << 12 | (byte(2) & 63) << 6 | (byte(3) & 63), 4};
	}
	return {0, 0};
}

template <class Unit>
constexpr bool is_high_surrogate(Unit unit) noexcept {
	return unit >= 0xD800 && unit <= 0xDBFF;
}

template <class Unit>
constexpr bool is_low_surrogate(Unit unit) noexcept {
	return unit >= 0xDC00 && unit <= 0xDFFF;
}

template <class Unit>
constexpr bool is_surrogate(Unit unit) noexcept {
	return unit >= 0xD800 && unit <= 0xDFFF;
}

/// `remaining` is above 0.
inline decoded decode_utf16(types::wide_char const *text, std::size_t remaining) noexcept {
	types::uint32 const first = text[0];
	if (!is_surrogate(first)) {
		return {first, 1};
	}
	if (is_high_surrogate(first) && remaining >= 2 && is_low_surrogate(text[1])) {
		return {(first << 10) + text[1] - 0x35FDC00, 2};
	}
	return {0, 0};
}

} // namespace QUOR_2_9::kernels

#endif
