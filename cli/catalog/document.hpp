#ifndef QUOR_CLI_CATALOG_DOCUMENT_HPP
#define QUOR_CLI_CATALOG_DOCUMENT_HPP

#include <cstddef>
#include <string>
#include <vector>

#include "catalog/finding.hpp"
#include "catalog/source.hpp"

namespace quor_cli {

struct attribute_use {
	std::string name;
	std::string value;
};

struct argument_use {
	std::vector<attribute_use> attributes; // all, in the order of the file
	std::size_t line = 0;

	// The value of an attribute, null where there is none.
	std::string const *find(std::string_view name) const;
	std::string name() const;
};

struct message_use {
	std::string name;
	std::size_t line = 0;
	std::vector<argument_use> arguments;
};

struct catalog_use {
	std::string name;
	std::string language;
	std::size_t line = 0;
	bool loads = false; // whether any request reads it
	std::vector<message_use> messages;
};

struct include_use {
	std::string path; // as it is found
	std::size_t line = 0;
};

// What a file holds, as far as it can be read, and the faults that make the loader refuse it.
struct document {
	std::string file;
	std::size_t size = 0; // in bytes
	std::vector<catalog_use> catalogs;
	std::vector<include_use> includes;
	std::vector<finding> faults; // and what is no text
};

// Reads the text of a file to its end, over all faults.
document read_document(std::string const &file, std::string const &text);

// Whether a request for `request` reads catalogs of `language`; both as written.
bool accepts_language(std::string const &request, std::string const &language);

} // namespace quor_cli

#endif
