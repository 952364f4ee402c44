#ifndef QUOR_SRC_SERIALIZATION_TEXT_FIELDS_HPP
#define QUOR_SRC_SERIALIZATION_TEXT_FIELDS_HPP

#include <cstddef>
#include <string>
#include <string_view>

#include <quor/types/widths.hpp>

#include "generic/convert/decimal_digits.hpp"
#include "serialization/contents.hpp"

/// The fields of `serialize_text_buf`, read from any text that a position walks through and
/// appended to any string. Texts end with a zero byte behind their last one, or are parts of
/// such a text.
namespace QUOR_2_9::serialization::detail {

/// The byte behind each field.
inline constexpr char separator = '\x01';

/// Room for every integer as a field.
inline constexpr std::size_t number_field_size = generic::convert::detail::decimal_digits_size + 1;

/// Writes an integer as a field, its decimal digits and the separator, and returns the count
/// of its bytes. There is room for `number_field_size` of them.
template <class Number>
std::size_t write_number_field(Number value, char *bytes) noexcept {
	std::size_t const length = generic::convert::detail::decimal_digits(value, bytes);
	bytes[length] = separator;
	return length + 1;
}

/// The same, as a text.
template <class Number>
std::string_view number_field(Number value, char (&bytes)[number_field_size]) noexcept {
	return {bytes, write_number_field(value, bytes)};
}

/// The bytes up to the next separator, and the position behind it. Without one, the bytes up to
/// the end, and `no_position`.
std::string_view take_field(std::string_view text, types::uint32 &position) noexcept;

/// A field that is a plain decimal number as it is mostly written: up to nine digits, no leading
/// zero, a sign or none, and a separator. False leaves the position for `take_field`.
bool take_plain_number(std::string_view text, types::uint32 &position, types::int32 &number) noexcept;

/// A field as a number of 32 bits, as `generic::convert::str_to_int32` reads it.
types::int32 take_int32(std::string_view text, types::uint32 &position) noexcept;

/// The bytes behind the count that a string starts with, cut at the end of the text, and the
/// position behind the separator that ends them. A negative count gives all that is left and
/// moves the position back by its amount, less 1. Empty at `no_position`.
std::string_view take_framed(std::string_view text, types::uint32 &position, types::int32 count) noexcept;

/// Appends a string with its count. `value` may be the string that is `stored`, which is framed
/// as it was before the call; it may not be another part of it. Nothing is changed where there
/// is no memory.
void append_framed(stored_bytes &stored, std::string const &value);

} // namespace QUOR_2_9::serialization::detail

#endif
