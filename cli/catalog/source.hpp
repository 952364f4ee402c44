#ifndef QUOR_CLI_CATALOG_SOURCE_HPP
#define QUOR_CLI_CATALOG_SOURCE_HPP

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quor_cli {

// The catalog files that paths lead to: a file stands for itself, a directory for the
// files that the library would load from it, sorted by name. No file stands there twice.
struct catalog_files {
	std::vector<std::string> files;
	std::vector<std::string> unreadable; // missing paths, and directories that can't be listed
};

catalog_files find_catalog_files(std::vector<std::string> const &paths);

// The file that an include names, as the loader finds it from the including file.
std::string include_path(std::string const &including, std::string const &included);

// Finds lines in a text that may be changed afterwards. A line ends in a line feed, a
// carriage return or both.
class line_table {
public:
	explicit line_table(std::string_view text);
	std::size_t line(std::size_t offset) const; // from 1

private:
	std::vector<std::size_t> m_feeds;
};

} // namespace quor_cli

#endif
