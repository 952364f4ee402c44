#ifndef QUOR_CONFIG_CONFIG_TREE_HPP
#define QUOR_CONFIG_CONFIG_TREE_HPP

/// @file
/// The keys of one configuration source: a tree of named nodes, each with a value and a
/// word of flags. Programs mostly read through `config_manager`
/// (`quor/config/config_manager.hpp`), which asks several sources in their order.
///
///     quor::config::config_tree tree;
///     tree.set_node("Server.Port", 8080, 0);
///     tree.get_node("server/port")->second.as_int();    // 8080
///     tree.get_node("server")->first;                   // 0: passed through only
///     std::cout << tree;
///
/// @since 2.9

#include <iosfwd>
#include <type_traits>
#include <utility>
#include <vector>

#include <quor/config/child_map.hpp>
#include <quor/export.hpp>
#include <quor/generic/abilities/clone_ability.hpp>
#include <quor/generic/abilities/reference_count_pointer_ability.hpp>
#include <quor/memory/pointers/rc_pointer.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/variant.hpp>

namespace QUOR_2_9::config {

/// A node with its children; a tree is its root node.
///
/// *Keys.* A key is a list of components separated by `.`, `\` or `/`, the path from the
/// root down. ASCII letters are stored in lower case, so look-ups don't tell case or
/// separators apart. One separator at the end is ignored (`a.` is `a`), all others cut:
/// `a..` is the child with the empty name of `a`, and the empty key is that of the root.
/// Any other byte may stand in a component, zero too.
///
/// *Flags.* Bit 0 (`flag_set`) says that the node was given a value, bit 1 (`flag_array`)
/// that its children `0`, `1`, `2`, ... are the elements of an array, bit 2
/// (`flag_reference`) that its value is the name of another key. A node that only lies on
/// the way to others has 0. Other bits are stored as they are passed.
///
/// A value that can also be counted: `rc_pointer` shares it. Copies are deep, referenced by
/// nobody and not marked as created dynamically; assignment copies the contents and leaves
/// the target's own count and mark. Single nodes are never removed.
///
/// Thread-safety: many readers or one writer. Cost: an operation takes one look-up for each
/// component, logarithmic in the number of siblings. No operation uses the call stack for
/// the depth of a tree, so keys from outside may have any number of components.
/// @since 2.9
class QUOR_API config_tree : public generic::abilities::reference_count_pointer_ability<config_tree>,
                             public generic::abilities::clone_ability {
public:
	/// A flags word and a value. @since 2.9
	using node_value = std::pair<unsigned int, types::variant>;
	/// What the listings are appended to: names with flags words and values. @since 2.9
	using value_pair_array = std::vector<std::pair<strings::ustring8, node_value>>;

	/// The node was given a value by `set_node`. @since 2.9
	static constexpr unsigned int flag_set = 1;
	/// The node is the head of an array. @since 2.9
	static constexpr unsigned int flag_array = 2;
	/// The value is the name of another key. @since 2.9
	static constexpr unsigned int flag_reference = 4;

	/// A node without children, with flags word 0 and a nil value. @since 2.9
	config_tree();
	/// A node without children, with this flags word, as it stands, and this value.
	/// @since 2.9
	config_tree(unsigned int flags, types::variant const &value);
	/// The same with anything that a variant can hold. @since 2.9
	template <class Value, std::enable_if_t<!std::is_same_v<Value, types::variant>, int> = 0>
	config_tree(unsigned int flags, Value const &value) : node_data(flags, value) {}
	/// A deep copy: new nodes with the same names, flags and values (which are shared).
	/// @throws char const *, "unreferanced object", if `children` of a node in `other` holds
	///         a null pointer; std::bad_alloc. Nothing is leaked.
	/// @since 2.9
	config_tree(config_tree const &other);
	/// Replaces flags, value and children by a deep copy of another tree's; if that throws,
	/// nothing is changed. `other` may be a part of this tree or the other way round. Pointers
	/// to nodes of this tree dangle afterwards.
	/// @throws as the copy constructor. @since 2.9
	config_tree &operator=(config_tree const &other);
	/// Lets go of the children; those that somebody else holds live on. @since 2.9
	~config_tree() override;

	/// A new deep copy with count 0 that is marked as created dynamically; the caller owns
	/// it. @throws as the copy constructor. @since 2.9
	virtual config_tree *clone() const;

	/// Lets go of all children; flags and value of the node itself stay. @since 2.9
	void erase();

	/// Cuts a key at its first separator: `head` becomes what stands before it, with ASCII
	/// letters in lower case, `tail` what stands behind it, unchanged. Without a separator
	/// `tail` is empty. The strings may be `key` itself. @since 2.9
	void parse_string(strings::ustring8 const &key, strings::ustring8 &head, strings::ustring8 &tail) const;

	/// Gives the node at a key a value and the flags word `flags | 1`, in place of the ones
	/// it has; its children stay. Nodes that are missing on the way are made, with flags word
	/// 0 and a nil value. If memory runs out, nothing is changed. `value` may be one of the
	/// tree. @since 2.9
	void set_node(strings::ustring8 const &key, types::variant const &value, unsigned int flags);

	/// Flags word and value of the node at a key, or null if there is none. A node that was
	/// only passed through exists. Valid until the node goes: by `erase`, by an assignment to
	/// the tree or with the tree. Allocates nothing for keys of up to 256 bytes. @since 2.9
	node_value const *get_node(strings::ustring8 const &key) const;

	/// Appends the elements of an array: for each child `0`, `1`, `2`, ... of the node at the
	/// key, up to the first number that is missing, the name and a copy of flags and value.
	/// Does nothing if there is no such node or its `flag_array` is not set. @since 2.9
	void get_array(strings::ustring8 const &key, value_pair_array &out) const;

	/// Appends what lies below a node: for each child in the order of the names, its name
	/// and a copy of flags and value; if `recursive`, each child is followed by what lies
	/// below it, named with its path.
	///
	/// With an empty key the node is the tree's root and names begin with `prefix` and ".",
	/// unless `prefix` is empty. With a key it is the node at that key, nothing if there is
	/// none, and `prefix` is ignored: names are relative to that node. A child whose own name
	/// and prefix are empty passes an empty prefix on, so its children have bare names.
	/// Cost: linear in the length of all names written. @since 2.9
	void get_value_pair_array(strings::ustring8 const &key, value_pair_array &out, bool recursive,
	                          strings::ustring8 const &prefix) const;

	/// Writes the tree below this node for people, each line behind `indent` times "|" and
	/// two tabs: for each child its name, " : ", and flags word and value as text, or "true"
	/// if the flags word is 0, then its children with `indent` and 1. A negative `indent`
	/// puts nothing before a line.
	///
	/// The stream's formatting and locale play no part. Names and values are written in full
	/// length, zeros too. Cost: linear in what is written, which grows with the square of
	/// the depth. @since 2.9
	void dump(std::ostream &os, int indent) const;

	/// The children by their names, which are in lower case and hold no separator. The
	/// pointers aren't null; a null one counts as a missing node, but can't be copied.
	/// @since 2.9
	child_map children;
	/// This node's own flags word and value. @since 2.9
	node_value node_data;
};

/// The same as `tree.dump(os, 0)`; returns the stream. @since 2.9
QUOR_API std::ostream &operator<<(std::ostream &os, config_tree const &tree);

} // namespace QUOR_2_9::config

#endif
