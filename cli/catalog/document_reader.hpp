#ifndef QUOR_CLI_CATALOG_DOCUMENT_READER_HPP
#define QUOR_CLI_CATALOG_DOCUMENT_READER_HPP

#include <cstddef>
#include <list>
#include <set>
#include <string>

#include <quor/quor.hpp>

#include "catalog/document.hpp"
#include "catalog/token_segments.hpp"

namespace quor_cli {

// Walks the tokens of a file with the loader's own readers, for every language at once, and
// goes on behind what they refuse.
class document_reader : private quor::i18n::_private::xmc_file_loader {
public:
	document_reader(std::string const &file, line_table const &lines, std::list<token_segment> const &segments);

	// Reads the next tokens. Only the first segment has the root's start.
	void read(token_segment &segment, bool first);

	void add_syntax_fault(syntax_fault const &fault, std::string const &text);

	// What was read.
	document take();

private:
	using token = token_segment::token;
	using iterator = std::list<token>::iterator;

	void read_root();
	void step();
	void step_in_root();
	void step_in_catalog();
	bool skip_end_of_refused();
	void open_catalog();
	void read_catalog_attributes(catalog_use &use);
	void include();
	void message();
	void add_arguments(message_use &use, iterator start);
	void check_text(iterator start);
	void check_ending(iterator start);
	bool next_attribute();
	std::string attribute_value();
	void resynchronise();

	bool at_end() const { return m_it == m_segment->tokens.end(); }
	bool is(token::token_type type) const { return !at_end() && m_it->type() == type; }
	bool is(token::token_type type, char const *value) const { return is(type) && m_it->value() == value; }

	void add_fault(load_error const &error);
	void add_fault(finding_kind kind, std::string text, load_error const &error, iterator at);
	std::size_t line_at(iterator at) const;
	quor::strings::ustring8 catalog_name() const;
	place place_in_catalog() const;

	line_table const &m_lines;
	document m_document;
	bool m_loads_without_language = false;
	token_segment *m_segment = nullptr;
	iterator m_it;
	iterator m_step;              // where the current step began
	std::size_t m_step_index = 0; // the number of that token
	bool m_in_root_tag = false;
	bool m_in_catalog = false;
	bool m_in_message = false;
	std::string m_message; // the message that is being read
	bool m_found = false;
	bool m_done = false;
	std::multiset<std::string> m_refused; // elements that were refused and whose ends are still to come
};

} // namespace quor_cli

#endif
