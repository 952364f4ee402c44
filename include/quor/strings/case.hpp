#ifndef QUOR_STRINGS_CASE_HPP
#define QUOR_STRINGS_CASE_HPP

/// @file
/// Upper and lower case of the letters A to Z, in text of any unit width.
///
///     quor::strings::to_upper("caf\xC3\xA9");           // "CAF\xC3\xA9"
///     quor::strings::lower_case("ABCD", 1, 3);          // "AbcD"
///
/// Nothing is decoded and no locale is asked: each unit is taken by its numeric value,
/// and only the 26 letters change. All functions return a changed copy of the same
/// size. Thread-safety: pure functions. Cost: linear, allocates the result.
///
/// @since 2.9

#include <quor/export.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::strings {

/// The text with the letters at unit offsets from `start` up to, not including, `end`
/// in lower case.
///
/// `end` of all ones (0xFFFFFFFF, -1) means the text's size. If `start` is not below
/// `end` the copy is unchanged. An `end` above the text's size stops by
/// `debug::invalid_parameter`; where the handler returns, the text's size counts.
/// @throws whatever an installed handler throws, and std::bad_alloc.
/// @since 2.9
QUOR_API ustring8 lower_case(ustring8 const &text, types::uint32 start = 0, types::uint32 end = 0xFFFFFFFF);
/// The same for `ustring16`. @since 2.9
QUOR_API ustring16 lower_case(ustring16 const &text, types::uint32 start = 0, types::uint32 end = 0xFFFFFFFF);
/// The same for `ustring32`. @since 2.9
QUOR_API ustring32 lower_case(ustring32 const &text, types::uint32 start = 0, types::uint32 end = 0xFFFFFFFF);

/// The text with all letters in lower case. @since 2.9
QUOR_API ustring8 to_lower(ustring8 const &text);
/// The same for `ustring16`. @since 2.9
QUOR_API ustring16 to_lower(ustring16 const &text);
/// The same for `ustring32`. @since 2.9
QUOR_API ustring32 to_lower(ustring32 const &text);

/// The text with all letters in upper case. @since 2.9
QUOR_API ustring8 to_upper(ustring8 const &text);
/// The same for `ustring16`. @since 2.9
QUOR_API ustring16 to_upper(ustring16 const &text);
/// The same for `ustring32`. @since 2.9
QUOR_API ustring32 to_upper(ustring32 const &text);

} // namespace QUOR_2_9::strings

#endif
