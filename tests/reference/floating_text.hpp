#ifndef QUOR_TESTS_REFERENCE_FLOATING_TEXT_HPP
#define QUOR_TESTS_REFERENCE_FLOATING_TEXT_HPP

// Floating numbers as text with significant digits, and back, through the C library, which
// must have its "C" locale.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace quor_reference {

// The significant digits of a number and the exponent of the first one, as the C library
// prints them, in fixed or exponent notation.
inline std::string significant_text(double value, std::uint32_t precision) {
	if (std::isnan(value)) {
		return "nan";
	}
	std::string const sign = std::signbit(value) ? "-" : "";
	if (std::isinf(value)) {
		return sign + "inf";
	}
	int const count = precision == 0 ? 1 : precision > 340 ? 340 : static_cast<int>(precision);
	char printed[400];
	std::snprintf(printed, sizeof printed, "%.*e", count - 1, std::fabs(value));
	std::string digits;
	char const *c = printed;
	for (; *c != 'e'; ++c) {
		if (*c != '.') {
			digits += *c;
		}
	}
	int const exponent = std::atoi(c + 1);
	bool const fixed = exponent >= -1 && exponent < count;
	std::string whole_digits = exponent == -1 ? "0" : digits.substr(0, 1);
	std::string behind = exponent == -1 ? digits : digits.substr(1);
	if (fixed && exponent > 0) {
		std::size_t const places = static_cast<std::size_t>(exponent) + 1;
		whole_digits = digits.substr(0, places);
		behind = digits.substr(places);
	}
	while (!behind.empty() && behind.back() == '0') {
		behind.pop_back();
	}
	std::string result = sign + whole_digits + "." + behind;
	if (!fixed) {
		char tail[16];
		std::snprintf(tail, sizeof tail, "e%c%03d", exponent < 0 ? '-' : '+', exponent < 0 ? -exponent : exponent);
		result += tail;
	}
	return result;
}

// The number that the C library reads. Some make a negative zero of a sign without a number.
inline double c_number(std::string const &text) {
	char *end = nullptr;
	double const value = std::strtod(text.c_str(), &end);
	return end == text.c_str() ? 0 : value;
}

// The decimal number that a text starts with.
inline double leading_number(std::string const &text) {
	std::size_t i = text.find_first_not_of(" \t\n\v\f\r");
	if (i == std::string::npos) {
		return 0;
	}
	std::size_t const start = i;
	i += text[i] == '-' || text[i] == '+' ? 1 : 0;
	std::string word;
	for (std::size_t k = i; k < text.size() && k < i + 3; ++k) {
		word += text[k] >= 'A' && text[k] <= 'Z' ? static_cast<char>(text[k] - 'A' + 'a') : text[k];
	}
	bool const negative = text[start] == '-';
	if (word == "inf") {
		return negative ? -INFINITY : INFINITY;
	}
	if (word == "nan") {
		return NAN;
	}
	// Only what a decimal number is made of is shown to the C library.
	std::string number = negative ? "-" : "";
	for (; i < text.size() && std::strchr("0123456789.eE+-", text[i]) != nullptr && text[i] != '\0'; ++i) {
		bool const sign = text[i] == '+' || text[i] == '-';
		if (sign && (number.empty() || (number.back() != 'e' && number.back() != 'E'))) {
			break;
		}
		number += text[i];
	}
	return c_number(number);
}

} // namespace quor_reference

#endif
