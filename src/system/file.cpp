#include <quor/system/file.hpp>

#include <cstdint>

#include "platform/file_stream.hpp"
#include "system/examine.hpp"
#include "system/wide_path.hpp"

namespace QUOR_2_9::system {
namespace {

using detail::to_wide;
using strings::ustring16;
using strings::ustring32;
using strings::ustring8;

int load_wide(ustring16 const &path, std::string &content) {
	platform::input_file file(path);
	if (!file.is_open()) {
		return 1;
	}
	// A size that no string can have, an unknown one too, is the string's to refuse.
	std::int64_t const size = file.size();
	bool const possible = size >= 0 && static_cast<std::uint64_t>(size) <= content.max_size();
	content.resize(possible ? static_cast<std::size_t>(size) : std::string::npos);
	file.read(content.data(), content.size());
	return 0;
}

} // namespace

int load_file(ustring8 const &path, std::string &content) {
	return load_wide(to_wide(path), content);
}

int load_file(ustring16 const &path, std::string &content) {
	return load_wide(path, content);
}

int load_file(ustring32 const &path, std::string &content) {
	return load_wide(to_wide(path), content);
}

int load_file(ustring8 const &path, ustring8 &content) {
	return load_wide(to_wide(path), content);
}

int load_file(ustring16 const &path, ustring8 &content) {
	return load_wide(path, content);
}

int load_file(ustring32 const &path, ustring8 &content) {
	return load_wide(to_wide(path), content);
}

int store_file(ustring8 const &path, ustring8 const &content) {
	return store_file(to_wide(path), content);
}

int store_file(ustring16 const &path, ustring8 const &content) {
	platform::output_file file(path);
	if (!file.is_open()) {
		return 1;
	}
	file.write(content.data(), content.size());
	return 0;
}

int store_file(ustring32 const &path, ustring8 const &content) {
	return store_file(to_wide(path), content);
}

bool have_read_access(ustring8 const &path) {
	return have_read_access(to_wide(path));
}

bool have_read_access(ustring16 const &path) {
	auto const found = detail::examine(path);
	return found && found->is_readable;
}

bool have_read_access(ustring32 const &path) {
	return have_read_access(to_wide(path));
}

} // namespace QUOR_2_9::system
