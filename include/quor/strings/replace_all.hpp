#ifndef QUOR_STRINGS_REPLACE_ALL_HPP
#define QUOR_STRINGS_REPLACE_ALL_HPP

/// @file
/// Replaces every occurrence of one text in another, in place.
///
///     quor::strings::ustring8 path("a/b/c");
///     quor::strings::replace_all(path, "/", "::");      // 2, path is "a::b::c"
///
/// Matches are exact, from left to right, without overlap, and what was put in is not
/// searched again: "aaa" with "a" replaced by "aa" is "aaaaaa", three replacements.
/// `from` and `to` may be the text itself; then its old contents count.
///
/// All overloads: sizes are stored sizes, zero units are ordinary. Untrusted input:
/// safe. Thread-safety: the text belongs to the caller's thread. Cost: linear in the
/// old and the new text for each unit of `from` at worst, however many matches there
/// are; without a match nothing is allocated, beyond what a literal or a standard string
/// needs to become the class of the text. On an exception the text is unchanged.
///
/// @since 2.9

#include <string>
#include <type_traits>

#include <quor/export.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::strings {

/// Replaces each `from` in `text` by `to` and returns how many there were.
/// @throws std::length_error if `from` is empty, since an empty text is found again
/// behind each replacement without end, and if the text would outgrow the standard
/// string's limit.
/// @since 2.9
QUOR_API types::int32 replace_all(std::string &text, std::string const &from, std::string const &to);
/// The same for wide text. @since 2.9
QUOR_API types::int32 replace_all(types::wide_string &text, types::wide_string const &from,
                                  types::wide_string const &to);
/// The same for `ustring8`. @since 2.9
QUOR_API types::int32 replace_all(ustring8 &text, ustring8 const &from, ustring8 const &to);
/// The same for `ustring16`. @since 2.9
QUOR_API types::int32 replace_all(ustring16 &text, ustring16 const &from, ustring16 const &to);
/// The same for `ustring32`. @since 2.9
QUOR_API types::int32 replace_all(ustring32 &text, ustring32 const &from, ustring32 const &to);

/// The same for a text of the library's classes where `from` or `to` is a standard
/// string.
/// @since 2.9
template <class Unit, class Traits, class From, class To,
          std::enable_if_t<std::is_same_v<From, std::basic_string<Unit, Traits>> ||
                               std::is_same_v<To, std::basic_string<Unit, Traits>>,
                           int> = 0>
types::int32 replace_all(basic_ustring<Unit, Traits> &text, From const &from, To const &to) {
	return replace_all(text, basic_ustring<Unit, Traits>(from), basic_ustring<Unit, Traits>(to));
}

/// Second entries of functions for standard wide strings.
namespace gh2 {

/// `strings::replace_all` for wide text under its second name; the same in all.
/// @since 2.9
QUOR_API types::int32 replace_all(types::wide_string &text, types::wide_string const &from,
                                  types::wide_string const &to);

} // namespace gh2

} // namespace QUOR_2_9::strings

#endif
