#ifndef QUOR_PLATFORM_DIRECTORY_ENTRIES_HPP
#define QUOR_PLATFORM_DIRECTORY_ENTRIES_HPP

#include <vector>

#include <quor/types/widths.hpp>

namespace QUOR_2_9::platform {

/// The names in a directory, in the order in which the system gives them, "." and ".."
/// included (on POSIX systems always as the first two). Names that no path could spell
/// are left out. Empty where the directory can't be read. The directory isn't kept open.
std::vector<types::wide_string> directory_entries(types::wide_string const &directory);

} // namespace QUOR_2_9::platform

#endif
