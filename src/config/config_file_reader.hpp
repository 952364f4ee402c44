#ifndef QUOR_SRC_CONFIG_CONFIG_FILE_READER_HPP
#define QUOR_SRC_CONFIG_CONFIG_FILE_READER_HPP

#include <quor/config/config_tree.hpp>
#include <quor/generic/varg_list.hpp>
#include <quor/strings/ustring.hpp>

#include "config/token_scanner.hpp"

namespace QUOR_2_9::config::detail {

/// Reads one text of the file syntax into a tree. The syntax is told at `file_item`.
class config_file_reader {
public:
	/// Both are only referred to. A text that is too long to scan is read as an empty one.
	config_file_reader(strings::ustring8 const &text, config_tree &tree) noexcept : m_text(text), m_tree(tree) {}

	/// Stores all statements, in their order, up to one for which the handler of
	/// `debug::invalid_parameter` throws.
	void read();

	/// Moves from behind the beginning of a comment to its end, before the line end.
	static void skip_comment(strings::ustring8 const &text, unsigned int &pos) noexcept;

private:
	scanned_token next() noexcept;
	bool find_statement() noexcept;
	void read_section();
	void read_key();
	bool take_array_suffix();
	void read_value();
	void read_array();
	void push_element();
	void store_array();
	config_tree &section();

	strings::ustring8 const &m_text;
	unsigned int m_pos = 0;
	config_tree &m_tree;
	/// What stands in front of all keys, its last "." included; empty at the top level.
	strings::ustring8 m_prefix;
	/// The node that the prefix leads to, null until the first statement needs it.
	config_tree *m_section = nullptr;
	strings::ustring8 m_key;
	strings::ustring8 m_value;
	/// The elements of the array that is being read, those of unfinished ones before it
	/// in front.
	generic::varg_list m_elements;
};

} // namespace QUOR_2_9::config::detail

#endif
