#include "i18n/format_attributes.hpp"

#include <algorithm>
#include <limits>

#include "support/ascii.hpp"

namespace QUOR_2_9::i18n::detail {

bool format_attributes::is_even() const noexcept {
	auto count = static_cast<std::size_t>(std::count(m_rest.begin(), m_rest.end(), separator));
	if (!m_rest.empty() && m_rest.back() != separator) {
		++count;
	}
	return count % 2 == 0;
}

bool format_attributes::next(std::string_view &key, std::string_view &value) noexcept {
	if (m_rest.empty()) {
		return false;
	}
	key = next_element();
	value = next_element();
	return true;
}

std::string_view format_attributes::next_element() noexcept {
	std::size_t const end = std::min(m_rest.find(separator), m_rest.size());
	std::string_view const element = m_rest.substr(0, end);
	m_rest.remove_prefix(std::min(end + 1, m_rest.size()));
	return element;
}

int leading_int(std::string_view text) noexcept {
	std::size_t i = 0;
	while (i < text.size() && support::is_blank(text[i])) {
		++i;
	}
	bool const negative = i < text.size() && text[i] == '-';
	if (i < text.size() && (text[i] == '-' || text[i] == '+')) {
		++i;
	}
	// The number is kept below zero, where there is room for the smallest one.
	constexpr long long lowest = std::numeric_limits<int>::min();
	long long value = 0;
	for (; i < text.size() && support::is_digit(text[i]); ++i) {
		value = std::max(value * 10 - (text[i] - '0'), lowest);
	}
	return static_cast<int>(negative ? value : std::min<long long>(-value, std::numeric_limits<int>::max()));
}

bool read_flag(std::string_view token, bool &flag) noexcept {
	if (abbreviates(token, "true")) {
		flag = true;
		return true;
	}
	if (abbreviates(token, "false")) {
		flag = false;
		return true;
	}
	return false;
}

} // namespace QUOR_2_9::i18n::detail
