#include "catalog/source.hpp"

#include <algorithm>
#include <set>
#include <utility>

#include <quor/quor.hpp>

#include "catalog/file_names.hpp"

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

// Walks a directory as the library loads it, and notes what can't be read on the way.
void add_directory(std::string const &root, catalog_files &result) {
	std::set<std::string> found;
	std::set<std::string> visited;
	std::vector<std::string> open{root};
	while (!open.empty()) {
		std::string const directory = std::move(open.back());
		open.pop_back();
		if (!visited.insert(directory_identity(directory)).second) {
			continue;
		}
		std::vector<ustring8> const entries = quor::system::list_directory(ustring8(directory));
		if (entries.empty() && !is_listable(directory)) {
			result.unreadable.push_back(tidy_path(directory));
		}
		for (ustring8 const &entry : entries) {
			std::string path = with_slashes(entry);
			if (quor::system::io::is_file(entry)) {
				if (is_catalog_name(path)) {
					found.insert(std::move(path));
				}
			} else if (quor::system::io::is_directory(entry)) {
				open.push_back(std::move(path));
			}
		}
	}
	for (std::string const &each : found) {
		result.files.push_back(tidy_path(each));
	}
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
	file_names names;
	std::set<std::string> seen;
	auto const last = std::remove_if(result.files.begin(), result.files.end(), [&](std::string const &file) {
		return !seen.insert(names.first_spelling(file)).second;
	});
	result.files.erase(last, result.files.end());
	return result;
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
	for (std::size_t at = text.find_first_of("\r\n"); at != std::string_view::npos;
	     at = text.find_first_of("\r\n", at + 1)) {
		if (text[at] == '\n' || text.substr(at, 2) != "\r\n") {
			m_feeds.push_back(at);
		}
	}
}

std::size_t line_table::line(std::size_t offset) const {
	auto const next = std::lower_bound(m_feeds.begin(), m_feeds.end(), offset);
	return static_cast<std::size_t>(next - m_feeds.begin()) + 1;
}

} // namespace quor_cli
