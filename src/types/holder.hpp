#ifndef QUOR_SRC_TYPES_HOLDER_HPP
#define QUOR_SRC_TYPES_HOLDER_HPP

#include <quor/types/variant_type.hpp>

#include <quor/generic/convert/str_to_x.hpp>
#include <quor/types/radix.hpp>

/// The body of `variant_value_t`. Everything that depends on the held type is in
/// `holder_rules`; a source that instantiates a holder specialises it first.
namespace QUOR_2_9::types {
namespace detail {

/// The conversions of a `T`, static functions all:
///
///     integer<Target>(value, parse)   parse(units, length) reads text as a Target
///     floating<Target>(value)
///     boolean(value)
///     narrow(value)                   text of as_string and as_utf8
///     native(value)                   text of as_wstring
///     wide(value)                     text of as_ustring and as_utf16
///     utf32(value)
///     write(value, stream)
template <class T>
struct holder_rules;

} // namespace detail

/// Defines an integer conversion that reads text with `function` of generic::convert.
#define QUOR_INTEGER_SLOT(result, name, function)                                                                      \
  template <class T>                                                                                                   \
  result variant_value_t<T>::name() const {                                                                            \
	return detail::holder_rules<T>::template integer<result>(m_value, [](auto const *units, uint32 length) {           \
return generic::convert::function(units, length, radix_t::detect, false);                                              \
	});                                                                                                                \
  }

QUOR_INTEGER_SLOT(int, as_int, str_to_int)
QUOR_INTEGER_SLOT(short, as_short, str_to_short)
QUOR_INTEGER_SLOT(int32, as_long, str_to_long)
QUOR_INTEGER_SLOT(signed char, as_int8, str_to_int8)
QUOR_INTEGER_SLOT(short, as_int16, str_to_int16)
QUOR_INTEGER_SLOT(int32, as_int32, str_to_int32)
QUOR_INTEGER_SLOT(int64, as_int64, str_to_int64)
QUOR_INTEGER_SLOT(unsigned char, as_uint8, str_to_uint8)
QUOR_INTEGER_SLOT(unsigned short, as_uint16, str_to_uint16)
QUOR_INTEGER_SLOT(uint32, as_uint32, str_to_uint32)
QUOR_INTEGER_SLOT(uint64, as_uint64, str_to_uint64)

#undef QUOR_INTEGER_SLOT

template <class T>
variant_value_t<T>::~variant_value_t() = default;

template <class T>
bool variant_value_t<T>::is_set() const {
	return true;
}

template <class T>
std::type_info const &variant_value_t<T>::type() const {
	return typeid(T);
}

template <class T>
variant_value_t<T> *variant_value_t<T>::clone() const {
	return generic::abilities::create_dynamic<variant_value_t>(m_value);
}

template <class T>
std::ostream &variant_value_t<T>::ostream(std::ostream &stream) const {
	detail::holder_rules<T>::write(m_value, stream);
	return stream;
}

template <class T>
bool variant_value_t<T>::as_bool() const {
	return detail::holder_rules<T>::boolean(m_value);
}

template <class T>
std::string variant_value_t<T>::as_string() const {
	return detail::holder_rules<T>::narrow(m_value);
}

template <class T>
wide_string variant_value_t<T>::as_wstring() const {
	return detail::holder_rules<T>::native(m_value);
}

template <class T>
wide_string variant_value_t<T>::as_ustring() const {
	return detail::holder_rules<T>::wide(m_value);
}

template <class T>
strings::ustring8 variant_value_t<T>::as_utf8() const {
	return detail::holder_rules<T>::narrow(m_value);
}

template <class T>
strings::ustring16 variant_value_t<T>::as_utf16() const {
	return detail::holder_rules<T>::wide(m_value);
}

template <class T>
strings::ustring32 variant_value_t<T>::as_utf32() const {
	return detail::holder_rules<T>::utf32(m_value);
}

template <class T>
float variant_value_t<T>::as_float() const {
	return detail::holder_rules<T>::template floating<float>(m_value);
}

template <class T>
double variant_value_t<T>::as_double() const {
	return detail::holder_rules<T>::template floating<double>(m_value);
}

template <class T>
long double variant_value_t<T>::as_long_double() const {
	return detail::holder_rules<T>::template floating<long double>(m_value);
}

} // namespace QUOR_2_9::types

#endif
