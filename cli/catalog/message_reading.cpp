// How a document's messages are read, and what in one message is wrong.

#include <algorithm>
#include <iterator>
#include <string_view>
#include <utility>

#include "catalog/document_reader.hpp"
#include "catalog/fault_words.hpp"
#include "terminal/terminal.hpp"

namespace quor_cli {

namespace {

using token = token_segment::token;

bool is_argument(token const &each) {
	return each.value() == "arg" || each.value() == "argument";
}

} // namespace

void document_reader::message() {
	iterator const start = m_it;
	m_in_message = true;
	m_message.clear();
	for (iterator it = std::next(start); it != m_segment->tokens.end() && it->type() == token::token_attribute_name;
	     std::advance(it, 2)) {
		if (it->value() == "name") {
			m_message = std::next(it)->value();
		}
	}
	message_use use{m_message, line_at(start), {}};
	parse_message(m_it, m_segment->tokens.end());
	check_text(start);
	check_ending(start);
	add_arguments(use, start);
	if (!m_document.catalogs.empty()) {
		m_document.catalogs.back().messages.push_back(std::move(use));
	}
}

// Whether all of a message is text at all.
void document_reader::check_text(iterator start) {
	for (iterator it = start; it != m_it; ++it) {
		std::string_view const value = it->value();
		std::size_t const bad = it->type() == token::token_comment ? std::string_view::npos : find_no_text(value);
		if (bad == std::string_view::npos) {
			continue;
		}
		finding found{finding_kind::encoding, m_document.file, place_in_catalog(), no_text_words(value[bad]), {}};
		found.where.line =
		    line_at(it) +
		    static_cast<std::size_t>(std::count(value.begin(), value.begin() + static_cast<std::ptrdiff_t>(bad), '\n'));
		m_document.faults.push_back(std::move(found));
		return;
	}
}

// The loader ends a message and an argument at certain words, wherever they stand; what it
// reads behind them makes no sense to it, but the word is where the fault is.
void document_reader::check_ending(iterator start) {
	std::size_t depth = 0;
	iterator word = m_it;
	for (iterator it = start; it != m_it; ++it) {
		bool const is_text = it->type() == token::token_character || it->type() == token::token_comment;
		if (it->type() == token::token_element_start) {
			if (depth == 2 && word == m_it) {
				word = it; // an element inside an argument
			}
			++depth;
		} else if (it->type() == token::token_element_end) {
			depth -= depth == 0 ? 0 : 1;
		} else if (is_text && word == m_it && (depth == 1 ? it->value() == "msg" : is_argument(*it))) {
			word = it;
		}
	}
	if (depth == 0) {
		return;
	}
	load_error error(load_no_catalog_end, catalog_name());
	if (word == m_it || word->type() == token::token_element_start) {
		iterator const at = word == m_it ? std::prev(m_it) : word;
		std::string const name = at->value();
		add_fault(finding_kind::element,
		          name == "msg" ? "<msg> can't stand in <msg>: </msg> is missing in front of it"
		                        : "<" + name + "> can't stand in an argument, which takes no elements",
		          error, at);
	} else {
		std::string const inside = word->value() == "msg" ? "message" : "argument";
		std::string const what = word->type() == token::token_comment ? "a comment" : "a piece of text";
		add_fault(finding_kind::ending_word,
		          what + " that is exactly \"" + word->value() + "\" ends its " + inside +
		              "; break the word with a comment, as in " + word->value().substr(0, 2) + "<!-- -->" +
		              word->value().substr(2),
		          error, word);
	}
	// The rest of the message is what nobody can make sense of.
	while (!at_end() && depth != 0) {
		if (is(token::token_element_start)) {
			++depth;
		} else if (is(token::token_element_end)) {
			--depth;
		}
		++m_it;
	}
}

void document_reader::add_arguments(message_use &use, iterator start) {
	std::size_t index = m_step_index + static_cast<std::size_t>(std::distance(m_step, start));
	bool in_argument = false;
	for (iterator it = start; it != m_it; ++it, ++index) {
		if (it->type() == token::token_element_start) {
			in_argument = is_argument(*it);
			if (in_argument) {
				use.arguments.push_back({{}, m_lines.line(m_segment->offsets[index])});
			}
		} else if (it->type() == token::token_attribute_name && in_argument) {
			use.arguments.back().attributes.push_back({it->value(), std::next(it)->value()});
		}
	}
}

} // namespace quor_cli
