#include <quor/strings/transcode.hpp>

#include <algorithm>
#include <cstddef>
#include <stdexcept>

#include "decode.hpp"

namespace QUOR_2_9::strings {
namespace {

using types::uint32;
using types::utf32_char;
using types::wide_char;

/// What most transcoders give for malformed input.
template <class Target>
Target minus_one() {
	using unit = typename Target::value_type;
	return Target{static_cast<unit>('-'), static_cast<unit>('1')};
}

/// The frame of all transcoders. `measure` gives the room to take for one unit of the
/// source; the sum holds the result of every well-formed start of the text. `step`
/// reads one code point, writes it and gives the units read, 0 for malformed input.
template <class Target, class Source, class Measure, class Step>
Target convert(Source const &text, std::size_t reserved, Measure measure, Step step) {
	typename Source::value_type const *in = text.data();
	typename Source::value_type const *const end = in + text.size();
	std::size_t needed = 0;
	for (auto const *unit = in; unit != end; ++unit) {
		needed += measure(*unit);
	}
	Target result;
	result.reserve(std::max(reserved, needed));
	result.resize(needed);
	auto *out = result.data();
	while (in != end) {
		unsigned int const units = step(in, static_cast<std::size_t>(end - in), out);
		if (units == 0) {
			return minus_one<Target>();
		}
		in += units;
	}
	return result;
}

/// Writes a code point below 0x110000 in 1 to 4 bytes.
void put_utf8(char *&out, uint32 code_point) noexcept {
	auto const put = [&out](uint32 byte) { *out++ = static_cast<char>(static_cast<unsigned char>(byte)); };
	if (code_point < 0x80) {
		put(code_point);
	} else if (code_point < 0x800) {
		put(0xC0 | code_point >> 6);
		put(0x80 | (code_point & 63));
	} else if (code_point < 0x10000) {
		put(0xE0 | code_point >> 12);
		put(0x80 | (code_point >> 6 & 63));
		put(0x80 | (code_point & 63));
	} else {
		put(0xF0 | code_point >> 18);
		put(0x80 | (code_point >> 12 & 63));
		put(0x80 | (code_point >> 6 & 63));
		put(0x80 | (code_point & 63));
	}
}

/// Writes a pair from the whole code point: 0x10000 is not taken off. Stored data
/// depends on it.
void put_pair(wide_char *&out, uint32 code_point) noexcept {
	*out++ = static_cast<wide_char>(0xD800 + (code_point >> 10));
	*out++ = static_cast<wide_char>(0xDC00 + (code_point & 0x3FF));
}

constexpr std::size_t yes(bool condition) noexcept {
	return condition ? 1 : 0;
}

} // namespace

ustring16 utf8_to_utf16(ustring8 const &text) {
	auto const measure = [](char unit) {
		return yes(!detail::is_continuation(unit)) + yes(static_cast<unsigned char>(unit) >= 0xF0);
	};
	auto const step = [](char const *in, std::size_t remaining, wide_char *&out) {
		detail::decoded const next = detail::decode_utf8(in, remaining);
		if (next.units == 4) {
			put_pair(out, next.code_point);
		} else if (next.units != 0) {
			*out++ = static_cast<wide_char>(next.code_point);
		}
		return next.units;
	};
	return convert<ustring16>(text, text.size() / 2, measure, step);
}

ustring32 utf8_to_utf32(ustring8 const &text) {
	if (!text.empty() && detail::decode_utf8(text.data(), text.size()).units == 0) {
		return ustring32(1, static_cast<utf32_char>('?'));
	}
	auto const measure = [](char unit) { return yes(!detail::is_continuation(unit)); };
	auto const step = [](char const *in, std::size_t remaining, utf32_char *&out) {
		detail::decoded const next = detail::decode_utf8(in, remaining);
		if (next.units == 0) {
			throw std::length_error("utf8_to_utf32: malformed text");
		}
		*out++ = static_cast<utf32_char>(next.code_point);
		return next.units;
	};
	return convert<ustring32>(text, 0, measure, step);
}

ustring8 utf16_to_utf8(ustring16 const &text) {
	// Each half of a pair takes half of the pair's four bytes.
	auto const measure = [](wide_char unit) {
		return 1 + yes(unit >= 0x80) + yes(unit >= 0x800) - yes(detail::is_surrogate(unit));
	};
	auto const step = [](wide_char const *in, std::size_t remaining, char *&out) {
		detail::decoded const next = detail::decode_utf16(in, remaining);
		if (next.units != 0) {
			put_utf8(out, next.code_point);
		}
		return next.units;
	};
	return convert<ustring8>(text, text.size() * 2, measure, step);
}

ustring32 utf16_to_utf32(ustring16 const &text) {
	auto const measure = [](wide_char unit) { return yes(!detail::is_low_surrogate(unit)); };
	auto const step = [](wide_char const *in, std::size_t remaining, utf32_char *&out) {
		detail::decoded const next = detail::decode_utf16(in, remaining);
		if (next.units != 0) {
			*out++ = static_cast<utf32_char>(next.code_point);
		}
		return next.units;
	};
	return convert<ustring32>(text, 0, measure, step);
}

ustring8 utf32_to_utf8(ustring32 const &text) {
	auto const measure = [](utf32_char unit) {
		return unit < 0x110000 ? 1 + yes(unit >= 0x80) + yes(unit >= 0x800) + yes(unit >= 0x10000) : 0;
	};
	auto const step = [](utf32_char const *in, std::size_t /*remaining*/, char *&out) {
		auto const code_point = static_cast<uint32>(*in);
		if (detail::is_surrogate(code_point)) {
			return 0U;
		}
		if (code_point < 0x110000) {
			put_utf8(out, code_point);
		}
		return 1U;
	};
	return convert<ustring8>(text, text.size() * 2, measure, step);
}

ustring16 utf32_to_utf16(ustring32 const &text) {
	auto const measure = [](utf32_char unit) { return 1 + yes(unit >= 0xFFFF); };
	auto const step = [](utf32_char const *in, std::size_t /*remaining*/, wide_char *&out) {
		auto const code_point = static_cast<uint32>(*in);
		if (detail::is_surrogate(code_point) || code_point >= 0x110000) {
			return 0U;
		}
		// U+FFFF goes with the pairs.
		if (code_point < 0xFFFF) {
			*out++ = static_cast<wide_char>(code_point);
		} else {
			put_pair(out, code_point);
		}
		return 1U;
	};
	return convert<ustring16>(text, 0, measure, step);
}

} // namespace QUOR_2_9::strings
