#ifndef QUOR_CLI_CATALOG_SOURCE_HPP
#define QUOR_CLI_CATALOG_SOURCE_HPP

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quor_cli {

// The catalog files that paths lead to: a file stands for itself, a directory for the
// files that the library would load from it, sorted by name.
struct catalog_files {
	std::vector<std::string> files;
	std::vector<std::string> unreadable; // missing paths, and files that don't open
};

catalog_files find_catalog_files(std::vector<std::string> const &paths);

// The path in one spelling: slashes, without "." and without ".." where a name stands in
// front of it.
std::string tidy_path(std::string_view path);

// The file that an include names, as the loader finds it from the including file.
std::string include_path(std::string const &including, std::string const &included);

// Finds lines in a text that may be changed afterwards.
class line_table {
public:
	explicit line_table(std::string_view text);
	std::size_t line(std::size_t offset) const; // from 1

private:
	std::vector<std::size_t> m_feeds;
};

} // namespace quor_cli

#endif
