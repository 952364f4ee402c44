#include "platform/file_changes.hpp"

#include "platform/windows/windows_api.hpp"

namespace QUOR_2_9::platform {

bool rename_without_replacing(types::wide_string const &from, types::wide_string const &to) {
	return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_COPY_ALLOWED) != 0;
}

bool remove_file(types::wide_string const &path) {
	return DeleteFileW(path.c_str()) != 0;
}

bool remove_directory(types::wide_string const &path) {
	return RemoveDirectoryW(path.c_str()) != 0;
}

bool make_directory(types::wide_string const &path) {
	return CreateDirectoryW(path.c_str(), nullptr) != 0;
}

} // namespace QUOR_2_9::platform
