#include "platform/posix/code_pages/double_byte_page.hpp"

#include "platform/posix/code_pages/ascii_run.hpp"
#include "platform/posix/code_pages/surrogates.hpp"
#include "platform/posix/code_pages/unit_sink.hpp"

namespace QUOR_2_9::platform {
namespace {

using types::wide_char;

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
		return {in[0] < 0x80 ? char16_t(in[0]) : page.singles[in[0] - 0x80], 1};
	}
	std::size_t const column = end - in > 1 ? page.columns[in[1]] : no_column;
	if (column == no_column) {
		return {no_character, 1};
	}
	char16_t const unit = row != lead_without_row ? page.pairs[row * page.width + column] : no_character;
	return {unit != no_character ? unit : user_character(page, in[0], in[1]), 2};
}

template <class Sink>
void decode(double_byte_page const &page, std::string_view text, Sink &sink) {
	auto const *in = reinterpret_cast<unsigned char const *>(text.data());
	auto const *const end = in + text.size();
	while (in != end) {
		if (*in < 0x80) {
			std::size_t const run = ascii_run(in, end);
			if (!sink.copy(in, run)) {
				return;
			}
			in += run;
			continue;
		}
		character const next = next_character(page, in, end);
		if (!sink.put(next.unit)) {
			return;
		}
		in += next.bytes;
	}
}

template <class Sink>
void encode(double_byte_page const &page, std::basic_string_view<wide_char> text, Sink &sink) {
	wide_char const *in = text.data();
	wide_char const *const end = in + text.size();
	while (in != end) {
		if (*in < 0x80) {
			std::size_t const run = ascii_run(in, end);
			if (!sink.copy(in, run)) {
				return;
			}
			in += run;
			continue;
		}
		unsigned code = page.codes[*in];
		std::size_t units = 1;
		if (code == 0) {
			code = user_code(page, *in);
			code = code != 0 ? code : '?';
			units = next_point(in, end).units;
		}
		if (!(code < 0x100 ? sink.put(static_cast<unsigned char>(code))
		                   : sink.put(static_cast<unsigned char>(code >> 8), static_cast<unsigned char>(code)))) {
			return;
		}
		in += units;
	}
}

} // namespace

types::int32 double_byte_to_wide(double_byte_page const &page, std::string_view text, wide_char *out,
                                 types::int32 out_size) {
	return with_sink(out, out_size, [&](auto &sink) { decode(page, text, sink); });
}

types::int32 wide_to_double_byte(double_byte_page const &page, std::basic_string_view<wide_char> text, char *out,
                                 types::int32 out_size) {
	return with_sink(out, out_size, [&](auto &sink) { encode(page, text, sink); });
}

} // namespace QUOR_2_9::platform
