#include <quor/i18n/xmc_file_loader.hpp>

#include <iterator>
#include <string_view>
#include <utility>

#include <quor/parser/xml_token_stream.hpp>
#include <quor/strings/case.hpp>

#include "parser/compact_token_list.hpp"

namespace QUOR_2_9::i18n::_private {

namespace {

using strings::ustring8;
using load_error = xmc_file_loader::load_error;
using token = parser::xml_token_stream::token;

// Separates the elements of an argument's field string.
constexpr char field_separator = '\1';

template <class Iterator>
std::string_view value_of(Iterator const &it) {
	return it->value();
}

template <class Iterator>
bool is(Iterator const &it, Iterator const &end, token::token_type type) {
	return it != end && it->type() == type;
}

template <class Iterator>
bool is(Iterator const &it, Iterator const &end, token::token_type type, std::string_view value) {
	return is(it, end, type) && value_of(it) == value;
}

template <class Iterator>
bool is_argument_name(Iterator const &it) {
	return value_of(it) == "argument" || value_of(it) == "arg";
}

// The value of the token, empty at the end.
template <class Iterator>
ustring8 text_of(Iterator const &it, Iterator const &end) {
	return it == end ? ustring8() : ustring8(value_of(it));
}

// Steps on and reads the value of an attribute whose name stands here.
template <class Iterator>
ustring8 attribute_value(Iterator &it, Iterator const &end) {
	++it;
	ustring8 value = text_of(it, end);
	if (it != end) {
		++it;
	}
	return value;
}

// Steps over what isn't an attribute in front of the attributes end, such as a comment;
// true while there is another attribute.
template <class Iterator>
bool at_attribute(Iterator &it, Iterator const &end, xmc_file_loader::error_type at_end, ustring8 const &data) {
	while (it != end && it->type() != token::token_attribute_name && it->type() != token::token_attributes_end) {
		++it;
	}
	if (it == end) {
		throw load_error(at_end, data);
	}
	return it->type() == token::token_attribute_name;
}

void add_literal(std::vector<message_item> &items, ustring8 &literal) {
	if (!literal.empty()) {
		items.emplace_back(literal);
		literal.clear();
	}
}

// White space collapses to one blank; at the start of a literal it counts only behind
// an argument.
void add_space(ustring8 &buffer, bool behind_argument) {
	if (buffer.empty() ? behind_argument : buffer.back() != ' ') {
		buffer.push_back(' ');
	}
}

// Reads a `br` element whose start stands here.
template <class Iterator>
void skip_br(Iterator &it, Iterator const &end) {
	++it;
	if (!is(it, end, token::token_attributes_end)) {
		throw load_error(xmc_file_loader::load_invalid_attribute, text_of(it, end));
	}
	++it;
	if (!is(it, end, token::token_element_end, "br")) {
		throw load_error(xmc_file_loader::load_no_br_end, ustring8());
	}
	++it;
}

} // namespace

template <class Iterator>
load_error xmc_file_loader::read_document(Iterator it, Iterator const &end, ustring8 const &file) {
	if (it == end) {
		return load_error(load_unexpected, "Nothing of interest in the file.");
	}
	parse_ignorable(it, end);
	parse_xmc_header(it, end);
	parse_ignorable(it, end);
	bool found = false;
	while (it != end && !is(it, end, token::token_element_end, "xmc")) {
		if (is(it, end, token::token_element_start, "catalog")) {
			parse_catalog(it, end);
		} else if (is(it, end, token::token_element_start, "include")) {
			parse_include(it, end);
		} else {
			throw load_error(load_invalid_element, text_of(it, end));
		}
		parse_ignorable(it, end);
		found = true;
	}
	return found ? load_error(load_none, ustring8()) : load_error(load_no_catalog, file);
}

template <class Iterator>
void xmc_file_loader::parse_ignorable(Iterator &it, Iterator const &end) {
	while (is(it, end, token::token_comment) || is(it, end, token::token_space) ||
	       is(it, end, token::token_character)) {
		++it;
	}
}

template <class Iterator>
void xmc_file_loader::parse_xmc_header(Iterator &it, Iterator const &end) {
	if (it == end) {
		throw load_error(load_not_xmc, "Value Not Defined");
	}
	if (!is(it, end, token::token_element_start, "xmc")) {
		throw load_error(load_not_xmc, text_of(it, end));
	}
	++it;
	if (it == end) {
		throw load_error(load_unexpected, ustring8());
	}
	if (!is(it, end, token::token_attribute_name, "version")) {
		throw load_error(load_invalid_attribute, text_of(it, end));
	}
	++it;
	if (!is(it, end, token::token_attribute_value, "1.1") && !is(it, end, token::token_attribute_value, "1.0")) {
		throw load_error(load_bad_version, text_of(it, end));
	}
	++it;
	// Whatever stands here is taken for the attributes end.
	if (it != end) {
		++it;
	}
}

template <class Iterator>
void xmc_file_loader::parse_include(Iterator &it, Iterator const &end) {
	if (!is(it, end, token::token_element_start, "include")) {
		throw load_error(load_invalid_element, text_of(it, end));
	}
	++it;
	ustring8 path;
	while (at_attribute(it, end, load_unexpected, ustring8())) {
		if (value_of(it) != "file") {
			throw load_error(load_invalid_attribute, text_of(it, end));
		}
		path = attribute_value(it, end);
	}
	++it;
	if (path.empty()) {
		throw load_error(load_file_not_found, ustring8());
	}
	include_file(path);
	if (!is(it, end, token::token_element_end, "include")) {
		throw load_error(load_no_include_end, ustring8());
	}
	++it;
}

template <class Iterator>
void xmc_file_loader::parse_catalog(Iterator &it, Iterator const &end) {
	ustring8 name;
	try {
		read_catalog(it, end, name);
	} catch (load_error &error) {
		error.append_error_stack(load_error::append_catalog, name);
		throw;
	}
}

template <class Iterator>
void xmc_file_loader::read_catalog(Iterator &it, Iterator const &end, ustring8 &name) {
	if (!is(it, end, token::token_element_start, "catalog")) {
		throw load_error(load_invalid_element, text_of(it, end));
	}
	++it;
	ustring8 lang;
	while (at_attribute(it, end, load_unexpected, ustring8())) {
		if (value_of(it) == "name") {
			name = attribute_value(it, end);
		} else if (value_of(it) == "lang") {
			lang = attribute_value(it, end);
		} else {
			throw load_error(load_invalid_attribute, text_of(it, end));
		}
	}
	++it;
	types::uint32 const weight = get_locale_weight(lang);
	bool const wanted = is_catalog_matched(name) && weight != 0;
	if (!wanted) {
		while (it != end && !is(it, end, token::token_element_end, "catalog")) {
			++it;
		}
	} else {
		catalog_t &catalog = m_catalogs[name];
		parse_ignorable(it, end);
		if (it == end) {
			throw load_error(load_unexpected, ustring8());
		}
		while (is(it, end, token::token_element_start, "msg")) {
			message_t message = parse_message(it, end);
			message.m_orginal_locale = lang;
			store_message(std::move(message), catalog, weight);
			parse_ignorable(it, end);
		}
	}
	if (!is(it, end, token::token_element_end, "catalog")) {
		throw load_error(load_no_catalog_end, name);
	}
	++it;
}

template <class Iterator>
message_t xmc_file_loader::parse_message(Iterator &it, Iterator const &end) {
	ustring8 name;
	try {
		return read_message(it, end, name);
	} catch (load_error &error) {
		error.append_error_stack(load_error::append_message, name);
		throw;
	}
}

template <class Iterator>
message_t xmc_file_loader::read_message(Iterator &it, Iterator const &end, ustring8 &name) {
	if (!is(it, end, token::token_element_start, "msg")) {
		throw load_error(load_unexpected, ustring8());
	}
	++it;
	ustring8 meta;
	while (at_attribute(it, end, load_unexpected, ustring8())) {
		if (value_of(it) == "name") {
			name = attribute_value(it, end);
		} else if (value_of(it) == "meta") {
			meta = attribute_value(it, end);
		} else {
			throw load_error(load_invalid_attribute, text_of(it, end));
		}
	}
	++it;
	m_items.clear();
	m_literal.clear();
	bool behind_argument = false;
	while (it != end) {
		// The word alone ends the message, whatever kind of token it is.
		if (it->type() == token::token_element_end || value_of(it) == "msg") {
			add_literal(m_items, m_literal);
			++it;
			message_t message;
			message.m_items.assign(std::make_move_iterator(m_items.begin()), std::make_move_iterator(m_items.end()));
			message.m_name = std::move(name);
			message.m_meta = std::move(meta);
			return message;
		}
		if (it->type() == token::token_space) {
			add_space(m_literal, behind_argument);
			behind_argument = false;
			++it;
		} else if (it->type() == token::token_character) {
			m_literal.append(value_of(it));
			behind_argument = false;
			++it;
		} else if (it->type() != token::token_element_start) {
			++it;
		} else if (value_of(it) == "br") {
			m_literal.push_back('\n');
			skip_br(it, end);
		} else if (is_argument_name(it)) {
			add_literal(m_items, m_literal);
			m_items.push_back(parse_message_arg(it, end));
			behind_argument = true;
		} else {
			throw load_error(load_invalid_element, text_of(it, end));
		}
	}
	throw load_error(load_unexpected, ustring8());
}

template <class Iterator>
message_item xmc_file_loader::parse_message_arg(Iterator &it, Iterator const &end) {
	if (!is(it, end, token::token_element_start) || !is_argument_name(it)) {
		throw load_error(load_invalid_element, text_of(it, end));
	}
	++it;
	message_item::type_t type = message_item::type_string;
	ustring8 data;
	ustring8 name;
	while (at_attribute(it, end, load_no_arg_end, name)) {
		if (value_of(it) == "name") {
			name = attribute_value(it, end);
			data = name;
		} else if (value_of(it) == "type") {
			type = parse_message_type(attribute_value(it, end));
		} else {
			data.append(1, field_separator).append(value_of(it)).append(1, field_separator);
			++it;
			if (is(it, end, token::token_attribute_value)) {
				data.append(value_of(it));
				++it;
			}
		}
	}
	while (it != end && it->type() != token::token_element_end && !is_argument_name(it)) {
		++it;
	}
	if (it == end) {
		throw load_error(load_no_arg_end, name);
	}
	++it;
	if (it == end) {
		throw load_error(load_unexpected, ustring8());
	}
	return message_item(data, type);
}

message_item::type_t xmc_file_loader::parse_message_type(ustring8 const &word) const {
	static constexpr std::pair<std::string_view, message_item::type_t> words[] = {
	    {"value", message_item::type_value},
	    {"string", message_item::type_string},
	    {"number", message_item::type_number},
	    {"int", message_item::type_int},
	    {"double", message_item::type_double},
	    {"time", message_item::type_time},
	    {"date", message_item::type_date},
	    {"memory", message_item::type_memory},
	    {"mem", message_item::type_memory},
	    {"mem_unit", message_item::type_memory_unit},
	    {"memory_unit", message_item::type_memory_unit},
	    {"metric", message_item::type_metric},
	    {"metric_unit", message_item::type_metric_unit},
	    {"duration", message_item::type_duration},
	};
	ustring8 const lower = strings::lower_case(word);
	for (auto const &[text, type] : words) {
		if (text == lower) {
			return type;
		}
	}
	return message_item::type_string;
}

template load_error xmc_file_loader::read_document(parser::compact_token_list::const_iterator,
                                                   parser::compact_token_list::const_iterator const &,
                                                   ustring8 const &);

#define QUOR_READERS(iterator)                                                                                         \
  template QUOR_API void xmc_file_loader::parse_ignorable(iterator &, iterator const &);                               \
  template QUOR_API void xmc_file_loader::parse_xmc_header(iterator &, iterator const &);                              \
  template QUOR_API void xmc_file_loader::parse_include(iterator &, iterator const &);                                 \
  template QUOR_API void xmc_file_loader::parse_catalog(iterator &, iterator const &);                                 \
  template QUOR_API message_t xmc_file_loader::parse_message(iterator &, iterator const &);                            \
  template QUOR_API message_item xmc_file_loader::parse_message_arg(iterator &, iterator const &);

QUOR_READERS(parser::xml_token_stream::iterator)
QUOR_READERS(parser::xml_token_stream::const_iterator)

#undef QUOR_READERS

} // namespace QUOR_2_9::i18n::_private
