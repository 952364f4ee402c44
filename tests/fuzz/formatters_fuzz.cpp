// The value formatters against their slow reference. An input is up to 16 hexadecimal
// digits, the bits of the value, then one byte of any kind, then the attribute string;
// "|" stands for the byte 0x01 too, so that seeds are readable.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <string>

#include <quor/i18n/value_formatters.hpp>

#include "reference/value_formatters.hpp"

namespace {

using QUOR_2_9::i18n::_private::format_double;
using QUOR_2_9::i18n::_private::format_duration;
using QUOR_2_9::i18n::_private::format_int;
using QUOR_2_9::i18n::_private::format_memory;
using QUOR_2_9::i18n::_private::format_metric;
using QUOR_2_9::strings::ustring8;

void check(bool holds, char const *what) {
	if (!holds) {
		std::cerr << "fails: " << what << '\n';
		std::abort();
	}
}

int hex_digit(std::uint8_t unit) {
	if (unit >= '0' && unit <= '9') {
		return unit - '0';
	}
	return unit >= 'a' && unit <= 'f' ? unit - 'a' + 10 : -1;
}

void check_doubles(double value, std::string const &format) {
	check(format_double(value, format) == reference::format_double(value, format), "format_double");
	check(format_duration(value, format) == reference::format_duration(value, format), "format_duration");
}

void check_units(unsigned long long value, std::string const &format) {
	ustring8 unit("before");
	std::string expected;
	ustring8 text = format_memory(value, format, unit);
	check(text == reference::format_memory(value, format, expected) && unit == expected, "format_memory");
	check((text == "-0") == unit.empty(), "format_memory: a unit for each number");
	auto const small = static_cast<QUOR_2_9::types::uint32>(value);
	text = format_metric(small, format, unit);
	check(text == reference::format_metric(small, format, expected) && unit == expected, "format_metric");
	check(text.size() <= 63, "format_metric: length");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const *data, std::size_t size) {
	std::size_t at = 0;
	std::uint64_t bits = 0;
	for (; at < size && at < 16 && hex_digit(data[at]) >= 0; ++at) {
		bits = bits * 16 + static_cast<std::uint64_t>(hex_digit(data[at]));
	}
	std::string format;
	for (++at; at < size; ++at) {
		format += data[at] == '|' ? '\x01' : static_cast<char>(data[at]);
	}
	auto const value = static_cast<long long>(bits);
	ustring8 const text = format_int(value, format);
	check(text == reference::format_int(value, format), "format_int");
	check(text.size() < 65536 + 96, "format_int: length");
	double image = 0.0;
	std::memcpy(&image, &bits, sizeof(image));
	check_doubles(image, format);
	check_doubles(static_cast<double>(value) / 1000.0, format);
	check_units(bits, format);
	return 0;
}
