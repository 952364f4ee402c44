#ifndef QUOR_PLATFORM_CODE_PAGE_HPP
#define QUOR_PLATFORM_CODE_PAGE_HPP

#include <quor/types/widths.hpp>

namespace QUOR_2_9::platform {

/// Converts text in the encoding that has the system's number `page` to UTF-16. 65001 is
/// UTF-8, 0 and 1 are the process's own encodings; the others are the pages of
/// `strings::code_page`.
///
/// A `length` of -1 stands for the text up to and including its first zero. With a null
/// `out`, or an `out_size` of 0, the result is how many units are needed and nothing is
/// written; otherwise it is how many were written. Where `out` is too small its room is
/// filled with what fits, no part of a character, and the result is 0. The result is 0,
/// too, for an empty text, an unknown page, and a text that needs more than 2147483647
/// units. No zero is added that isn't in the text.
///
/// Malformed bytes: U+FFFD for each part that no well-formed text begins with, or that
/// ends too early, as long as it can be (on Windows whatever the system gives).
/// Thread-safety: pure functions, except that the pages 0 and 1 look at the process's
/// locale.
types::int32 multi_byte_to_wide(types::uint32 page, char const *text, types::int32 length, types::wide_char *out,
                                types::int32 out_size);

/// Converts UTF-16 to text in the encoding `page`; lengths and results as above.
///
/// What the page doesn't have becomes one `?` a character, a pair being one character;
/// half a pair alone counts as U+FFFD (on Windows whatever the system gives).
types::int32 wide_to_multi_byte(types::uint32 page, types::wide_char const *text, types::int32 length, char *out,
                                types::int32 out_size);

} // namespace QUOR_2_9::platform

#endif
