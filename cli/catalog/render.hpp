#ifndef QUOR_CLI_CATALOG_RENDER_HPP
#define QUOR_CLI_CATALOG_RENDER_HPP

#include <string>
#include <utility>
#include <vector>

#include "terminal/terminal.hpp"

namespace quor_cli {

struct render_request {
	std::string path;
	std::string language;
	std::string catalog; // empty for all
	std::string key;     // empty for all
	std::vector<std::pair<std::string, std::string>> values;
	bool all_languages = false;
};

// Reads the words behind the path: a language unless all are wanted, a catalog, a key, and
// values as NAME=VALUE. Throws std::invalid_argument.
render_request parse_render_words(std::string const &path, std::vector<std::string> const &words, bool all_languages);

// Renders what is asked for; returns the exit status.
int render(render_request const &request, terminal &to);

} // namespace quor_cli

#endif
