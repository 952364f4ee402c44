#include "platform/code_page.hpp"

#include <cstddef>
#include <limits>
#include <string_view>

#include "platform/posix/code_pages/double_byte_page.hpp"
#include "platform/posix/code_pages/single_byte_page.hpp"
#include "platform/posix/code_pages/system_page.hpp"
#include "platform/posix/code_pages/utf8_page.hpp"

namespace QUOR_2_9::platform {
namespace {

using types::int32;
using types::uint32;
using types::wide_char;

/// The text that the service means; empty, which is a failure, for none and for one that
/// is longer than a length can tell.
template <class Unit>
std::basic_string_view<Unit> text_of(Unit const *text, int32 length) noexcept {
	if (text == nullptr) {
		return {};
	}
	std::size_t const size = length < 0 ? std::char_traits<Unit>::length(text) + 1 : static_cast<std::size_t>(length);
	return {text, size <= static_cast<std::size_t>(std::numeric_limits<int32>::max()) ? size : 0};
}

uint32 named_page(uint32 page) noexcept {
	return page <= 1 ? system_page() : page;
}

double_byte_page const *find_double_byte_page(uint32 page) noexcept {
	switch (page) {
	case 932:
		return &page_932;
	case 936:
		return &page_936;
	case 949:
		return &page_949;
	case 950:
		return &page_950;
	default:
		return nullptr;
	}
}

} // namespace

int32 multi_byte_to_wide(uint32 page, char const *text, int32 length, wide_char *out, int32 out_size) {
	auto const source = text_of(text, length);
	if (source.empty() || out_size < 0) {
		return 0;
	}
	page = named_page(page);
	if (page == 65001) {
		return utf8_to_wide(source, out, out_size);
	}
	if (auto const *const single = find_single_byte_page(page)) {
		return single_byte_to_wide(*single, source, out, out_size);
	}
	auto const *const pairs = find_double_byte_page(page);
	return pairs != nullptr ? double_byte_to_wide(*pairs, source, out, out_size) : 0;
}

int32 wide_to_multi_byte(uint32 page, wide_char const *text, int32 length, char *out, int32 out_size) {
	auto const source = text_of(text, length);
	if (source.empty() || out_size < 0) {
		return 0;
	}
	page = named_page(page);
	if (page == 65001) {
		return wide_to_utf8(source, out, out_size);
	}
	if (auto const *const single = find_single_byte_page(page)) {
		return wide_to_single_byte(*single, source, out, out_size);
	}
	auto const *const pairs = find_double_byte_page(page);
	return pairs != nullptr ? wide_to_double_byte(*pairs, source, out, out_size) : 0;
}

} // namespace QUOR_2_9::platform
