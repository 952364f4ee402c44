#ifndef QUOR_CLI_CATALOG_COVERAGE_HPP
#define QUOR_CLI_CATALOG_COVERAGE_HPP

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "catalog/checker.hpp"

namespace quor_cli {

// A message as a request for one language finds it.
struct covered_text {
	std::string origin; // the language that the text is written in, "" where there is none
	std::string text;   // rendered with sample values
	bool exists = false;
};

struct covered_message {
	std::string catalog;
	std::string key;
	std::string meta;
	std::vector<covered_text> texts; // one for each language
};

struct language_total {
	std::size_t own = 0;
	std::size_t inherited = 0;
	std::size_t missing = 0;
	std::map<std::string, std::size_t> from; // inherited texts by the language they come from
};

struct coverage {
	std::vector<std::string> languages; // that a request may name, sorted
	std::vector<covered_message> messages;
	std::vector<language_total> totals; // one for each language
	std::vector<std::string> unreadable;
	std::string fault; // why the catalogs don't load, "" if they do
};

coverage measure_coverage(std::vector<std::string> const &paths, progress_function const &progress = {});

// What a share of all is in per cent, to one decimal.
std::string percentage(std::size_t part, std::size_t all);

// The languages of a set that texts are translated into, as a request names them: all but
// ".", and "." itself where there is no other.
std::vector<std::string> target_languages(catalog_set const &set);

// Loads the paths; returns why it failed, or "".
std::string load_catalogs(quor::i18n::message_catalogs &catalogs, std::vector<std::string> const &paths,
                          std::string const &language);

} // namespace quor_cli

#endif
