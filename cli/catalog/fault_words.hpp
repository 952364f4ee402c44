#ifndef QUOR_CLI_CATALOG_FAULT_WORDS_HPP
#define QUOR_CLI_CATALOG_FAULT_WORDS_HPP

#include <list>
#include <string>

#include <quor/quor.hpp>

#include "catalog/finding.hpp"
#include "catalog/source.hpp"
#include "catalog/token_segments.hpp"

namespace quor_cli {

// Where a fault of the XML text is best told: what is never closed, where it is opened.
std::size_t syntax_offset(syntax_fault const &fault, std::string const &text);

// The fault in words. `text` is the file's.
std::string syntax_words(syntax_fault const &fault, std::string const &text, line_table const &lines);

// What is wrong with a byte that no text holds.
std::string no_text_words(char byte);

struct fault_words {
	finding_kind kind = finding_kind::content;
	std::string text;
};

// What the loader refuses at a token, in words. The element around the token is looked for
// down to `begin`, and is `outer` where it isn't there.
fault_words structure_words(quor::i18n::_private::xmc_file_loader::load_error const &error,
                            token_segment const &segment, std::list<token_segment::token>::const_iterator begin,
                            std::list<token_segment::token>::const_iterator at, std::string const &outer);

} // namespace quor_cli

#endif
