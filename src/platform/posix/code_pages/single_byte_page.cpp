#include "platform/posix/code_pages/single_byte_page.hpp"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "platform/posix/code_pages/ascii_run.hpp"
#include "platform/posix/code_pages/surrogates.hpp"
#include "platform/posix/code_pages/unit_sink.hpp"

namespace QUOR_2_9::platform {
namespace {

using types::wide_char;

/// How many units are converted in one step while there are so many.
constexpr std::size_t step = 16;

void decode(single_byte_page const &page, std::string_view text, unit_writer<wide_char> &writer) noexcept {
	auto const *in = reinterpret_cast<unsigned char const *>(text.data());
	auto const *const end = in + text.size();
	for (; static_cast<std::size_t>(end - in) >= step; in += step) {
		wide_char *const out = writer.claim<step>();
		if (out == nullptr) {
			break;
		}
		bool const ascii = is_ascii<step>(in);
		for (std::size_t i = 0; ascii && i != step; ++i) {
			out[i] = in[i];
		}
		for (std::size_t i = 0; !ascii && i != step; ++i) {
			out[i] = page.characters[in[i]];
		}
	}
	while (in != end && writer.put(page.characters[*in])) {
		++in;
	}
}

/// Converts one step; false where a surrogate is in it, which may be half of a pair.
bool encode_step(single_byte_page const &page, wide_char const *in, char (&out)[step]) noexcept {
	if (is_ascii<step>(in)) {
		std::transform(in, in + step, out, [](wide_char unit) { return static_cast<char>(unit); });
		return true;
	}
	bool surrogates = false;
	for (std::size_t i = 0; i != step; ++i) {
		surrogates |= is_surrogate(in[i]);
		out[i] = static_cast<char>(page.codes[in[i]]);
	}
	return !surrogates;
}

void encode(single_byte_page const &page, std::basic_string_view<wide_char> text, unit_writer<char> &writer) noexcept {
	wide_char const *in = text.data();
	wide_char const *const end = in + text.size();
	while (in != end) {
		bool const whole = static_cast<std::size_t>(end - in) >= step;
		char bytes[step];
		if (whole && encode_step(page, in, bytes)) {
			if (char *const out = writer.claim<step>()) {
				std::memcpy(out, bytes, step);
				in += step;
				continue;
			}
		}
		// What is left, or a step with surrogates: the last one may take a unit more.
		for (wide_char const *const stop = whole ? in + step : end; in < stop;) {
			if (!writer.put(page.codes[*in])) {
				return;
			}
			in += next_point(in, end).units;
		}
	}
}

std::size_t count_pairs(std::basic_string_view<wide_char> text) noexcept {
	std::size_t count = 0;
	for (std::size_t i = 1; i < text.size(); ++i) {
		count += (text[i - 1] & 0xFC00U) == 0xD800 && (text[i] & 0xFC00U) == 0xDC00 ? 1 : 0;
	}
	return count;
}

} // namespace

types::int32 single_byte_to_wide(single_byte_page const &page, std::string_view text, wide_char *out,
                                 types::int32 out_size) {
	if (out == nullptr || out_size == 0) {
		return static_cast<types::int32>(text.size());
	}
	unit_writer<wide_char> writer(out, out_size);
	decode(page, text, writer);
	return writer.result();
}

types::int32 wide_to_single_byte(single_byte_page const &page, std::basic_string_view<wide_char> text, char *out,
                                 types::int32 out_size) {
	if (out == nullptr || out_size == 0) {
		return static_cast<types::int32>(text.size() - count_pairs(text));
	}
	unit_writer<char> writer(out, out_size);
	encode(page, text, writer);
	return writer.result();
}

} // namespace QUOR_2_9::platform
