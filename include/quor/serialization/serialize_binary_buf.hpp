#ifndef QUOR_SERIALIZATION_SERIALIZE_BINARY_BUF_HPP
#define QUOR_SERIALIZATION_SERIALIZE_BINARY_BUF_HPP

/// @file
/// Values as compact bytes, the same on every target. For text that people read take
/// `serialize_text_buf` (`quor/serialization/serialize_text_buf.hpp`).
///
///     quor::serialization::serialize_binary_buf buffer;
///     buffer.append_uint16(0x0102);
///     buffer.append_string("ab");         // 02 01, 02 00 00 00, 61 62
///     buffer.read_uint16();               // 0x0102
///     buffer.read_string();               // "ab"
///     buffer.at_end();                    // true
///
/// @since 2.9

#include <string>

#include <quor/export.hpp>
#include <quor/serialization/formatted_buffer.hpp>
#include <quor/serialization/serialize_buffer.hpp>

namespace QUOR_2_9::serialization {

/// A `serialize_buffer` of numbers in their memory image, least significant byte first.
///
/// Integers of 8, 16, 32 and 64 bits have 1, 2, 4 and 8 bytes, a single 4 and a double 8.
/// Strings and nested buffers are the count of their bytes, as an unsigned number of 32 bits,
/// and the bytes. There is no header, no tag, no padding. Longer strings than 2^32 - 1 bytes
/// are not stored in a readable way, and what lies behind the first 2^32 - 1 bytes of a buffer
/// is not read.
///
/// Reading damaged data: at the end a number is 0, a string empty and a buffer null. Bytes
/// that are missing from the last number count as zero, a string whose count is too large is
/// what there is; in both cases the read position moves by the whole width or count, so that
/// `at_end()` holds from there on. An empty nested buffer at the very end is read as null.
/// Cost: an append or read is constant, or linear in the string.
/// @since 2.9
class QUOR_API serialize_binary_buf : public detail::formatted_buffer<detail::binary_format> {
public:
	using serialize_buffer::operator=;

	/// An empty buffer. @since 2.9
	serialize_binary_buf() = default;
	/// Copies content and read position, and the count and flag of `other`. @since 2.9
	serialize_binary_buf(serialize_binary_buf const &other) = default;
	/// Takes the bytes of a buffer of any class, to be read from the start. @since 2.9
	serialize_binary_buf(serialize_buffer const &other);
	/// Takes the bytes, to be read from the start. @since 2.9
	serialize_binary_buf(std::string const &bytes);
	/// Destroys the content. @since 2.9
	~serialize_binary_buf() override;
	/// Copies content and read position; count and flag stay this object's own. @since 2.9
	serialize_binary_buf &operator=(serialize_binary_buf const &other);

	/// Reads a string into a new binary buffer, which the caller owns; null at the end and for
	/// an empty buffer that is the last value. @since 2.9
	serialize_buffer *read_buffer() const override;

	/// A new empty binary buffer; the caller owns it. @since 2.9
	serialize_binary_buf *create() const override;
	/// A copy with the read position and count of this buffer; the caller owns it. @since 2.9
	serialize_binary_buf *clone() const override;
};

} // namespace QUOR_2_9::serialization

#endif
