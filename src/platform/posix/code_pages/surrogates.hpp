#ifndef QUOR_PLATFORM_POSIX_CODE_PAGES_SURROGATES_HPP
#define QUOR_PLATFORM_POSIX_CODE_PAGES_SURROGATES_HPP

#include <cstddef>
#include <cstdint>
#include <string_view>

#include <quor/types/widths.hpp>

namespace QUOR_2_9::platform {

/// What stands for a malformed part of a text.
constexpr types::uint32 replacement = 0xFFFD;

struct utf16_point {
	types::uint32 point;
	unsigned units;
};

constexpr bool is_surrogate(types::uint32 unit) noexcept {
	return unit >= 0xD800 && unit <= 0xDFFF;
}

/// The character at the front of a text that isn't empty, by the standard rule for
/// pairs; U+FFFD for half a pair.
inline utf16_point next_point(types::wide_char const *in, types::wide_char const *end) noexcept {
	types::uint32 const first = *in;
	if (!is_surrogate(first)) {
		return {first, 1};
	}
	if (first < 0xDC00 && end - in > 1 && in[1] >= 0xDC00 && in[1] <= 0xDFFF) {
		return {0x10000 + ((first - 0xD800) << 10) + (in[1] - 0xDC00U), 2};
	}
	return {replacement, 1};
}

/// The sum over a text of `measure(unit, next)`, a small number; the unit after the last
/// one is 0. The steps are of a length and the sums of a width that suit vectors.
template <class Measure>
std::size_t sum_of_units(std::basic_string_view<types::wide_char> text, Measure measure) noexcept {
	constexpr std::size_t step = 64;
	types::wide_char const *in = text.data();
	std::size_t sum = 0;
	std::size_t left = text.size();
	for (; left > step; left -= step, in += step) {
		std::uint16_t part = 0;
		for (std::size_t i = 0; i != step; ++i) {
			part = static_cast<std::uint16_t>(part + measure(in[i], in[i + 1]));
		}
		sum += part;
	}
	for (; left != 0; --left, ++in) {
		sum += measure(*in, left > 1 ? in[1] : types::wide_char(0));
	}
	return sum;
}

/// 1 where a whole pair begins.
constexpr std::uint16_t begins_pair(types::wide_char unit, types::wide_char next) noexcept {
	return static_cast<std::uint16_t>(((unit & 0xFC00U) == 0xD800 ? 1U : 0U) & ((next & 0xFC00U) == 0xDC00 ? 1U : 0U));
}

/// Puts a code point below 0x110000 in one or two units.
template <class Sink>
bool put_utf16(Sink &sink, types::uint32 point) noexcept {
	if (point < 0x10000) {
		return sink.put(static_cast<types::wide_char>(point));
	}
	return sink.put(static_cast<types::wide_char>(0xD7C0 + (point >> 10)),
	                static_cast<types::wide_char>(0xDC00 + (point & 0x3FF)));
}

} // namespace QUOR_2_9::platform

#endif
