#ifndef QUOR_SERIALIZATION_SERIALIZE_BUFFER_HPP
#define QUOR_SERIALIZATION_SERIALIZE_BUFFER_HPP

/// @file
/// The interface of buffers that turn values into a flat string and back, in their order
/// and without tags. `serialize_binary_buf` writes compact bytes, `serialize_text_buf`
/// decimal text; for records whose fields have names take `labeled_serialize_buffer`
/// (`quor/serialization/labeled_serialize_buffer.hpp`).
///
///     void store(point const &p, quor::serialization::serialize_buffer &out) {
///         out.append_int32(p.x);
///         out.append_double(p.height, 17);
///         out.append_string(p.name);
///     }
///     point load(quor::serialization::serialize_buffer const &in) {
///         point p;
///         p.x = in.read_int32();             // the same types in the same order
///         p.height = in.read_double();
///         p.name = in.read_string();
///         return p;
///     }
///
/// @since 2.9

#include <string>

#include <quor/export.hpp>
#include <quor/generic/abilities/clone_ability.hpp>
#include <quor/generic/abilities/create_ability.hpp>
#include <quor/generic/abilities/reference_count_pointer_ability.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::serialization {

/// A string of values that are appended in order and read back in the same order.
///
/// Nothing in the data tells the types: a reader asks for those that were appended. Appending
/// leaves the read position alone, and reading leaves the contents alone. No read reports
/// that data is missing: it gives 0, an empty string, or an empty or null buffer, as the
/// classes tell.
///
/// Nested buffers are stored as a framed copy of their content, whatever their class, and are
/// read back as a buffer of the reading class. So a binary buffer appended to a text buffer
/// comes back as a text buffer of binary bytes; assign its `as_str()` to a binary buffer.
///
/// Appending, assigning and copying throw std::bad_alloc, or std::length_error where no string is
/// that long, and then leave the buffer as it was.
///
/// The order of the virtual functions is part of the binary interface. Untrusted input: safe,
/// no read looks behind the end or throws but for want of memory. Thread-safety: one thread
/// at a time, also for reading, which moves the read position of a `const` buffer.
///
/// A copy and a clone carry the reference count of their source, a copy its created-dynamic
/// flag too: take a clone that is to be deleted by its last pointer while its source is not
/// held by one, and hand no copy that stands on the stack to a pointer if its source was made
/// by `create` or `clone`. Assignment leaves the object's own count and flag.
/// @since 2.9
class QUOR_API serialize_buffer : public generic::abilities::create_ability,
                                  public generic::abilities::clone_ability,
                                  public generic::abilities::reference_count_pointer_ability<serialize_buffer> {
public:
	/// A buffer that nobody holds. @since 2.9
	serialize_buffer() = default;
	/// Copies the count and the flag. @since 2.9
	serialize_buffer(serialize_buffer const &) = default;
	/// Destroys the derived object. @since 2.9
	~serialize_buffer() override;

	/// Takes `length` bytes as the whole content; the read position stays. Null or a negative
	/// length is the empty content. The bytes may be part of this buffer. @since 2.9
	virtual serialize_buffer &assign(char const *data, int length) = 0;
	/// Takes the bytes as the whole content; the read position stays. @since 2.9
	virtual serialize_buffer &assign(std::string const &bytes) = 0;
	/// Takes the bytes of another buffer as they stand, whatever its class; the read position
	/// stays. A buffer assigned to itself does nothing. @since 2.9
	virtual serialize_buffer &assign(serialize_buffer const &other) = 0;
	/// The whole content, which `assign` of a buffer of the same class takes back. The
	/// reference is good while the buffer lives and follows its changes. @since 2.9
	virtual std::string const &as_str() const = 0;

	/// Appends a signed number of 8 bits. @since 2.9
	virtual void append_int8(signed char const &value) = 0;
	/// Appends a signed number of 16 bits. @since 2.9
	virtual void append_int16(short const &value) = 0;
	/// Appends a signed number of 32 bits. @since 2.9
	virtual void append_int32(types::int32 const &value) = 0;
	/// Appends a signed number of 64 bits. @since 2.9
	virtual void append_int64(types::int64 const &value) = 0;
	/// Appends an unsigned number of 8 bits. @since 2.9
	virtual void append_uint8(unsigned char const &value) = 0;
	/// Appends an unsigned number of 16 bits. @since 2.9
	virtual void append_uint16(unsigned short const &value) = 0;
	/// Appends an unsigned number of 32 bits. @since 2.9
	virtual void append_uint32(types::uint32 const &value) = 0;
	/// Appends an unsigned number of 64 bits. @since 2.9
	virtual void append_uint64(types::uint64 const &value) = 0;
	/// Appends a single; text keeps `precision` significant digits of it, 9 keep all.
	/// @since 2.9
	virtual void append_float(float const &value, types::uint32 const &precision) = 0;
	/// Appends a double; text keeps `precision` significant digits of it, 17 keep all.
	/// @since 2.9
	virtual void append_double(double const &value, types::uint32 const &precision) = 0;
	/// Appends a string of any bytes; it may be the content of this buffer. @since 2.9
	virtual void append_string(std::string const &value) = 0;
	/// Appends the content of a buffer, to be read back by `read_buffer`. The buffer itself is
	/// appended as it was before the call. @since 2.9
	virtual void append_buffer(serialize_buffer const &value) = 0;

	/// Reads a signed number of 8 bits. @since 2.9
	virtual signed char read_int8() const = 0;
	/// Reads a signed number of 16 bits. @since 2.9
	virtual short read_int16() const = 0;
	/// Reads a signed number of 32 bits. @since 2.9
	virtual types::int32 read_int32() const = 0;
	/// Reads a signed number of 64 bits. @since 2.9
	virtual types::int64 read_int64() const = 0;
	/// Reads an unsigned number of 8 bits. @since 2.9
	virtual unsigned char read_uint8() const = 0;
	/// Reads an unsigned number of 16 bits. @since 2.9
	virtual unsigned short read_uint16() const = 0;
	/// Reads an unsigned number of 32 bits. @since 2.9
	virtual types::uint32 read_uint32() const = 0;
	/// Reads an unsigned number of 64 bits. @since 2.9
	virtual types::uint64 read_uint64() const = 0;
	/// Reads a single. @since 2.9
	virtual float read_float() const = 0;
	/// Reads a double. @since 2.9
	virtual double read_double() const = 0;
	/// Reads a string. @since 2.9
	virtual std::string read_string() const = 0;
	/// Reads a nested buffer into a new one of this class; the caller owns it. What stands for
	/// a buffer that isn't there is told by the classes. @since 2.9
	virtual serialize_buffer *read_buffer() const = 0;

	/// Whether nothing is left to read. @since 2.9
	virtual bool at_end() const = 0;
	/// Goes back to the first value. @since 2.9
	virtual void reset_read() const = 0;

	/// A new empty buffer of the same class, made by `create_dynamic`; the caller owns it.
	/// @since 2.9
	virtual serialize_buffer *create() const = 0;
	/// A copy of contents, read position and count, made by `create_dynamic`; the caller owns
	/// it. @since 2.9
	virtual serialize_buffer *clone() const = 0;

	/// The same as `assign(other)`. @since 2.9
	serialize_buffer &operator=(serialize_buffer const &other);
	/// The same as `assign(bytes)`. @since 2.9
	serialize_buffer &operator=(std::string const &bytes);
};

} // namespace QUOR_2_9::serialization

#endif
