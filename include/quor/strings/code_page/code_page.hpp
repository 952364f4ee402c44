#ifndef QUOR_STRINGS_CODE_PAGE_CODE_PAGE_HPP
#define QUOR_STRINGS_CODE_PAGE_CODE_PAGE_HPP

/// @file
/// Text in the encodings that came before Unicode, to and from the three Unicode classes.
///
///     quor::strings::code_page const cyrillic(quor::strings::code_page::cp_1251);
///     std::string const bytes = cyrillic.encode(quor::strings::ustring8("\xD0\x94\xD0\xB0")); // "\xC4\xE0"
///     quor::strings::ustring8 const text = cyrillic.as_utf8(bytes);                           // the same text
///
/// Between the Unicode classes themselves the functions of transcode.hpp convert. Which
/// bytes are which characters is told in docs/code-pages.md.
///
/// @since 2.9

#include <string>

#include <quor/export.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/nil.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::strings {

/// Names an encoding and converts text to and from it.
///
/// A value of 32 bits. Any value can be held, compared and copied; one that names no
/// encoding makes every conversion throw, also that of an empty text.
///
/// All conversions: a text ends at its first zero unit, what comes behind is left out.
/// Well-formed bytes give the same characters on every target. Elsewhere than on Windows
/// - a character that the encoding doesn't have becomes one `?`, also where it takes two
///   units of UTF-16, and half a pair counts as U+FFFD, which UTF-8 alone has;
/// - malformed bytes give one U+FFFD for each bad part: a lead byte without a trail byte
///   behind it, a pair without a character, the longest part of an UTF-8 sequence that is
///   right as far as it goes, any other byte alone;
/// - pairs of UTF-16 units are read and written by the standard rule, which isn't that of
///   `utf8_to_utf16` and `utf32_to_utf16`.
///
/// On Windows the system's answers stand: it puts similar characters in place of missing
/// ones, and `?` or another character for malformed bytes.
///
/// Untrusted input: safe. Thread-safety: a value; the conversions of `system_ansi`,
/// `system_oem` and `system_oem_alt` look at the locale, which no thread may change then.
/// Cost: linear, allocates the result; twice through the text.
/// @throws exceptions::invalid_argument_value, in all conversions, as `to_system_type`
/// does; std::length_error where the text or its result has 2147483647 units or more;
/// std::bad_alloc.
/// @since 2.9
class QUOR_API code_page {
public:
	/// An encoding: its value is mostly that of the system's code page. Any 32-bit value
	/// can be held. @since 2.9
	enum encoding_type : int {
		system_ansi = 1,    ///< The process's own: see `to_system_type`.
		system_oem = 2,     ///< The process's own for consoles; elsewhere than on Windows as 1.
		system_oem_alt = 3, ///< The same as 2.
		utf_8 = 4,          ///< UTF-8; 65001 is no value of this enumeration.
		cp_932 = 932,       ///< Japanese, Shift-JIS.
		cp_936 = 936,       ///< Simplified Chinese, GBK.
		cp_949 = 949,       ///< Korean.
		cp_950 = 950,       ///< Traditional Chinese, Big5.
		cp_1250 = 1250,     ///< Windows, Central European.
		cp_1251 = 1251,     ///< Windows, Cyrillic.
		cp_1252 = 1252,     ///< Windows, Latin 1.
		cp_1253 = 1253,     ///< Windows, Greek.
		cp_1254 = 1254,     ///< Windows, Turkish.
		cp_1255 = 1255,     ///< Windows, Hebrew.
		cp_1256 = 1256,     ///< Windows, Arabic.
		cp_1257 = 1257,     ///< Windows, Baltic.
		cp_1258 = 1258,     ///< Windows, Vietnamese.
		cp_20866 = 20866,   ///< KOI8-R.
		cp_21866 = 21866,   ///< KOI8-U.
		cp_28591 = 28591,   ///< ISO 8859-1.
		cp_28592 = 28592,   ///< ISO 8859-2.
		cp_28593 = 28593,   ///< ISO 8859-3.
		cp_28594 = 28594,   ///< ISO 8859-4.
		cp_28595 = 28595,   ///< ISO 8859-5.
		cp_28596 = 28596,   ///< ISO 8859-6.
		cp_28597 = 28597,   ///< ISO 8859-7.
		cp_28598 = 28598,   ///< ISO 8859-8.
		cp_28599 = 28599,   ///< ISO 8859-9.
		cp_28605 = 28605,   ///< ISO 8859-15.
	};

