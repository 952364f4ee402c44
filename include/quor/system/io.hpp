#ifndef QUOR_SYSTEM_IO_HPP
#define QUOR_SYSTEM_IO_HPP

/// @file
/// Questions about one path and changes to one path. Whole files are read and written
/// by `quor/system/file.hpp`; directories are created and listed by
/// `quor/system/directory.hpp`.
///
///     if (quor::system::io::is_file("draft.txt")) {
///         quor::system::io::move("final.txt", "draft.txt"); // the new name comes first
///     }
///
/// Paths, here and in the two neighbours. A path is text in any of the three string
/// classes, with backslashes between its names, and becomes UTF-16 before it meets the
/// system, by `utf8_to_utf16` or `utf32_to_utf16`. Two of their rules show: malformed
/// text becomes the path "-1", and a character above U+FFFF in a `ustring8` or
/// `ustring32` moves by 0x10000, so that only a `ustring16` can name a file with such a
/// character as it is, and what a listing gives back begins with the moved text. A path
/// ends at its first zero unit. An empty path names nothing: every operation on it fails.
/// On systems that separate names with a slash each backslash is turned into one and the
/// path goes out as UTF-8; a path with an unpaired surrogate names nothing there. Links
/// are followed.
///
/// No operation throws anything but `std::bad_alloc` or `std::length_error` for want of
/// memory. Thread-safety: no state is kept; each operation is as atomic as the system's.
///
/// @since 2.9

#include <quor/export.hpp>
#include <quor/strings/ustring.hpp>

namespace QUOR_2_9::system::io {

/// Whether the path leads to anything: a file, a directory, a device. A link whose
/// target is missing doesn't.
/// @since 2.9
/// @{
QUOR_API bool exists(strings::ustring8 const &path);
QUOR_API bool exists(strings::ustring16 const &path);
QUOR_API bool exists(strings::ustring32 const &path);
/// @}

/// Whether the path leads to a directory; false where it can't be examined.
/// @since 2.9
/// @{
QUOR_API bool is_directory(strings::ustring8 const &path);
QUOR_API bool is_directory(strings::ustring16 const &path);
QUOR_API bool is_directory(strings::ustring32 const &path);
/// @}

/// Whether the path leads to a regular file; false for directories, pipes, sockets and
/// devices, and where it can't be examined.
/// @since 2.9
/// @{
QUOR_API bool is_file(strings::ustring8 const &path);
QUOR_API bool is_file(strings::ustring16 const &path);
QUOR_API bool is_file(strings::ustring32 const &path);
/// @}

/// Renames a file or directory: `move("new.txt", "old.txt")`. The new path comes first.
///
/// Nothing is reported; ask `exists`. Nothing is replaced: where `target` exists, nothing
/// happens. A file can go to another volume on Windows alone, a directory nowhere. The test
/// is part of the rename itself, except on file systems that offer no exclusive rename,
/// where another process may create a directory's new name in between.
/// @since 2.9
/// @{
QUOR_API void move(strings::ustring8 const &target, strings::ustring8 const &source);
QUOR_API void move(strings::ustring16 const &target, strings::ustring16 const &source);
QUOR_API void move(strings::ustring32 const &target, strings::ustring32 const &source);
/// @}

/// Deletes a file, or the link itself where the path names one. A directory stays.
/// Nothing is reported; ask `exists`.
/// @since 2.9
/// @{
QUOR_API void remove_file(strings::ustring8 const &path);
QUOR_API void remove_file(strings::ustring16 const &path);
QUOR_API void remove_file(strings::ustring32 const &path);
/// @}

/// Deletes an empty directory. A file, and a directory with entries, stay. Nothing is
/// reported; ask `exists`.
/// @since 2.9
/// @{
QUOR_API void remove_dir(strings::ustring8 const &path);
QUOR_API void remove_dir(strings::ustring16 const &path);
QUOR_API void remove_dir(strings::ustring32 const &path);
/// @}

} // namespace QUOR_2_9::system::io

#endif
