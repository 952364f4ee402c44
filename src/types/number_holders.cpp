#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <ostream>
#include <string>
#include <type_traits>

#include <quor/generic/convert/ltoa.hpp>

#include "generic/convert/decimal_text.hpp"
#include "support/whole_part.hpp"
#include "types/holder.hpp"

namespace QUOR_2_9::types {
namespace detail {
namespace {

namespace convert = generic::convert;

/// Room for the text of every number.
constexpr std::size_t number_size = convert::detail::gcvt_size;

/// The plain number in a holder of `long_t` or `ulong_t`; every other number itself.
template <class T>
auto plain(T const &value) noexcept {
	if constexpr (std::is_same_v<T, long_t>) {
		return static_cast<int32>(value);
	} else if constexpr (std::is_same_v<T, ulong_t>) {
		return static_cast<uint32>(value);
	} else {
		return value;
	}
}

/// Whether a holder writes its number as a stream in the "C" locale would.
template <class T>
constexpr bool as_a_stream_would = std::is_same_v<T, int> || std::is_same_v<T, unsigned int> ||
                                   std::is_same_v<T, bool> || std::is_same_v<T, long double>;

/// Writes digits with the routine for the number's width and signedness.
template <class Number, class Unit>
std::size_t write_digits(Number value, Unit *buffer) noexcept {
	if constexpr (std::is_same_v<Number, int64>) {
		convert::lltoa(value, buffer, 10);
	} else if constexpr (std::is_same_v<Number, uint64>) {
		convert::ulltoa(value, buffer, 10);
	} else if constexpr (std::is_signed_v<Number>) {
		convert::ltoa(value, buffer, 10);
	} else {
		convert::ultoa(value, buffer, 10);
	}
	std::size_t size = 0;
	while (buffer[size] != Unit()) {
		++size;
	}
	return size;
}

/// Some standard libraries print a `long double` through the C library and leave the point
/// of its locale in the text. Puts a plain one there and returns the text's new end.
char *with_plain_point(char *text, char *end) noexcept {
	auto const is_of_number = [](char c) { return (c >= '0' && c <= '9') || c == '-' || c == '+' || c == 'e'; };
	char *const point = std::find_if_not(text, end, is_of_number);
	if (point == end) {
		return end;
	}
	*point = '.';
	return std::copy(std::find_if(point, end, is_of_number), end, point + 1);
}

/// Writes a number into `number_size` characters and returns their count.
template <class T>
std::size_t print(T const &value, char *buffer) noexcept {
	char *const end = buffer + number_size;
	if constexpr (std::is_same_v<T, long double>) {
		constexpr int stream_precision = 6;
		char *const last = std::to_chars(buffer, end, value, std::chars_format::general, stream_precision).ptr;
		return static_cast<std::size_t>((std::isfinite(value) ? with_plain_point(buffer, last) : last) - buffer);
	} else if constexpr (std::is_floating_point_v<T>) {
		if (value == 0) {
			buffer[0] = '0';
			return 1;
		}
		return convert::detail::gcvt(static_cast<double>(value), 10, buffer);
	} else if constexpr (std::is_same_v<T, bool>) {
		buffer[0] = value ? '1' : '0';
		return 1;
	} else if constexpr (as_a_stream_would<T>) {
		return static_cast<std::size_t>(std::to_chars(buffer, end, value).ptr - buffer);
	} else {
		return write_digits(plain(value), buffer);
	}
}

/// The text of a number in units of any width.
template <class Text, class T>
Text printed(T const &value) {
	char buffer[number_size];
	std::size_t const size = print(value, buffer);
	return Text(buffer, buffer + size);
}

} // namespace

template <class T>
struct number_rules {
	template <class Target, class Parse>
	static Target integer(T const &value, Parse const & /*parse*/) noexcept {
		if constexpr (std::is_floating_point_v<T>) {
			return static_cast<Target>(support::whole_part(value));
		} else {
			return static_cast<Target>(plain(value));
		}
	}

	template <class Target>
	static Target floating(T const &value) noexcept {
		if constexpr (std::is_same_v<Target, float> && !std::is_floating_point_v<T>) {
			return static_cast<float>(static_cast<double>(plain(value)));
		} else {
			return static_cast<Target>(plain(value));
		}
	}

	static bool boolean(T const &value) noexcept { return plain(value) != 0; }

	static std::string narrow(T const &value) { return printed<std::string>(value); }

	static wide_string native(T const &value) {
		if constexpr (as_a_stream_would<T> || std::is_floating_point_v<T>) {
			return wide(value);
		} else {
			wide_char buffer[number_size];
			return wide_string(buffer, write_digits(plain(value), buffer));
		}
	}

	static wide_string wide(T const &value) { return printed<wide_string>(value); }

	static strings::ustring32 utf32(T const &value) { return printed<strings::ustring32>(value); }

	static void write(T const &value, std::ostream &stream) { stream << plain(value); }
};

// clang-format off
template <> struct holder_rules<int> : number_rules<int> {};
template <> struct holder_rules<unsigned int> : number_rules<unsigned int> {};
template <> struct holder_rules<signed char> : number_rules<signed char> {};
template <> struct holder_rules<short> : number_rules<short> {};
template <> struct holder_rules<long_t> : number_rules<long_t> {};
template <> struct holder_rules<int64> : number_rules<int64> {};
template <> struct holder_rules<unsigned char> : number_rules<unsigned char> {};
template <> struct holder_rules<unsigned short> : number_rules<unsigned short> {};
template <> struct holder_rules<ulong_t> : number_rules<ulong_t> {};
template <> struct holder_rules<uint64> : number_rules<uint64> {};
template <> struct holder_rules<bool> : number_rules<bool> {};
template <> struct holder_rules<float> : number_rules<float> {};
template <> struct holder_rules<double> : number_rules<double> {};
template <> struct holder_rules<long double> : number_rules<long double> {};
// clang-format on

} // namespace detail

template class variant_value_t<int>;
template class variant_value_t<unsigned int>;
template class variant_value_t<signed char>;
template class variant_value_t<short>;
template class variant_value_t<long_t>;
template class variant_value_t<int64>;
template class variant_value_t<unsigned char>;
template class variant_value_t<unsigned short>;
template class variant_value_t<ulong_t>;
template class variant_value_t<uint64>;
template class variant_value_t<bool>;
template class variant_value_t<float>;
template class variant_value_t<double>;
template class variant_value_t<long double>;

} // namespace QUOR_2_9::types
