#include "i18n/value_text.hpp"

#include <quor/generic/convert/ltoa.hpp>

#include "generic/convert/decimal_digits.hpp"
#include "i18n/format_attributes.hpp"

namespace QUOR_2_9::i18n::detail {
namespace {

using types::int64;
using types::uint64;

/// The most zeros that a field is filled up with.
constexpr int64 most_zeros = 65535;

struct int_attributes {
	unsigned int radix = 10;
	int prefix_width = 0;
	bool spaced = false;
	int fieldsize = 0;
};

bool read_base(std::string_view token, int_attributes &attributes) noexcept {
	if (abbreviates(token, "dec") || abbreviates(token, "default")) {
		attributes.radix = 10;
	} else if (abbreviates(token, "spaced_dec")) {
		attributes.radix = 10;
		attributes.spaced = true;
	} else if (abbreviates(token, "hex")) {
		attributes.radix = 16;
		attributes.prefix_width = 2;
	} else if (abbreviates(token, "oct")) {
		attributes.radix = 8;
		attributes.prefix_width = 1;
	} else if (abbreviates(token, "bin")) {
		attributes.radix = 2;
		attributes.prefix_width = 1;
	} else {
		return false;
	}
	return true;
}

bool read_int_attributes(std::string_view format, int_attributes &attributes) noexcept {
	return read_attributes(format, [&](std::string_view key, std::string_view value) {
		if (abbreviates(key, "base")) {
			return read_base(value, attributes);
		}
		if (abbreviates(key, "fieldsize")) {
			attributes.fieldsize = leading_int(value);
			return true;
		}
		return false;
	});
}

/// The number whose digits stand for a negative value in a base other than ten. The
/// power of the radix wraps, and is compared as signed.
int64 complement(int64 value, int_attributes const &attributes) noexcept {
	uint64 power = 1;
	int64 digits = 0;
	auto const widen = [&] {
		power *= attributes.radix;
		++digits;
	};
	for (int64 rest = value; rest != 0; rest /= static_cast<int64>(attributes.radix)) {
		widen();
	}
	auto const sum = [&] { return static_cast<int64>(static_cast<uint64>(value) + power); };
	if (attributes.fieldsize == 0) {
		// The top digit has to show the sign.
		if (sum() > 0 && value < -(static_cast<int64>(power) / 2)) {
			widen();
		}
		while (attributes.radix == 16 && digits % 4 != 0) {
			widen();
		}
	} else {
		int64 const wanted = static_cast<int64>(attributes.fieldsize) - attributes.prefix_width;
		while (digits < wanted && power != 0) {
			widen();
		}
	}
	return sum();
}

/// Digits in groups of three from the right, behind the sign.
text_block<96> spaced_digits(std::string_view number, bool negative) noexcept {
	text_block<96> text;
	if (negative) {
		text.append('-');
	}
	if (number.front() == '-') {
		number.remove_prefix(1);
	}
	for (std::size_t left = number.size(); left != 0; --left) {
		if (left != number.size() && left % 3 == 0) {
			text.append(' ');
		}
		text.append(number[number.size() - left]);
	}
	return text;
}

int64 padding_zeros(int_attributes const &attributes, int64 size, int64 extra) noexcept {
	if (attributes.fieldsize == 0 && attributes.radix == 16) {
		return (4 - size % 4) % 4;
	}
	return extra + size < attributes.fieldsize ? attributes.fieldsize - extra - size : 0;
}

/// A number as `ltoa` and `lltoa` write it in radix 10.
template <class Number>
void append_decimal(text_writer &out, Number value) {
	namespace convert = generic::convert::detail;
	out.append_written<convert::decimal_digits_size>(
	    [value](char *buffer) noexcept { return convert::decimal_digits(value, buffer); });
}

} // namespace

bool append_int(text_writer &out, int64 value, std::string_view format) {
	if (format.empty()) {
		append_decimal(out, value);
		return true;
	}
	int_attributes attributes;
	if (!read_int_attributes(format, attributes)) {
		return false;
	}
	bool const negative = value < 0;
	if (negative && attributes.radix != 10) {
		value = complement(value, attributes);
	}
	char digits[72];
	generic::convert::lltoa(value, digits, attributes.radix);
	std::string_view const number(digits);
	auto const size = static_cast<int64>(number.size());
	int64 const extra = attributes.spaced ? (size - (negative ? 2 : 1)) / 3 : attributes.prefix_width;
	if (number.size() > longest_number || (attributes.fieldsize != 0 && attributes.fieldsize < size + extra)) {
		return false;
	}
	int64 const zeros = negative || attributes.radix == 10 ? 0 : padding_zeros(attributes, size, extra);
	if (zeros > most_zeros) {
		return false;
	}
	std::string_view const prefix = attributes.radix == 16 ? "0x" : attributes.radix == 8 ? "o" : "";
	text_block<96> body;
	if (attributes.spaced) {
		body = spaced_digits(number, negative);
	} else {
		body.append(number);
	}
	if (attributes.radix == 2) {
		body.append('b');
	}
	out.append(prefix);
	out.append(static_cast<std::size_t>(zeros), '0');
	out.append(body.view());
	return true;
}

bool append_double(text_writer &out, double value, std::string_view format) {
	int precision = 2;
	int fieldsize = 0;
	bool const known = read_attributes(format, [&](std::string_view key, std::string_view text) {
		if (abbreviates(key, "precision")) {
			precision = leading_int(text);
			return true;
		}
		if (abbreviates(key, "fieldsize")) {
			fieldsize = leading_int(text);
			return true;
		}
		return false;
	});
	if (!known || fieldsize < 0 || fieldsize > static_cast<int>(longest_number)) {
		return false;
	}
	auto const width = static_cast<std::size_t>(fieldsize);
	printed_number number = printed_number::fixed(value, precision);
	if (width != 0 && (number.empty() || number.view().size() > width)) {
		number = printed_number::exponent(value, precision);
	}
	if (number.empty()) {
		return false;
	}
	std::string_view const shown = width == 0 ? number.view() : number.view().substr(0, width);
	if (width != 0) {
		out.append(width - shown.size(), ' ');
	}
	out.append(shown);
	return true;
}

bool append_duration(text_writer &out, double seconds, std::string_view format) {
	std::string_view precision = "2";
	bool short_form = false;
	bool const known = read_attributes(format, [&](std::string_view key, std::string_view value) {
		if (abbreviates(key, "precision")) {
			precision = value;
			return true;
		}
		return abbreviates(key, "short_form") && read_flag(value, short_form);
	});
	// Whole seconds have to fit 32 bits; NaN fails here too.
	if (!known || !(seconds > -2147483649.0 && seconds < 2147483648.0)) {
		return false;
	}
	auto const days = static_cast<types::int32>(seconds) / 86400;
	double rest = seconds - days * 86400;
	auto const hours = static_cast<types::int32>(rest) / 3600;
	rest -= hours * 3600;
	auto const minutes = static_cast<types::int32>(rest) / 60;
	rest -= minutes * 60;

	bool shown = false;
	auto const part = [&](types::int32 number, std::string_view long_unit, std::string_view short_unit) {
		shown = shown || number != 0;
		if (shown) {
			append_decimal(out, number);
			out.append(short_form ? short_unit : long_unit);
		}
	};
	part(days, " dy ", "d ");
	part(hours, " hr ", "h ");
	part(minutes, " min ", "m ");
	printed_number const printed = printed_number::fixed(rest, leading_int(precision));
	out.append(precision.empty() || printed.empty() ? failure_text : printed.view());
	out.append(short_form ? "s" : " sec");
	return true;
}

} // namespace QUOR_2_9::i18n::detail
