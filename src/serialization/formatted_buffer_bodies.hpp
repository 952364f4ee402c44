#ifndef QUOR_SRC_SERIALIZATION_FORMATTED_BUFFER_BODIES_HPP
#define QUOR_SRC_SERIALIZATION_FORMATTED_BUFFER_BODIES_HPP

#include <cstddef>
#include <string>

#include <quor/serialization/formatted_buffer.hpp>
#include <quor/types/widths.hpp>

#include "serialization/contents.hpp"

/// The bodies of `formatted_buffer`. Each format is a class of static functions that is
/// complete in the source that instantiates it:
///
///     append_number(stored, value)                   all integers
///     append_floating(stored, value, precision)
///     append_text(stored, value)                     value may be the string of stored
///     read_number<Number>(stored)                    all numbers
///     read_text(buffer, stored)                      stored is that of the buffer
namespace QUOR_2_9::serialization::detail {

template <class Format>
formatted_buffer<Format>::formatted_buffer(serialize_buffer const &other) : stored(other.as_str()) {}

template <class Format>
formatted_buffer<Format>::formatted_buffer(std::string const &bytes) : stored(bytes) {}

template <class Format>
formatted_buffer<Format>::~formatted_buffer() = default;

template <class Format>
formatted_buffer<Format> &formatted_buffer<Format>::operator=(formatted_buffer const &other) {
	stored = other.stored;
	return *this;
}

template <class Format>
serialize_buffer &formatted_buffer<Format>::assign(char const *data, int length) {
	std::size_t const size = data != nullptr && length > 0 ? static_cast<std::size_t>(length) : 0;
	take_bytes(stored, {data, size});
	return *this;
}

template <class Format>
serialize_buffer &formatted_buffer<Format>::assign(std::string const &bytes) {
	take_bytes(stored, bytes);
	return *this;
}

template <class Format>
serialize_buffer &formatted_buffer<Format>::assign(serialize_buffer const &other) {
	if (this != &other) {
		take_bytes(stored, other.as_str());
	}
	return *this;
}

template <class Format>
std::string const &formatted_buffer<Format>::as_str() const {
	return stored.lent ? stored.bytes : lend(stored);
}

/// Defines the slots of an integer.
#define QUOR_INTEGER_SLOTS(name, type)                                                                                 \
  template <class Format>                                                                                              \
  void formatted_buffer<Format>::append_##name(type const &value) {                                                    \
	Format::append_number(stored, value);                                                                              \
  }                                                                                                                    \
  template <class Format>                                                                                              \
  type formatted_buffer<Format>::read_##name() const {                                                                 \
	return Format::template read_number<type>(stored);                                                                 \
  }

/// The same for a floating number.
#define QUOR_FLOATING_SLOTS(type)                                                                                      \
  template <class Format>                                                                                              \
  void formatted_buffer<Format>::append_##type(type const &value, types::uint32 const &precision) {                    \
	Format::append_floating(stored, value, precision);                                                                 \
  }                                                                                                                    \
  template <class Format>                                                                                              \
  type formatted_buffer<Format>::read_##type() const {                                                                 \
	return Format::template read_number<type>(stored);                                                                 \
  }

QUOR_INTEGER_SLOTS(int8, signed char)
QUOR_INTEGER_SLOTS(int16, short)
QUOR_INTEGER_SLOTS(int32, types::int32)
QUOR_INTEGER_SLOTS(int64, types::int64)
QUOR_INTEGER_SLOTS(uint8, unsigned char)
QUOR_INTEGER_SLOTS(uint16, unsigned short)
QUOR_INTEGER_SLOTS(uint32, types::uint32)
QUOR_INTEGER_SLOTS(uint64, types::uint64)
QUOR_FLOATING_SLOTS(float)
QUOR_FLOATING_SLOTS(double)

#undef QUOR_INTEGER_SLOTS
#undef QUOR_FLOATING_SLOTS

template <class Format>
void formatted_buffer<Format>::append_string(std::string const &value) {
	Format::append_text(stored, value);
}

template <class Format>
void formatted_buffer<Format>::append_buffer(serialize_buffer const &value) {
	Format::append_text(stored, value.as_str());
}

template <class Format>
std::string formatted_buffer<Format>::read_string() const {
	return Format::read_text(*this, stored);
}

template <class Format>
bool formatted_buffer<Format>::at_end() const {
	return is_at_end(contents_of(stored), stored.position);
}

template <class Format>
void formatted_buffer<Format>::reset_read() const {
	stored.position = 0;
}

} // namespace QUOR_2_9::serialization::detail

#endif
