#include <charconv>
#include <cmath>
#include <cstring>
#include <system_error>

#include "i18n/value_text.hpp"

namespace QUOR_2_9::i18n::detail {

printed_number printed_number::fixed(double value, int precision) noexcept {
	printed_number result;
	// A digit, the point and more decimals than these don't fit.
	constexpr int most_decimals = static_cast<int>(longest_number) - 2;
	if (!std::isfinite(value) || precision < 0 || precision > most_decimals) {
		return result;
	}
	auto const printed =
	    std::to_chars(result.m_text, result.m_text + longest_number, value, std::chars_format::fixed, precision);
	if (printed.ec == std::errc()) {
		result.m_size = static_cast<std::size_t>(printed.ptr - result.m_text);
	}
	return result;
}

printed_number printed_number::exponent(double value, int precision) noexcept {
	printed_number result;
	constexpr int most_decimals = static_cast<int>(longest_number) - 7;
	if (!std::isfinite(value) || precision < 0 || precision > most_decimals) {
		return result;
	}
	auto const printed =
	    std::to_chars(result.m_text, result.m_text + longest_number, value, std::chars_format::scientific, precision);
	if (printed.ec != std::errc()) {
		return result;
	}
	auto size = static_cast<std::size_t>(printed.ptr - result.m_text);
	bool const three_digits = result.m_text[size - 4] != 'e';
	if (three_digits) {
		result.m_text[size - 3] = result.m_text[size - 2];
		result.m_text[size - 2] = result.m_text[size - 1];
		--size;
	}
	if (size < longest_number) {
		result.m_size = size;
	}
	return result;
}

} // namespace QUOR_2_9::i18n::detail
