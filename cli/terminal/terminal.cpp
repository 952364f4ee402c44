#include "terminal/terminal.hpp"

#include <algorithm>
#include <array>
#include <ostream>

namespace quor_cli {

namespace {

constexpr std::size_t bar_width = 24;

struct code_point {
	char32_t value = 0;
	std::size_t size = 0; // in bytes, 0 for what is no UTF-8
};

code_point decode(std::string_view text) {
	auto const lead = static_cast<unsigned char>(text[0]);
	if (lead < 0x80) {
		return {lead, 1};
	}
	std::size_t const size = lead >= 0xF0 && lead < 0xF5   ? 4
	                         : lead >= 0xE0 && lead < 0xF0 ? 3
	                         : lead >= 0xC2 && lead < 0xE0 ? 2
	                                                       : 0;
	if (size == 0 || size > text.size()) {
		return {};
	}
	char32_t value = lead & (0x7FU >> size);
	for (std::size_t i = 1; i != size; ++i) {
		auto const unit = static_cast<unsigned char>(text[i]);
		if ((unit & 0xC0U) != 0x80) {
			return {};
		}
		value = (value << 6U) | (unit & 0x3FU);
	}
	static constexpr std::array<char32_t, 5> least = {0, 0, 0x80, 0x800, 0x10000};
	bool const is_valid = value >= least[size] && value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF);
	return is_valid ? code_point{value, size} : code_point{};
}

// Controls, and marks that change what stands around them.
bool is_dangerous(char32_t value) {
	return value < 0x20 || (value >= 0x7F && value < 0xA0) || value == 0x200E || value == 0x200F || value == 0x61C ||
	       (value >= 0x2028 && value <= 0x202E) || (value >= 0x2066 && value <= 0x2069) || value == 0xFEFF;
}

std::string hexadecimal(char32_t value, std::size_t digits) {
	std::string result;
	for (; value != 0 || result.size() < digits; value >>= 4U) {
		result.insert(result.begin(), "0123456789ABCDEF"[value & 0xFU]);
	}
	return result;
}

bool is_wide(char32_t value) {
	return (value >= 0x1100 && value < 0x1160) || (value >= 0x2E80 && value < 0xA4D0) ||
	       (value >= 0xAC00 && value < 0xD7A4) || (value >= 0xF900 && value < 0xFB00) ||
	       (value >= 0xFE30 && value < 0xFE70) || (value >= 0xFF00 && value < 0xFF61) ||
	       (value >= 0x1F300 && value < 0x1FB00) || (value >= 0x20000 && value < 0x40000);
}

} // namespace

std::string coloured(std::string_view text, colour which, bool has_colours) {
	if (!has_colours) {
		return std::string(text);
	}
	static char const *const codes[] = {"31", "33", "32", "2", "1"};
	return "\x1B[" + std::string(codes[static_cast<int>(which)]) + "m" + std::string(text) + "\x1B[0m";
}

std::string printable(std::string_view text, bool keep_lines) {
	std::string result;
	while (!text.empty()) {
		code_point const next = decode(text);
		if (next.size == 0) {
			result += "\\x" + hexadecimal(static_cast<unsigned char>(text[0]), 2);
		} else if (!is_dangerous(next.value) || (keep_lines && (next.value == '\n' || next.value == '\t'))) {
			result += text.substr(0, next.size);
		} else if (next.value < 0x80) {
			result += "\\x" + hexadecimal(next.value, 2);
		} else {
			result += "\\u{" + hexadecimal(next.value, 4) + "}";
		}
		text.remove_prefix(next.size == 0 ? 1 : next.size);
	}
	return result;
}

std::size_t find_no_text(std::string_view text) {
	for (std::size_t at = 0; at != text.size();) {
		code_point const next = decode(text.substr(at));
		bool const is_control = next.value < 0x20 && next.value != '\t' && next.value != '\n' && next.value != '\r';
		if (next.size == 0 || is_control || next.value == 0x7F) {
			return at;
		}
		at += next.size;
	}
	return std::string_view::npos;
}

std::string first_character(std::string_view text) {
	return std::string(text.substr(0, text.empty() ? 0 : std::max<std::size_t>(decode(text).size, 1)));
}

std::size_t columns(std::string_view text) {
	std::size_t count = 0;
	while (!text.empty()) {
		code_point const next = decode(text);
		bool const combines = next.value >= 0x300 && next.value < 0x370;
		count += combines ? 0 : is_wide(next.value) ? 2 : 1;
		text.remove_prefix(next.size == 0 ? 1 : next.size);
	}
	return count;
}

std::string padded(std::string_view text, std::size_t width) {
	std::size_t const size = columns(text);
	return std::string(text) + std::string(size < width ? width - size : 0, ' ');
}

progress_bar::~progress_bar() {
	if (m_is_shown) {
		m_to.err << "\r\x1B[K" << std::flush;
	}
}

void progress_bar::show(std::size_t done, std::size_t all) {
	std::size_t const percent = done >= all ? 100 : done * 100 / all;
	if (!m_to.shows_progress || all < 2 || percent == m_percent) {
		return;
	}
	m_percent = percent;
	m_is_shown = true;
	std::size_t const full = bar_width * percent / 100;
	m_to.err << '\r' << m_what << " [" << std::string(full, '#') << std::string(bar_width - full, '.') << "] "
	         << percent << "%\x1B[K" << std::flush;
}

} // namespace quor_cli
