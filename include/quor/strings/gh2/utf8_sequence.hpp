#ifndef QUOR_STRINGS_GH2_UTF8_SEQUENCE_HPP
#define QUOR_STRINGS_GH2_UTF8_SEQUENCE_HPP

/// @file
/// The first UTF-8 sequence of a text: how long it is and whether its bytes have the right
/// form. A whole text is checked by walking it:
///
///     namespace gh2 = quor::strings::gh2;
///     bool well_formed(char const *text, unsigned int length) {
///         while (length != 0 && gh2::validate_utf8(text, length)) {
///             unsigned int const size = gh2::get_utf8_length(text, length);
///             text += size;
///             length -= size;
///         }
///         return length == 0;
///     }
///
/// The form is all that is looked at: overlong forms, surrogates and values above U+10FFFF
/// pass. `quor/strings/unichar.hpp` decodes, `quor/strings/transcode.hpp` converts.
///
/// All functions: lengths count bytes; a null pointer and a length of 0 are no text; no
/// byte beyond the length is read. Untrusted input: safe. Thread-safety: pure.
///
/// @since 2.9

#include <cstddef>

#include <quor/version.hpp>

namespace QUOR_2_9::strings::gh2 {

namespace detail {

/// The bytes of the sequence that begins with this byte; 0 where none does.
constexpr unsigned int sequence_size(unsigned char lead) noexcept {
	if (lead < 0x80) {
		return 1;
	}
	if ((lead & 0xE0U) == 0xC0U) {
		return 2;
	}
	if ((lead & 0xF0U) == 0xE0U) {
		return 3;
	}
	return (lead & 0xF8U) == 0xF0U ? 4 : 0;
}

/// The body of `get_utf8_length`.
template <class Byte>
constexpr unsigned int first_size(Byte const *text, unsigned int length) noexcept {
	return length == 0 || text == nullptr ? 0 : sequence_size(static_cast<unsigned char>(*text));
}

/// The body of `validate_utf8`.
template <class Byte>
constexpr bool has_form(Byte const *text, unsigned int length) noexcept {
	unsigned int const size = first_size(text, length);
	if (size == 0 || length < size) {
		return false;
	}
	for (unsigned int i = 1; i != size; ++i) {
		if ((static_cast<unsigned char>(text[i]) & 0xC0U) != 0x80U) {
			return false;
		}
	}
	return true;
}

} // namespace detail

/// How many bytes the first sequence has, by its first byte alone, even if the text ends
/// sooner: 1 to 4, or 0 where the byte begins none (0x80 to 0xBF, 0xF8 and above) or there
/// is no text.
/// @since 2.9
constexpr unsigned int get_utf8_length(char const *text, unsigned int length) noexcept {
	return detail::first_size(text, length);
}
/// The same. @since 2.9
constexpr unsigned int get_utf8_length(unsigned char const *text, unsigned int length) noexcept {
	return detail::first_size(text, length);
}
/// No text, written as `nullptr`: 0. @since 2.9
constexpr unsigned int get_utf8_length(std::nullptr_t, unsigned int) noexcept {
	return 0;
}

/// Whether the text begins with a whole sequence whose further bytes are all of the form
/// 10xxxxxx. What stands behind it isn't looked at: "A\xFF" passes. False where there is no
/// text.
/// @since 2.9
constexpr bool validate_utf8(char const *text, unsigned int length) noexcept {
	return detail::has_form(text, length);
}
/// The same. @since 2.9
constexpr bool validate_utf8(unsigned char const *text, unsigned int length) noexcept {
	return detail::has_form(text, length);
}
/// No text, written as `nullptr`: false. @since 2.9
constexpr bool validate_utf8(std::nullptr_t, unsigned int) noexcept {
	return false;
}

} // namespace QUOR_2_9::strings::gh2

#endif
