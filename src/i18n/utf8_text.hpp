#ifndef QUOR_I18N_UTF8_TEXT_HPP
#define QUOR_I18N_UTF8_TEXT_HPP

#include <string>

#include <quor/strings/transcode.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::i18n::detail {

inline strings::ustring8 const &as_utf8(strings::ustring8 const &text) {
	return text;
}

inline strings::ustring8 as_utf8(strings::ustring16 const &text) {
	return strings::utf16_to_utf8(text);
}

inline strings::ustring8 as_utf8(strings::ustring32 const &text) {
	return strings::utf32_to_utf8(text);
}

inline strings::ustring8 as_utf8(std::string const &text) {
	return text;
}

inline strings::ustring8 as_utf8(types::wide_string const &text) {
	return strings::utf16_to_utf8(text);
}

} // namespace QUOR_2_9::i18n::detail

#endif
