#ifndef QUOR_SYSTEM_FILE_HPP
#define QUOR_SYSTEM_FILE_HPP

/// @file
/// Reading and writing whole files as raw bytes. Paths are as `quor/system/io.hpp` tells.
///
///     std::string content;
///     if (quor::system::load_file("a\\notes.txt", content) != 0) {
///         // no such file
///     }
///     quor::system::store_file("b\\notes.txt", content);
///
/// @since 2.9

#include <string>

#include <quor/export.hpp>
#include <quor/strings/ustring.hpp>

namespace QUOR_2_9::system {

/// Reads a whole file: 0 when it could be opened, 1 when not; there is no other result.
///
/// The bytes are taken as they stand: no byte order mark is dropped, nothing is decoded
/// or validated. With result 1 `content` keeps its old value. Only a regular file opens:
/// a directory, a pipe or a device gives 1, and nothing here ever waits. `content` is
/// resized to the file's size, then filled; a file that gives fewer bytes than that (it
/// shrank meanwhile, or a read failed) leaves the rest as the resizing left it, and the
/// result is 0 all the same.
/// @throws std::length_error or std::bad_alloc where the size is beyond what a string can
/// hold; then `content` keeps its old value.
/// Untrusted input: takes memory for the file's size, sparse files included.
/// @since 2.9
/// @{
QUOR_API int load_file(strings::ustring8 const &path, std::string &content);
QUOR_API int load_file(strings::ustring16 const &path, std::string &content);
QUOR_API int load_file(strings::ustring32 const &path, std::string &content);
QUOR_API int load_file(strings::ustring8 const &path, strings::ustring8 &content);
QUOR_API int load_file(strings::ustring16 const &path, strings::ustring8 &content);
QUOR_API int load_file(strings::ustring32 const &path, strings::ustring8 &content);
/// @}

/// Writes a whole file: 0 when it could be opened, 1 when not; there is no other result.
///
/// A missing file is created, an existing one loses its old content. All bytes of
/// `content` are written, zero bytes included. A missing directory, and a path that is a
/// directory or a pipe, give 1. A write that fails afterwards, on a full disk say, isn't
/// reported.
/// @since 2.9
/// @{
QUOR_API int store_file(strings::ustring8 const &path, strings::ustring8 const &content);
QUOR_API int store_file(strings::ustring16 const &path, strings::ustring8 const &content);
QUOR_API int store_file(strings::ustring32 const &path, strings::ustring8 const &content);
/// @}

/// Whether the permission bit "the owner may read" is set, whoever asks; false where the
/// path can't be examined. Nothing is opened, so a file of somebody else may answer true
/// and still not load. On Windows every file has the bit.
/// @since 2.9
/// @{
QUOR_API bool have_read_access(strings::ustring8 const &path);
QUOR_API bool have_read_access(strings::ustring16 const &path);
QUOR_API bool have_read_access(strings::ustring32 const &path);
/// @}

} // namespace QUOR_2_9::system

#endif
