#ifndef QUOR_CONFIG_BASE_CONFIG_ITEM_HPP
#define QUOR_CONFIG_BASE_CONFIG_ITEM_HPP

/// @file
/// The base of all configuration sources. An application derives from it for a source of
/// its own; for values that it sets by hand it takes `user_item`
/// (`quor/config/user_item.hpp`).
///
///     class registry_item : public quor::config::base_config_item {
///     public:
///         registry_item() { item_id = "registry"; }
///         bool load() override { set("server.port", 8080, 0); return true; }
///         registry_item *clone() const override {
///             return quor::generic::abilities::create_dynamic<registry_item>(*this);
///         }
///         using base_config_item::load;      // the form with a list calls the one above
///     };
///
/// @since 2.9

#include <iosfwd>
#include <list>
#include <utility>

#include <quor/config/config_token.hpp>
#include <quor/config/config_tree.hpp>
#include <quor/export.hpp>
#include <quor/generic/abilities/clone_ability.hpp>
#include <quor/generic/abilities/reference_count_pointer_ability.hpp>
#include <quor/generic/varg_list.hpp>
#include <quor/memory/pointers/rc_pointer.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/variant.hpp>

namespace QUOR_2_9::config {

namespace detail {
struct item_access;
}

/// One source of configuration values: a name, a tree of keys, and how it is loaded.
///
/// What keys and flags are is told at `config_tree`. Items are held by `rc_pointer`, so they
/// are made by `create_dynamic` or `clone`. The order of the virtual functions is part of
/// the binary interface. Thread-safety: many readers or one writer; the reference count is
/// atomic, so pointers to an item may be copied and destroyed by several threads at once.
/// @since 2.9
class QUOR_API base_config_item : public generic::abilities::clone_ability,
                                  public generic::abilities::reference_count_pointer_ability<base_config_item> {
public:
	/// The sources of a manager, in the order in which they are asked. @since 2.9
	using item_list = std::list<memory::pointers::rc_pointer<base_config_item>>;

	/// An item without name and keys. @since 2.9
	base_config_item();
	/// Copies name and tree; the copy is held by nobody. Derived classes of the library set
	/// their own name afterwards. @throws as the copy constructor of `config_tree`. @since 2.9
	base_config_item(base_config_item const &other);
	/// Copies name and tree, and leaves the number of holders. If it throws, nothing is
	/// changed. @throws as the copy constructor of `config_tree`. @since 2.9
	base_config_item &operator=(base_config_item const &other);
	/// Destroys the tree. @since 2.9
	~base_config_item() override;

	/// Reads the source into the tree; keys that are there already stay unless the source has
	/// them. Here: does nothing and returns true. @since 2.9
	virtual bool load();
	/// The same with a look at the other sources, which a file needs to find its name. Here:
	/// calls `load()` and returns its result. @since 2.9
	virtual bool load(item_list const &items);
	/// Writes the tree to the source. Here: does nothing and returns true. @since 2.9
	virtual bool save();
	/// What saving through a manager calls. Here: does nothing and returns true; it doesn't
	/// call `save()`. @since 2.9
	virtual bool save(item_list const &items);
	/// Forgets what was loaded. Here: does nothing. @since 2.9
	virtual void unload();
	/// A new copy that is marked as created dynamically; the caller owns it. @since 2.9
	virtual base_config_item *clone() const = 0;

	/// The name by which a manager finds the item. @since 2.9
	strings::ustring8 get_id() const;

	/// Stores a value under a key with the flags word `flags | 1`. @since 2.9
	void set(strings::ustring8 const &key, types::variant const &value, unsigned int flags);
	/// Stores the second of a pair under the first. @since 2.9
	void set(std::pair<strings::ustring8, types::variant> const &entry, unsigned int flags);
	/// Stores what `make_key_value` reads from an assignment, with `=` between key and value:
	/// `set("a.b = 1 2", 0)` stores "12" under `a.b`, and `set("flag", 1)` an empty text under
	/// `flag`; the number is the flags word, not a value. @since 2.9
	void set(strings::ustring8 const &assignment, unsigned int flags);

	/// Stores an array: the node at the key becomes its head, with flags word 3 and a nil
	/// value, and the node at `key`, "." and the index its elements.
	///
	/// With empty `flags` each element has flags word 1. Otherwise an element has that of its
	/// index, read as unsigned 32 bits, with bit 0 added; elements behind the last one of
	/// `flags` get 1 and are stored as unsigned 32-bit numbers (`as_uint32`, of type
	/// `types::ulong_t`), so that "-4" becomes 0 and "abc" too.
	///
	/// Elements of a longer array that was there before stay behind the new ones. A key that
	/// ends in a separator has its elements below its child with the empty name. Linear in
	/// the key and the elements, times the logarithm of their number. @since 2.9
	void set_array(strings::ustring8 const &key, generic::varg_list const &values, generic::varg_list const &flags);

	/// Flags word and value of a key, or null; see `config_tree::get_node`. @since 2.9
	config_tree::node_value const *get_value(strings::ustring8 const &key) const;
	/// Appends the elements of an array; see `config_tree::get_array`. @since 2.9
	void get_array(strings::ustring8 const &key, config_tree::value_pair_array &out) const;
	/// Appends what lies below a key, by names relative to it; the empty key is the whole
	/// tree. See `config_tree::get_value_pair_array`. @since 2.9
	void get_value_pair_array(strings::ustring8 const &key, config_tree::value_pair_array &out, bool recursive) const;

	/// Reads a key and a value from a line.
	///
	/// The key is made of all tokens before the first one of type `stop`, the value of those
	/// behind it up to the line's end; behind a key without `stop` it is empty. Blanks and tabs
	/// outside quotes vanish, in keys line ends too, and so do the quotes: `a = b c` gives
	/// "a" and "bc", `a = "b c"` gives "b c". The value is a `ustring8`, also when empty. A
	/// line of 0xFFFFFFFE bytes or more gives an empty key and value. Linear. @since 2.9
	std::pair<strings::ustring8, types::variant> make_key_value(strings::ustring8 const &line,
	                                                            config_token::tok_types stop) const;

	/// Writes name and tree for people; see `config_tree::dump`. @since 2.9
	void dump(std::ostream &os) const;

protected:
	/// Scans the token of `text` at `pos`, fills `token` and moves `pos` behind it.
	///
	/// Every byte belongs to some token, nothing fails; see `config_token::tok_types`. Returns
	/// `token.token_type`, except for `*/`, where it returns `T_FSFS`. At or behind the end, and
	/// in texts of 0xFFFFFFFE bytes or more, it returns `T_END`, sets `token_type` to it and
	/// leaves all else as it is. `T_SPACE` leaves the text of `token` as it is.
	///
	/// In a string a backslash protects the byte behind it from ending the string; both stay
	/// in the text. A string that isn't closed ends with the text, and `pos` is then its size
	/// plus 1; if its last byte is a backslash that protects nothing, the text gets a zero
	/// byte behind it and `pos` is the size plus 2. Linear in the token; allocates for
	/// `token_text` alone. @since 2.9
	config_token::tok_types get_token(strings::ustring8 const &text, unsigned int &pos, config_token &token) const;

	/// The name by which a manager finds the item. @since 2.9
	strings::ustring8 item_id;
	/// The keys of this source. @since 2.9
	config_tree item_tree;

private:
	friend struct detail::item_access;
};

/// The same as `item.dump(os)`; returns the stream. @since 2.9
QUOR_API std::ostream &operator<<(std::ostream &os, base_config_item const &item);

} // namespace QUOR_2_9::config

#endif
