#include "platform/posix/code_pages/double_byte_page.hpp"

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

constexpr std::size_t column_count(double_byte_page const &page, user_area const &area) noexcept {
	return page.columns[area.last_trail] - page.columns[area.first_trail] + 1U;
}

/// The character of a pair without one in the table.
char16_t user_character(double_byte_page const &page, unsigned lead, unsigned trail) noexcept {
	for (user_area const &area : page.user_areas) {
		if (lead >= area.first_lead && lead <= area.last_lead && trail >= area.first_trail &&
		    trail <= area.last_trail) {
			std::size_t const offset = (lead - area.first_lead) * column_count(page, area) + page.columns[trail] -
			                           page.columns[area.first_trail];
			return static_cast<char16_t>(area.first + offset);
		}
	}
	return no_character;
}

/// The pair of a unit without a code in the index; 0 where it isn't user-defined either.
unsigned user_code(double_byte_page const &page, char16_t unit) noexcept {
	for (user_area const &area : page.user_areas) {
		std::size_t const width = column_count(page, area);
		std::size_t const offset = static_cast<std::size_t>(unit) - area.first;
		if (unit >= area.first && offset < (area.last_lead - area.first_lead + 1U) * width) {
			std::size_t const lead = area.first_lead + offset / width;
			return static_cast<unsigned>(lead << 8 | page.trails[page.columns[area.first_trail] + offset % width]);
		}
	}
	return 0;
}

struct character {
	char16_t unit;
	std::size_t bytes;
};

/// The character at the front of a text that isn't empty. A lead byte alone is bad where
/// no trail byte follows; with one behind it that makes no character both are.
character next_character(double_byte_page const &page, unsigned char const *in, unsigned char const *end) noexcept {
	unsigned const row = page.rows[in[0]];
	if (row == not_a_lead) {
		return {page.singles[in[0]], 1};
	}
	std::size_t const column = end - in > 1 ? page.columns[in[1]] : no_column;
	if (column == no_column) {
		return {no_character, 1};
	}
	char16_t const unit = row != lead_without_row ? page.pairs[row * page.width + column] : no_character;
	return {unit != no_character ? unit : user_character(page, in[0], in[1]), 2};
}

/// As long as there is room for all that may come, without looking for it at each unit.
unsigned char const *decode_steps(double_byte_page const &page, unsigned char const *in, unsigned char const *end,
                                  unit_writer<wide_char> &writer) noexcept {
	wide_char *out = writer.at();
	wide_char *const last = out + writer.room();
	while (static_cast<std::size_t>(end - in) >= step && static_cast<std::size_t>(last - out) >= step) {
		if (all_below<0x80, step>(in)) {
			out = std::copy_n(in, step, out);
			in += step;
			continue;
		}
		unsigned char const *const stop = in + step - 1;
		while (in < stop) {
			char16_t unit = page.singles[*in];
			if (unit != no_character) {
				*out++ = unit;
				++in;
				continue;
			}
			unsigned const row = page.rows[in[0]];
			unsigned const column = page.columns[in[1]];
			std::size_t bytes = 2;
			unit = row < lead_without_row && column != no_column ? page.pairs[row * page.width + column] : no_character;
			if (unit == no_character) {
				character const next = next_character(page, in, end);
				unit = next.unit;
				bytes = next.bytes;
			}
			*out++ = unit;
			in += bytes;
		}
	}
	writer.continue_at(out);
	return in;
}

unsigned char const *decode_steps(double_byte_page const &, unsigned char const *in, unsigned char const *,
                                  unit_counter<wide_char> &) noexcept {
	return in;
}

template <class Sink>
void decode(double_byte_page const &page, std::string_view text, Sink &sink) {
	auto const *in = reinterpret_cast<unsigned char const *>(text.data());
	auto const *const end = in + text.size();
	in = decode_steps(page, in, end, sink);
	while (in != end) {
		character const next = next_character(page, in, end);
		if (!sink.put(next.unit)) {
			return;
		}
		in += next.bytes;
	}
}

/// Whether the page has a character is told by a code above 0.
unsigned code_of(double_byte_page const &page, wide_char unit) noexcept {
	unsigned code = page.codes[unit];
	if (code == 0) {
		code = user_code(page, unit);
	}
	return code != 0 || unit == 0 ? code : '?';
}

void encode_rest(double_byte_page const &page, wide_char const *in, wide_char const *end, unit_writer<char> &writer) {
	while (in != end) {
		unsigned const code = code_of(page, *in);
		if (!(code < 0x100 ? writer.put(code) : writer.put(code >> 8, code & 0xFF))) {
			return;
		}
		in += next_point(in, end).units;
	}
}

void encode(double_byte_page const &page, std::basic_string_view<wide_char> text, unit_writer<char> &writer) {
	wide_char const *in = text.data();
	wide_char const *const end = in + text.size();
	auto const codes = page.codes;
	char *out = writer.at();
	char *const last = out + writer.room();
	while (in != end && last - out >= 2) {
		auto const units = static_cast<std::size_t>(end - in);
		std::size_t const fit = std::min(units, static_cast<std::size_t>(last - out) / 2);
		if (fit >= step && all_below<0x80, step>(in)) {
			out = std::transform(in, in + step, out, [](wide_char unit) { return static_cast<char>(unit); });
			in += step;
			continue;
		}
		for (wide_char const *const stop = in + std::min(fit, step); in < stop; ++in) {
			unsigned code = codes[*in];
			if (code == 0) {
				code = code_of(page, *in);
				in += next_point(in, end).units - 1;
			}
			// Both bytes are written, and the second one again where there is one alone.
			out[0] = static_cast<char>(code >> 8);
			out += code > 0xFF ? 1 : 0;
			*out++ = static_cast<char>(code);
		}
	}
	writer.continue_at(out);
	encode_rest(page, in, end, writer);
}

std::size_t encoded_size(double_byte_page const &page, std::basic_string_view<wide_char> text) noexcept {
	auto const codes = page.codes;
	std::size_t size = text.size();
	for (std::size_t i = 0; i != text.size(); ++i) {
		unsigned code = codes[text[i]];
		if (code == 0) {
			code = code_of(page, text[i]);
			if (next_point(text.data() + i, text.data() + text.size()).units == 2) {
				++i;
				--size;
			}
		}
		size += code > 0xFF ? 1 : 0;
	}
	return size;
}

} // namespace

types::int32 double_byte_to_wide(double_byte_page const &page, std::string_view text, wide_char *out,
                                 types::int32 out_size) {
	return with_sink(out, out_size, [&](auto &sink) { decode(page, text, sink); });
}

types::int32 wide_to_double_byte(double_byte_page const &page, std::basic_string_view<wide_char> text, char *out,
                                 types::int32 out_size) {
	if (out == nullptr || out_size == 0) {
		return size_result(encoded_size(page, text));
	}
	unit_writer<char> writer(out, out_size);
	encode(page, text, writer);
	return writer.result();
}

} // namespace QUOR_2_9::platform
