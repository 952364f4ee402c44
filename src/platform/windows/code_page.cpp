#include "platform/code_page.hpp"

#include "platform/windows/windows_api.hpp"

namespace QUOR_2_9::platform {

types::int32 multi_byte_to_wide(types::uint32 page, char const *text, types::int32 length, types::wide_char *out,
                                types::int32 out_size) {
	return MultiByteToWideChar(page, 0, text, static_cast<int>(length), out, static_cast<int>(out_size));
}

types::int32 wide_to_multi_byte(types::uint32 page, types::wide_char const *text, types::int32 length, char *out,
                                types::int32 out_size) {
	return WideCharToMultiByte(page, 0, text, static_cast<int>(length), out, static_cast<int>(out_size), nullptr,
	                           nullptr);
}

} // namespace QUOR_2_9::platform
