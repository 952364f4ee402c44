#include <quor/i18n/xmc_file_loader.hpp>

#include <string_view>

#include <quor/parser/xml_token_stream.hpp>

#include "i18n/item_type_word.hpp"
#include "i18n/message_storage.hpp"
#include "parser/token_reader.hpp"

namespace QUOR_2_9::i18n::_private {

namespace {

using detail::message_draft;
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
void read_value(Iterator &it, Iterator const &end, ustring8 &value) {
	++it;
	if (it == end) {
		value.clear();
	} else {
		value.assign(value_of(it));
		++it;
	}
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

// White space collapses to one blank; at the start of a literal it counts only behind
// an argument.
void add_space(message_draft &draft, bool behind_argument) {
	if (draft.in_literal() ? draft.last_of_literal() != ' ' : behind_argument) {
		draft.append_literal(' ');
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
		read_value(it, end, path);
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
			read_value(it, end, name);
		} else if (value_of(it) == "lang") {
			read_value(it, end, lang);
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
		catalog_t &catalog = catalog_to_fill(name);
		auto const yields = [this, weight](std::string_view locale) {
			return get_locale_weight(ustring8(locale)) < weight;
		};
		message_draft draft(m_draft_memory);
		parse_ignorable(it, end);
		if (it == end) {
			throw load_error(load_unexpected, ustring8());
		}
		while (is(it, end, token::token_element_start, "msg")) {
			read_message(it, end, draft);
			catalog.m_storage->offer(draft.compiled(lang), yields);
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
	message_draft draft(m_draft_memory);
	read_message(it, end, draft);
	return detail::message_maker::make(draft.compiled({}));
}

template <class Iterator>
void xmc_file_loader::read_message(Iterator &it, Iterator const &end, message_draft &draft) {
	draft.clear();
	try {
		if (!is(it, end, token::token_element_start, "msg")) {
			throw load_error(load_unexpected, ustring8());
		}
		++it;
		while (at_attribute(it, end, load_unexpected, ustring8())) {
			if (value_of(it) == "name") {
				read_value(it, end, draft.name);
			} else if (value_of(it) == "meta") {
				read_value(it, end, draft.meta);
			} else {
				throw load_error(load_invalid_attribute, text_of(it, end));
			}
		}
		++it;
		read_message_items(it, end, draft);
	} catch (load_error &error) {
		error.append_error_stack(load_error::append_message, draft.name);
		throw;
	}
}

template <class Iterator>
void xmc_file_loader::read_message_items(Iterator &it, Iterator const &end, message_draft &draft) {
	bool behind_argument = false;
	while (it != end) {
		// The word alone ends the message, whatever kind of token it is.
		if (it->type() == token::token_element_end || value_of(it) == "msg") {
			draft.close_literal();
			++it;
			return;
		}
		if (it->type() == token::token_space) {
			add_space(draft, behind_argument);
			behind_argument = false;
			++it;
		} else if (it->type() == token::token_character) {
			draft.append_literal(value_of(it));
			behind_argument = false;
			++it;
		} else if (it->type() != token::token_element_start) {
			++it;
		} else if (value_of(it) == "br") {
			draft.append_literal('\n');
			skip_br(it, end);
		} else if (is_argument_name(it)) {
			draft.open_argument();
			draft.close_argument(read_argument(it, end, draft));
			behind_argument = true;
		} else {
			throw load_error(load_invalid_element, text_of(it, end));
		}
	}
	throw load_error(load_unexpected, ustring8());
}

template <class Iterator>
message_item xmc_file_loader::parse_message_arg(Iterator &it, Iterator const &end) {
	message_draft draft(m_draft_memory);
	draft.clear();
	draft.open_argument();
	message_item::type_t const type = read_argument(it, end, draft);
	return message_item(ustring8(draft.last_text()), type);
}

// Writes the field string.
template <class Iterator>
message_item::type_t xmc_file_loader::read_argument(Iterator &it, Iterator const &end, message_draft &draft) {
	if (!is(it, end, token::token_element_start) || !is_argument_name(it)) {
		throw load_error(load_invalid_element, text_of(it, end));
	}
	++it;
	message_item::type_t type = message_item::type_string;
	ustring8 name;
	while (at_attribute(it, end, load_no_arg_end, name)) {
		if (value_of(it) == "name") {
			// What stands in front of it is lost.
			read_value(it, end, name);
			draft.restart_argument();
			draft.append(name);
		} else if (value_of(it) == "type") {
			++it;
			type = detail::type_of_word(it == end ? std::string_view() : value_of(it));
			if (it != end) {
				++it;
			}
		} else {
			draft.append(field_separator);
			draft.append(value_of(it));
			draft.append(field_separator);
			++it;
			if (is(it, end, token::token_attribute_value)) {
				draft.append(value_of(it));
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
	return type;
}

message_item::type_t xmc_file_loader::parse_message_type(ustring8 const &word) const {
	return detail::type_of_word(word);
}

template load_error xmc_file_loader::read_document(parser::token_reader::iterator,
                                                   parser::token_reader::iterator const &, ustring8 const &);

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
