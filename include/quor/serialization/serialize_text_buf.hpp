#ifndef QUOR_SERIALIZATION_SERIALIZE_TEXT_BUF_HPP
#define QUOR_SERIALIZATION_SERIALIZE_TEXT_BUF_HPP

/// @file
/// Values as decimal text, the same on every target. For compact bytes take
/// `serialize_binary_buf` (`quor/serialization/serialize_binary_buf.hpp`).
///
///     quor::serialization::serialize_text_buf buffer;
///     buffer.append_int32(-5);
///     buffer.append_string("ab");
///     buffer.append_double(1.5, 6);       // "-5|2|ab|1.5|" with bytes 0x01 for the bars
///     buffer.read_int32();                // -5
///     buffer.read_string();               // "ab"
///     buffer.read_double();               // 1.5
///
/// @since 2.9

#include <string>

#include <quor/export.hpp>
#include <quor/serialization/formatted_buffer.hpp>
#include <quor/serialization/serialize_buffer.hpp>

namespace QUOR_2_9::serialization {

/// A `serialize_buffer` of fields that end with the byte 0x01, the separator.
///
/// Integers are decimal, as `generic::convert::ltoa` and its kind write them; the smallest 64-bit
/// number is "-O". Floating numbers have the given count of significant digits, correctly
/// rounded, 0 counting as 1 and more than 340 as 340: in fixed notation when the decimal
/// exponent is -1 to the count less 1, otherwise with an exponent of at least three digits;
/// trailing zeros go, the point stays ("1.5", "100.", "0.", "1.e+010", "2.5e-002"). Numbers that
/// are not finite are "inf", "-inf" and "nan". Strings and nested buffers are the count of their
/// bytes as a field, the bytes, and a separator; the bytes may be any. No locale is asked.
///
/// Reading. A number takes the bytes up to the next separator, or up to the end where there is
/// none; the latter leaves nothing to read, whatever is appended, until `reset_read()`.
/// Integers are read as `generic::convert::str_to_int32` and its kind do with a radix found
/// from the prefix ("0x10" is 16, "010" is 8) and without reports: what is no number is 0,
/// what is too large is the limit of the type. Two fields differ, so that what was written is
/// read: `read_int8` and `read_int16` give any negative number in range and the smallest value
/// below it, and `read_int64` of "-O" is the smallest value. Floating numbers are decimal, see
/// `generic::convert`; beyond the range of a single, `read_float` gives an infinity.
///
/// Reading damaged data: at the end a number is 0, a string empty and a buffer empty, never
/// null. A string whose count is too large is what there is. A negative count gives all that is
/// left, and moves the read position back by its amount, less 1: "-4|ab" gives "ab" for ever, so
/// don't read strings from untrusted text until `at_end()`, but as many as are expected.
/// A count without a separator gives an empty string and leaves nothing to read. Positions have
/// 32 bits: what lies behind the first 2^32 - 1 bytes is not read, a position that would be
/// beyond is behind the end for good.
/// Cost: linear in the field; a number allocates nothing but the buffer's own growth.
/// @since 2.9
class QUOR_API serialize_text_buf : public detail::formatted_buffer<detail::text_format> {
public:
	using serialize_buffer::operator=;

	/// An empty buffer. @since 2.9
	serialize_text_buf() = default;
	/// Copies content and read position, and the count and flag of `other`. @since 2.9
	serialize_text_buf(serialize_text_buf const &other) = default;
	/// Takes the bytes of a buffer of any class, to be read from the start. @since 2.9
	serialize_text_buf(serialize_buffer const &other);
	/// Takes the bytes, to be read from the start. @since 2.9
	serialize_text_buf(std::string const &bytes);
	/// Destroys the content. @since 2.9
	~serialize_text_buf() override;
	/// Copies content and read position; count and flag stay this object's own. @since 2.9
	serialize_text_buf &operator=(serialize_text_buf const &other);

	/// Reads a string into a new text buffer, which the caller owns; empty at the end.
	/// @since 2.9
	serialize_buffer *read_buffer() const override;

	/// A new empty text buffer; the caller owns it. @since 2.9
	serialize_text_buf *create() const override;
	/// A copy with the read position and count of this buffer; the caller owns it. @since 2.9
	serialize_text_buf *clone() const override;
};

} // namespace QUOR_2_9::serialization

#endif
