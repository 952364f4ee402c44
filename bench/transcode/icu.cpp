// ICU's functions on strings. They write into room that is there already, from which the
// string is made: that is quicker than to clear the string's own room first.

#include <cstdint>
#include <stdexcept>
#include <string>

#include <unicode/ustring.h>

#include "transcode/texts.hpp"

namespace bench_transcode {
namespace {

constexpr char const *competitor = "ICU";

template <class Text>
std::int32_t size_of(Text const &text) {
	return static_cast<std::int32_t>(text.size());
}

UChar32 const *points(quor::strings::ustring32 const &text) {
	return reinterpret_cast<UChar32 const *>(text.data());
}

// Runs a function that writes up to `room` units and tells how many.
template <class Text, class Unit, class Convert>
Text written(std::int32_t room, Convert convert) {
	auto *const out = scratch<Unit>(static_cast<std::size_t>(room));
	UErrorCode error = U_ZERO_ERROR;
	std::int32_t size = 0;
	convert(out, room, &size, &error);
	if (U_FAILURE(error)) {
		throw std::runtime_error(u_errorName(error));
	}
	return Text(reinterpret_cast<typename Text::value_type const *>(out), static_cast<std::size_t>(size));
}

std::u16string from_utf8(std::string const &text) {
	return written<std::u16string, UChar>(size_of(text) + 1, [&](auto *out, auto room, auto *size, auto *error) {
		u_strFromUTF8(out, room, size, text.data(), size_of(text), error);
	});
}

std::u16string from_utf32(quor::strings::ustring32 const &text) {
	return written<std::u16string, UChar>(2 * size_of(text) + 1, [&](auto *out, auto room, auto *size, auto *error) {
		u_strFromUTF32(out, room, size, points(text), size_of(text), error);
	});
}

std::string to_utf8(std::u16string const &text) {
	return written<std::string, char>(3 * size_of(text) + 1, [&](auto *out, auto room, auto *size, auto *error) {
		u_strToUTF8(out, room, size, text.data(), size_of(text), error);
	});
}

std::u32string to_utf32(std::u16string const &text) {
	return written<std::u32string, UChar32>(size_of(text) + 1, [&](auto *out, auto room, auto *size, auto *error) {
		u_strToUTF32(out, room, size, text.data(), size_of(text), error);
	});
}

void describe() {
	for (sample const &text : samples()) {
		compete(text, utf8_to_utf16, competitor, [&text] { return from_utf8(text.utf8); });
		compete(text, utf16_to_utf8, competitor, [&text] { return to_utf8(text.utf16); });
		compete(text, utf16_to_utf32, competitor, [&text] { return to_utf32(text.utf16); });
		compete(text, utf32_to_utf16, competitor, [&text] { return from_utf32(text.utf32); });
		// There is no other way than through UTF-16.
		compete(text, utf8_to_utf32, competitor, [&text] { return to_utf32(from_utf8(text.utf8)); });
		compete(text, utf32_to_utf8, competitor, [&text] { return to_utf8(from_utf32(text.utf32)); });
	}
	limit_all(competitor, 1, 1.0 / 3, [](sample const &text) { return text.is_long; });
	limit_all(competitor, 1, 0, [](sample const &text) { return !text.is_long; });
	bench::median_limit("1 MB of", competitor, 1.0 / 3);
}

bench::entry const added(&describe);

} // namespace
} // namespace bench_transcode
