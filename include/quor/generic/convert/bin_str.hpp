#ifndef QUOR_GENERIC_CONVERT_BIN_STR_HPP
#define QUOR_GENERIC_CONVERT_BIN_STR_HPP

/// @file
/// Numbers as the bytes of their memory image, held in a `std::string`, and back. The
/// byte order is `big_endian`, `little_endian` or, without a namespace, little-endian too,
/// on every target.
///
///     namespace convert = quor::generic::convert;
///     std::string const bytes = convert::big_endian::uint32_to_bin_str(0x01020304);   // 01 02 03 04
///     convert::big_endian::bin_str_to_uint32(bytes);                                  // 0x01020304
///
/// A binary string is no text: zero bytes are data, its size is the number's width.
/// The decoders of a `char const *` read the whole width from the pointer, aligned or not,
/// and test nothing. Those of a `std::string` give 0 when it is shorter than the width
/// and ignore what lies beyond it. Two functions without a namespace differ:
///
/// - `bin_str_to_float` wants 8 bytes, of which it takes the first 4: a string made by
///   `float_to_bin_str` gives 0. Its `char const *` form decodes all 4 bytes as usual.
/// - `bin_str_to_double` wants 4 bytes. With 4 to 6 it calls `debug::invalid_parameter`
///   and, if that returns, takes zero bytes for the missing ones; with 7 the eighth is zero.
///
/// Untrusted input: the `std::string` forms are safe. Thread-safety: pure functions.
/// Cost: constant; an encoder makes its result, a decoder allocates nothing.
///
/// @since 2.9

#include <string>

#include <quor/export.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::generic::convert {

/// The 2 bytes of a number, least significant byte first. @since 2.9
QUOR_API std::string int16_to_bin_str(short const &value);
/// The number in the 2 bytes at `bytes`. @since 2.9
QUOR_API short bin_str_to_int16(char const *bytes) noexcept;
/// The number in the first 2 bytes, 0 when there are fewer. @since 2.9
QUOR_API short bin_str_to_int16(std::string const &bytes) noexcept;

/// The 4 bytes of a number, least significant byte first. @since 2.9
QUOR_API std::string int32_to_bin_str(types::int32 const &value);
/// The number in the 4 bytes at `bytes`. @since 2.9
QUOR_API types::int32 bin_str_to_int32(char const *bytes) noexcept;
/// The number in the first 4 bytes, 0 when there are fewer. @since 2.9
QUOR_API types::int32 bin_str_to_int32(std::string const &bytes) noexcept;

/// The 8 bytes of a number, least significant byte first. @since 2.9
QUOR_API std::string int64_to_bin_str(types::int64 const &value);
/// The number in the 8 bytes at `bytes`. @since 2.9
QUOR_API types::int64 bin_str_to_int64(char const *bytes) noexcept;
/// The number in the first 8 bytes, 0 when there are fewer. @since 2.9
QUOR_API types::int64 bin_str_to_int64(std::string const &bytes) noexcept;

/// The 2 bytes of a number, least significant byte first. @since 2.9
QUOR_API std::string uint16_to_bin_str(unsigned short const &value);
/// The number in the 2 bytes at `bytes`. @since 2.9
QUOR_API unsigned short bin_str_to_uint16(char const *bytes) noexcept;
/// The number in the first 2 bytes, 0 when there are fewer. @since 2.9
QUOR_API unsigned short bin_str_to_uint16(std::string const &bytes) noexcept;

/// The 4 bytes of a number, least significant byte first. @since 2.9
QUOR_API std::string uint32_to_bin_str(types::uint32 const &value);
/// The number in the 4 bytes at `bytes`. @since 2.9
QUOR_API types::uint32 bin_str_to_uint32(char const *bytes) noexcept;
/// The number in the first 4 bytes, 0 when there are fewer. @since 2.9
QUOR_API types::uint32 bin_str_to_uint32(std::string const &bytes) noexcept;

/// The 8 bytes of a number, least significant byte first. @since 2.9
QUOR_API std::string uint64_to_bin_str(types::uint64 const &value);
/// The number in the 8 bytes at `bytes`. @since 2.9
QUOR_API types::uint64 bin_str_to_uint64(char const *bytes) noexcept;
/// The number in the first 8 bytes, 0 when there are fewer. @since 2.9
QUOR_API types::uint64 bin_str_to_uint64(std::string const &bytes) noexcept;

