#ifndef QUOR_SRC_I18N_VALUE_TEXT_HPP
#define QUOR_SRC_I18N_VALUE_TEXT_HPP

#include <cstddef>
#include <string_view>

#include <quor/types/widths.hpp>

#include "i18n/text_writer.hpp"

namespace QUOR_2_9::i18n::detail {

/// What the public formatters return for a failure.
inline constexpr std::string_view failure_text = "-0";

/// The longest text of one printed number.
inline constexpr std::size_t longest_number = 63;

// Each of these appends what the public formatter of the same name returns and answers
// true, or answers false for a failure and appends nothing. `unit` gets a literal.

bool append_int(text_writer &out, types::int64 value, std::string_view format);
bool append_double(text_writer &out, double value, std::string_view format);
bool append_duration(text_writer &out, double seconds, std::string_view format);
bool append_memory(text_writer &out, types::uint64 value, std::string_view format, std::string_view &unit);
bool append_metric(text_writer &out, types::uint32 value, std::string_view format, std::string_view &unit);

/// A text on the stack for the printing of one value. The capacity is the caller's duty.
template <std::size_t Capacity>
class text_block {
public:
	void append(char unit) noexcept { m_text[m_size++] = unit; }
	void append(std::string_view text) noexcept { m_size += text.copy(m_text + m_size, text.size()); }
	std::string_view view() const noexcept { return {m_text, m_size}; }

private:
	char m_text[Capacity];
	std::size_t m_size = 0;
};

/// A number printed with a decimal point: in a fixed buffer, empty when it has no finite
/// value, a negative precision, or more than `longest_number` characters.
class printed_number {
public:
	/// Fixed notation.
	static printed_number fixed(double value, int precision) noexcept;
	/// Exponent form with an exponent of two digits, the last two where there are three.
	/// The length limit counts the exponent with three digits.
	static printed_number exponent(double value, int precision) noexcept;

	bool empty() const noexcept { return m_size == 0; }
	std::string_view view() const noexcept { return {m_text, m_size}; }

private:
	char m_text[longest_number];
	std::size_t m_size = 0;
};

} // namespace QUOR_2_9::i18n::detail

#endif
