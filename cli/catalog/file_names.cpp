#include "catalog/file_names.hpp"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <system_error>
#include <vector>

namespace quor_cli {

namespace {

std::filesystem::path native(std::string_view path) {
	return {std::u8string(path.begin(), path.end())};
}

bool is_link(std::string_view path) {
	std::error_code ignored;
	return std::filesystem::is_symlink(native(path), ignored);
}

std::string joined(std::vector<std::string_view> const &names, bool from_root) {
	std::string result = from_root ? "/" : "";
	for (std::string_view const name : names) {
		result.append(result.empty() || result == "/" ? "" : "/").append(name);
	}
	return result;
}

} // namespace

std::string tidy_path(std::string_view path) {
	std::string text(path);
	std::replace(text.begin(), text.end(), '\\', '/');
	bool const from_root = !text.empty() && text.front() == '/';
	std::vector<std::string_view> names;
	std::string_view rest = text;
	while (!rest.empty()) {
		std::size_t const end = std::min(rest.find('/'), rest.size());
		std::string_view const name = rest.substr(0, end);
		rest.remove_prefix(std::min(end + 1, rest.size()));
		if (name == ".." && !names.empty() && names.back() != ".." && !is_link(joined(names, from_root))) {
			names.pop_back();
		} else if (!name.empty() && name != ".") {
			names.push_back(name);
		}
	}
	std::string result = joined(names, from_root);
	return result.empty() ? "." : result;
}

std::string directory_identity(std::string const &path) {
	try {
		std::u8string const found = std::filesystem::canonical(native(path)).generic_u8string();
		return {found.begin(), found.end()};
	} catch (std::exception const &) {
		return path;
	}
}

bool is_listable(std::string const &path) {
	try {
		std::error_code error;
		std::filesystem::directory_iterator const first(native(path), error);
		return error != std::errc::permission_denied;
	} catch (std::exception const &) {
		return true;
	}
}

std::string const &file_names::first_spelling(std::string const &path) {
	std::size_t const separator = path.rfind('/');
	std::string const directory = separator == std::string::npos ? "." : path.substr(0, separator + 1);
	std::string const name = separator == std::string::npos ? path : path.substr(separator + 1);
	return m_spellings.emplace(directory_identity(directory) + '/' + name, path).first->second;
}

} // namespace quor_cli
