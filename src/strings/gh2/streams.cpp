#include <quor/strings/gh2/streams.hpp>

#include <algorithm>
#include <iostream>
#include <string>

#include <quor/strings/native_wide.hpp>

#include "kernels/decode.hpp"
#include "support/early_init.hpp"

namespace QUOR_2_9::strings {

std::wostream &operator<<(std::wostream &stream, ustring16 const &text) {
	std::wstring native = to_native_wide(text);
	if constexpr (sizeof(wchar_t) != sizeof(types::wide_char)) {
		constexpr wchar_t replacement = 0xFFFD;
		std::replace_if(native.begin(), native.end(), kernels::is_surrogate<wchar_t>, replacement);
	}
	return stream << native;
}

namespace gh2 {
namespace {

/// Makes the streams, if nobody has, before any static object may ask for them.
QUOR_EARLY_INIT std::ios_base::Init const streams_are_made;

} // namespace

constinit std::wistream &ucin = std::wcin;
constinit std::wostream &ucout = std::wcout;
constinit std::wostream &ucerr = std::wcerr;

} // namespace gh2

} // namespace QUOR_2_9::strings
