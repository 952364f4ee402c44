#include "catalog/document_reader.hpp"

#include <algorithm>
#include <iterator>
#include <utility>

#include "catalog/fault_words.hpp"

namespace quor_cli {

using quor::strings::ustring8;

namespace {

using token = token_segment::token;

// The languages that the catalogs of a file name.
std::set<std::string> languages_of(std::list<token_segment> const &segments) {
	std::set<std::string> languages;
	for (token_segment const &segment : segments) {
		bool in_catalog_tag = false;
		for (auto it = segment.tokens.begin(); it != segment.tokens.end(); ++it) {
			if (it->type() == token::token_element_start) {
				in_catalog_tag = it->value() == "catalog";
			} else if (in_catalog_tag && it->type() == token::token_attribute_name && it->value() == "lang") {
				languages.insert(std::next(it)->value());
			}
		}
	}
	return languages;
}

} // namespace

document_reader::document_reader(std::string const &file, line_table const &lines,
                                 std::list<token_segment> const &segments)
    : m_lines(lines) {
	m_document.file = file;
	std::set<std::string> const languages = languages_of(segments);
	// An id that begins with a separator accepts catalogs without a language.
	m_loads_without_language = std::any_of(languages.begin(), languages.end(), [](std::string const &id) {
		return !id.empty() && accepts_language(id, "");
	});
}

void document_reader::read(token_segment &segment, bool first) {
	if (m_done) {
		return;
	}
	m_segment = &segment;
	m_it = segment.tokens.begin();
	m_step = m_it;
	m_step_index = 0;
	m_in_catalog = segment.in_catalog;
	bool at_root = first && !at_end();
	while (!m_done && (at_root || !at_end())) {
		m_step_index += static_cast<std::size_t>(std::distance(m_step, m_it));
		m_step = m_it;
		m_in_message = false;
		try {
			at_root ? read_root() : step();
		} catch (load_error const &error) {
			add_fault(error);
			m_done = error.type() == load_not_xmc;
			m_in_root_tag = false;
			resynchronise();
		}
		at_root = false;
	}
	if (m_in_catalog && !m_done && !segment.fault) {
		add_fault(load_error(load_unexpected, ustring8()));
	}
}

void document_reader::read_root() {
	m_in_root_tag = true;
	parse_ignorable(m_it, m_segment->tokens.end());
	parse_xmc_header(m_it, m_segment->tokens.end());
	m_in_root_tag = false;
}

void document_reader::step() {
	parse_ignorable(m_it, m_segment->tokens.end());
	if (at_end() || skip_end_of_refused()) {
		return;
	}
	if (m_in_catalog) {
		step_in_catalog();
	} else {
		step_in_root();
	}
}

// Steps over the end of an element whose start was refused.
bool document_reader::skip_end_of_refused() {
	auto const refused = is(token::token_element_end) ? m_refused.find(m_it->value()) : m_refused.end();
	if (refused == m_refused.end()) {
		return false;
	}
	m_refused.erase(refused);
	++m_it;
	return true;
}

void document_reader::step_in_root() {
	if (is(token::token_element_end, "xmc")) {
		m_done = true;
	} else if (is(token::token_element_start, "catalog")) {
		m_found = true;
		open_catalog();
	} else if (is(token::token_element_start, "include")) {
		m_found = true;
		include();
	} else {
		throw load_error(load_invalid_element, m_it->value());
	}
}

void document_reader::step_in_catalog() {
	if (is(token::token_element_start, "msg")) {
		message();
	} else if (is(token::token_element_end, "catalog")) {
		m_in_catalog = false;
		++m_it;
	} else if (is(token::token_element_start, "include")) {
		add_fault(load_error(load_no_catalog_end, catalog_name()));
		include();
	} else if (is(token::token_element_start, "catalog")) {
		add_fault(load_error(load_no_catalog_end, catalog_name()));
		m_refused.insert("catalog");
		open_catalog();
	} else {
		throw load_error(load_no_catalog_end, catalog_name());
	}
}

bool document_reader::next_attribute() {
	while (!at_end() && m_it->type() != token::token_attribute_name && m_it->type() != token::token_attributes_end) {
		++m_it;
	}
	if (at_end()) {
		throw load_error(load_unexpected, ustring8());
	}
	return m_it->type() == token::token_attribute_name;
}

std::string document_reader::attribute_value() {
	++m_it;
	std::string value = at_end() ? std::string() : std::string(m_it->value());
	if (!at_end()) {
		++m_it;
	}
	return value;
}

void document_reader::read_catalog_attributes(catalog_use &use) {
	++m_it;
	while (next_attribute()) {
		if (m_it->value() == "name") {
			use.name = attribute_value();
		} else if (m_it->value() == "lang") {
			use.language = attribute_value();
		} else {
			throw load_error(load_invalid_attribute, m_it->value());
		}
	}
	++m_it;
}

void document_reader::open_catalog() {
	catalog_use &use = m_document.catalogs.emplace_back();
	use.line = line_at(m_it);
	use.loads = true;
	m_in_catalog = true;
	read_catalog_attributes(use);
	use.loads = use.language.empty() ? m_loads_without_language : accepts_language(use.language, use.language);
	if (use.loads) {
		return;
	}
	// Nobody looks at what stands in it.
	while (!at_end() && !is(token::token_element_end, "catalog")) {
		++m_it;
	}
	if (at_end()) {
		throw load_error(load_no_catalog_end, catalog_name());
	}
}

void document_reader::include() {
	std::size_t const line = line_at(m_it);
	std::string path;
	++m_it;
	while (next_attribute()) {
		if (m_it->value() != "file") {
			throw load_error(load_invalid_attribute, m_it->value());
		}
		path = attribute_value();
	}
	++m_it;
	if (path.empty()) {
		throw load_error(load_file_not_found, ustring8());
	}
	m_document.includes.push_back({include_path(m_document.file, path), line});
	if (!is(token::token_element_end, "include")) {
		throw load_error(load_no_include_end, ustring8());
	}
	++m_it;
}

// Goes on at the next element that can be read where the reading stands.
void document_reader::resynchronise() {
	// All at which this ends is taken by the next step, so the reading always moves on.
	for (; !at_end(); ++m_it) {
		bool const starts = is(token::token_element_start);
		if (starts && (m_it->value() == "catalog" || m_it->value() == "include")) {
			return;
		}
		if (m_in_catalog && (is(token::token_element_start, "msg") || is(token::token_element_end, "catalog"))) {
			return;
		}
		if (!m_in_catalog && is(token::token_element_end, "xmc")) {
			return;
		}
		if (starts) {
			m_refused.insert(m_it->value());
		} else if (is(token::token_element_end)) {
			if (auto const refused = m_refused.find(m_it->value()); refused != m_refused.end()) {
				m_refused.erase(refused);
			}
		}
	}
}

std::size_t document_reader::line_at(iterator at) const {
	std::size_t const index = m_step_index + static_cast<std::size_t>(std::distance(m_step, at));
	std::vector<std::size_t> const &offsets = m_segment->offsets;
	return m_lines.line(index < offsets.size() ? offsets[index] : offsets.empty() ? 0 : offsets.back());
}

ustring8 document_reader::catalog_name() const {
	return m_document.catalogs.empty() ? ustring8() : ustring8(shortened(m_document.catalogs.back().name));
}

place document_reader::place_in_catalog() const {
	place where;
	if (m_in_catalog && !m_document.catalogs.empty()) {
		where.in_catalog = true;
		where.catalog = shortened(m_document.catalogs.back().name);
		where.language = shortened(m_document.catalogs.back().language);
		where.in_message = m_in_message;
		where.message = m_in_message ? shortened(m_message) : std::string();
	}
	return where;
}

void document_reader::add_fault(load_error const &error) {
	if (at_end() && m_segment->fault) {
		return; // the tokens end at a fault of the text, which is told on its own
	}
	std::string const outer = m_in_catalog ? "catalog" : m_in_root_tag ? "" : "xmc";
	fault_words words = structure_words(error, *m_segment, m_step, m_it, outer);
	add_fault(words.kind, std::move(words.text), error, m_it);
}

void document_reader::add_fault(finding_kind kind, std::string text, load_error const &error, iterator at) {
	finding found{kind, m_document.file, place_in_catalog(), std::move(text), {}};
	found.where.line = line_at(at);
	if (at != m_segment->tokens.end() && at->type() == token::token_element_start) {
		found.where.element = shortened(at->value());
	}
	load_error told = error;
	if (found.where.in_catalog) {
		told.append_error_stack(load_error::append_catalog, ustring8(found.where.catalog));
	}
	told.append_error_stack(load_error::append_file, ustring8(m_document.file));
	found.loader = told.message();
	m_document.faults.push_back(std::move(found));
}

void document_reader::add_syntax_fault(syntax_fault const &fault, std::string const &text) {
	finding found{finding_kind::syntax, m_document.file, place_in_catalog(), syntax_words(fault, text, m_lines), {}};
	found.where.line = m_lines.line(syntax_offset(fault, text));
	load_error error(load_xml_error, fault.error);
	error.append_error_stack(load_error::append_file, ustring8(m_document.file));
	found.loader = error.message();
	m_document.faults.push_back(std::move(found));
}

document document_reader::take() {
	if (!m_found && m_document.faults.empty()) {
		load_error const error(load_no_catalog, ustring8(m_document.file));
		m_document.faults.push_back({finding_kind::no_catalog,
		                             m_document.file,
		                             {},
		                             "the file has neither a <catalog> nor an <include>",
		                             error.message()});
	}
	return std::move(m_document);
}

} // namespace quor_cli
