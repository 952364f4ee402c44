#include "platform/file_stream.hpp"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/posix/native_path.hpp"

namespace QUOR_2_9::platform {
namespace {

constexpr std::size_t largest_step = std::size_t(1) << 30;

/// Opens without waiting for a pipe's other side, and without taking a terminal over;
/// -1 where the path doesn't open.
int open_path(types::wide_string const &path, int flags) {
	auto const native = native_path(path);
	if (!native) {
		return -1;
	}
	int handle = -1;
	do {
		handle = ::open(native->c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666);
	} while (handle == -1 && errno == EINTR);
	return handle;
}

int handle_of(std::intptr_t handle) {
	return static_cast<int>(handle);
}

} // namespace

input_file::input_file(types::wide_string const &path) {
	int const handle = open_path(path, O_RDONLY);
	if (handle == -1) {
		return;
	}
	struct stat found = {};
	if (::fstat(handle, &found) != 0 || !S_ISREG(found.st_mode)) {
		::close(handle);
		return;
	}
	m_handle = handle;
}

input_file::~input_file() {
	if (is_open()) {
		::close(handle_of(m_handle));
	}
}

std::int64_t input_file::size() noexcept {
	auto const result = ::lseek(handle_of(m_handle), 0, SEEK_END);
	::lseek(handle_of(m_handle), 0, SEEK_SET);
	return result;
}

std::size_t input_file::read(char *to, std::size_t count) noexcept {
	std::size_t done = 0;
	while (done != count) {
		auto const step = ::read(handle_of(m_handle), to + done, std::min(count - done, largest_step));
		if (step > 0) {
			done += static_cast<std::size_t>(step);
		} else if (step == 0 || errno != EINTR) {
			break;
		}
	}
	return done;
}

output_file::output_file(types::wide_string const &path) {
	int const handle = open_path(path, O_WRONLY | O_CREAT | O_TRUNC);
	if (handle == -1) {
		return;
	}
	struct stat found = {};
	if (::fstat(handle, &found) != 0 || S_ISFIFO(found.st_mode)) {
		::close(handle);
		return;
	}
	m_handle = handle;
}

output_file::~output_file() {
	if (is_open()) {
		::close(handle_of(m_handle));
	}
}

std::size_t output_file::write(char const *from, std::size_t count) noexcept {
	std::size_t done = 0;
	while (done != count) {
		auto const step = ::write(handle_of(m_handle), from + done, std::min(count - done, largest_step));
		if (step > 0) {
			done += static_cast<std::size_t>(step);
		} else if (step == 0 || errno != EINTR) {
			break;
		}
	}
	return done;
}

} // namespace QUOR_2_9::platform
