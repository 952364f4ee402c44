#include "platform/posix/code_pages/single_byte_page.hpp"

#include <algorithm>
#include <cstddef>

#include "platform/posix/code_pages/surrogates.hpp"
#include "platform/posix/code_pages/unit_sink.hpp"
#include "platform/posix/code_pages/unit_words.hpp"

namespace QUOR_2_9::platform {
namespace {

using types::wide_char;

/// How many units are converted in one step while there are so many.
constexpr std::size_t step = 16;

void decode(single_byte_page const &page, std::string_view text, unit_writer<wide_char> &writer) noexcept {
	auto const *in = reinterpret_cast<unsigned char const *>(text.data());
	auto const *const end = in + text.size();
	char16_t const *const characters = page.characters;
	wide_char *out = writer.at();
	for (std::size_t left = std::min(text.size(), writer.room()); left >= step; left -= step, in += step, out += step) {
		if (all_below<0x80, step>(in)) {
			std::copy_n(in, step, out);
			continue;
		}
		for (std::size_t i = 0; i != step; ++i) {
			out[i] = characters[in[i]];
		}
	}
	writer.continue_at(out);
	while (in != end && writer.put(characters[*in])) {
		++in;
	}
}

/// Converts one step; false where a surrogate is in it, which may be half of a pair.
bool encode_step(code_index_view<std::uint8_t, std::uint8_t> codes, wide_char const *in, char *out) noexcept {
	if (all_below<0x80, step>(in)) {
		std::transform(in, in + step, out, [](wide_char unit) { return static_cast<char>(unit); });
		return true;
	}
	if (all_below<direct_units, step>(in)) {
		std::transform(in, in + step, out, [codes](wide_char unit) { return static_cast<char>(codes.values[unit]); });
		return true;
	}
	if (has_surrogate<step>(in)) {
		return false;
	}
	for (std::size_t i = 0; i != step; ++i) {
		out[i] = static_cast<char>(codes[in[i]]);
	}
	return true;
}

void encode(single_byte_page const &page, std::basic_string_view<wide_char> text, unit_writer<char> &writer) noexcept {
	wide_char const *in = text.data();
	wide_char const *const end = in + text.size();
	auto const codes = page.codes;
	while (in != end) {
		bool const whole = static_cast<std::size_t>(end - in) >= step;
		if (whole && writer.room() >= step && encode_step(codes, in, writer.at())) {
			writer.continue_at(writer.at() + step);
			in += step;
			continue;
		}
		// What is left, or a step with surrogates: the last one may take a unit more.
		for (wide_char const *const stop = whole ? in + step : end; in < stop;) {
			if (!writer.put(codes[*in])) {
				return;
			}
			in += next_point(in, end).units;
		}
	}
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
		return static_cast<types::int32>(text.size() - sum_of_units(text, begins_pair));
	}
	unit_writer<char> writer(out, out_size);
	encode(page, text, writer);
	return writer.result();
}

} // namespace QUOR_2_9::platform
