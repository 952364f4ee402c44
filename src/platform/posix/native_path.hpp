#ifndef QUOR_PLATFORM_POSIX_NATIVE_PATH_HPP
#define QUOR_PLATFORM_POSIX_NATIVE_PATH_HPP

#include <optional>
#include <string>
#include <string_view>

#include <quor/types/widths.hpp>

namespace QUOR_2_9::platform {

/// The system's spelling of a path: UTF-8 by the standard surrogate rule, each backslash
/// a slash, up to the first zero unit. Nothing for a path that is empty or holds an
/// unpaired surrogate: no file can have that name.
std::optional<std::string> native_path(types::wide_string const &path);

/// A name of the system as UTF-16; nothing where it isn't well-formed UTF-8 (shortest
/// forms, no surrogates, up to U+10FFFF) or holds a backslash.
std::optional<types::wide_string> name_from_native(std::string_view name);

} // namespace QUOR_2_9::platform

#endif
