#ifndef QUOR_CLI_CATALOG_TOKEN_SEGMENTS_HPP
#define QUOR_CLI_CATALOG_TOKEN_SEGMENTS_HPP

#include <cstddef>
#include <list>
#include <optional>
#include <string>
#include <vector>

#include <quor/quor.hpp>

namespace quor_cli {

// A fault of the XML text.
struct syntax_fault {
	quor::parser::xml_parser::parse_error error; // with the lines that the parser counts
	std::size_t offset = 0;
	std::string open_element; // the innermost element that is open there
	std::size_t open_offset = 0;
	bool in_catalog = false; // whether a catalog is open there
};

// The tokens from the beginning, or from behind a fault, to the next fault or the end.
struct token_segment {
	using token = quor::parser::xml_token_stream::token;

	std::list<token> tokens;
	std::vector<std::size_t> offsets; // where each token begins
	bool in_catalog = false;          // whether the segment begins inside a catalog
	std::optional<syntax_fault> fault;
};

// Reads a text to its end: behind each fault the reading goes on at the next tag that
// begins a message, a catalog or an include, or ends a catalog, and behind the next that ends
// a message. Linear in the text.
std::list<token_segment> read_segments(std::string const &text);

} // namespace quor_cli

#endif
