#include "config/config_file_reader.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include <quor/debug/invalid_parameter.hpp>
#include <quor/generic/abilities/alloc_detection_ability.hpp>
#include <quor/generic/argument.hpp>
#include <quor/memory/pointers/rc_pointer.hpp>
#include <quor/types/nil.hpp>
#include <quor/types/variant.hpp>

#include "config/array_elements.hpp"
#include "config/key_path.hpp"
#include "config/store_node.hpp"

namespace QUOR_2_9::config::detail {
namespace {

using strings::ustring8;
using node_pointer = memory::pointers::rc_pointer<config_tree>;

/// Where a byte is text that nothing around it can change. Runs of such bytes are taken
/// at once; all others go through the scanner.
enum plain_in : unsigned char {
	plain_in_key = 1,
	plain_in_section = 2,
	plain_in_value = 4,
	plain_in_array = 8,
	plain_in_comment = 16,
};

constexpr std::array<unsigned char, 256> make_plain_bytes() {
	struct exception {
		std::string_view bytes;
		unsigned int not_plain_in;
	};
	// Operators end in "=" at most, so in values they matter only where they take part in
	// what begins a comment.
	constexpr exception exceptions[] = {
	    {"\n\r\"", plain_in_key | plain_in_section | plain_in_value | plain_in_array | plain_in_comment},
	    {" \t*/", plain_in_key | plain_in_section | plain_in_value | plain_in_array},
	    {"=<>:+-", plain_in_key | plain_in_section},
	    {"]", plain_in_section},
	    {"#", plain_in_value | plain_in_array},
	    {",", plain_in_array},
	};
	std::array<unsigned char, 256> result = {};
	for (unsigned char &places : result) {
		places = 0xFF;
	}
	for (exception const &row : exceptions) {
		for (char const byte : row.bytes) {
			result[static_cast<unsigned char>(byte)] &= static_cast<unsigned char>(~row.not_plain_in);
		}
	}
	return result;
}

constexpr std::array<unsigned char, 256> plain_bytes = make_plain_bytes();

/// The end of the longest run of plain bytes from `pos` on, which lies in the text.
template <plain_in Place>
unsigned int end_of_run(ustring8 const &text, unsigned int pos) noexcept {
	char const *const units = text.data();
	auto const size = static_cast<unsigned int>(text.size());
	while (pos < size && (plain_bytes[static_cast<unsigned char>(units[pos])] & Place) != 0) {
		++pos;
	}
	return pos;
}

/// Moves all plain bytes from the text at `pos` to the end of `to`, without the blanks and
/// tabs between them; returns whether there were any.
template <plain_in Place>
bool take_plain(ustring8 const &text, unsigned int &pos, ustring8 &to) {
	bool taken = false;
	while (pos < text.size()) {
		unsigned int const end = end_of_run<Place>(text, pos);
		if (end != pos) {
			to.append(text, pos, end - pos);
			pos = end;
			taken = true;
		}
		if (char const next = text.c_str()[pos]; next != ' ' && next != '\t') {
			break;
		}
		++pos;
	}
	return taken;
}

bool is_comment_start(config_token::tok_types type) noexcept {
	return type == config_token::T_POUND || type == config_token::T_FSFS;
}

bool is_blank(config_token::tok_types type) noexcept {
	return type == config_token::T_SPACE || type == config_token::T_TABCHAR;
}

bool is_blank_or_line_end(config_token::tok_types type) noexcept {
	return is_blank(type) || type == config_token::T_NEWLINE;
}

/// The node at a key; those that are missing on the way are made as passage nodes.
config_tree &make_node(config_tree &tree, std::string_view key) {
	key_path path(key);
	config_tree *node = &tree;
	auto const make = [] { return node_pointer(generic::abilities::create_dynamic<config_tree>()); };
	do {
		node_pointer &child = node->children.get_or_insert(path.next(), make);
		if (!child) {
			child = make();
		}
		node = child.get();
	} while (!path.at_end());
	return *node;
}

bool is_comma(scanned_token const &token) noexcept {
	return token.type == config_token::T_NON_ALPHA_NUM && token.text == ",";
}

} // namespace

void config_file_reader::read() {
	if (is_too_long_to_scan(m_text.size())) {
		return;
	}
	while (find_statement()) {
		if (m_text[m_pos] == '[') {
			++m_pos;
			read_section();
			continue;
		}
		read_key();
		if (m_key.empty()) {
			continue;
		}
		if (take_array_suffix()) {
			read_array();
		} else {
			read_value();
		}
	}
}

void config_file_reader::skip_comment(ustring8 const &text, unsigned int &pos) noexcept {
	while (true) {
		pos = end_of_run<plain_in_comment>(text, pos);
		unsigned int const before = pos;
		scanned_token const token = scan_token(text, pos);
		if (token.type == config_token::T_NEWLINE || token.type == config_token::T_END) {
			pos = before;
			return;
		}
	}
}

/// The next token. Those that end most keys and values are taken without a call.
scanned_token config_file_reader::next() noexcept {
	if (m_pos < m_text.size()) {
		char const *const at = m_text.c_str() + m_pos;
		bool const newline = *at == '\n';
		if (newline || (*at == '=' && at[1] != '=')) {
			++m_pos;
			return {newline ? config_token::T_NEWLINE : config_token::T_EQ, {at, 1}};
		}
	}
	return scan_token(m_text, m_pos);
}

/// Moves to the first token of the next statement; false at the end of the text.
bool config_file_reader::find_statement() noexcept {
	while (m_pos < m_text.size()) {
		char const unit = m_text[m_pos];
		if (unit == '\n' || unit == ' ' || unit == '\t') {
			++m_pos;
			continue;
		}
		if (unit != '#' && unit != '/' && unit != '\r') {
			return true;
		}
		unsigned int const before = m_pos;
		config_token::tok_types const type = scan_token(m_text, m_pos).type;
		if (is_comment_start(type)) {
			skip_comment(m_text, m_pos);
		} else if (type != config_token::T_NEWLINE) {
			m_pos = before;
			return true;
		}
	}
	return false;
}

void config_file_reader::read_section() {
	m_prefix.clear();
	m_section = nullptr;
	while (true) {
		take_plain<plain_in_section>(m_text, m_pos, m_prefix);
		scanned_token const token = next();
		if (token.type == config_token::T_EBRACKET || token.type == config_token::T_END) {
			break;
		}
		if (!is_blank_or_line_end(token.type)) {
			m_prefix.append(token.text);
		}
	}
	if (!m_prefix.empty()) {
		m_prefix.append(".");
	}
}

void config_file_reader::read_key() {
	m_key.clear();
	while (true) {
		take_plain<plain_in_key>(m_text, m_pos, m_key);
		scanned_token const token = next();
		if (token.type == config_token::T_EQ || token.type == config_token::T_END) {
			break;
		}
		if (!is_blank_or_line_end(token.type)) {
			m_key.append(token.text);
		}
	}
}

/// Whether the key, which isn't empty, names an array; takes the two bytes that say so.
bool config_file_reader::take_array_suffix() {
	if (m_key.size() == 1) {
		debug::invalid_parameter("string subscript out of range", "config\\file_item", __LINE__);
		// The handler may have emptied the tree.
		m_section = nullptr;
		return false;
	}
	if (m_key[m_key.size() - 2] != '[' || m_key.back() != ']') {
		return false;
	}
	m_key.resize(m_key.size() - 2);
	return true;
}

void config_file_reader::read_value() {
	m_value.clear();
	while (true) {
		take_plain<plain_in_value>(m_text, m_pos, m_value);
		scanned_token const token = next();
		if (token.type == config_token::T_NEWLINE || token.type == config_token::T_END) {
			break;
		}
		if (is_comment_start(token.type)) {
			skip_comment(m_text, m_pos);
		} else if (!is_blank(token.type)) {
			m_value.append(token.text);
		}
	}
	if (!m_value.empty()) {
		store_node(section(), m_key, config_tree::flag_set, m_value);
	}
}

void config_file_reader::read_array() {
	m_value.clear();
	bool behind_comma = false;
	while (true) {
		if (take_plain<plain_in_array>(m_text, m_pos, m_value)) {
			behind_comma = false;
		}
		scanned_token const token = next();
		if (token.type == config_token::T_END || (token.type == config_token::T_NEWLINE && !behind_comma)) {
			break;
		}
		if (is_comment_start(token.type)) {
			skip_comment(m_text, m_pos);
		} else if (is_comma(token)) {
			push_element();
			behind_comma = true;
		} else if (!is_blank_or_line_end(token.type)) {
			m_value.append(token.text);
			behind_comma = false;
		}
	}
	if (!m_value.empty()) {
		push_element();
		store_array();
		m_elements.clear();
	}
}

void config_file_reader::push_element() {
	m_elements.push_back(generic::argument(types::variant(m_value)));
	m_value.clear();
}

/// Stores the elements as an array under the key.
void config_file_reader::store_array() {
	config_tree &node = section();
	if (m_key.empty() && !m_prefix.empty()) {
		// The whole key is the section's name and a separator, which leads to its own node.
		node.node_data = {config_tree::flag_set | config_tree::flag_array, types::variant()};
	} else {
		node.set_node(m_key, types::nil, config_tree::flag_array);
	}
	set_elements(node, m_key, m_elements, generic::varg_list());
}

/// The node that the prefix leads to, made where it is missing.
config_tree &config_file_reader::section() {
	if (m_section == nullptr) {
		m_section = m_prefix.empty() ? &m_tree : &make_node(m_tree, m_prefix);
	}
	return *m_section;
}

} // namespace QUOR_2_9::config::detail
