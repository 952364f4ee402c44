#include "catalog/fault_words.hpp"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "terminal/terminal.hpp"

namespace quor_cli {

namespace {

using quor::i18n::_private::xmc_file_loader;
using quor::parser::xml_parser;
using parse_error = xml_parser::parse_error;
using token = token_segment::token;
using iterator = std::list<token>::const_iterator;

std::string element(std::string_view name) {
	return std::string("<").append(name).append(">");
}

std::string opened_at(syntax_fault const &fault, line_table const &lines) {
	return element(fault.open_element) + ", opened on line " + std::to_string(lines.line(fault.open_offset)) + ",";
}

// Where the comment begins that runs to the end of the file, npos if none does.
std::size_t open_comment(std::string const &text) {
	std::size_t comment = text.find("<!--");
	while (comment != std::string::npos) {
		std::size_t const end = text.find("-->", comment + 4);
		if (end == std::string::npos) {
			return comment;
		}
		comment = text.find("<!--", end + 3);
	}
	return std::string::npos;
}

constexpr char const *cut_off = "the file ends in the middle of a tag";

std::string end_words(syntax_fault const &fault, std::string const &text, line_table const &lines) {
	if (open_comment(text) != std::string::npos) {
		return "the comment is never closed (\"-->\")";
	}
	if (!fault.open_element.empty()) {
		return opened_at(fault, lines) + " is never closed: </" + fault.open_element + "> is missing";
	}
	return cut_off;
}

std::string mismatch_words(syntax_fault const &fault, std::string const &text, line_table const &lines) {
	if (text.find('>', fault.offset) == std::string::npos) {
		return cut_off;
	}
	std::string const name = fault.error.text();
	if (name.empty()) {
		return "\"/>\" without a tag to close";
	}
	return "</" + name + "> stands where </" + fault.open_element + "> is expected: " + opened_at(fault, lines) +
	       " is still open";
}

std::string header_words(std::string_view text) {
	if (text.empty() || text == std::string_view("\0", 1)) {
		return "the file is empty; it must begin with the header <?xml version=\"1.0\"?>";
	}
	if (text.substr(0, 2) == "\xFF\xFE" || text.substr(0, 2) == "\xFE\xFF" ||
	    text.substr(0, 2) == std::string_view("\0<", 2) || text.substr(0, 2) == std::string_view("<\0", 2)) {
		return "the file is UTF-16; save it as UTF-8";
	}
	if (std::size_t const header = text.find("<?xml"); header == 0 || header == 3) {
		return "the header is not closed: it must read <?xml version=\"1.0\"?>";
	}
	return "the file must begin with the header <?xml version=\"1.0\"?>, without a blank or a line in front of it";
}

// How far behind a "&" a fault can be and still be the entity's.
constexpr std::size_t longest_entity = 12;

bool is_in_entity(std::string_view text, std::size_t offset) {
	std::size_t const first = offset < longest_entity ? 0 : offset - longest_entity + 1;
	std::string_view const near = text.substr(first, offset - first + 1);
	std::size_t const entity = near.rfind('&');
	return entity != std::string_view::npos && text.find_first_of("; <", first + entity) >= offset;
}

// A "<" with something behind it that begins no tag.
std::string no_tag_words(std::string const &unit) {
	if (unit == "!") {
		return "\"<!\" begins comments only, as in <!-- text -->; there is no <!DOCTYPE> and no <![CDATA[";
	}
	if (unit == "?") {
		return "\"<?\" stands in the header only";
	}
	return "\"<\" begins a tag, whose name can't begin with \"" + unit + "\"; write &lt; for the character itself";
}

std::string name_words(std::string const &unit) {
	return "the character \"" + unit +
	       "\" can't stand here: the names of elements and attributes begin with a letter and go on with letters, "
	       "digits and \"_\"";
}

std::string character_words(syntax_fault const &fault, std::string_view text) {
	if (fault.offset + 1 >= text.size()) {
		return cut_off;
	}
	std::string const unit = first_character(text.substr(fault.offset));
	std::string_view const before = text.substr(0, fault.offset);
	if (unit == "<") {
		return "\"<\" inside a tag or an attribute's value: a quote or \">\" is missing before it; "
		       "write &lt; for the character itself";
	}
	if (!before.empty() && before.back() == '<') {
		return no_tag_words(unit);
	}
	if (unit == ">") {
		return "\">\" without a tag to close; write &gt; for the character itself";
	}
	if (is_in_entity(text, fault.offset)) {
		return "a malformed entity: write &amp; for \"&\" itself, and end entities with \";\"";
	}
	if (!before.empty() && before.back() == '/') {
		return before.size() > 1 && before[before.size() - 2] == '<' ? "\"</\" must be followed by a name"
		                                                             : "\"/\" in a tag must be followed by \">\"";
	}
	return name_words(unit);
}

std::string equals_words(syntax_fault const &fault, std::string_view text) {
	std::string const name = fault.error.text();
	std::string const unit = first_character(text.substr(std::min(fault.offset, text.size())));
	bool const is_cut = fault.offset != 0 && text[fault.offset - 1] == name.back() &&
	                    unit.find_first_of(" \t\r\n<>/=\"'") == std::string::npos;
	return is_cut ? "the name \"" + name + "\" is cut by \"" + unit + "\": names have letters, digits and \"_\""
	              : "the attribute \"" + name + "\" has no \"=\" and no value";
}

// The element whose tag or content holds the token.
std::string enclosing_element(iterator begin, iterator at, std::string const &outer) {
	std::size_t closed = 0;
	while (at != begin) {
		--at;
		if (at->type() == token::token_element_end) {
			++closed;
		} else if (at->type() == token::token_element_start && closed-- == 0) {
			return at->value();
		}
	}
	return outer;
}

std::string allowed_in(std::string const &name) {
	if (name == "xmc") {
		return "; <xmc> takes <catalog> and <include>";
	}
	if (name == "catalog") {
		return "; <catalog> takes <msg>";
	}
	if (name == "msg") {
		return "; <msg> takes text, <arg> and <br/>";
	}
	return {};
}

std::string attribute_words(std::string const &name, std::string const &attribute) {
	if (name == "catalog") {
		return "<catalog> has no attribute \"" + attribute + "\"; it takes name and lang";
	}
	if (name == "msg") {
		return "<msg> has no attribute \"" + attribute + "\"; it takes name and meta";
	}
	if (name == "include") {
		return "<include> has no attribute \"" + attribute + "\"; it takes file";
	}
	if (name == "br") {
		return "<br/> takes no attributes and no content";
	}
	return "the first attribute of <xmc> must be version" +
	       (attribute.empty() ? std::string() : ", not \"" + attribute + "\"");
}

fault_words element_words(iterator at, std::string const &outer) {
	std::string const in = outer.empty() ? "outside the root element" : "in " + element(outer);
	std::string const value = at->value();
	switch (at->type()) {
	case token::token_element_start:
		return {finding_kind::element, element(value) + " can't stand " + in + allowed_in(outer)};
	case token::token_element_end:
		return {finding_kind::element, "</" + value + "> can't stand here: nothing of that name is open"};
	case token::token_attribute_name:
		return {finding_kind::attribute, element(outer) + " takes no attribute \"" + value + "\""};
	case token::token_attribute_value:
		return {finding_kind::attribute, element(outer) + " takes no attribute \"" + std::prev(at)->value() + "\""};
	case token::token_attributes_end: // which only a comment can move from its place
		return {finding_kind::content,
		        "a comment can't stand directly behind " + element(outer) + "; put a blank or a line in front of it"};
	default:
		return {finding_kind::content, "this can't stand " + in + allowed_in(outer)};
	}
}

} // namespace

std::size_t syntax_offset(syntax_fault const &fault, std::string const &text) {
	if (fault.error.code() == parse_error::error_eof) {
		if (std::size_t const comment = open_comment(text); comment != std::string::npos) {
			return comment;
		}
		if (!fault.open_element.empty()) {
			return fault.open_offset;
		}
	}
	return std::min(fault.offset, text.size() - 1);
}

std::string syntax_words(syntax_fault const &fault, std::string const &text, line_table const &lines) {
	std::string const name = fault.error.text();
	switch (fault.error.code()) {
	case parse_error::error_eof:
		return end_words(fault, text, lines);
	case parse_error::error_mismatched_end:
		return mismatch_words(fault, text, lines);
	case parse_error::error_no_root:
		return "there is nothing behind the header <?xml ... ?>";
	case parse_error::error_bad_header:
		return header_words(text);
	case parse_error::error_missing_quote:
		return name.empty() ? "the value of an attribute must stand in straight quotes, \" or '"
		                    : "the value of the attribute \"" + name + "\" has no closing quote";
	case parse_error::error_unknown_entity:
		return "an unknown entity: there are &amp; &lt; &gt; &quot; &apos; &nbsp; and &#...;; write &amp; for "
		       "\"&\" itself";
	case parse_error::error_missing_equals:
		return equals_words(fault, text);
	case parse_error::error_attribute_redefined:
		return "the attribute \"" + name + "\" stands twice in one tag";
	case parse_error::error_data_after_root:
		return "a second root element: everything must stand inside one <xmc>";
	default:
		return character_words(fault, text);
	}
}

std::string no_text_words(char byte) {
	static char const digits[] = "0123456789ABCDEF";
	auto const value = static_cast<unsigned char>(byte);
	std::string const shown = std::string("0x") + digits[value >> 4U] + digits[value & 0xFU];
	return value < 0x80 ? "the message holds the control character " + shown + ", which is no text"
	                    : "the message is not UTF-8: the byte " + shown +
	                          " begins no character; save the file as UTF-8, and write characters above &#127; "
	                          "themselves";
}

fault_words structure_words(xmc_file_loader::load_error const &error, token_segment const &segment, iterator begin,
                            iterator at, std::string const &outer) {
	bool const at_end = at == segment.tokens.end();
	std::string const value = at_end ? std::string() : std::string(at->value());
	std::string const around = enclosing_element(begin, at, outer);
	switch (error.type()) {
	case xmc_file_loader::load_not_xmc:
		return {finding_kind::root, at_end ? std::string("there is no root element <xmc>")
		                                   : "the root element must be <xmc>, not " + element(value)};
	case xmc_file_loader::load_bad_version:
		return {finding_kind::version, "version \"" + value + "\" is not known; there are \"1.0\" and \"1.1\""};
	case xmc_file_loader::load_invalid_attribute:
		return {finding_kind::attribute, attribute_words(around, value)};
	case xmc_file_loader::load_no_br_end:
		return {finding_kind::content, "<br/> takes no attributes and no content"};
	case xmc_file_loader::load_no_include_end:
		return {finding_kind::content, "<include/> takes no content"};
	case xmc_file_loader::load_file_not_found:
		return {finding_kind::include_missing, "<include> names no file"};
	default:
		return at_end ? fault_words{finding_kind::content, "the file ends too early"} : element_words(at, around);
	}
}

} // namespace quor_cli
