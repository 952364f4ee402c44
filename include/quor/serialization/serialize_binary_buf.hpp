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
#include <quor/serialization/serialize_buffer.hpp>
#include <quor/types/widths.hpp>

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
class QUOR_API serialize_binary_buf : public serialize_buffer {
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

	/// Takes `length` bytes; see `serialize_buffer`. The read position stays where it was: call
	/// `reset_read()` to read the new content. @since 2.9
	serialize_buffer &assign(char const *data, int length) override;
	/// Takes the bytes; the read position stays. @since 2.9
	serialize_buffer &assign(std::string const &bytes) override;
	/// Takes the bytes of a buffer of any class; the read position stays. @since 2.9
	serialize_buffer &assign(serialize_buffer const &other) override;
	/// The bytes. @since 2.9
	std::string const &as_str() const override;

	/// Appends 1 byte. @since 2.9
	void append_int8(signed char const &value) override;
	/// Appends 2 bytes. @since 2.9
	void append_int16(short const &value) override;
	/// Appends 4 bytes. @since 2.9
	void append_int32(types::int32 const &value) override;
	/// Appends 8 bytes. @since 2.9
	void append_int64(types::int64 const &value) override;
	/// Appends 1 byte. @since 2.9
	void append_uint8(unsigned char const &value) override;
	/// Appends 2 bytes. @since 2.9
	void append_uint16(unsigned short const &value) override;
	/// Appends 4 bytes. @since 2.9
	void append_uint32(types::uint32 const &value) override;
	/// Appends 8 bytes. @since 2.9
	void append_uint64(types::uint64 const &value) override;
	/// Appends 4 bytes; the precision is ignored. @since 2.9
	void append_float(float const &value, types::uint32 const &precision) override;
	/// Appends 8 bytes; the precision is ignored. @since 2.9
	void append_double(double const &value, types::uint32 const &precision) override;
	/// Appends the count of the bytes in 4 bytes, and the bytes. @since 2.9
	void append_string(std::string const &value) override;
	/// Appends the content of a buffer of any class as a string. @since 2.9
	void append_buffer(serialize_buffer const &value) override;

	/// Reads 1 byte; 0 at the end. @since 2.9
	signed char read_int8() const override;
	/// Reads 2 bytes; 0 at the end. @since 2.9
	short read_int16() const override;
	/// Reads 4 bytes; 0 at the end. @since 2.9
	types::int32 read_int32() const override;
	/// Reads 8 bytes; 0 at the end. @since 2.9
	types::int64 read_int64() const override;
	/// Reads 1 byte; 0 at the end. @since 2.9
	unsigned char read_uint8() const override;
	/// Reads 2 bytes; 0 at the end. @since 2.9
	unsigned short read_uint16() const override;
	/// Reads 4 bytes; 0 at the end. @since 2.9
	types::uint32 read_uint32() const override;
	/// Reads 8 bytes; 0 at the end. @since 2.9
	types::uint64 read_uint64() const override;
	/// Reads 4 bytes; 0.0 at the end. @since 2.9
	float read_float() const override;
	/// Reads 8 bytes; 0.0 at the end. @since 2.9
	double read_double() const override;
	/// Reads a count and as many bytes; empty at the end. @since 2.9
	std::string read_string() const override;
	/// Reads a string into a new binary buffer, which the caller owns; null at the end and for
	/// an empty buffer that is the last value. @since 2.9
	serialize_buffer *read_buffer() const override;

	/// Whether the read position is at or behind the end. @since 2.9
	bool at_end() const override;
	/// Goes back to the first value. @since 2.9
	void reset_read() const override;

	/// A new empty binary buffer; the caller owns it. @since 2.9
	serialize_binary_buf *create() const override;
	/// A copy with the read position and count of this buffer; the caller owns it. @since 2.9
	serialize_binary_buf *clone() const override;

private:
	std::string buffer;
	mutable types::uint32 read_pos = 0;
};

} // namespace QUOR_2_9::serialization

#endif
