#ifndef QUOR_SRC_CONFIG_DECIMAL_NAME_HPP
#define QUOR_SRC_CONFIG_DECIMAL_NAME_HPP

#include <array>
#include <charconv>
#include <cstddef>
#include <limits>
#include <string_view>

#include <quor/version.hpp>

namespace QUOR_2_9::config::detail {

/// A number in decimal: the name of an array's element. Allocates nothing.
class decimal_name {
public:
	explicit decimal_name(unsigned int number) noexcept
	    : m_end(std::to_chars(m_digits.data(), m_digits.data() + m_digits.size(), number).ptr) {}
	decimal_name(decimal_name const &) = delete;
	decimal_name &operator=(decimal_name const &) = delete;

	std::string_view text() const noexcept {
		return {m_digits.data(), static_cast<std::size_t>(m_end - m_digits.data())};
	}

private:
	std::array<char, std::numeric_limits<unsigned int>::digits10 + 1> m_digits;
	char const *m_end;
};

} // namespace QUOR_2_9::config::detail

#endif
