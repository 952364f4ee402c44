#include "platform/scripted/scripted_platform.hpp"

#include <algorithm>
#include <memory>

#include "platform/debug_line.hpp"
#include "platform/directory_entries.hpp"
#include "platform/file_changes.hpp"
#include "platform/file_status.hpp"
#include "platform/file_stream.hpp"
#include "platform/program_path.hpp"

namespace quor_test {

namespace {

void reserve_streams();

} // namespace

scripted_disk &disk() {
	static scripted_disk instance;
	return instance;
}

scripted_disk &fresh_disk() {
	disk() = scripted_disk();
	reserve_streams();
	return disk();
}

namespace {

struct open_stream {
	wide_string path;
	std::size_t at = 0;
};

// Has its room from the start, so that opening a stream takes no memory of its own.
std::vector<open_stream> &streams() {
	static std::vector<open_stream> instance;
	return instance;
}

// Null where the path leads nowhere.
scripted_file *found(wide_string const &path) {
	auto const at = disk().files.find(path.substr(0, path.find(wide_string::value_type(0))));
	return at != disk().files.end() ? &at->second : nullptr;
}

void reserve_streams() {
	streams().reserve(streams().size() + 64);
}

std::intptr_t opened(wide_string const &path) {
	++disk().opened;
	streams().push_back({path, 0});
	return static_cast<std::intptr_t>(streams().size() - 1);
}

open_stream &stream_of(std::intptr_t handle) {
	return streams()[static_cast<std::size_t>(handle)];
}

} // namespace
} // namespace quor_test

namespace QUOR_2_9::platform {

using quor_test::disk;
using quor_test::found;
using quor_test::scripted_file;
using quor_test::stream_of;

void debug_line(char const *text) noexcept {
	disk().debug_lines += text;
}

std::optional<file_status> status(types::wide_string const &path) {
	auto *const file = found(path);
	if (file == nullptr) {
		return std::nullopt;
	}
	if (file->looks == 0) {
		disk().files.erase(path);
		return std::nullopt;
	}
	if (file->looks != scripted_file::all) {
		--file->looks;
	}
	file_status result;
	result.mode |= file->kind == scripted_file::file ? mode_regular : 0U;
	result.mode |= file->kind == scripted_file::directory ? mode_directory : 0U;
	result.mode |= file->readable ? mode_owner_read : 0U;
	result.identity.index = file->index;
	return result;
}

bool rename_without_replacing(types::wide_string const &from, types::wide_string const &to) {
	disk().moved.push_back(from);
	disk().moved.push_back(to);
	if (found(from) == nullptr || found(to) != nullptr) {
		return false;
	}
	disk().files[to] = *found(from);
	disk().files.erase(from);
	return true;
}

bool remove_file(types::wide_string const &path) {
	auto const *const file = found(path);
	return file != nullptr && file->kind != scripted_file::directory && disk().files.erase(path) == 1;
}

bool remove_directory(types::wide_string const &path) {
	auto const *const file = found(path);
	return file != nullptr && file->kind == scripted_file::directory && disk().files.erase(path) == 1;
}

bool make_directory(types::wide_string const &path) {
	disk().created.push_back(path);
	if (disk().full || found(path) != nullptr) {
		return false;
	}
	disk().files[path] = scripted_file::listing({}, disk().files.size() + 1000);
	return true;
}

bool slash_separates_program_path() noexcept {
	return disk().slash_separates;
}

std::vector<types::wide_string> directory_entries(types::wide_string const &directory) {
	auto const *const file = found(directory);
	if (file == nullptr || file->kind != scripted_file::directory || !file->opens || file->looks == 0) {
		return {};
	}
	return file->names;
}

input_file::input_file(types::wide_string const &path) {
	auto const *const file = found(path);
	if (file != nullptr && file->kind == scripted_file::file && file->opens && file->looks != 0) {
		m_handle = quor_test::opened(path);
	}
}

input_file::~input_file() {
	disk().closed += is_open() ? 1U : 0U;
}

std::int64_t input_file::size() noexcept {
	auto const *const file = found(stream_of(m_handle).path);
	return file->size.value_or(static_cast<std::int64_t>(file->content.size()));
}

std::size_t input_file::read(char *to, std::size_t count) noexcept {
	auto &stream = stream_of(m_handle);
	auto const *const file = found(stream.path);
	auto const end = std::min(file->content.size(), file->read_limit);
	auto const from = std::min(end, stream.at);
	auto const step = std::min(count, end - from);
	std::copy_n(file->content.data() + from, step, to);
	stream.at += step;
	return step;
}

std::size_t input_file::read_at(std::uint64_t position, char *to, std::size_t count) noexcept {
	stream_of(m_handle).at = static_cast<std::size_t>(position);
	return read(to, count);
}

output_file::output_file(types::wide_string const &path) {
	auto *const file = found(path);
	if (file == nullptr ? disk().full || path.empty() : file->kind == scripted_file::directory || !file->opens) {
		return;
	}
	disk().files[path].content.clear();
	m_handle = quor_test::opened(path);
}

output_file::~output_file() {
	disk().closed += is_open() ? 1U : 0U;
}

std::size_t output_file::write(char const *from, std::size_t count) noexcept {
	auto *const file = found(stream_of(m_handle).path);
	auto const step = std::min(count, file->write_limit - std::min(file->write_limit, file->content.size()));
	file->content.append(from, step);
	return step;
}

} // namespace QUOR_2_9::platform
