#ifndef QUOR_CLI_CATALOG_CHECKER_HPP
#define QUOR_CLI_CATALOG_CHECKER_HPP

#include <cstddef>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "catalog/document.hpp"
#include "catalog/finding.hpp"

namespace quor_cli {

// Told how many of all files are done.
using progress_function = std::function<void(std::size_t done, std::size_t all)>;

// The files that paths lead to, and those that they include, as read.
struct catalog_set {
	std::map<std::string, document> documents;
	std::vector<std::string> roots;      // the files that the paths lead to
	std::vector<std::string> unreadable; // paths that can't be read
	std::set<std::string> languages() const;
};

catalog_set read_catalog_set(std::vector<std::string> const &paths, progress_function const &progress);

struct check_result {
	finding_list findings;
	std::vector<std::string> unreadable;
	std::size_t files = 0;
	std::size_t catalogs = 0;
	std::size_t messages = 0; // texts, each language on its own
	std::size_t languages = 0;
};

// Finds everything that is wrong with the catalogs that paths lead to. limit: how many
// findings to keep for each file, 0 for all.
check_result check_catalogs(std::vector<std::string> const &paths, std::size_t limit,
                            progress_function const &progress = {});

// Finds what loads and is surely wrong.
void add_document_doubts(document const &read, finding_list &findings);
void add_set_doubts(catalog_set const &set, finding_list &findings);

} // namespace quor_cli

#endif
