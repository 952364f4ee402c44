#ifndef QUOR_SRC_I18N_FORMAT_ATTRIBUTES_HPP
#define QUOR_SRC_I18N_FORMAT_ATTRIBUTES_HPP

#include <cstddef>
#include <string_view>

namespace QUOR_2_9::i18n::detail {

/// The byte between the elements of a field string.
inline constexpr char separator = '\x01';

/// The keys and values of an attribute string, cut exactly as `split_string` cuts it at
/// the separator, without storing the pieces.
class format_attributes {
public:
	explicit format_attributes(std::string_view format) noexcept : m_rest(format) {}

	/// Whether every key has its value: the number of elements is even. An element that
	/// is empty and the last one doesn't exist.
	bool is_even() const noexcept;

	/// Takes the next pair; false when there is none. Only for an even number of elements.
	bool next(std::string_view &key, std::string_view &value) noexcept;

private:
	std::string_view next_element() noexcept;

	std::string_view m_rest;
};

/// Hands each pair of an attribute string to `read(key, value)`, from left to right. False
/// where the number of elements is odd, before any pair, and where `read` answers false.
template <class Read>
bool read_attributes(std::string_view format, Read read) {
	format_attributes pairs(format);
	if (!pairs.is_even()) {
		return false;
	}
	std::string_view key;
	std::string_view value;
	while (pairs.next(key, value)) {
		if (!read(key, value)) {
			return false;
		}
	}
	return true;
}

/// Whether the token is a prefix of the keyword; the empty one is.
constexpr bool abbreviates(std::string_view token, std::string_view keyword) noexcept {
	return keyword.substr(0, token.size()) == token;
}

/// The number at the start of a text: white space, a sign, decimal digits. 0 without
/// digits, the nearest `int` where the number is beyond it.
int leading_int(std::string_view text) noexcept;

/// Reads "true" or "false", abbreviated or not; false for any other word.
bool read_flag(std::string_view token, bool &flag) noexcept;

} // namespace QUOR_2_9::i18n::detail

#endif
