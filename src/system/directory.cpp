#include <quor/system/directory.hpp>

#include <algorithm>
#include <utility>

#include <quor/debug/invalid_parameter.hpp>
#include <quor/system/io.hpp>

#include "platform/directory_entries.hpp"
#include "platform/file_changes.hpp"
#include "system/examine.hpp"
#include "system/wide_path.hpp"

namespace QUOR_2_9::system {
namespace {

using detail::from_wide;
using detail::to_wide;
using strings::ustring16;
using strings::ustring32;
using strings::ustring8;

constexpr types::wide_char separator = QUOR_W('\\');

bool is_this_or_parent(types::wide_string const &name) {
	return name == QUOR_W(".") || name == QUOR_W("..");
}

ustring16 joined(ustring16 const &directory, types::wide_string const &name) {
	ustring16 path;
	path.reserve(directory.size() + 1 + name.size());
	path.append(directory).append(1, separator).append(name);
	return path;
}

/// A directory that the walk is inside of.
struct walk_level {
	ustring16 path;
	detail::file_identity identity;
	std::vector<types::wide_string> names;
	std::size_t next = 0;
};

walk_level entered(ustring16 path, detail::file_identity const &identity) {
	auto names = platform::directory_entries(path);
	return {std::move(path), identity, std::move(names)};
}

template <class Text>
void append_files_below(ustring16 const &path, std::vector<Text> &files) {
	std::vector<walk_level> chain;
	auto const start = detail::examine(path);
	chain.push_back(entered(path, start ? start->identity : detail::file_identity()));
	while (!chain.empty()) {
		auto &level = chain.back();
		if (level.next == level.names.size()) {
			chain.pop_back();
			continue;
		}
		auto const &name = level.names[level.next++];
		if (is_this_or_parent(name)) {
			continue;
		}
		auto full = joined(level.path, name);
		auto const found = detail::examine(full);
		if (!found || !found->is_readable) {
			continue;
		}
		if (found->is_file) {
			files.push_back(from_wide<Text>(full));
		} else if (found->is_directory && std::none_of(chain.begin(), chain.end(), [&](walk_level const &outer) {
			           return outer.identity.is_same_as(found->identity);
		           })) {
			chain.push_back(entered(std::move(full), found->identity));
		}
	}
}

template <class Text>
std::vector<Text> entries_of(ustring16 const &path) {
	std::vector<Text> result;
	auto const names = platform::directory_entries(path);
	for (std::size_t i = 1; i < names.size(); ++i) {
		if (!is_this_or_parent(names[i])) {
			result.push_back(from_wide<Text>(joined(path, names[i])));
		}
	}
	return result;
}

} // namespace

bool create_directory(ustring8 const &path) {
	return create_directory(to_wide(path));
}

bool create_directory(ustring16 const &path) {
	if (io::is_directory(path)) {
		return true;
	}
	if (path.empty()) {
		debug::invalid_parameter("string subscript out of range", "system\\directory", __LINE__);
	}
	for (auto at = path.find(separator, 1); at != ustring16::npos; at = path.find(separator, at + 1)) {
		platform::make_directory(path.substr(0, at));
	}
	return platform::make_directory(path);
}

bool create_directory(ustring32 const &path) {
	return create_directory(to_wide(path));
}

void get_directory_files(ustring8 const &path, std::vector<ustring8> &files) {
	append_files_below(to_wide(path), files);
}

void get_directory_files(ustring16 const &path, std::vector<ustring16> &files) {
	append_files_below(path, files);
}

void get_directory_files(ustring32 const &path, std::vector<ustring32> &files) {
	append_files_below(to_wide(path), files);
}

std::vector<ustring8> list_directory(ustring8 const &path) {
	return entries_of<ustring8>(to_wide(path));
}

std::vector<ustring16> list_directory(ustring16 const &path) {
	return entries_of<ustring16>(path);
}

std::vector<ustring32> list_directory(ustring32 const &path) {
	return entries_of<ustring32>(to_wide(path));
}

} // namespace QUOR_2_9::system
