#ifndef QUOR_PLATFORM_POSIX_CODE_PAGES_SURROGATES_HPP
#define QUOR_PLATFORM_POSIX_CODE_PAGES_SURROGATES_HPP

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
