#include "platform/posix/code_pages/utf8_page.hpp"

#include <algorithm>
#include <cstddef>

#include "kernels/kernels.hpp"
#include "platform/posix/code_pages/surrogates.hpp"
#include "platform/posix/code_pages/unit_sink.hpp"
#include "platform/posix/code_pages/unit_words.hpp"

namespace QUOR_2_9::platform {
namespace {

using types::uint32;
using types::wide_char;

/// How many units are converted in one step while there are so many.
constexpr std::size_t step = 16;

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
	if (byte(0) < 0x80) {
		return {byte(0), 1};
	}
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

constexpr bool is_continuation(uint32 byte) noexcept {
	return (byte & 0xC0) == 0x80;
}

/// As long as there is room for all that may come, without looking for it at each unit.
char const *decode_steps(char const *in, char const *end, unit_writer<wide_char> &writer) noexcept {
	wide_char *out = writer.at();
	wide_char *const last = out + writer.room();
	auto const put = [&out](uint32 unit) { *out++ = static_cast<wide_char>(unit); };
	while (static_cast<std::size_t>(end - in) >= step && static_cast<std::size_t>(last - out) >= step) {
		if (all_below<0x80, step>(in)) {
			out = std::copy_n(in, step, out);
			in += step;
			continue;
		}
		char const *const stop = in + step - 3;
		while (in < stop) {
			auto const byte = [in](std::size_t i) { return static_cast<uint32>(static_cast<unsigned char>(in[i])); };
			uint32 const lead = byte(0);
			uint32 const three = (lead & 0x0F) << 12 | (byte(1) & 63) << 6 | (byte(2) & 63);
			if (lead < 0x80) {
				put(lead);
				++in;
			} else if ((lead & 0xE0) == 0xC0 && lead >= 0xC2 && is_continuation(byte(1))) {
				put((lead & 0x1F) << 6 | (byte(1) & 63));
				in += 2;
			} else if ((lead & 0xF0) == 0xE0 && is_continuation(byte(1)) && is_continuation(byte(2)) &&
			           three >= 0x800 && !is_surrogate(three)) {
				put(three);
				in += 3;
			} else {
				sequence const next = next_sequence(in, static_cast<std::size_t>(end - in));
				in += next.bytes;
				if (next.point >= 0x10000) {
					put(0xD7C0 + (next.point >> 10));
				}
				put(next.point < 0x10000 ? next.point : 0xDC00 + (next.point & 0x3FF));
			}
		}
	}
	writer.continue_at(out);
	return in;
}

char const *decode_steps(char const *in, char const *, unit_counter<wide_char> &) noexcept {
	return in;
}

template <class Sink>
void decode(std::string_view text, Sink &sink) {
	char const *const end = text.data() + text.size();
	char const *in = decode_steps(text.data(), end, sink);
	while (in != end) {
		sequence const next = next_sequence(in, static_cast<std::size_t>(end - in));
		if (!put_utf16(sink, next.point)) {
			return;
		}
		in += next.bytes;
	}
}

/// Puts a code point below 0x110000 and gives the place behind it.
char *put_utf8(char *out, uint32 point) noexcept {
	auto const put = [&out](uint32 byte) { *out++ = static_cast<char>(static_cast<unsigned char>(byte)); };
	if (point < 0x80) {
		put(point);
		return out;
	}
	if (point < 0x800) {
		put(0xC0 | point >> 6);
	} else {
		if (point < 0x10000) {
			put(0xE0 | point >> 12);
		} else {
			put(0xF0 | point >> 18);
			put(0x80 | (point >> 12 & 63));
		}
		put(0x80 | (point >> 6 & 63));
	}
	put(0x80 | (point & 63));
	return out;
}

/// Writes what comes before half a pair that stands alone, or what there is room for, and
/// gives how many units that was.
std::size_t encode_pairs(wide_char const *in, std::size_t size, unit_writer<char> &writer) noexcept {
	if (writer.room() >= kernels::least_room) {
		kernels::progress const made = kernels::utf16_to_utf8(in, size, writer.at(), writer.room());
		writer.continue_at(writer.at() + made.written);
		return made.read;
	}
	char last[kernels::least_room];
	kernels::progress const made = kernels::utf16_to_utf8(in, size, last, kernels::least_room);
	if (made.written > writer.room()) {
		return 0;
	}
	writer.put_all(last, made.written);
	return made.read;
}

void encode(std::basic_string_view<wide_char> text, unit_writer<char> &writer) noexcept {
	wide_char const *in = text.data();
	wide_char const *const end = in + text.size();
	while (in != end) {
		in += encode_pairs(in, static_cast<std::size_t>(end - in), writer);
		if (in == end) {
			return;
		}
		char bytes[4];
		utf16_point const next = next_point(in, end);
		auto const size = static_cast<std::size_t>(put_utf8(bytes, next.point) - bytes);
		if (!writer.put_all(bytes, size)) {
			return;
		}
		in += next.units;
	}
}

/// Half a pair takes three bytes, as U+FFFD does, and a pair takes four.
std::size_t encoded_size(std::basic_string_view<wide_char> text) noexcept {
	auto const more = [](wide_char unit, wide_char) {
		return static_cast<std::uint16_t>((unit >= 0x80 ? 1U : 0U) + (unit >= 0x800 ? 1U : 0U));
	};
	return text.size() + sum_of_units(text, more) - 2 * sum_of_units(text, begins_pair);
}

} // namespace

types::int32 utf8_to_wide(std::string_view text, wide_char *out, types::int32 out_size) {
	return with_sink(out, out_size, [text](auto &sink) { decode(text, sink); });
}

types::int32 wide_to_utf8(std::basic_string_view<wide_char> text, char *out, types::int32 out_size) {
	if (out == nullptr || out_size == 0) {
		return size_result(encoded_size(text));
	}
	unit_writer<char> writer(out, out_size);
	encode(text, writer);
	return writer.result();
}

} // namespace QUOR_2_9::platform
