#include "platform/code_page.hpp"

#include <cstddef>
#include <string_view>

#include "platform/posix/utf8_page.hpp"

namespace QUOR_2_9::platform {
namespace {

using types::int32;
using types::uint32;
using types::wide_char;

/// The text that the service means: a length below 0 stands for one that ends with its
/// first zero.
template <class Unit>
std::basic_string_view<Unit> text_of(Unit const *text, int32 length) noexcept {
	if (length < 0) {
		return {text, std::char_traits<Unit>::length(text) + 1};
	}
	return {text, static_cast<std::size_t>(length)};
}

} // namespace

int32 multi_byte_to_wide(uint32, char const *text, int32 length, wide_char *out, int32 out_size) {
	if (text == nullptr || out_size < 0) {
		return 0;
	}
	return utf8_to_wide(text_of(text, length), out, out_size);
}

int32 wide_to_multi_byte(uint32, wide_char const *text, int32 length, char *out, int32 out_size) {
	if (text == nullptr || out_size < 0) {
		return 0;
	}
	return wide_to_utf8(text_of(text, length), out, out_size);
}

} // namespace QUOR_2_9::platform
