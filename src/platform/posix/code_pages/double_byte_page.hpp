#ifndef QUOR_PLATFORM_POSIX_CODE_PAGES_DOUBLE_BYTE_PAGE_HPP
#define QUOR_PLATFORM_POSIX_CODE_PAGES_DOUBLE_BYTE_PAGE_HPP

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include <quor/types/widths.hpp>

#include "platform/posix/code_pages/code_index.hpp"

namespace QUOR_2_9::platform {

/// First and last of some bytes or pairs. Where both are 0 a list of ranges ends.
struct code_range {
	std::uint16_t first = 0;
	std::uint16_t last = 0;
};

/// User-defined characters, which follow one another without a table.
struct user_area {
	std::uint8_t first_lead = 0;
	std::uint8_t last_lead = 0;
	std::uint8_t first_trail = 0;
	std::uint8_t last_trail = 0;
	char16_t first = 0;
};

/// The shape of a page.
struct page_layout {
	/// The bytes that begin a pair, and those of them that have a row in the table.
	std::array<code_range, 2> leads;
	std::array<code_range, 5> row_leads;
	/// The bytes that end a pair: the columns of the table.
	std::array<code_range, 3> trails;
	std::array<user_area, 5> user_areas;
	/// Pairs that give way to later ones of the same character. Among all others the first
	/// one is what the character is encoded in.
	std::array<code_range, 3> decode_only = {};
};

/// Stands in the tables for what has no character.
constexpr char16_t no_character = 0xFFFD;
constexpr std::uint8_t no_column = 0xFF;
constexpr std::uint8_t not_a_lead = 0xFF;
constexpr std::uint8_t lead_without_row = 0xFE;

/// A page ready for use.
struct double_byte_page {
	/// For each byte its row, or one of the two marks above.
	std::array<std::uint8_t, 256> rows;
	/// For each byte its column, or `no_column`.
	std::array<std::uint8_t, 256> columns;
	/// For each column its byte.
	std::array<std::uint8_t, 256> trails;
	std::array<user_area, 5> user_areas;
	std::size_t width;
	/// The characters of the bytes alone, and of the pairs, row by row.
	char16_t const *singles;
	char16_t const *pairs;
	/// The byte or pair of each unit, except user-defined ones; 0 for none.
	code_index_view<std::uint16_t, std::uint16_t> codes;
};

namespace detail {

template <std::size_t Count>
constexpr bool in_any(std::array<code_range, Count> const &ranges, unsigned value) noexcept {
	for (std::size_t i = 0; i != Count && ranges[i].last != 0; ++i) {
		if (value >= ranges[i].first && value <= ranges[i].last) {
			return true;
		}
	}
	return false;
}

constexpr double_byte_page bytes_of(page_layout const &layout) noexcept {
	double_byte_page page{};
	page.user_areas = layout.user_areas;
	std::uint8_t row = 0;
	std::uint8_t column = 0;
	for (unsigned byte = 0; byte != 256; ++byte) {
		page.rows[byte] = in_any(layout.row_leads, byte) ? row++
		                  : in_any(layout.leads, byte)   ? lead_without_row
		                                                 : not_a_lead;
		page.columns[byte] = no_column;
		if (in_any(layout.trails, byte)) {
			page.columns[byte] = column;
			page.trails[column++] = static_cast<std::uint8_t>(byte);
		}
	}
	page.width = column;
	return page;
}

/// Tells every character of a page, with those first that win (code_index.hpp).
template <class Take>
constexpr void each_code(page_layout const &layout, char16_t const *singles, char16_t const *pairs, Take take) {
	double_byte_page const page = bytes_of(layout);
	for (unsigned byte = 1; byte != 0x80; ++byte) {
		take(static_cast<char16_t>(byte), static_cast<std::uint16_t>(byte));
	}
	for (unsigned byte = 0x80; byte != 0x100; ++byte) {
		if (singles[byte - 0x80] != no_character) {
			take(singles[byte - 0x80], static_cast<std::uint16_t>(byte));
		}
	}
	for (bool const decode_only : {false, true}) {
		for (unsigned lead = 0x80; lead != 0x100; ++lead) {
			if (page.rows[lead] >= lead_without_row) {
				continue;
			}
			char16_t const *const row = pairs + page.rows[lead] * page.width;
			for (std::size_t column = 0; column != page.width; ++column) {
				char16_t const unit = row[column];
				unsigned const pair = lead << 8 | page.trails[column];
				if (unit != no_character && in_any(layout.decode_only, pair) == decode_only) {
					take(unit, static_cast<std::uint16_t>(pair));
				}
			}
		}
	}
}

template <page_layout const &Layout, auto const &Singles, auto const &Pairs>
struct page_tables {
	static constexpr auto each = [](auto take) { each_code(Layout, Singles, Pairs, take); };
	static constexpr auto codes = make_index<std::uint16_t, std::uint16_t, count_blocks(0, each)>(0, 0, each);

	static constexpr std::array<char16_t, 256> characters = [] {
		std::array<char16_t, 256> result{};
		for (unsigned byte = 0; byte != 0x100; ++byte) {
			result[byte] = byte < 0x80 ? static_cast<char16_t>(byte) : Singles[byte - 0x80];
		}
		return result;
	}();

	static constexpr double_byte_page page() noexcept {
		double_byte_page result = bytes_of(Layout);
		result.singles = characters.data();
		result.pairs = Pairs;
		result.codes.block_of = codes.block_of.data();
		result.codes.values = codes.values.data();
		return result;
	}
};

} // namespace detail

/// A page made of its shape and its two tables.
template <page_layout const &Layout, auto const &Singles, auto const &Pairs>
constexpr double_byte_page double_byte_page_of = detail::page_tables<Layout, Singles, Pairs>::page();

extern double_byte_page const page_932;
extern double_byte_page const page_936;
extern double_byte_page const page_949;
extern double_byte_page const page_950;

/// The two services for a text of known length.
types::int32 double_byte_to_wide(double_byte_page const &page, std::string_view text, types::wide_char *out,
                                 types::int32 out_size);
types::int32 wide_to_double_byte(double_byte_page const &page, std::basic_string_view<types::wide_char> text, char *out,
                                 types::int32 out_size);

} // namespace QUOR_2_9::platform

#endif
