#ifndef QUOR_PLATFORM_POSIX_CODE_PAGES_SYSTEM_PAGE_HPP
#define QUOR_PLATFORM_POSIX_CODE_PAGES_SYSTEM_PAGE_HPP

#include <string_view>

#include <quor/types/widths.hpp>

namespace QUOR_2_9::platform {

/// The page of a charset by its name, in upper or lower case, with or without `-` and
/// `_`: "ISO-8859-2" is 28592. 65001 for unknown ones and for ASCII, of which UTF-8 is
/// the larger form.
types::uint32 page_of_charset(std::string_view name) noexcept;

/// The page of the charset that the calling thread's locale has.
types::uint32 system_page() noexcept;

} // namespace QUOR_2_9::platform

#endif
