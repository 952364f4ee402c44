#ifndef QUOR_TYPES_VARIANT_HPP
#define QUOR_TYPES_VARIANT_HPP

/// @file
/// A value of one of twenty types that can be asked for as any of them. Arguments of
/// messages and settings of programs travel as variants.
///
///     quor::types::variant value("0x10");
///     value.as_int();             // 16
///     value = 1.5;
///     value.as_string();          // "1.5"
///     value = quor::types::nil;
///
/// @since 2.9

#include <iosfwd>
#include <string>
#include <type_traits>
#include <typeinfo>

#include <quor/export.hpp>
#include <quor/memory/pointers/rc_pointer.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/nil.hpp>
#include <quor/types/variant_type.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::types {

namespace detail {

struct held_text;

/// Whether a pointer to `T` is no text: what it points to, but for `const`, is none of
/// the three text units.
template <class T>
using enable_for_no_text = std::enable_if_t<!std::is_same_v<std::remove_const_t<T>, char> &&
                                                !std::is_same_v<std::remove_const_t<T>, wide_char> &&
                                                !std::is_same_v<std::remove_const_t<T>, utf32_char>,
                                            int>;

} // namespace detail

/// A handle to an immutable, shared value of one of twenty types, or to nil.
///
/// Copies share the value: a copy is one atomic increment and allocates nothing, and so
/// is a move, since a variant is never without a value. Making one from a value allocates
/// its holder. There is no comparison of two variants.
///
/// Every conversion exists and none fails:
///
/// - *Numbers to integers* are cut to the low bits and extended by their sign: 300 as
///   8 bits is 44, -1 as unsigned 64 bits is all ones. A floating number gives its whole
///   part modulo 2^64, cut likewise (-3.9 is -3); infinities and NaN give 0.
/// - *Integers to `float`* are rounded to `double` first. A `double` beyond the range of
///   `float` gives an infinity.
/// - *Numbers to `bool`* are true unless zero; NaN is true. A `bool` is 1 or 0.
/// - *Text to integers* reads as `generic::convert::str_to_int` and its kind do, with the
///   radix found from the prefix ("0x10" is 16, "010" is 8), and clips at the range of
///   the result type. Text behind the number is ignored; no digits give 0.
/// - *Text to floating numbers* reads a decimal number as C's `atof` does, in the "C" locale;
///   hexadecimal numbers give 0. Wide text is transcoded first.
/// - *Text to `bool`*: "yes", "on" and "true" in any case, as the whole text, are true;
///   otherwise it is whether the text as a number is not zero.
/// - *Numbers to text*: integers in decimal; `float` and `double` with 10 significant
///   digits, where the decimal point stays and large exponents have three digits (100.0
///   is "100.", 1e10 is "1.e+010", 0.0 is "0"); `long double` with six (1e10 is "1e+10").
///   The smallest 64-bit number is "-O", see `generic::convert::lltoa`.
/// - *Text to text* goes through `quor/strings/transcode.hpp` with its sentinels. A
///   `std::string` is taken for UTF-8 and a `wide_string` for UTF-16.
/// - *Nil* is 0, false and empty text.
///
/// Nothing depends on a locale, but for the insertion into a stream.
/// @throws std::bad_alloc where a value or a text is made. std::length_error from
///         `as_utf32` of malformed UTF-8, as `strings::utf8_to_utf32` tells.
/// Untrusted input: text of any content is safe. Thread-safety: copies may be used and
/// destroyed by several threads at once; one variant object as any value, many readers
/// or one writer. Cost: a conversion is done anew at each call.
/// @since 2.9
class QUOR_API variant {
public:
	/// Nil. @since 2.9
	variant();
	/// Nil. @since 2.9
	variant(nil_t const &);
	/// Holds an `int`, also for `char`, 16-bit units and enumerations that don't name their
	/// underlying type; one that does is held as that type. @since 2.9
	variant(int value);
	/// Holds an `unsigned int`. @since 2.9
	variant(unsigned int value);
	/// Holds a `signed char`: a number, but written to a stream as a character. @since 2.9
	variant(signed char const &value);
	/// Holds a `short`. @since 2.9
	variant(short const &value);
	/// Holds a `long` of 32 bits as a type of its own. @since 2.9
	variant(long_t const &value);
	/// Holds a signed number of 64 bits. @since 2.9
	variant(int64 const &value);
	/// Holds an `unsigned char`: a number, but written to a stream as a character. @since 2.9
	variant(unsigned char const &value);
	/// Holds an `unsigned short`. @since 2.9
	variant(unsigned short const &value);
	/// Holds an `unsigned long` of 32 bits as a type of its own. @since 2.9
	variant(ulong_t const &value);
	/// Holds an unsigned number of 64 bits. @since 2.9
	variant(uint64 const &value);
	/// Holds a `bool`. @since 2.9
	variant(bool value);
	/// Holds a `float`. @since 2.9
	variant(float const &value);
	/// Holds a `double`. @since 2.9
	variant(double const &value);
	/// Holds a `long double`. @since 2.9
	variant(long double const &value);
	/// Holds a `std::string`, UTF-8 by convention. @since 2.9
	variant(std::string const &value);
	/// Holds a wide standard string, UTF-16 by convention. @since 2.9
	variant(wide_string const &value);
	/// Holds UTF-8 text. @since 2.9
	variant(strings::ustring8 const &value);
	/// Holds zero-terminated UTF-8 text as a `ustring8`; null is the empty text. @since 2.9
	variant(char const *value);
	/// Holds UTF-16 text. @since 2.9
	variant(strings::ustring16 const &value);
	/// Holds zero-terminated UTF-16 text as a `ustring16`; null is the empty text. @since 2.9
	variant(wide_char const *value);
	/// Holds UTF-32 text. @since 2.9
	variant(strings::ustring32 const &value);
	/// Holds zero-terminated UTF-32 text as a `ustring32`; null is the empty text. @since 2.9
	variant(utf32_char const *value);
	/// Holds a native `long` of 64 bits as a signed number of 64 bits. @since 2.9
	variant(native_long64 const &value);
	/// Holds a native `unsigned long` of 64 bits as an unsigned number of 64 bits. @since 2.9
	variant(native_ulong64 const &value);
	/// A pointer to anything else is not a value. @since 2.9
	template <class T, detail::enable_for_no_text<T> = 0>
	variant(T *) = delete;
	/// A pointer to a member is not a value. @since 2.9
	template <class Class, class Member>
	variant(Member Class::*) = delete;