/// The 4 bytes of a number, least significant byte first. @since 2.9
QUOR_API std::string float_to_bin_str(float const &value);
/// The number in the 4 bytes at `bytes`. @since 2.9
QUOR_API float bin_str_to_float(char const *bytes) noexcept;
/// The number in the first 4 bytes, 0 when there are fewer than 8. @since 2.9
QUOR_API float bin_str_to_float(std::string const &bytes) noexcept;

/// The 8 bytes of a number, least significant byte first. @since 2.9
QUOR_API std::string double_to_bin_str(double const &value);
/// The number in the 8 bytes at `bytes`. @since 2.9
QUOR_API double bin_str_to_double(char const *bytes) noexcept;
/// The number in the first 8 bytes, see above for 4 to 7, 0 when there are fewer than 4. @since 2.9
QUOR_API double bin_str_to_double(std::string const &bytes);

/// Numbers as bytes, the most significant one first.
namespace big_endian {

/// The 2 bytes of a number, most significant byte first. @since 2.9
QUOR_API std::string int16_to_bin_str(short const &value);
/// The number in the 2 bytes at `bytes`. @since 2.9
QUOR_API short bin_str_to_int16(char const *bytes) noexcept;
/// The number in the first 2 bytes, 0 when there are fewer. @since 2.9
QUOR_API short bin_str_to_int16(std::string const &bytes) noexcept;

/// The 4 bytes of a number, most significant byte first. @since 2.9
QUOR_API std::string int32_to_bin_str(types::int32 const &value);
/// The number in the 4 bytes at `bytes`. @since 2.9
QUOR_API types::int32 bin_str_to_int32(char const *bytes) noexcept;
/// The number in the first 4 bytes, 0 when there are fewer. @since 2.9
QUOR_API types::int32 bin_str_to_int32(std::string const &bytes) noexcept;

/// The 8 bytes of a number, most significant byte first. @since 2.9
QUOR_API std::string int64_to_bin_str(types::int64 const &value);
/// The number in the 8 bytes at `bytes`. @since 2.9
QUOR_API types::int64 bin_str_to_int64(char const *bytes) noexcept;
/// The number in the first 8 bytes, 0 when there are fewer. @since 2.9
QUOR_API types::int64 bin_str_to_int64(std::string const &bytes) noexcept;

/// The 2 bytes of a number, most significant byte first. @since 2.9
QUOR_API std::string uint16_to_bin_str(unsigned short const &value);
/// The number in the 2 bytes at `bytes`. @since 2.9
QUOR_API unsigned short bin_str_to_uint16(char const *bytes) noexcept;
/// The number in the first 2 bytes, 0 when there are fewer. @since 2.9
QUOR_API unsigned short bin_str_to_uint16(std::string const &bytes) noexcept;

/// The 4 bytes of a number, most significant byte first. @since 2.9
QUOR_API std::string uint32_to_bin_str(types::uint32 const &value);
/// The number in the 4 bytes at `bytes`. @since 2.9
QUOR_API types::uint32 bin_str_to_uint32(char const *bytes) noexcept;
/// The number in the first 4 bytes, 0 when there are fewer. @since 2.9
QUOR_API types::uint32 bin_str_to_uint32(std::string const &bytes) noexcept;

/// The 8 bytes of a number, most significant byte first. @since 2.9
QUOR_API std::string uint64_to_bin_str(types::uint64 const &value);
/// The number in the 8 bytes at `bytes`. @since 2.9
QUOR_API types::uint64 bin_str_to_uint64(char const *bytes) noexcept;
/// The number in the first 8 bytes, 0 when there are fewer. @since 2.9
QUOR_API types::uint64 bin_str_to_uint64(std::string const &bytes) noexcept;

/// The 4 bytes of a number, most significant byte first. @since 2.9
QUOR_API std::string float_to_bin_str(float const &value);
/// The number in the 4 bytes at `bytes`. @since 2.9
QUOR_API float bin_str_to_float(char const *bytes) noexcept;
/// The number in the first 4 bytes, 0 when there are fewer. @since 2.9
QUOR_API float bin_str_to_float(std::string const &bytes) noexcept;

/// The 8 bytes of a number, most significant byte first. @since 2.9
QUOR_API std::string double_to_bin_str(double const &value);
/// The number in the 8 bytes at `bytes`. @since 2.9
QUOR_API double bin_str_to_double(char const *bytes) noexcept;
/// The number in the first 8 bytes, 0 when there are fewer. @since 2.9
QUOR_API double bin_str_to_double(std::string const &bytes) noexcept;

} // namespace big_endian

