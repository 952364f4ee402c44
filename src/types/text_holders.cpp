#include <algorithm>
#include <cstddef>
#include <limits>
#include <ostream>
#include <string>
#include <string_view>
#include <type_traits>

#include <quor/strings/transcode.hpp>

#include "generic/convert/decimal_text.hpp"
#include "support/ascii.hpp"
#include "types/holder.hpp"

namespace QUOR_2_9::types {
namespace detail {
namespace {

// The text of each holder in the class that tells its encoding.

strings::ustring8 encoded(std::string const &text) {
	return text;
}

strings::ustring16 encoded(wide_string const &text) {
	return text;
}

template <class Unit, class Traits>
strings::basic_ustring<Unit, Traits> const &encoded(strings::basic_ustring<Unit, Traits> const &text) noexcept {
	return text;
}

// From every encoding to every other; the same one is a copy.

strings::ustring8 to_utf8(strings::ustring8 const &text) {
	return text;
}
strings::ustring8 to_utf8(strings::ustring16 const &text) {
	return strings::utf16_to_utf8(text);
}
strings::ustring8 to_utf8(strings::ustring32 const &text) {
	return strings::utf32_to_utf8(text);
}
strings::ustring16 to_utf16(strings::ustring8 const &text) {
	return strings::utf8_to_utf16(text);
}
strings::ustring16 to_utf16(strings::ustring16 const &text) {
	return text;
}
strings::ustring16 to_utf16(strings::ustring32 const &text) {
	return strings::utf32_to_utf16(text);
}
strings::ustring32 to_utf32(strings::ustring8 const &text) {
	return strings::utf8_to_utf32(text);
}
strings::ustring32 to_utf32(strings::ustring16 const &text) {
	return strings::utf16_to_utf32(text);
}
strings::ustring32 to_utf32(strings::ustring32 const &text) {
	return text;
}

/// A size as the readers of numbers take it. What lies behind 4 GiB is no number any more.
template <class T>
uint32 length_of(T const &text) noexcept {
	return static_cast<uint32>(std::min<std::size_t>(text.size(), std::numeric_limits<uint32>::max()));
}

/// Whether the whole text is `word`, which is in lower case; ASCII letters of the text
/// match in both cases, by their numeric value.
template <class T>
bool is_word(T const &text, std::string_view word) noexcept {
	return std::equal(text.begin(), text.end(), word.begin(), word.end(),
	                  [](auto unit, char letter) noexcept { return support::is_letter_in_any_case(unit, letter); });
}

} // namespace

template <class T>
struct text_rules {
	template <class Target, class Parse>
	static Target integer(T const &text, Parse const &parse) {
		return parse(text.c_str(), length_of(text));
	}

	template <class Target>
	static Target floating(T const &text) {
		namespace convert = generic::convert::detail;
		if constexpr (std::is_same_v<typename T::value_type, char>) {
			return static_cast<Target>(convert::atof(text.data(), text.size()));
		} else {
			strings::ustring8 const utf8 = to_utf8(encoded(text));
			return static_cast<Target>(convert::atof(utf8.data(), utf8.size()));
		}
	}

	static bool boolean(T const &text) {
		return is_word(text, "yes") || is_word(text, "on") || is_word(text, "true") ||
		       generic::convert::str_to_long(text.c_str(), length_of(text), radix_t::detect, false) != 0;
	}

	static strings::ustring8 narrow(T const &text) { return to_utf8(encoded(text)); }
	static strings::ustring16 native(T const &text) { return wide(text); }
	static strings::ustring16 wide(T const &text) { return to_utf16(encoded(text)); }
	static strings::ustring32 utf32(T const &text) { return to_utf32(encoded(text)); }

	static void write(T const &text, std::ostream &stream) {
		if constexpr (std::is_same_v<T, std::string>) {
			stream << text;
		} else if constexpr (std::is_same_v<T, strings::ustring8>) {
			stream << text.c_str();
		} else if constexpr (std::is_same_v<T, wide_string>) {
			stream << "< " << typeid(T).name() << " instance at " << static_cast<void const *>(&text) << " >";
		} else {
			stream << to_utf8(text).c_str();
		}
	}
};

// clang-format off
template <> struct holder_rules<std::string> : text_rules<std::string> {};
template <> struct holder_rules<wide_string> : text_rules<wide_string> {};
template <> struct holder_rules<strings::ustring8> : text_rules<strings::ustring8> {};
template <> struct holder_rules<strings::ustring16> : text_rules<strings::ustring16> {};
template <> struct holder_rules<strings::ustring32> : text_rules<strings::ustring32> {};
// clang-format on

} // namespace detail

template class variant_value_t<std::string>;
template class variant_value_t<wide_string>;
template class variant_value_t<strings::ustring8>;
template class variant_value_t<strings::ustring16>;
template class variant_value_t<strings::ustring32>;

} // namespace QUOR_2_9::types