	/// The value 0, which names no encoding. @since 2.9
	code_page() noexcept;
	/// The value 0. It doesn't compare equal to nil: see `equal`. @since 2.9
	code_page(types::nil_t const &) noexcept;
	/// The given value. @since 2.9
	code_page(encoding_type const &type) noexcept;
	/// The other's value. @since 2.9
	code_page(code_page const &other) noexcept;
	/// Does nothing. @since 2.9
	~code_page() = default;

	/// Takes the value 0. @since 2.9
	code_page const &assign(types::nil_t const &) noexcept;
	/// Takes the other's value. @since 2.9
	code_page const &assign(code_page const &other) noexcept;
	/// Takes the given value. @since 2.9
	code_page const &assign(encoding_type const &type) noexcept;
	/// Takes the value 0. @since 2.9
	code_page const &operator=(types::nil_t const &) noexcept;
	/// Takes the other's value. @since 2.9
	code_page const &operator=(code_page const &other) noexcept;
	/// Takes the given value. @since 2.9
	code_page const &operator=(encoding_type const &type) noexcept;

	/// Whether the value is negative. Nil itself gives the value 0, so that
	/// `code_page(types::nil).equal(types::nil)` is false. @since 2.9
	bool equal(types::nil_t const &) const noexcept;
	/// Whether the values are the same. @since 2.9
	bool equal(code_page const &other) const noexcept;
	/// Whether the value is the given one. @since 2.9
	bool equal(encoding_type const &type) const noexcept;
	/// The same as `equal`. @since 2.9
	bool operator==(types::nil_t const &) const noexcept;
	/// The same as `equal`. @since 2.9
	bool operator==(code_page const &other) const noexcept;
	/// The same as `equal`. @since 2.9
	bool operator==(encoding_type const &type) const noexcept;
	/// Whether the value isn't that of `code_page(types::nil)`, 0. This isn't the opposite
	/// of `equal`: a `code_page` of 0 neither equals nil nor differs from it. @since 2.9
	bool operator!=(types::nil_t const &) const noexcept;
	/// Whether the values differ. @since 2.9
	bool operator!=(code_page const &other) const noexcept;
	/// Whether the value isn't the given one. @since 2.9
	bool operator!=(encoding_type const &type) const noexcept;

	/// The value, which can be changed through the result. @since 2.9
	encoding_type const &type() const noexcept;
	/// The value, which can be changed through the result. @since 2.9
	encoding_type &type() noexcept;
	/// Takes the given value and returns the stored one. @since 2.9
	encoding_type &type(encoding_type const &type) noexcept;

	/// The system's number of an encoding, whatever this object holds: 0 for
	/// `system_ansi`, 1 for `system_oem` and `system_oem_alt`, 65001 for `utf_8`, the
	/// value itself for the others.
	///
	/// Elsewhere than on Windows 0 and 1 stand for the charset of the C locale that the
	/// program has set, and for UTF-8 where it has set none or one of another charset.
	/// @throws exceptions::invalid_argument_value "Not valid code_page type" for a value
	/// that is no enumerator; 0 and 65001 are none.
	/// @since 2.9
	int to_system_type(encoding_type type) const;

	/// UTF-8 in this encoding.
	///
	/// The text goes through `utf8_to_utf16`, the whole of it: malformed text is encoded
	/// as "-1", and a character above U+FFFF becomes another one. @since 2.9
	std::string encode(ustring8 const &text) const;
	/// UTF-16 in this encoding. @since 2.9
	std::string encode(ustring16 const &text) const;
	/// UTF-32 in this encoding.
	///
	/// The text goes through `utf32_to_utf16`, the whole of it: malformed text is encoded
	/// as "-1", and a character above U+FFFF becomes another one. @since 2.9
	std::string encode(ustring32 const &text) const;

	/// Text of this encoding as UTF-16. @since 2.9
	ustring16 as_utf16(std::string const &text) const;
	/// Text of this encoding as UTF-8. @since 2.9
	ustring8 as_utf8(std::string const &text) const;
	/// Text of this encoding as UTF-32. @since 2.9
	ustring32 as_utf32(std::string const &text) const;
	/// Text of this encoding as UTF-16, in a standard string. @since 2.9
	types::wide_string as_ustring(std::string const &text) const;

private:
	encoding_type m_type;
};

} // namespace QUOR_2_9::strings

#endif
