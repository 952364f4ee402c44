#include <quor/strings/gh2/wide_text.hpp>

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <utility>

#include <quor/strings/native_wide.hpp>

#include "platform/code_page.hpp"

namespace QUOR_2_9::strings::gh2 {
namespace {

using types::int32;
using types::wide_char;
using types::wide_string;

constexpr types::uint32 utf8_page = 65001;
/// The answer of the C library's conversions to what they can't convert.
constexpr auto failed = static_cast<std::size_t>(-1);

/// What `convert(out, size)` writes, up to its first zero; empty if it fails. With a null
/// `out` it tells the size that it needs.
template <class Text, class Convert>
Text converted(Convert const &convert) {
	std::size_t const size = convert(nullptr, 0);
	if (size == 0 || size == failed) {
		return Text();
	}
	Text result(size, typename Text::value_type());
	if (convert(result.data(), size) == failed) {
		return Text();
	}
	result.resize(std::min(result.find(typename Text::value_type()), size));
	return result;
}

/// A service of the platform, which counts in 32 bits, on all of a text.
template <class Result, class Text, class Service>
Result converted_by(Service const &service, Text const &text) {
	if (text.empty() || text.size() > static_cast<std::size_t>(std::numeric_limits<int32>::max())) {
		return Result();
	}
	return converted<Result>([&](typename Result::value_type *out, std::size_t size) {
		return static_cast<std::size_t>(
		    service(utf8_page, text.data(), static_cast<int32>(text.size()), out, static_cast<int32>(size)));
	});
}

/// Whether a unit of the C library's wide text stands for a character; its UTF-8 goes on
/// behind the last one, U+10FFFF. A unit of 16 bits always does.
constexpr bool is_character(wchar_t unit) noexcept {
	return static_cast<types::uint32>(unit) >> 16 <= 0x10;
}

/// Maps each unit through a function of the C library, which knows the values of a byte
/// only.
template <class Map>
wide_string mapped(wide_string text, Map const &map) {
	constexpr wide_char largest_byte = 0xFF;
	for (wide_char &unit : text) {
		if (unit <= largest_byte) {
			unit = static_cast<wide_char>(map(static_cast<int>(unit)));
		}
	}
	return text;
}

} // namespace

wide_string to_ustring(std::string const &text) {
	return converted_by<wide_string>(platform::multi_byte_to_wide, text);
}

wide_string to_ustring(char const *text) {
	return text == nullptr ? wide_string() : to_ustring(std::string(text));
}

wide_string to_ustring(wide_string const &text) {
	constexpr wide_char byte_order_mark = 0xFEFF;
	return text.substr(!text.empty() && text.front() == byte_order_mark ? 1 : 0);
}

wide_string to_ustring(wide_char const *text) {
	return text == nullptr ? wide_string() : to_ustring(wide_string(text));
}

std::string to_utf8(wide_string const &text) {
	return converted_by<std::string>(platform::wide_to_multi_byte, text);
}

wide_string to_widechar(wide_string const &text) {
	return text;
}

std::string to_ansi(wide_string const &text) {
	std::wstring const native = to_native_wide(to_widechar(text));
	return converted<std::string>(
	    [&native](char *out, std::size_t size) { return std::wcstombs(out, native.c_str(), size); });
}

wide_string from_ansi(std::string const &text) {
	auto const native = converted<std::wstring>(
	    [&text](wchar_t *out, std::size_t size) { return std::mbstowcs(out, text.c_str(), size); });
	return std::all_of(native.begin(), native.end(), is_character) ? to_ustring(from_native_wide(native))
	                                                               : wide_string();
}

wide_string tolower(wide_string const &text) {
	return mapped(text, [](int unit) { return ::tolower(unit); });
}

wide_string toupper(wide_string const &text) {
	return mapped(text, [](int unit) { return ::toupper(unit); });
}

} // namespace QUOR_2_9::strings::gh2
