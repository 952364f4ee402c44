#ifndef QUOR_TESTS_SUPPORT_CONFIG_FILE_CHECK_HPP
#define QUOR_TESTS_SUPPORT_CONFIG_FILE_CHECK_HPP

// What the slow reader and writer of configuration files make of a text or a tree, in the
// library's own types. For tests that reach private headers.

#include <cstddef>
#include <string>
#include <vector>

#include <quor/config/file_item.hpp>
#include <quor/generic/argument.hpp>
#include <quor/generic/varg_list.hpp>

#include "config/config_file_reader.hpp"
#include "config/config_file_writer.hpp"
#include "reference/config_file_reader.hpp"
#include "reference/config_file_writer.hpp"
#include "support/config_listing.hpp"

namespace quor_test {

// The tree that the library's reader makes of a text.
inline QUOR_2_9::config::config_tree read_tree(std::string const &text) {
	QUOR_2_9::config::config_tree tree;
	QUOR_2_9::strings::ustring8 const copy(text);
	QUOR_2_9::config::detail::config_file_reader(copy, tree).read();
	return tree;
}

// The item that the statements of the slow reader make, each stored under its whole key.
inline QUOR_2_9::config::file_item stored(reference::cfg_contents const &contents) {
	using QUOR_2_9::strings::ustring8;
	QUOR_2_9::config::file_item item("");
	for (reference::cfg_statement const &statement : contents.statements) {
		if (statement.is_array) {
			QUOR_2_9::generic::varg_list values;
			for (std::string const &value : statement.values) {
				values.push_back(QUOR_2_9::generic::argument(ustring8(value)));
			}
			item.set_array(statement.key, values, QUOR_2_9::generic::varg_list());
		} else {
			item.set(statement.key, ustring8(statement.values.front()), 0);
		}
	}
	return item;
}

inline QUOR_2_9::config::config_tree::value_pair_array nodes_of(QUOR_2_9::config::config_tree const &tree) {
	QUOR_2_9::config::config_tree::value_pair_array listing;
	tree.get_value_pair_array("", listing, true, "");
	return listing;
}

// What the slow writer makes of a listing.
inline reference::cfg_written slowly_written(QUOR_2_9::config::config_tree::value_pair_array const &listing) {
	std::vector<reference::cfg_entry> entries;
	for (auto const &[name, node] : listing) {
		entries.push_back({name, node.first, node.second.as_utf8()});
	}
	return reference::write_cfg(entries);
}

} // namespace quor_test

#endif
