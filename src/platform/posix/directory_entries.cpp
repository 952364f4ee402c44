#include "platform/directory_entries.hpp"

#include <memory>
#include <string_view>

#include <dirent.h>

#include "platform/posix/native_path.hpp"

namespace QUOR_2_9::platform {
namespace {

struct close_directory {
	void operator()(DIR *directory) const noexcept { ::closedir(directory); }
};

} // namespace

std::vector<types::wide_string> directory_entries(types::wide_string const &directory) {
	std::vector<types::wide_string> names;
	auto const native = native_path(directory);
	if (!native || directory.find(types::wide_char(0)) != types::wide_string::npos) {
		return names;
	}
	std::unique_ptr<DIR, close_directory> const open(::opendir(native->c_str()));
	if (!open) {
		return names;
	}
	names.emplace_back(QUOR_W("."));
	names.emplace_back(QUOR_W(".."));
	while (dirent const *entry = ::readdir(open.get())) {
		std::string_view const name = entry->d_name;
		if (name == "." || name == "..") {
			continue;
		}
		if (auto wide = name_from_native(name)) {
			names.push_back(std::move(*wide));
		}
	}
	return names;
}

} // namespace QUOR_2_9::platform
