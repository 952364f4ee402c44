#ifndef QUOR_CLI_CATALOG_FINDING_HPP
#define QUOR_CLI_CATALOG_FINDING_HPP

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace quor_cli {

enum class severity { error, warning };

// What can be found in a catalog file. Errors make the loader refuse the file; warnings
// load and are surely wrong all the same.
enum class finding_kind {
	// errors
	syntax,
	root,
	version,
	attribute,
	element,
	content,
	ending_word,
	no_catalog,
	include_missing,
	include_unreadable,
	include_cycle,
	loader,
	// warnings
	catalog_without_lang,
	catalog_without_name,
	language_unreachable,
	language_spelling,
	message_without_name,
	duplicate_message,
	encoding,
	arguments_differ,
	argument_without_name,
	type_unknown,
	type_reserved,
	attribute_lost,
	attribute_unused,
	attribute_unknown,
	attribute_value,
	attribute_empty,
	never_renders,
};

// The word for a kind in reports; stable.
std::string_view kind_name(finding_kind kind);
severity severity_of(finding_kind kind);

// Where in a file something was found, as far as it is known.
struct place {
	std::size_t line = 0; // from 1; 0 for the whole file
	std::string catalog;
	std::string language;
	std::string message;
	std::string argument;
	std::string element; // the innermost element, "" where it is the last of those above
	bool in_catalog = false;
	bool in_message = false;
	bool in_argument = false;
};

struct finding {
	finding_kind kind = finding_kind::loader;
	std::string file;
	place where;
	std::string text;   // one sentence for a translator
	std::string loader; // what the loader says, for errors
};

// A name or a text of a file, cut where it is longer than anybody wants to read.
std::string shortened(std::string_view text, std::size_t limit = 200);

// The elements that lead to a place, outermost first: `catalog "app" (de)`.
std::vector<std::string> element_path(place const &where);

// Findings by file. Of each file only the first are kept, the rest is counted.
class finding_list {
public:
	struct file_findings {
		std::vector<finding> kept;
		std::size_t omitted = 0;
	};

	// limit: how many to keep for each file; 0 for all.
	explicit finding_list(std::size_t limit = 0) : m_limit(limit) {}

	void add(finding found);

	// Puts the findings of each file into the order of their lines.
	void sort();

	std::map<std::string, file_findings> const &files() const { return m_files; }
	std::size_t errors() const { return m_errors; }
	std::size_t warnings() const { return m_warnings; }
	bool has_error(std::string const &file) const { return m_files_with_errors.count(file) != 0; }

private:
	std::size_t m_limit;
	std::size_t m_errors = 0;
	std::size_t m_warnings = 0;
	std::map<std::string, file_findings> m_files;
	std::map<std::string, std::size_t> m_files_with_errors;
};

} // namespace quor_cli

#endif
