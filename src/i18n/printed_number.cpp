#include <cmath>

#include "generic/convert/decimal_text.hpp"
#include "i18n/value_text.hpp"

namespace QUOR_2_9::i18n::detail {

printed_number printed_number::fixed(double value, int precision) noexcept {
	printed_number result;
	// A digit, the point and more decimals than these don't fit.
	constexpr int most_decimals = static_cast<int>(longest_number) - 2;
	if (std::isfinite(value) && precision <= most_decimals) {
		result.m_size = generic::convert::detail::fixed(value, precision, result.m_text, longest_number);
	}
	return result;
}

printed_number printed_number::exponent(double value, int precision) noexcept {
	printed_number result;
	// A digit, the point and five characters of exponent stand beside the decimals.
	constexpr int most_decimals = static_cast<int>(longest_number) - 7;
	if (!std::isfinite(value) || precision > most_decimals) {
		return result;
	}
	std::size_t size = generic::convert::detail::scientific(value, precision, result.m_text, longest_number);
	if (size == 0) {
		return result;
	}
	bool const three_digits = result.m_text[size - 4] != 'e';
	if (three_digits) {
		result.m_text[size - 3] = result.m_text[size - 2];
		result.m_text[size - 2] = result.m_text[size - 1];
		--size;
	}
	result.m_size = size < longest_number ? size : 0;
	return result;
}

} // namespace QUOR_2_9::i18n::detail
