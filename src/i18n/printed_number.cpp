#include <cmath>

#include "generic/convert/decimal_text.hpp"
#include "i18n/value_text.hpp"

namespace QUOR_2_9::i18n::detail {

printed_number printed_number::fixed(double value, int precision) noexcept {
	printed_number result;
	if (std::isfinite(value)) {
		result.m_size = generic::convert::detail::fixed(value, precision, result.m_text, longest_number);
	}
	return result;
}

printed_number printed_number::exponent(double value, int precision) noexcept {
	printed_number result;
	std::size_t size = std::isfinite(value)
	                       ? generic::convert::detail::scientific(value, precision, result.m_text, longest_number)
	                       : 0;
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
