#include <quor/strings/native_wide.hpp>

#include <cstddef>
#include <type_traits>

#include <quor/types/widths.hpp>

#include "kernels/decode.hpp"

namespace QUOR_2_9::strings {
namespace {

constexpr bool native_is_wide = sizeof(wchar_t) == sizeof(types::wide_char);

constexpr types::uint32 value_of(wchar_t unit) noexcept {
	return static_cast<std::make_unsigned_t<wchar_t>>(unit);
}

} // namespace

ustring16 from_native_wide(std::wstring const &text) {
	ustring16 result;
	if constexpr (native_is_wide) {
		result.assign(text.begin(), text.end());
		return result;
	}
	std::size_t needed = text.size();
	for (wchar_t const unit : text) {
		types::uint32 const code_point = value_of(unit);
		if (code_point >= 0x110000) {
			return ustring16{static_cast<types::wide_char>('-'), static_cast<types::wide_char>('1')};
		}
		needed += code_point >= 0x10000 ? 1 : 0;
	}
	result.reserve(needed);
	for (wchar_t const unit : text) {
		types::uint32 const code_point = value_of(unit);
		if (code_point < 0x10000) {
			result.push_back(static_cast<types::wide_char>(code_point));
		} else {
			result.push_back(static_cast<types::wide_char>(0xD7C0 + (code_point >> 10)));
			result.push_back(static_cast<types::wide_char>(0xDC00 + (code_point & 0x3FF)));
		}
	}
	return result;
}

std::wstring to_native_wide(ustring16 const &text) {
	std::wstring result;
	if constexpr (native_is_wide) {
		result.assign(text.begin(), text.end());
		return result;
	}
	result.reserve(text.size());
	for (std::size_t i = 0; i != text.size();) {
		kernels::decoded const next = kernels::decode_utf16(text.data() + i, text.size() - i);
		result.push_back(static_cast<wchar_t>(next.units != 0 ? next.code_point : text[i]));
		i += next.units != 0 ? next.units : 1;
	}
	return result;
}

} // namespace QUOR_2_9::strings