/// Numbers as bytes, the least significant one first.
namespace little_endian {

/// The 2 bytes of a number, least significant byte first. @since 2.9
QUOR_API std::string int16_to_bin_str(short const &value);
/// The number in the 2 bytes at `bytes`. @since 2.9
QUOR_API short bin_str_to_int16(char const *bytes) noexcept;
/// The number in the first 2 bytes, 0 when there are fewer. @since 2.9
QUOR_API short bin_str_to_int16(std::string const &bytes) noexcept;

/// The 4 bytes of a number, least significant byte first. @since 2.9
QUOR_API std::string int32_to_bin_str(types::int32 const &value);
/// The number in the 4 bytes at `bytes`. @since 2.9
QUOR_API types::int32 bin_str_to_int32(char const *bytes) noexcept;
/// The number in the first 4 bytes, 0 when there are fewer. @since 2.9
QUOR_API types::int32 bin_str_to_int32(std::string const &bytes) noexcept;

/// The 8 bytes of a number, least significant byte first. @since 2.9
QUOR_API std::string int64_to_bin_str(types::int64 const &value);
/// The number in the 8 bytes at `bytes`. @since 2.9
QUOR_API types::int64 bin_str_to_int64(char const *bytes) noexcept;
/// The number in the first 8 bytes, 0 when there are fewer. @since 2.9
QUOR_API types::int64 bin_str_to_int64(std::string const &bytes) noexcept;

/// The 2 bytes of a number, least significant byte first. @since 2.9
QUOR_API std::string uint16_to_bin_str(unsigned short const &value);
/// The number in the 2 bytes at `bytes`. @since 2.9
QUOR_API unsigned short bin_str_to_uint16(char const *bytes) noexcept;
/// The number in the first 2 bytes, 0 when there are fewer. @since 2.9
QUOR_API unsigned short bin_str_to_uint16(std::string const &bytes) noexcept;

/// The 4 bytes of a number, least significant byte first. @since 2.9
QUOR_API std::string uint32_to_bin_str(types::uint32 const &value);
/// The number in the 4 bytes at `bytes`. @since 2.9
QUOR_API types::uint32 bin_str_to_uint32(char const *bytes) noexcept;
/// The number in the first 4 bytes, 0 when there are fewer. @since 2.9
QUOR_API types::uint32 bin_str_to_uint32(std::string const &bytes) noexcept;

/// The 8 bytes of a number, least significant byte first. @since 2.9
QUOR_API std::string uint64_to_bin_str(types::uint64 const &value);
/// The number in the 8 bytes at `bytes`. @since 2.9
QUOR_API types::uint64 bin_str_to_uint64(char const *bytes) noexcept;
/// The number in the first 8 bytes, 0 when there are fewer. @since 2.9
QUOR_API types::uint64 bin_str_to_uint64(std::string const &bytes) noexcept;

/// The 4 bytes of a number, least significant byte first. @since 2.9
QUOR_API std::string float_to_bin_str(float const &value);
/// The number in the 4 bytes at `bytes`. @since 2.9
QUOR_API float bin_str_to_float(char const *bytes) noexcept;
/// The number in the first 4 bytes, 0 when there are fewer. @since 2.9
QUOR_API float bin_str_to_float(std::string const &bytes) noexcept;

/// The 8 bytes of a number, least significant byte first. @since 2.9
QUOR_API std::string double_to_bin_str(double const &value);
/// The number in the 8 bytes at `bytes`. @since 2.9
QUOR_API double bin_str_to_double(char const *bytes) noexcept;
/// The number in the first 8 bytes, 0 when there are fewer. @since 2.9
QUOR_API double bin_str_to_double(std::string const &bytes) noexcept;

} // namespace little_endian

} // namespace QUOR_2_9::generic::convert

#endif
