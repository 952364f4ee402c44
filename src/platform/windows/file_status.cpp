#include "platform/file_status.hpp"

#include "platform/windows/windows_api.hpp"

namespace QUOR_2_9::platform {

std::optional<file_status> status(types::wide_string const &path) {
	// Looking at the attributes is allowed beside any other use of the file; the flag
	// lets directories open. Links are followed.
	HANDLE const handle =
	    CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
	                OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
	if (handle == INVALID_HANDLE_VALUE) {
		return std::nullopt;
	}
	file_status result;
	result.mode = mode_owner_read;
	if (GetFileType(handle) == FILE_TYPE_DISK) {
		BY_HANDLE_FILE_INFORMATION found = {};
		if (!GetFileInformationByHandle(handle, &found)) {
			CloseHandle(handle);
			return std::nullopt;
		}
		result.mode |= (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? mode_directory : mode_regular;
		result.identity.volume = found.dwVolumeSerialNumber;
		result.identity.index = std::uint64_t(found.nFileIndexHigh) << 32 | found.nFileIndexLow;
	}
	CloseHandle(handle);
	return result;
}

} // namespace QUOR_2_9::platform
