#ifndef QUOR_SYSTEM_DIRECTORY_HPP
#define QUOR_SYSTEM_DIRECTORY_HPP

/// @file
/// Creating and listing directories. Paths are as `quor/system/io.hpp` tells; results
/// come in the class of the argument.
///
///     quor::system::create_directory("out\\logs");
///     for (auto const &path : quor::system::list_directory(quor::strings::ustring8("out"))) {
///         // "out\\logs"
///     }
///
/// @since 2.9

#include <vector>

#include <quor/export.hpp>
#include <quor/strings/ustring.hpp>

namespace QUOR_2_9::system {

/// Creates a directory with its parents: true when it exists already, or when the last
/// step, the creation of the whole path, succeeds.
///
/// The path is cut at its backslashes and each prefix is tried in turn; failures of these
/// steps are passed over. A forward slash doesn't cut. A path that ends in a backslash
/// gets its directory made by the last prefix, and the last step then fails: a new
/// `create_directory("x\\y\\")` makes both levels and returns false.
///
/// An empty path is a checked-index failure (`debug::invalid_parameter`); where the
/// handler returns, the result is false.
/// @since 2.9
/// @{
QUOR_API bool create_directory(strings::ustring8 const &path);
QUOR_API bool create_directory(strings::ustring16 const &path);
QUOR_API bool create_directory(strings::ustring32 const &path);
/// @}

/// Appends to `files` the paths of all readable regular files below a directory, depth
/// first, in the order in which the system lists them. `files` isn't cleared.
///
/// Each path is that of the directory as it was given, a backslash, and the names below
/// it with backslashes between; so a directory given as "d\\" yields "d\\\\name". Links
/// are followed, but not into a directory that the walk is already inside of. "Readable"
/// is what `have_read_access` answers. A directory that can't be read, and a path with a
/// zero unit in it, adds nothing. `path` may be an element of `files`.
/// Names that a path can't spell (with a backslash in them, or not UTF-8, on systems
/// that allow this) are left out.
///
/// Cost: linear in what is found; the depth isn't paid for with the call stack.
/// @since 2.9
/// @{
QUOR_API void get_directory_files(strings::ustring8 const &path, std::vector<strings::ustring8> &files);
QUOR_API void get_directory_files(strings::ustring16 const &path, std::vector<strings::ustring16> &files);
QUOR_API void get_directory_files(strings::ustring32 const &path, std::vector<strings::ustring32> &files);
/// @}

/// The paths of the entries of one directory, files, directories and all else alike, in
/// the system's order. Each path is that of the directory as it was given, a backslash
/// and the name. Empty where the directory can't be read, and for a path with a zero in it.
///
/// "." and ".." are left out, and so is the system's first entry, unseen: it is "."
/// nearly everywhere; on a file system where it isn't (the root of a drive on Windows), an
/// entry is missing.
/// @since 2.9
/// @{
QUOR_API std::vector<strings::ustring8> list_directory(strings::ustring8 const &path);
QUOR_API std::vector<strings::ustring16> list_directory(strings::ustring16 const &path);
QUOR_API std::vector<strings::ustring32> list_directory(strings::ustring32 const &path);
/// @}

} // namespace QUOR_2_9::system

#endif
