#ifndef QUOR_SYSTEM_WIDE_PATH_HPP
#define QUOR_SYSTEM_WIDE_PATH_HPP

#include <type_traits>

#include <quor/strings/transcode.hpp>
#include <quor/strings/ustring.hpp>

namespace QUOR_2_9::system::detail {

inline strings::ustring16 to_wide(strings::ustring8 const &path) {
	return strings::utf8_to_utf16(path);
}

inline strings::ustring16 const &to_wide(strings::ustring16 const &path) {
	return path;
}

inline strings::ustring16 to_wide(strings::ustring32 const &path) {
	return strings::utf32_to_utf16(path);
}

/// A path of the platform in the class that the caller speaks.
template <class Text>
Text from_wide(strings::ustring16 const &path) {
	if constexpr (std::is_same_v<Text, strings::ustring8>) {
		return strings::utf16_to_utf8(path);
	} else if constexpr (std::is_same_v<Text, strings::ustring32>) {
		return strings::utf16_to_utf32(path);
	} else {
		return path;
	}
}

} // namespace QUOR_2_9::system::detail

#endif
