#include "catalog/source.hpp"

#include <algorithm>
#include <set>

#include <quor/quor.hpp>

namespace quor_cli {

namespace {

using quor::strings::ustring8;

std::string with_slashes(std::string_view path) {
	std::string result(path);
	std::replace(result.begin(), result.end(), '\\', '/');
	return result;
}

bool is_catalog_name(std::string_view path) {
	ustring8 const lower = quor::strings::lower_case(ustring8(path.substr(path.size() < 4 ? 0 : path.size() - 4)));
	return lower == ".xmc" || lower == ".xml";
}

std::string_view directory_of(std::string_view path) {
	return path.substr(0, path.rfind('/'));
}

// The walk of the library passes over files that it can't read; they are looked for
// beside those that it found.
void add_unreadable(std::string const &directory, std::set<std::string> const &found,
                    std::vector<std::string> &unreadable) {
	std::set<std::string> directories{directory};
	for (std::string const &file : found) {
		directories.emplace(directory_of(file));
	}
	for (std::string const &each : directories) {
		for (ustring8 const &entry : quor::system::list_directory(ustring8(each))) {
			std::string const path = with_slashes(entry);
			if (is_catalog_name(path) && quor::system::io::is_file(entry) && found.count(path) == 0) {
				unreadable.push_back(tidy_path(path));
			}
		}
	}
}

void add_directory(std::string const &directory, catalog_files &result) {
	std::vector<ustring8> all;
	quor::system::get_directory_files(ustring8(directory), all);
	std::set<std::string> found;
	for (ustring8 const &each : all) {
		if (std::string path = with_slashes(each); is_catalog_name(path)) {
			found.insert(std::move(path));
		}
	}
	for (std::string const &each : found) {
		result.files.push_back(tidy_path(each));
	}
	add_unreadable(directory, found, result.unreadable);
}

} // namespace

catalog_files find_catalog_files(std::vector<std::string> const &paths) {
	catalog_files result;
	for (std::string const &path : paths) {
		std::string directory = with_slashes(path);
		while (directory.size() > 1 && directory.back() == '/') {
			directory.pop_back();
		}
		if (quor::system::io::is_file(ustring8(path))) {
			result.files.push_back(tidy_path(path));
		} else if (quor::system::io::is_directory(ustring8(directory))) {
			add_directory(directory, result);
		} else {
			result.unreadable.push_back(path);
		}
	}
	std::set<std::string> seen;
	auto const last = std::remove_if(result.files.begin(), result.files.end(),
	                                 [&seen](std::string const &file) { return !seen.insert(file).second; });
	result.files.erase(last, result.files.end());
	return result;
}

std::string tidy_path(std::string_view path) {
	std::vector<std::string_view> names;
	std::string const text = with_slashes(path);
	std::string_view rest = text;
	while (!rest.empty()) {
		std::size_t const end = std::min(rest.find('/'), rest.size());
		std::string_view const name = rest.substr(0, end);
		rest.remove_prefix(std::min(end + 1, rest.size()));
		if (name == ".." && !names.empty() && names.back() != "..") {
			names.pop_back();
		} else if (!name.empty() && name != ".") {
			names.push_back(name);
		}
	}
	std::string result = text.front() == '/' ? "/" : "";
	for (std::string_view const name : names) {
		result.append(result.empty() || result == "/" ? "" : "/").append(name);
	}
	return result.empty() ? "." : result;
}

std::string include_path(std::string const &including, std::string const &included) {
	bool const whole =
	    included.front() == '/' || included.front() == '\\' || (included.size() > 2 && included[1] == ':');
	if (whole) {
		return tidy_path(included);
	}
	std::size_t const separator = including.find_last_of("\\/");
	return tidy_path((separator == std::string::npos ? "./" : including.substr(0, separator + 1)) + included);
}

line_table::line_table(std::string_view text) {
	for (std::size_t at = text.find('\n'); at != std::string_view::npos; at = text.find('\n', at + 1)) {
		m_feeds.push_back(at);
	}
}

std::size_t line_table::line(std::size_t offset) const {
	auto const next = std::lower_bound(m_feeds.begin(), m_feeds.end(), offset);
	return static_cast<std::size_t>(next - m_feeds.begin()) + 1;
}

} // namespace quor_cli
