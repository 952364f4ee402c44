#ifndef QUOR_PLATFORM_FILE_CHANGES_HPP
#define QUOR_PLATFORM_FILE_CHANGES_HPP

#include <quor/types/widths.hpp>

namespace QUOR_2_9::platform {

/// Gives `from` the name `to`; true if done. Nothing is ever replaced: where `to`
/// leads to something, a dangling link too, nothing changes.
bool rename_without_replacing(types::wide_string const &from, types::wide_string const &to);

/// Deletes a file; true if done. A directory stays.
bool remove_file(types::wide_string const &path);

/// Deletes an empty directory; true if done.
bool remove_directory(types::wide_string const &path);

/// Creates one directory, no parents; true if done, false where it exists already.
bool make_directory(types::wide_string const &path);

} // namespace QUOR_2_9::platform

#endif
