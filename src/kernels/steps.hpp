#ifndef QUOR_KERNELS_STEPS_HPP
#define QUOR_KERNELS_STEPS_HPP

#include <cstddef>

#include <quor/types/widths.hpp>

#include "kernels/decode.hpp"
#include "kernels/kernels.hpp"

/// The rules of the transcoders, one code point at a time.
namespace QUOR_2_9::kernels {

/// What is read from and written to, and where both end.
template <class In, class Out>
struct course {
	course(In const *text, std::size_t size, Out *room, std::size_t room_size) noexcept
	    : in(text), out(room), end(text + size), last(room + room_size), begin(text), first(room) {}

	std::size_t left() const noexcept { return static_cast<std::size_t>(end - in); }
	bool has(std::size_t units, std::size_t room) const noexcept {
		return left() >= units && static_cast<std::size_t>(last - out) >= room;
	}
	progress made() const noexcept {
		return {static_cast<std::size_t>(in - begin), static_cast<std::size_t>(out - first)};
	}
	void put(types::uint32 unit) noexcept { *out++ = static_cast<Out>(unit); }

	In const *in;
	Out *out;
	In const *const end;
	Out *const last;
	In const *const begin;
	Out *const first;
};

/// Writes a code point below 0x110000 in 1 to 4 bytes.
template <class In>
[[gnu::always_inline]] inline void put_utf8(course<In, char> &at, types::uint32 code_point) noexcept {
	if (code_point < 0x80) {
		at.put(code_point);
	} else if (code_point < 0x800) {
		at.put(0xC0 | code_point >> 6);
		at.put(0x80 | (code_point & 63));
	} else if (code_point < 0x10000) {
		at.put(0xE0 | code_point >> 12);
		at.put(0x80 | (code_point >> 6 & 63));
		at.put(0x80 | (code_point & 63));
	} else {
		at.put(0xF0 | code_point >> 18);
		at.put(0x80 | (code_point >> 12 & 63));
		at.put(0x80 | (code_point >> 6 & 63));
		at.put(0x80 | (code_point & 63));
	}
}

/// Writes a pair from the whole code point: 0x10000 is not taken off. Stored data
/// depends on it.
template <class In>
[[gnu::always_inline]] inline void put_pair(course<In, types::wide_char> &at, types::uint32 code_point) noexcept {
	at.put(0xD800 + (code_point >> 10));
	at.put(0xDC00 + (code_point & 0x3FF));
}

/// The most that a step writes.
inline constexpr std::size_t step_room = 4;

// A step converts the code point at the front of a text that isn't empty; false for
// malformed input.

[[gnu::always_inline]] inline bool step(course<char, types::wide_char> &at) noexcept {
	decoded const next = decode_utf8(at.in, at.left());
	if (next.units == 4) {
		put_pair(at, next.code_point);
	} else if (next.units != 0) {
		at.put(next.code_point);
	}
	at.in += next.units;
	return next.units != 0;
}

[[gnu::always_inline]] inline bool step(course<char, types::utf32_char> &at) noexcept {
	decoded const next = decode_utf8(at.in, at.left());
	if (next.units != 0) {
		at.put(next.code_point);
	}
	at.in += next.units;
	return next.units != 0;
}

[[gnu::always_inline]] inline bool step(course<types::wide_char, char> &at) noexcept {
	decoded const next = decode_utf16(at.in, at.left());
	if (next.units != 0) {
		put_utf8(at, next.code_point);
	}
	at.in += next.units;
	return next.units != 0;
}

[[gnu::always_inline]] inline bool step(course<types::wide_char, types::utf32_char> &at) noexcept {
	decoded const next = decode_utf16(at.in, at.left());
	if (next.units != 0) {
		at.put(next.code_point);
	}
	at.in += next.units;
	return next.units != 0;
}

[[gnu::always_inline]] inline bool step(course<types::utf32_char, char> &at) noexcept {
	auto const code_point = static_cast<types::uint32>(*at.in);
	if (is_surrogate(code_point)) {
		return false;
	}
	// What is no code point is left out.
	if (code_point < 0x110000) {
		put_utf8(at, code_point);
	}
	++at.in;
	return true;
}

[[gnu::always_inline]] inline bool step(course<types::utf32_char, types::wide_char> &at) noexcept {
	auto const code_point = static_cast<types::uint32>(*at.in);
	if (is_surrogate(code_point) || code_point >= 0x110000) {
		return false;
	}
	// U+FFFF goes with the pairs.
	if (code_point < 0xFFFF) {
		at.put(code_point);
	} else {
		put_pair(at, code_point);
	}
	++at.in;
	return true;
}

} // namespace QUOR_2_9::kernels

#endif
