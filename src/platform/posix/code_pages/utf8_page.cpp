#include "platform/posix/code_pages/utf8_page.hpp"

#include <cstddef>

#include "platform/posix/code_pages/ascii_run.hpp"
#include "platform/posix/code_pages/surrogates.hpp"
#include "platform/posix/code_pages/unit_sink.hpp"

namespace QUOR_2_9::platform {
namespace {

using types::uint32;
using types::wide_char;

/// What is to be read behind a lead byte: how many bytes, and in which range the first
/// of them lies (Unicode 15, table 3-7); 0 bytes for what is no lead.
struct lead_byte {
	unsigned count;
	uint32 first_low;
	uint32 first_high;
};

constexpr lead_byte lead_of(uint32 byte) noexcept {
	if (byte < 0xC2 || byte > 0xF4) {
		return {0, 0, 0};
	}
	if (byte < 0xE0) {
		return {1, 0x80, 0xBF};
	}
	if (byte < 0xF0) {
		return {2, byte == 0xE0 ? 0xA0U : 0x80U, byte == 0xED ? 0x9FU : 0xBFU};
	}
	return {3, byte == 0xF0 ? 0x90U : 0x80U, byte == 0xF4 ? 0x8FU : 0xBFU};
}

struct sequence {
	uint32 point;
	std::size_t bytes;
};

/// The sequence at the front of a text that isn't empty, or U+FFFD and the longest part
/// of it that a well-formed sequence could begin with, at least one byte.
sequence next_sequence(char const *text, std::size_t remaining) noexcept {
	auto const byte = [text](std::size_t i) { return static_cast<uint32>(static_cast<unsigned char>(text[i])); };
	lead_byte const lead = lead_of(byte(0));
	uint32 point = byte(0) & (lead.count == 1 ? 0x1FU : lead.count == 2 ? 0x0FU : 0x07U);
	for (std::size_t i = 1; i <= lead.count; ++i) {
		if (i == remaining || byte(i) < (i == 1 ? lead.first_low : 0x80U) ||
		    byte(i) > (i == 1 ? lead.first_high : 0xBFU)) {
			return {replacement, i};
		}
		point = point << 6 | (byte(i) & 0x3FU);
	}
	return {lead.count == 0 ? replacement : point, lead.count + 1};
}

template <class Sink>
void decode(std::string_view text, Sink &sink) {
	char const *in = text.data();
	char const *const end = in + text.size();
	while (in != end) {
		std::size_t const run = ascii_run(in, end);
		if (run != 0) {
			if (!sink.copy(in, run)) {
				return;
			}
			in += run;
			continue;
		}
		sequence const next = next_sequence(in, static_cast<std::size_t>(end - in));
		if (!put_utf16(sink, next.point)) {
			return;
		}
		in += next.bytes;
	}
}

template <class Sink>
bool put_utf8(Sink &sink, uint32 point) noexcept {
	auto const tail = [point](unsigned shift) { return static_cast<unsigned char>(0x80 | (point >> shift & 63)); };
	if (point < 0x800) {
		return sink.put(static_cast<unsigned char>(0xC0 | point >> 6), tail(0));
	}
	if (point < 0x10000) {
		return sink.put(static_cast<unsigned char>(0xE0 | point >> 12), tail(6), tail(0));
	}
	return sink.put(static_cast<unsigned char>(0xF0 | point >> 18), tail(12), tail(6), tail(0));
}

template <class Sink>
void encode(std::basic_string_view<wide_char> text, Sink &sink) {
	wide_char const *in = text.data();
	wide_char const *const end = in + text.size();
	while (in != end) {
		std::size_t const run = ascii_run(in, end);
		if (run != 0) {
			if (!sink.copy(in, run)) {
				return;
			}
			in += run;
			continue;
		}
		utf16_point const next = next_point(in, end);
		if (!put_utf8(sink, next.point)) {
			return;
		}
		in += next.units;
	}
}

} // namespace

types::int32 utf8_to_wide(std::string_view text, wide_char *out, types::int32 out_size) {
	return with_sink(out, out_size, [text](auto &sink) { decode(text, sink); });
}

types::int32 wide_to_utf8(std::basic_string_view<wide_char> text, char *out, types::int32 out_size) {
	return with_sink(out, out_size, [text](auto &sink) { encode(text, sink); });
}

} // namespace QUOR_2_9::platform
