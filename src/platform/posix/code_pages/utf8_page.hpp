#ifndef QUOR_PLATFORM_POSIX_CODE_PAGES_UTF8_PAGE_HPP
#define QUOR_PLATFORM_POSIX_CODE_PAGES_UTF8_PAGE_HPP

#include <string_view>

#include <quor/types/widths.hpp>

namespace QUOR_2_9::platform {

/// The page 65001 of the two services, for a text of known length.
types::int32 utf8_to_wide(std::string_view text, types::wide_char *out, types::int32 out_size);
types::int32 wide_to_utf8(std::basic_string_view<types::wide_char> text, char *out, types::int32 out_size);

} // namespace QUOR_2_9::platform

#endif
