#ifndef QUOR_SRC_CONFIG_STORE_NODE_HPP
#define QUOR_SRC_CONFIG_STORE_NODE_HPP

#include <string_view>

#include <quor/config/config_tree.hpp>
#include <quor/generic/abilities/alloc_detection_ability.hpp>
#include <quor/memory/pointers/rc_pointer.hpp>
#include <quor/types/variant.hpp>

#include "config/key_path.hpp"

namespace QUOR_2_9::config::detail {

/// A new node that has the rest of the path below it, the last node with the value.
template <class Value>
memory::pointers::rc_pointer<config_tree> make_branch(key_path &path, unsigned int flags, Value const &value) {
	using generic::abilities::create_dynamic;
	using node_pointer = memory::pointers::rc_pointer<config_tree>;
	if (path.at_end()) {
		return node_pointer(create_dynamic<config_tree>(flags, value));
	}
	node_pointer branch(create_dynamic<config_tree>());
	config_tree *last = branch.get();
	while (true) {
		std::string_view const name = path.next();
		node_pointer const node(path.at_end() ? create_dynamic<config_tree>(flags, value)
		                                      : create_dynamic<config_tree>());
		last->children[name] = node;
		if (path.at_end()) {
			return branch;
		}
		last = node.get();
	}
}

/// Gives the node at a key a value and a flags word, as `config_tree::set_node` tells. The
/// value is a variant or anything that makes one; a new node makes it in its place.
template <class Value>
void store_node(config_tree &tree, std::string_view key, unsigned int flags, Value const &value) {
	key_path path(key);
	config_tree *node = &tree;
	do {
		bool made = false;
		auto const make = [&] {
			made = true;
			return make_branch(path, flags, value);
		};
		auto &child = node->children.get_or_insert(path.next(), make);
		if (!child) {
			child = make();
		}
		if (made) {
			return;
		}
		node = child.get();
	} while (!path.at_end());
	// A variant may be this node's own: it is taken before the old one is let go.
	node->node_data.second = value;
	node->node_data.first = flags;
}

} // namespace QUOR_2_9::config::detail

#endif
