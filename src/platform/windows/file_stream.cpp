#include "platform/file_stream.hpp"

#include <algorithm>

#include "platform/windows/windows_api.hpp"

namespace QUOR_2_9::platform {
namespace {

constexpr std::size_t largest_step = std::size_t(1) << 30;

// The value of INVALID_HANDLE_VALUE is the one that stands for "closed".
std::intptr_t number_of(HANDLE handle) {
	return reinterpret_cast<std::intptr_t>(handle);
}

HANDLE handle_of(std::intptr_t number) {
	return reinterpret_cast<HANDLE>(number);
}

/// The handle where it is a file on a disk; others are closed again.
std::intptr_t disk_file_only(HANDLE handle) {
	if (handle != INVALID_HANDLE_VALUE && GetFileType(handle) != FILE_TYPE_DISK) {
		CloseHandle(handle);
		handle = INVALID_HANDLE_VALUE;
	}
	return number_of(handle);
}

} // namespace

input_file::input_file(types::wide_string const &path)
    : m_handle(disk_file_only(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                          OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr))) {}

input_file::~input_file() {
	if (is_open()) {
		CloseHandle(handle_of(m_handle));
	}
}

std::int64_t input_file::size() noexcept {
	LARGE_INTEGER result = {};
	return GetFileSizeEx(handle_of(m_handle), &result) ? result.QuadPart : -1;
}

std::size_t input_file::read(char *to, std::size_t count) noexcept {
	std::size_t done = 0;
	while (done != count) {
		DWORD step = 0;
		auto const wanted = static_cast<DWORD>(std::min(count - done, largest_step));
		if (!ReadFile(handle_of(m_handle), to + done, wanted, &step, nullptr) || step == 0) {
			break;
		}
		done += step;
	}
	return done;
}

std::size_t input_file::read_at(std::uint64_t position, char *to, std::size_t count) noexcept {
	LARGE_INTEGER target = {};
	target.QuadPart = static_cast<LONGLONG>(position);
	return SetFilePointerEx(handle_of(m_handle), target, nullptr, FILE_BEGIN) ? read(to, count) : 0;
}

output_file::output_file(types::wide_string const &path)
    : m_handle(number_of(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                     CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr))) {
	if (is_open() && GetFileType(handle_of(m_handle)) == FILE_TYPE_PIPE) {
		CloseHandle(handle_of(m_handle));
		m_handle = closed;
	}
}

output_file::~output_file() {
	if (is_open()) {
		CloseHandle(handle_of(m_handle));
	}
}

std::size_t output_file::write(char const *from, std::size_t count) noexcept {
	std::size_t done = 0;
	while (done != count) {
		DWORD step = 0;
		auto const wanted = static_cast<DWORD>(std::min(count - done, largest_step));
		if (!WriteFile(handle_of(m_handle), from + done, wanted, &step, nullptr) || step == 0) {
			break;
		}
		done += step;
	}
	return done;
}

} // namespace QUOR_2_9::platform
