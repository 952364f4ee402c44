#ifndef QUOR_SRC_CONFIG_TOKEN_SCANNER_HPP
#define QUOR_SRC_CONFIG_TOKEN_SCANNER_HPP

#include <array>
#include <cstddef>
#include <string_view>

#include <quor/config/config_token.hpp>

#include "support/ascii.hpp"

/// The scanner behind `base_config_item::get_token`, for readers inside the library: it
/// gives the texts of tokens as parts of the source instead of copying them.
namespace QUOR_2_9::config::detail {

/// One token. `text` lies in the source: for a string that ends in a lone backslash its last
/// byte is the zero behind the source. A `T_SPACE` and a `T_END` have no text.
struct scanned_token {
	config_token::tok_types type;
	std::string_view text;

	bool has_text() const noexcept { return type != config_token::T_SPACE && type != config_token::T_END; }
};

/// What a token is by its first byte.
enum class token_start : unsigned char { other, blank, punctuator, quote, digit, letter };

constexpr std::array<token_start, 256> make_token_starts() noexcept {
	std::array<token_start, 256> result{};
	for (unsigned int unit = 0; unit != result.size(); ++unit) {
		if (support::is_digit(unit)) {
			result[unit] = token_start::digit;
		} else if (support::is_letter(unit)) {
			result[unit] = token_start::letter;
		}
	}
	for (char const unit : std::string_view("#<>*/+.:-[]=\n\t\r")) {
		result[static_cast<unsigned char>(unit)] = token_start::punctuator;
	}
	result[static_cast<unsigned char>(' ')] = token_start::blank;
	result[static_cast<unsigned char>('"')] = token_start::quote;
	return result;
}

inline constexpr std::array<token_start, 256> token_starts = make_token_starts();

constexpr token_start token_start_of(char unit) noexcept {
	return token_starts[static_cast<unsigned char>(unit)];
}

/// From this size on, positions in a text and behind it don't fit their type.
inline constexpr unsigned int too_long_to_scan = 0xFFFFFFFEU;

constexpr bool is_too_long_to_scan(std::size_t size) noexcept {
	return size >= too_long_to_scan;
}

/// The token at `pos`, which is moved behind it. At or behind the end it is `T_END` and `pos`
/// stays. Texts that are too long have no tokens.
scanned_token scan_token(strings::ustring8 const &text, unsigned int &pos) noexcept;

} // namespace QUOR_2_9::config::detail

#endif
