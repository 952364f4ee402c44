#ifndef QUOR_SERIALIZATION_FORMATTED_BUFFER_HPP
#define QUOR_SERIALIZATION_FORMATTED_BUFFER_HPP

/// @file
/// What the buffers of values in a fixed order share: their bytes, their read position, and
/// the operations that are the same in each format. Take one of the classes that it is for,
/// `serialize_binary_buf` (`quor/serialization/serialize_binary_buf.hpp`) or
/// `serialize_text_buf` (`quor/serialization/serialize_text_buf.hpp`).
///
///     template class quor::serialization::detail::formatted_buffer<my_format>;
///
/// @since 2.9

#include <cstddef>
#include <string>

#include <quor/export.hpp>
#include <quor/serialization/serialize_buffer.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::serialization::detail {

/// The formats, which are the library's own.
struct QUOR_API_TYPE binary_format;
struct QUOR_API_TYPE text_format;

/// The content of a buffer and how far it is read. What is appended goes behind the first
/// `size` bytes of a larger string, which is cut to its content when it is lent: from then on
/// the string is the content after each change, since somebody may look at it at any time.
/// @since 2.9
struct QUOR_API_TYPE stored_bytes {
	/// Nothing. @since 2.9
	stored_bytes() = default;
	/// A text, to be read from the start. @since 2.9
	explicit stored_bytes(std::string const &text) : bytes(text), size(text.size()) {}
	/// The content and the position of `other`. @since 2.9
	stored_bytes(stored_bytes const &other)
	    : bytes(other.bytes, 0, other.size), size(other.size), position(other.position) {}
	/// Destroys the content. @since 2.9
	~stored_bytes() = default;
	/// Takes the content and the position of `other`, which may be this one. @since 2.9
	stored_bytes &operator=(stored_bytes const &other) {
		bytes.assign(other.bytes, 0, other.size);
		size = other.size;
		position = other.position;
		return *this;
	}

	/// The content, and room behind it. @since 2.9
	std::string bytes;
	/// How many of the bytes are the content. @since 2.9
	std::size_t size = 0;
	/// The index of the next byte to read, or 2^32 - 1 behind all. @since 2.9
	types::uint32 position = 0;
	/// Whether there is no room, as somebody may have a reference to the string. @since 2.9
	bool lent = false;
};

/// A `serialize_buffer` but for what a format can't tell: the class of nested buffers and of
/// copies.
/// @since 2.9
template <class Format>
class QUOR_API formatted_buffer : public serialize_buffer {
public:
	/// Destroys the content. @since 2.9
	~formatted_buffer() override;

	/// Takes `length` bytes; see `serialize_buffer`. The read position stays where it was: call
	/// `reset_read()` to read the new content. @since 2.9
	serialize_buffer &assign(char const *data, int length) override;
	/// Takes the bytes; the read position stays. @since 2.9
	serialize_buffer &assign(std::string const &bytes) override;
	/// Takes the bytes of a buffer of any class; the read position stays. @since 2.9
	serialize_buffer &assign(serialize_buffer const &other) override;
	/// The content in its format. Before the first call appending is faster, as nobody can look.
	/// @since 2.9
	std::string const &as_str() const override;

	/// Appends 1 byte, or digits. @since 2.9
	void append_int8(signed char const &value) override;
	/// Appends 2 bytes, or digits. @since 2.9
	void append_int16(short const &value) override;
	/// Appends 4 bytes, or digits. @since 2.9
	void append_int32(types::int32 const &value) override;
	/// Appends 8 bytes, or digits. @since 2.9
	void append_int64(types::int64 const &value) override;
	/// Appends 1 byte, or digits. @since 2.9
	void append_uint8(unsigned char const &value) override;
	/// Appends 2 bytes, or digits. @since 2.9
	void append_uint16(unsigned short const &value) override;
	/// Appends 4 bytes, or digits. @since 2.9
	void append_uint32(types::uint32 const &value) override;
	/// Appends 8 bytes, or digits. @since 2.9
	void append_uint64(types::uint64 const &value) override;
	/// Appends 4 bytes, or `precision` significant digits of the value as a double. @since 2.9
	void append_float(float const &value, types::uint32 const &precision) override;
	/// Appends 8 bytes, or `precision` significant digits. @since 2.9
	void append_double(double const &value, types::uint32 const &precision) override;
	/// Appends the count of the bytes, and the bytes. @since 2.9
	void append_string(std::string const &value) override;
	/// Appends the content of a buffer of any class as a string. @since 2.9
	void append_buffer(serialize_buffer const &value) override;

	/// Reads 1 byte, or a field; 0 at the end. @since 2.9
	signed char read_int8() const override;
	/// Reads 2 bytes, or a field; 0 at the end. @since 2.9
	short read_int16() const override;
	/// Reads 4 bytes, or a field; 0 at the end. @since 2.9
	types::int32 read_int32() const override;
	/// Reads 8 bytes, or a field; 0 at the end. @since 2.9
	types::int64 read_int64() const override;
	/// Reads 1 byte, or a field; 0 at the end. @since 2.9
	unsigned char read_uint8() const override;
	/// Reads 2 bytes, or a field; 0 at the end. @since 2.9
	unsigned short read_uint16() const override;
	/// Reads 4 bytes, or a field; 0 at the end. @since 2.9
	types::uint32 read_uint32() const override;
	/// Reads 8 bytes, or a field; 0 at the end. @since 2.9
	types::uint64 read_uint64() const override;
	/// Reads 4 bytes, or a field; 0.0 at the end. @since 2.9
	float read_float() const override;
	/// Reads 8 bytes, or a field; 0.0 at the end. @since 2.9
	double read_double() const override;
	/// Reads a count and as many bytes; empty at the end. @since 2.9
	std::string read_string() const override;

	/// Whether nothing is left to read. @since 2.9
	bool at_end() const override;
	/// Goes back to the first value. @since 2.9
	void reset_read() const override;

protected:
	/// An empty buffer. @since 2.9
	formatted_buffer() = default;
	/// Copies content and read position, and the count and flag of `other`. @since 2.9
	formatted_buffer(formatted_buffer const &other) = default;
	/// Takes the bytes of a buffer of any class, to be read from the start. @since 2.9
	explicit formatted_buffer(serialize_buffer const &other);
	/// Takes the bytes, to be read from the start. @since 2.9
	explicit formatted_buffer(std::string const &bytes);
	/// Copies content and read position; count and flag stay this object's own. @since 2.9
	formatted_buffer &operator=(formatted_buffer const &other);

	/// The content; reading moves its position, and lending it changes the string. @since 2.9
	mutable stored_bytes stored;
};

extern template class formatted_buffer<binary_format>;
extern template class formatted_buffer<text_format>;

} // namespace QUOR_2_9::serialization::detail

#endif
