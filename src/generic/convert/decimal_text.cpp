#include "generic/convert/decimal_text.hpp"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>
#include <system_error>

#include "generic/convert/decimal_digits.hpp"
#include "support/ascii.hpp"

namespace QUOR_2_9::generic::convert::detail {
namespace {

constexpr int most_digits = 340;

/// Appends characters to a buffer that is known to have the room.
class writer {
public:
	explicit writer(char *begin) noexcept : m_begin(begin), m_end(begin) {}

	void put(char c) noexcept { *m_end++ = c; }
	void put(std::string_view text) noexcept { m_end = std::copy(text.begin(), text.end(), m_end); }
	void put_zeros(int count) noexcept { m_end = std::fill_n(m_end, count, '0'); }
	std::size_t size() const noexcept { return static_cast<std::size_t>(m_end - m_begin); }

private:
	char *m_begin;
	char *m_end;
};

std::string_view word_of(double value) noexcept {
	if (std::isnan(value)) {
		return "nan";
	}
	return value < 0 ? "-inf" : "inf";
}

constexpr int fraction_bits = 52;

/// A finite number that is at least the smallest normal one: a whole number of 53 bits times 2
/// to the power of `exponent - fraction_bits`.
struct binary {
	std::uint64_t mantissa;
	int exponent;
};

binary binary_of(double magnitude) noexcept {
	constexpr int bias = 1023;
	constexpr std::uint64_t first_bit = std::uint64_t(1) << fraction_bits;
	auto const bits = std::bit_cast<std::uint64_t>(magnitude);
	return {(bits & (first_bit - 1)) | first_bit, static_cast<int>(bits >> fraction_bits) - bias};
}

/// `number * power / 2^shift`, rounded to a whole number of 64 bits: exactly, ties to even. The
/// power has at most 44 bits and the shift is 1 to 63.
std::uint64_t scaled(std::uint64_t number, std::uint64_t power, int shift) noexcept {
	constexpr std::uint64_t low_half = 0xFFFFFFFF;
	std::uint64_t const low_product = (number & low_half) * (power & low_half);
	std::uint64_t const middle =
	    (low_product >> 32) + (number >> 32) * (power & low_half) + (number & low_half) * (power >> 32);
	std::uint64_t const low = middle << 32 | (low_product & low_half);
	std::uint64_t const high = (number >> 32) * (power >> 32) + (middle >> 32);
	std::uint64_t const whole = high << (64 - shift) | low >> shift;
	std::uint64_t const rest = low << (64 - shift);
	constexpr std::uint64_t half = std::uint64_t(1) << 63;
	return whole + (rest > half || (rest == half && whole % 2 != 0) ? 1 : 0);
}

/// The significant digits of a finite number without its trailing zeros (at least one
/// digit stays) and the decimal exponent of the first one.
struct significant {
	char text[most_digits];
	int count;
	int exponent;
};

/// Leaves `count` digits without their trailing zeros.
void drop_zeros(significant &number, int count) noexcept {
	while (count > 1 && number.text[count - 1] == '0') {
		--count;
	}
	number.count = count;
}

/// The digits of the usual numbers: those that a power of ten of 44 bits makes whole numbers of as
/// many digits as are wanted. False for others.
bool find_digits_at_once(double magnitude, int digits, significant &result) noexcept {
	constexpr int smallest_exponent = -11;
	constexpr int largest_exponent = 51;
	constexpr int largest_power = 13;
	constexpr int longest = 17;
	binary const number = binary_of(magnitude);
	if (number.exponent < smallest_exponent || number.exponent > largest_exponent || digits > longest) {
		return false;
	}
	// The decimal exponent, or one less than that: 1233 / 4096 is the logarithm of 2.
	int exponent = number.exponent * 1233 >> 12;
	for (;; ++exponent) {
		int const power = digits - 1 - exponent;
		if (power < 0 || power > largest_power) {
			return false;
		}
		std::uint64_t const ten = power == 0 ? 1 : decimal_powers[static_cast<std::size_t>(power)];
		std::uint64_t const whole = scaled(number.mantissa, ten, fraction_bits - number.exponent);
		if (whole < decimal_powers[static_cast<std::size_t>(digits)]) {
			write_decimal(whole, result.text);
			result.exponent = exponent;
			drop_zeros(result, digits);
			return true;
		}
	}
}

/// The digits of any finite number.
void find_digits(double magnitude, int digits, significant &result) noexcept {
	char printed[most_digits + 8];
	auto const end =
	    std::to_chars(printed, printed + sizeof printed, magnitude, std::chars_format::scientific, digits - 1).ptr;
	char const *const mark = std::find(static_cast<char const *>(printed), static_cast<char const *>(end), 'e');
	result.exponent = 0;
	std::from_chars(mark + 2, end, result.exponent);
	if (mark[1] == '-') {
		result.exponent = -result.exponent;
	}
	result.text[0] = printed[0];
	if (digits > 1) {
		std::copy(static_cast<char const *>(printed) + 2, mark, result.text + 1);
	}
	drop_zeros(result, digits);
}

void put_exponent(writer &out, int exponent) noexcept {
	char digits[8];
	auto const end = std::to_chars(digits, digits + sizeof digits, exponent < 0 ? -exponent : exponent).ptr;
	out.put('e');
	out.put(exponent < 0 ? '-' : '+');
	out.put_zeros(3 - static_cast<int>(end - digits));
	out.put(std::string_view(digits, static_cast<std::size_t>(end - digits)));
}

/// The decimal exponent of the first digit that is not zero in digits with a point and an
/// exponent, or the smallest integer where all digits are zero. Saturates.
std::int64_t leading_exponent(char const *text, char const *end) noexcept {
	constexpr std::int64_t none = std::numeric_limits<std::int64_t>::min();
	constexpr std::int64_t bound = 100000000000000000;
	std::int64_t place = -1;
	std::int64_t first = none;
	bool behind_point = false;
	for (; text != end && (support::is_digit(*text) || *text == '.'); ++text) {
		if (*text == '.') {
			behind_point = true;
			continue;
		}
		if (first == none && *text != '0') {
			first = behind_point ? place : 0;
		} else if (first != none && !behind_point) {
			++first;
		}
		place -= behind_point ? 1 : 0;
	}
	if (first == none || text == end) {
		return first;
	}
	++text; // the letter e
	bool const negative = *text == '-';
	if (*text == '-' || *text == '+') {
		++text;
	}
	std::int64_t exponent = 0;
	for (; text != end && exponent < bound; ++text) {
		exponent = exponent * 10 + (*text - '0');
	}
	return negative ? first - exponent : first + exponent;
}

bool starts_with_digits(char const *text, char const *end) noexcept {
	if (text != end && *text == '.') {
		++text;
	}
	return text != end && support::is_digit(*text);
}

/// Reads digits with a point and an exponent, which must be there.
double parse_digits(char const *text, char const *end) noexcept {
	double value = 0;
	auto const parsed = std::from_chars(text, end, value, std::chars_format::general);
	if (parsed.ec == std::errc::result_out_of_range) {
		return leading_exponent(text, parsed.ptr) > 0 ? std::numeric_limits<double>::infinity() : 0.0;
	}
	return value;
}

/// Whether the text goes on with a word of lower-case letters, in any case.
bool starts_with_word(char const *text, char const *end, std::string_view word) noexcept {
	if (static_cast<std::size_t>(end - text) < word.size()) {
		return false;
	}
	return std::equal(word.begin(), word.end(), text,
	                  [](char wanted, char c) { return support::is_letter_in_any_case(c, wanted); });
}

std::size_t print(double value, int precision, char *buffer, std::size_t size, std::chars_format format) noexcept {
	if (!std::isfinite(value)) {
		std::string_view const word = word_of(value);
		if (precision < 0 || word.size() > size) {
			return 0;
		}
		std::copy(word.begin(), word.end(), buffer);
		return word.size();
	}
	if (precision < 0 || static_cast<std::size_t>(precision) >= size) {
		return 0;
	}
	auto const printed = std::to_chars(buffer, buffer + size, value, format, precision);
	return printed.ec == std::errc() ? static_cast<std::size_t>(printed.ptr - buffer) : 0;
}

/// Writes a number below 2^52 in magnitude with so few decimals that, without the point, it is a
/// whole number of 64 bits.
template <int Precision>
std::size_t write_fixed(double magnitude, bool negative, char *buffer) noexcept {
	constexpr std::uint64_t power = Precision == 0 ? 1 : Precision == 1 ? 10 : Precision == 2 ? 100 : 1000;
	binary const parts = binary_of(magnitude);
	// A smaller number is far too small to show, the one without mantissa too.
	std::uint64_t const number =
	    parts.exponent < -11 ? 0 : scaled(parts.mantissa, power, fraction_bits - parts.exponent);
	char *end = buffer;
	if (negative) {
		*end++ = '-';
	}
	end = write_decimal(number / power, end);
	if constexpr (Precision != 0) {
		*end++ = '.';
		auto rest = static_cast<std::uint32_t>(number % power);
		for (int place = Precision; place-- != 0; rest /= 10) {
			end[place] = static_cast<char>('0' + rest % 10);
		}
		end += Precision;
	}
	return static_cast<std::size_t>(end - buffer);
}

/// `fixed` for the usual numbers; 0 for others.
std::size_t fixed_at_once(double value, int precision, char *buffer, std::size_t size) noexcept {
	constexpr double bound = 4503599627370496.0; // 2^52
	constexpr std::size_t longest = 1 + 16 + 1 + 3;
	double const magnitude = std::fabs(value);
	bool const negative = std::signbit(value);
	if (!(magnitude < bound) || size < longest) {
		return 0;
	}
	switch (precision) {
	case 0:
		return write_fixed<0>(magnitude, negative, buffer);
	case 1:
		return write_fixed<1>(magnitude, negative, buffer);
	case 2:
		return write_fixed<2>(magnitude, negative, buffer);
	case 3:
		return write_fixed<3>(magnitude, negative, buffer);
	default:
		return 0;
	}
}

} // namespace

std::size_t gcvt(double value, int digits, char *buffer) noexcept {
	writer out(buffer);
	if (!std::isfinite(value)) {
		out.put(word_of(value));
		return out.size();
	}
	digits = std::clamp(digits, 1, most_digits);
	significant number;
	if (!find_digits_at_once(std::fabs(value), digits, number)) {
		find_digits(std::fabs(value), digits, number);
	}
	std::string_view const all(number.text, static_cast<std::size_t>(number.count));
	if (std::signbit(value)) {
		out.put('-');
	}
	if (number.exponent == -1) {
		out.put("0.");
		out.put(all);
	} else if (number.exponent >= 0 && number.exponent < digits) {
		std::size_t const whole = static_cast<std::size_t>(number.exponent) + 1;
		out.put(all.substr(0, whole));
		out.put_zeros(static_cast<int>(whole) - number.count);
		out.put('.');
		out.put(all.substr(std::min(whole, all.size())));
	} else {
		out.put(all[0]);
		out.put('.');
		out.put(all.substr(1));
		put_exponent(out, number.exponent);
	}
	return out.size();
}

double atof(char const *text, std::size_t length) noexcept {
	char const *const end = text + length;
	while (text != end && support::is_blank(*text)) {
		++text;
	}
	bool const negative = text != end && *text == '-';
	if (text != end && (*text == '-' || *text == '+')) {
		++text;
	}
	double magnitude = 0;
	if (starts_with_word(text, end, "inf")) {
		magnitude = std::numeric_limits<double>::infinity();
	} else if (starts_with_word(text, end, "nan")) {
		magnitude = std::numeric_limits<double>::quiet_NaN();
	} else if (starts_with_digits(text, end)) {
		magnitude = parse_digits(text, end);
	} else {
		return 0.0;
	}
	return negative ? -magnitude : magnitude;
}

std::size_t fixed(double value, int precision, char *buffer, std::size_t size) noexcept {
	std::size_t const written = fixed_at_once(value, precision, buffer, size);
	return written != 0 ? written : print(value, precision, buffer, size, std::chars_format::fixed);
}

std::size_t scientific(double value, int precision, char *buffer, std::size_t size) noexcept {
	return print(value, precision, buffer, size, std::chars_format::scientific);
}

} // namespace QUOR_2_9::generic::convert::detail
