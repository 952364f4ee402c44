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

/// Opens without waiting for a pipe's other side, and without taking a terminal over; -1
/// where the path doesn't open or leads to a file of a type that isn't `wanted`. Such a
/// file isn't opened even for a moment, unless it comes in between: the other side of a
/// pipe would notice.
template <class Wanted>
int open_path(types::wide_string const &path, int flags, Wanted wanted) {
	auto const native = native_path(path);
	struct stat found = {};
	if (!native || (::stat(native->c_str(), &found) == 0 && !wanted(found.st_mode))) {
		return -1;
	}
	int handle = -1;
	do {
		handle = ::open(native->c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0666);
	} while (handle == -1 && errno == EINTR);
	if (handle != -1 && (::fstat(handle, &found) != 0 || !wanted(found.st_mode))) {
		::close(handle);
		return -1;
	}
	return handle;
}

int handle_of(std::intptr_t handle) {
	return static_cast<int>(handle);
}

/// Reads up to `count` bytes by `step(to, count)`, which reads some.
template <class Step>
std::size_t read_by(Step step, char *to, std::size_t count) {
	std::size_t done = 0;
	while (done != count) {
		auto const taken = step(to + done, std::min(count - done, largest_step));
		if (taken > 0) {
			done += static_cast<std::size_t>(taken);
		} else if (taken == 0 || errno != EINTR) {
			break;
		}
	}
	return done;
}

} // namespace

input_file::input_file(types::wide_string const &path)
    : m_handle(open_path(path, O_RDONLY, [](mode_t mode) { return S_ISREG(mode); })) {}

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
	int const handle = handle_of(m_handle);
	return read_by([handle](char *target, std::size_t size) { return ::read(handle, target, size); }, to, count);
}

std::size_t input_file::read_at(std::uint64_t position, char *to, std::size_t count) noexcept {
	int const handle = handle_of(m_handle);
	auto const step = [handle, position, to](char *target, std::size_t size) {
		return ::pread(handle, target, size, static_cast<off_t>(position) + (target - to));
	};
	return read_by(step, to, count);
}

output_file::output_file(types::wide_string const &path)
    : m_handle(open_path(path, O_WRONLY | O_CREAT | O_TRUNC, [](mode_t mode) { return !S_ISFIFO(mode); })) {}

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
