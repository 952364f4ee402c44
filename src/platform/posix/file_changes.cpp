#include "platform/file_changes.hpp"

#include <cerrno>
#include <cstdio>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/native_path.hpp"

namespace QUOR_2_9::platform {
namespace {

/// For file systems without an exclusive rename. A file gets its new name by a link,
/// which never replaces; what can't be linked (a directory) is renamed after a look at
/// the new name, so that for these another process may slip in between.
bool rename_in_two_steps(std::string const &from, std::string const &to) {
	struct stat found = {};
	if (::lstat(from.c_str(), &found) != 0) {
		return false;
	}
	if (!S_ISDIR(found.st_mode)) {
		if (::linkat(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), 0) == 0) {
			return ::unlink(from.c_str()) == 0;
		}
		if (errno == EEXIST) {
			return false;
		}
	}
	if (::lstat(to.c_str(), &found) == 0 || errno != ENOENT) {
		return false;
	}
	return std::rename(from.c_str(), to.c_str()) == 0;
}

} // namespace

bool rename_without_replacing(types::wide_string const &from, types::wide_string const &to) {
	auto const native_from = native_path(from);
	auto const native_to = native_path(to);
	if (!native_from || !native_to) {
		return false;
	}
#ifdef RENAME_NOREPLACE
	if (::renameat2(AT_FDCWD, native_from->c_str(), AT_FDCWD, native_to->c_str(), RENAME_NOREPLACE) == 0) {
		return true;
	}
	if (errno != ENOSYS && errno != EINVAL) {
		return false;
	}
#endif
	return rename_in_two_steps(*native_from, *native_to);
}

bool remove_file(types::wide_string const &path) {
	auto const native = native_path(path);
	struct stat found = {};
	// Some systems let a privileged process unlink a directory.
	return native && ::lstat(native->c_str(), &found) == 0 && !S_ISDIR(found.st_mode) && ::unlink(native->c_str()) == 0;
}

bool remove_directory(types::wide_string const &path) {
	auto const native = native_path(path);
	return native && ::rmdir(native->c_str()) == 0;
}

bool make_directory(types::wide_string const &path) {
	auto const native = native_path(path);
	return native && ::mkdir(native->c_str(), 0777) == 0;
}

} // namespace QUOR_2_9::platform
