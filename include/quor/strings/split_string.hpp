#ifndef QUOR_STRINGS_SPLIT_STRING_HPP
#define QUOR_STRINGS_SPLIT_STRING_HPP

/// @file
/// Cuts a text into pieces at a separator.
///
///     quor::strings::split_string("a,b,c", ",");        // "a", "b", "c"
///     quor::strings::split_string("a,b,c", ",", 1);     // "a", "b,c"
///
/// The separator is a whole text of one unit or more, matched exactly, from left to
/// right, without overlap. `max_splits` bounds the number of cuts; 0 and below mean no
/// bound.
///
/// The two ends differ: a separator at the start gives an empty first piece, one at the
/// end no empty last piece. ",a" gives "" and "a"; "a," gives "a"; "," gives one empty
/// piece; "a," with `max_splits` 1 gives "a". An empty text gives no piece at all. An
/// empty separator gives one piece, the whole text, even an empty one.
///
/// All overloads: the result has the class of the text. A literal text takes the class of
/// the separator; two literals mean the Unicode class of their unit, `ustring8` for "".
/// Untrusted input: safe. Thread-safety: pure functions. Cost: linear in the text for each
/// unit of the separator at worst, allocates the pieces. The standard vector's length
/// error is the only report.
///
/// @since 2.9

#include <string>
#include <type_traits>
#include <vector>

#include <quor/export.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::strings {

/// The pieces of `text` between the places where `separator` stands.
/// @since 2.9
QUOR_API std::vector<std::string> split_string(std::string const &text, std::string const &separator,
                                               int max_splits = 0);
/// The same with a zero-terminated separator. @since 2.9
QUOR_API std::vector<std::string> split_string(std::string const &text, char const *separator, int max_splits = 0);
/// The same for wide text. @since 2.9
QUOR_API std::vector<types::wide_string> split_string(types::wide_string const &text,
                                                      types::wide_string const &separator, int max_splits = 0);
/// The same for `ustring8`. @since 2.9
QUOR_API std::vector<ustring8> split_string(ustring8 const &text, ustring8 const &separator, int max_splits = 0);
/// The same for `ustring8` with a zero-terminated separator. @since 2.9
QUOR_API std::vector<ustring8> split_string(ustring8 const &text, char const *separator, int max_splits = 0);
/// The same for `ustring16`. @since 2.9
QUOR_API std::vector<ustring16> split_string(ustring16 const &text, ustring16 const &separator, int max_splits = 0);
/// The same for `ustring32`. @since 2.9
QUOR_API std::vector<ustring32> split_string(ustring32 const &text, ustring32 const &separator, int max_splits = 0);

/// The same for two literals, which mean `ustring8`. @since 2.9
inline std::vector<ustring8> split_string(char const *text, char const *separator, int max_splits = 0) {
	return split_string(ustring8(text), separator, max_splits);
}

/// The same for two wide literals, which mean `ustring16`. @since 2.9
inline std::vector<ustring16> split_string(types::wide_char const *text, types::wide_char const *separator,
                                           int max_splits = 0) {
	return split_string(ustring16(text), ustring16(separator), max_splits);
}

/// The same for a text of the library's classes and a standard string as separator.
/// @since 2.9
template <class Unit, class Traits>
std::vector<basic_ustring<Unit, Traits>> split_string(basic_ustring<Unit, Traits> const &text,
                                                      std::basic_string<Unit, Traits> const &separator,
                                                      int max_splits = 0) {
	return split_string(text, basic_ustring<Unit, Traits>(separator), max_splits);
}

/// The same for a standard string and a text of the library's classes as separator. A
/// standard string of 32-bit units counts as `ustring32`.
/// @since 2.9
template <class Unit, class Traits, std::enable_if_t<!std::is_same_v<Unit, types::utf32_char>, int> = 0>
std::vector<std::basic_string<Unit, Traits>> split_string(std::basic_string<Unit, Traits> const &text,
                                                          basic_ustring<Unit, Traits> const &separator,
                                                          int max_splits = 0) {
	return split_string(text, static_cast<std::basic_string<Unit, Traits> const &>(separator), max_splits);
}

} // namespace QUOR_2_9::strings

#endif