	/// Shares the value. @since 2.9
	variant(variant const &) noexcept = default;
	/// Lets go of the value. @since 2.9
	~variant() = default;

	/// Shares the value of `other`; self-assignment does nothing. @since 2.9
	variant &operator=(variant const &other) noexcept;
	/// Becomes nil. @since 2.9
	variant &operator=(nil_t const &);
	/// The same as the assignment operator. @since 2.9
	variant &assign(variant const &other) noexcept;

	/// Whether this is nil. @since 2.9
	bool equal(nil_t const &) const;
	/// Whether this is nil. @since 2.9
	bool operator==(nil_t const &) const;
	/// Whether this is not nil. @since 2.9
	bool operator!=(nil_t const &) const;

	/// The held type: `typeid(int)` for a variant made from an `int`, `typeid(nil_t)` for
	/// nil, `typeid(strings::ustring8)` for one made from a literal. @since 2.9
	std::type_info const &type() const;

	/// Writes the value to a stream with the stream's own insertion, so flags, precision
	/// and locale of the stream apply, and returns the stream.
	///
	/// This is not the text of `as_string`: nil is the integer 0; `signed char` and
	/// `unsigned char` are characters; the three Unicode strings are written as UTF-8 up
	/// to their first zero unit, a `std::string` in full. A `wide_string`, which a narrow
	/// stream can't take, gives "< ", the type's name, " instance at ", the address of
	/// the value and " >".
	/// @since 2.9
	std::ostream &ostream(std::ostream &stream) const;

	/// The value as an `int`. @since 2.9
	int as_signed() const;
	/// The value as an `int`. @since 2.9
	int as_int() const;
	/// `as_int` taken for unsigned, so text clips as a signed number: "4000000000" gives
	/// 2147483647, and "-1" gives 4294967295. @since 2.9
	unsigned int as_unsigned() const;
	/// The same as `as_unsigned`. @since 2.9
	unsigned int as_uint() const;
	/// The value as a `short`. @since 2.9
	short as_short() const;
	/// `as_short` taken for unsigned: "40000" gives 32767, where `as_uint16` gives 40000.
	/// @since 2.9
	unsigned short as_ushort() const;
	/// The value as a signed number of 32 bits. @since 2.9
	int32 as_long() const;
	/// `as_long` taken for unsigned: "4000000000" gives 2147483647. @since 2.9
	uint32 as_ulong() const;
	/// The value as a signed number of 8 bits; text with `-` clips at its first digit, see
	/// `generic::convert::str_to_int8`. @since 2.9
	signed char as_int8() const;
	/// The value as a signed number of 16 bits; text as for `as_int8`. @since 2.9
	short as_int16() const;
	/// The value as a signed number of 32 bits. @since 2.9
	int32 as_int32() const;
	/// The value as a signed number of 64 bits. @since 2.9
	int64 as_int64() const;
	/// The value as an unsigned number of 8 bits; negative text gives 0. @since 2.9
	unsigned char as_uint8() const;
	/// The value as an unsigned number of 16 bits; negative text gives 0. @since 2.9
	unsigned short as_uint16() const;
	/// The value as an unsigned number of 32 bits; negative text gives 0. @since 2.9
	uint32 as_uint32() const;
	/// The value as an unsigned number of 64 bits; negative text gives 0. @since 2.9
	uint64 as_uint64() const;
	/// The value as a truth value. @since 2.9
	bool as_bool() const;
	/// The value as a `float`. @since 2.9
	float as_float() const;
	/// The value as a `double`. @since 2.9
	double as_double() const;
	/// The value as a `long double`. @since 2.9
	long double as_long_double() const;

	/// The value as UTF-8. @since 2.9
	strings::ustring8 as_string() const;
	/// The value as UTF-16. @since 2.9
	wide_string as_wstring() const;
	/// The value as UTF-16. @since 2.9
	wide_string as_ustring() const;
	/// The value as UTF-8. @since 2.9
	strings::ustring8 as_utf8() const;
	/// The value as UTF-16. @since 2.9
	strings::ustring16 as_utf16() const;
	/// The value as UTF-32. @since 2.9
	strings::ustring32 as_utf32() const;

private:
	friend struct detail::held_text;

	memory::pointers::rc_pointer<variant_type> m_holder;
};

/// The same as `value.ostream(stream)`. @since 2.9
QUOR_API std::ostream &operator<<(std::ostream &stream, variant const &value);

} // namespace QUOR_2_9::types

#endif
