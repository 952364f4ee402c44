#include <quor/i18n/xmc_file_loader.hpp>

#include <charconv>
#include <string>

namespace QUOR_2_9::i18n::_private {

namespace {

using strings::ustring8;
using load_error = xmc_file_loader::load_error;
using xml_error = parser::xml_parser::parse_error;

constexpr char prefix[] = "xmc_file_loader::load_error - ";

// A text that stands around the data of a fault; without `tail` the data isn't shown.
struct wording {
	char const *head;
	char const *tail;
};

constexpr wording load_wordings[] = {
    {"No Error", nullptr},
    {"No catalog was loaded in file: \"", "\""},
    {"Default locale lookup not supported yet", nullptr},
    {"File \"", "\" was not found on disk"},
    {nullptr, nullptr},
    {"Invalid attibute \"", "\""},
    {"Invalid element \"", "\""},
    {"Not XMC file, root element is not XMC but \"", "\""},
    {"XMC version \"", "\" is not supported"},
    {"Expected BR end tag not found", nullptr},
    {"Expected msg (message) end tag not found for message \"", "\""},
    {"Expected arg (argument) end tag not found for argument \"", "\""},
    {"Expected \"include\" end tag not found", nullptr},
    {"Expected catalog end tag not found for catalog \"", "\""},
    {"Unexpected parse error happen!", nullptr},
};

struct xml_wording {
	wording text;
	bool with_line;
};

// By code; the first one, success, has no text of its own.
constexpr xml_wording xml_wordings[] = {
    {{"Unknown Parse error", nullptr}, false},
    {{"Unexpected end of file during XML parsing", nullptr}, false},
    {{"Mismatched end element \"", "\" was found"}, false},
    {{"No root element was found", nullptr}, false},
    {{"Valid XML header not found", nullptr}, false},
    {{"Unexpected character \"", "\" found while parsing"}, true},
    {{"Missing \" while parsing attribute \"", "\""}, true},
    {{"Unknown enity being parsed", nullptr}, true},
    {{"Missing = sign for attribute \"", "\""}, true},
    {{"attribute \"", "\" is being redefined"}, true},
    {{"Data found after root element", nullptr}, true},
};

ustring8 worded(wording const &text, ustring8 const &data) {
	ustring8 result(prefix);
	result.append(text.head);
	if (text.tail != nullptr) {
		result.append(data).append(text.tail);
	}
	return result;
}

ustring8 unhandled(char const *head, ustring8 const &data) {
	ustring8 result(head);
	result.append("unknown, or unhandle case happened! ").append(" str data=").append(data);
	return result;
}

ustring8 context(char const *head, ustring8 const &data) {
	ustring8 result(head);
	result.append(data).append("\"");
	return result;
}

ustring8 decimal(types::uint32 value) {
	char digits[10];
	return ustring8(digits, std::to_chars(digits, digits + sizeof digits, value).ptr);
}

} // namespace

load_error::load_error(error_type type, ustring8 const &data) : m_message(format_msg(type, data)), m_type(type) {}

load_error::load_error(error_type type, xml_error const &error) : m_message(format_msg(type, error)), m_type(type) {}

ustring8 load_error::format_msg(error_type type, ustring8 const &data) {
	if (type < load_none || type > load_unexpected || type == load_xml_error) {
		return unhandled("", data);
	}
	return worded(load_wordings[type], data);
}

ustring8 load_error::format_msg(error_type, xml_error const &error) {
	xml_error::error_code const code = error.code();
	bool const known = code > xml_error::error_none && code <= xml_error::error_data_after_root;
	xml_wording const &chosen = xml_wordings[known ? code : 0];
	ustring8 result = worded(chosen.text, error.text());
	if (chosen.with_line) {
		result.append(format_msg(append_line, decimal(error.line())));
	}
	return result;
}

ustring8 load_error::format_msg(append_type type, ustring8 const &data) {
	switch (type) {
	case append_message:
		return context("\n in message element: \"", data);
	case append_catalog:
		return context("\n in catalog element: \"", data);
	case append_file:
		return context("\n in file: \"", data);
	case append_line:
		return context("\n at line: \"", data);
	}
	return unhandled("\n ", data);
}

void load_error::append_error_stack(append_type type, ustring8 const &data) {
	m_message.append(format_msg(type, data));
}

} // namespace QUOR_2_9::i18n::_private
