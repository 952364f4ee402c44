#ifndef QUOR_CLI_CATALOG_FILE_NAMES_HPP
#define QUOR_CLI_CATALOG_FILE_NAMES_HPP

#include <map>
#include <string>
#include <string_view>

namespace quor_cli {

// The path in one spelling: slashes, without "." and without ".." where a directory stands in
// front of it that is no link.
std::string tidy_path(std::string_view path);

// One name for all paths that lead over links to the same directory.
std::string directory_identity(std::string const &path);

// Whether one may read the names in a directory.
bool is_listable(std::string const &path);

// Keeps one spelling for each file. Of the links in a path those to directories are looked
// through; a link to a file is a file of its own, as its includes lie beside the link.
class file_names {
public:
	// The spelling under which the file was met first.
	std::string const &first_spelling(std::string const &path);

private:
	std::map<std::string, std::string> m_spellings;
};

} // namespace quor_cli

#endif
