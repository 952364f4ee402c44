#ifndef QUOR_STRINGS_USTRING_HPP
#define QUOR_STRINGS_USTRING_HPP

/// @file
/// The three Unicode string classes: `ustring8` (UTF-8), `ustring16` (UTF-16) and
/// `ustring32` (UTF-32). Each is the standard basic string of its unit and nothing
/// more, as a type of its own, so that overload sets can tell the encodings apart.
/// The classes never look at their contents; `quor/strings/unichar.hpp` decodes and
/// `quor/strings/transcode.hpp` converts between the encodings.
///
///     quor::strings::ustring8 name("caf\xC3\xA9");
///     name += "!";                       // everything std::string can do
///     std::string plain = name;          // and back: ustring8(plain)
///
/// @since 2.9

#include <cstddef>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include <quor/export.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::strings {

/// A standard basic string of `Unit` that is a type of its own.
///
/// Adds constructors only: no data, no virtual functions, no other members. Sizes
/// count code units. The contents are never validated. A zero unit stands behind
/// the last one. Copies are deep; moves cost what the base's cost.
/// Thread-safety: as the standard string, many readers or one writer.
/// @since 2.9
template <class Unit, class Traits = std::char_traits<Unit>>
class QUOR_API_TYPE basic_ustring : public std::basic_string<Unit, Traits> {
public:
	/// The standard string that this class derives from.
	using base_type = std::basic_string<Unit, Traits>;

	using base_type::base_type;
	using base_type::operator=;

	/// The empty text.
	basic_ustring() = default;
	/// Takes the units of a standard string as they stand, with no conversion.
	basic_ustring(base_type const &text) : base_type(text) {}
	/// Takes over the units of a standard string as they stand.
	basic_ustring(base_type &&text) noexcept : base_type(std::move(text)) {}
};

/// Text of 8-bit units, UTF-8 by convention.
using ustring8 = basic_ustring<char>;
/// Text of 16-bit units, UTF-16 by convention.
using ustring16 = basic_ustring<types::wide_char>;
/// Text of 32-bit units, UTF-32 by convention.
using ustring32 = basic_ustring<types::utf32_char, types::utf32_traits>;

/// Joins two texts; the result keeps the class. Linear in both.
/// @since 2.9
template <class Unit, class Traits>
basic_ustring<Unit, Traits> operator+(basic_ustring<Unit, Traits> left, basic_ustring<Unit, Traits> const &right) {
	left.append(right);
	return left;
}

/// Joins a text and a standard string of the same unit.
template <class Unit, class Traits>
basic_ustring<Unit, Traits> operator+(basic_ustring<Unit, Traits> left, std::basic_string<Unit, Traits> const &right) {
	left.append(right);
	return left;
}

/// Joins a text and a standard string that is given up.
template <class Unit, class Traits>
basic_ustring<Unit, Traits> operator+(basic_ustring<Unit, Traits> left, std::basic_string<Unit, Traits> &&right) {
	left.append(right);
	return left;
}

/// Joins a standard string and a text of the same unit.
template <class Unit, class Traits>
basic_ustring<Unit, Traits> operator+(std::basic_string<Unit, Traits> left, basic_ustring<Unit, Traits> const &right) {
	left.append(right);
	return basic_ustring<Unit, Traits>(std::move(left));
}

/// Joins a text and a zero-terminated text.
template <class Unit, class Traits>
basic_ustring<Unit, Traits> operator+(basic_ustring<Unit, Traits> left, Unit const *right) {
	left.append(right);
	return left;
}

/// Joins a zero-terminated text and a text.
template <class Unit, class Traits>
basic_ustring<Unit, Traits> operator+(Unit const *left, basic_ustring<Unit, Traits> const &right) {
	basic_ustring<Unit, Traits> result(left);
	result.append(right);
	return result;
}

/// Joins a text and one unit.
template <class Unit, class Traits>
basic_ustring<Unit, Traits> operator+(basic_ustring<Unit, Traits> left, Unit right) {
	left.push_back(right);
	return left;
}

/// Joins one unit and a text.
template <class Unit, class Traits>
basic_ustring<Unit, Traits> operator+(Unit left, basic_ustring<Unit, Traits> const &right) {
	basic_ustring<Unit, Traits> result(1, left);
	result.append(right);
	return result;
}

} // namespace QUOR_2_9::strings

/// Hashes the units as they stand, so that the three classes can key unordered containers.
/// @since 2.9
template <class Unit, class Traits>
struct std::hash<QUOR_2_9::strings::basic_ustring<Unit, Traits>> {
	/// The hash of the text's bytes.
	std::size_t operator()(QUOR_2_9::strings::basic_ustring<Unit, Traits> const &text) const noexcept {
		return std::hash<std::string_view>()(
		    std::string_view(reinterpret_cast<char const *>(text.data()), text.size() * sizeof(Unit)));
	}
};

#endif
