#ifndef QUOR_STRINGS_GH2_STREAMS_HPP
#define QUOR_STRINGS_GH2_STREAMS_HPP

/// @file
/// The wide standard streams under the names `ucin`, `ucout` and `ucerr`, and the insertion
/// of UTF-16 text into a wide stream, which works whatever width the stream's unit has.
///
///     std::setlocale(LC_ALL, "");                             // the user's encoding
///     quor::strings::gh2::ucout << quor::strings::ustring16(QUOR_W("caf\u00E9")) << L'\n';
///
/// A `types::wide_string` is inserted as `ustring16(text)`. Lines read from `ucin` are
/// `std::wstring`; `quor/strings/native_wide.hpp` makes 16-bit text of them.
///
/// The streams are the platform's own with their rules:
///
/// - They convert by the C locale. It is "C", which has ASCII alone, until the program calls
///   `std::setlocale`, best before the first output, since that settles it.
/// - A character that the locale lacks is written by GNU's library as one that looks like
///   it or as `?`; elsewhere, as on Windows, it makes the stream go bad, and what comes after
///   is lost until `clear()`. Bytes that the locale can't read end the input.
/// - A program writes to standard output either wide or narrow, never both: the first
///   operation decides, and what those of the other kind write from then on may be lost or
///   come out as other bytes, while their stream stays good. The same goes for each of the
///   other two streams.
///
/// The three can be used from constructors and destructors of static objects of every module
/// that is linked to the library.
///
/// @since 2.9

#include <istream>
#include <ostream>

#include <quor/export.hpp>
#include <quor/strings/ustring.hpp>

namespace QUOR_2_9::strings {

/// Writes text to a wide stream as the stream's own insertion of a string does, with its
/// width and fill, which count units of the stream.
///
/// Where the stream's unit has 32 bits, a surrogate pair is one unit, and half a pair alone
/// is written as U+FFFD, so that malformed text doesn't make a stream go bad. Zeros are
/// written. Cost: linear, allocates a copy.
/// @since 2.9
QUOR_API std::wostream &operator<<(std::wostream &stream, ustring16 const &text);

namespace gh2 {

/// The standard wide input stream, `std::wcin`. @since 2.9
extern QUOR_API std::wistream &ucin;
/// The standard wide output stream, `std::wcout`. @since 2.9
extern QUOR_API std::wostream &ucout;
/// The standard wide error stream, `std::wcerr`. @since 2.9
extern QUOR_API std::wostream &ucerr;

} // namespace gh2

} // namespace QUOR_2_9::strings

#endif
