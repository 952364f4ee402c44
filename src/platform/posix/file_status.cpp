#include "platform/file_status.hpp"

#include <sys/stat.h>

#include "platform/posix/native_path.hpp"

namespace QUOR_2_9::platform {

std::optional<file_status> status(types::wide_string const &path) {
	auto const native = native_path(path);
	struct stat found = {};
	if (!native || ::stat(native->c_str(), &found) != 0) {
		return std::nullopt;
	}
	file_status result;
	if (S_ISDIR(found.st_mode)) {
		result.mode |= mode_directory;
	}
	if (S_ISREG(found.st_mode)) {
		result.mode |= mode_regular;
	}
	if ((found.st_mode & S_IRUSR) != 0) {
		result.mode |= mode_owner_read;
	}
	result.identity.volume = static_cast<std::uint64_t>(found.st_dev);
	result.identity.index = static_cast<std::uint64_t>(found.st_ino);
	return result;
}

} // namespace QUOR_2_9::platform
