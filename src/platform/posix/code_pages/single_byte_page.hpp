#ifndef QUOR_PLATFORM_POSIX_CODE_PAGES_SINGLE_BYTE_PAGE_HPP
#define QUOR_PLATFORM_POSIX_CODE_PAGES_SINGLE_BYTE_PAGE_HPP

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include <quor/types/widths.hpp>

#include "platform/posix/code_pages/code_index.hpp"

namespace QUOR_2_9::platform {

/// The units below this one have their bytes at their own place: those of nearly all
/// letters of these pages.
constexpr unsigned direct_units = 0x800;

/// A page ready for use. Every byte has a character, and ASCII is the same in all pages.
struct single_byte_page {
	/// The character of each of the 256 bytes.
	char16_t const *characters;
	/// The byte of each unit; `?` where there is none.
	code_index_view<std::uint8_t, std::uint8_t> codes;
};

namespace detail {

template <auto const &High>
struct single_byte_tables {
	static constexpr std::uint8_t own_blocks = direct_units / 64;
	static constexpr std::array<char16_t, 256> characters = [] {
		std::array<char16_t, 256> result{};
		for (unsigned byte = 0; byte != 0x100; ++byte) {
			result[byte] = byte < 0x80 ? static_cast<char16_t>(byte) : High[byte - 0x80];
		}
		return result;
	}();
	static constexpr auto each = [](auto take) {
		for (unsigned byte = 0; byte != 0x100; ++byte) {
			take(characters[byte], static_cast<std::uint8_t>(byte));
		}
	};
	static constexpr auto codes =
	    make_index<std::uint8_t, std::uint8_t, count_blocks(own_blocks, each)>(own_blocks, '?', each);

	static constexpr single_byte_page page() noexcept {
		return {characters.data(), {codes.block_of.data(), codes.values.data()}};
	}
};

} // namespace detail

/// A page made of the characters of the bytes from 80 on.
template <auto const &High>
constexpr single_byte_page single_byte_page_of = detail::single_byte_tables<High>::page();

/// The single-byte page of this number; null where there is none.
single_byte_page const *find_single_byte_page(types::uint32 page) noexcept;

/// The two services for a text of known length.
types::int32 single_byte_to_wide(single_byte_page const &page, std::string_view text, types::wide_char *out,
                                 types::int32 out_size);
types::int32 wide_to_single_byte(single_byte_page const &page, std::basic_string_view<types::wide_char> text, char *out,
                                 types::int32 out_size);

} // namespace QUOR_2_9::platform

#endif
