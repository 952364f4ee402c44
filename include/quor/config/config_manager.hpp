#ifndef QUOR_CONFIG_CONFIG_MANAGER_HPP
#define QUOR_CONFIG_CONFIG_MANAGER_HPP

/// @file
/// What an application asks for its settings: a list of sources, of which the first that
/// knows a key answers. Nothing is merged; each source keeps its own keys.
///
///     quor::config::config_manager settings;
///     settings.init(quor::config::std_config_dispatch(argc, argv, environ, "server.cfg", ""));
///     settings.load();
///     auto const port = settings.get_value("server.port").as_int();
///     std::vector<quor::types::variant> hosts;
///     settings.get_array("server.hosts", hosts);
///
/// @since 2.9

#include <iosfwd>
#include <utility>
#include <vector>

#include <quor/config/base_config_item.hpp>
#include <quor/config/config_dispatch.hpp>
#include <quor/export.hpp>
#include <quor/memory/pointers/rc_pointer.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/variant.hpp>

namespace QUOR_2_9::config {

/// The sources of an application's settings, highest precedence first, and the dispatch
/// that made them.
///
/// The order of use is: construct, `init`, `load`, then any queries; `unload` and `load`
/// may repeat. Keys are spelled as `config_tree` tells: "server.port" and "Server/Port" are
/// one key.
///
/// Copies share the items: what one loads or unloads, the other sees. The dispatch is
/// shared too and lives as long as one of the managers uses it; `init` gives a manager a
/// dispatch and items of its own again.
///
/// An application's own dispatch may put null pointers into the list; they are passed over.
///
/// Thread-safety: set up and loaded by one thread; then any number of threads may call the
/// const operations at once, also on copies. Untrusted input: keys, stored references and
/// values of any content and length are safe.
/// @since 2.9
class QUOR_API config_manager {
public:
	/// No items and no dispatch. @since 2.9
	config_manager();
	/// Shares the items and the dispatch of another manager. @since 2.9
	config_manager(config_manager const &other);
	/// Gives up the own items and dispatch and shares those of another manager. Assignment
	/// to itself does nothing. @throws std::bad_alloc, with nothing changed. @since 2.9
	config_manager &operator=(config_manager const &other);
	/// Gives up the dispatch and the items. @since 2.9
	virtual ~config_manager();

	/// Takes a copy of a dispatch and lets it set up the items, in place of the dispatch and
	/// the items there were. Nothing is loaded yet.
	///
	/// The copy and the new items are made before the old ones go, so `dispatch` may be part
	/// of what this manager holds. Must not be called by an item or a dispatch of this manager
	/// while it works for it.
	/// @throws what the dispatch's `clone` and `setup` throw, with nothing changed.
	/// @since 2.9
	void init(config_dispatch const &dispatch);

	/// Loads the items in the order of the list.
	///
	/// What was loaded before stays where the sources don't overwrite it; `unload` first for
	/// a fresh start. Files that are missing or can't be read aren't reported.
	/// @return false if there is no dispatch, else true, whatever the items did.
	/// @throws what an item throws: for a file, see `file_item::load`. The items before it are
	///         loaded then, those behind it aren't.
	/// @since 2.9
	bool load();

	/// Hands the items to the dispatch for saving.
	///
	/// Writes nothing: none of the library's items saves itself as part of a list. To write a
	/// file, fetch its item and call `save()` on it:
	/// `manager.get_config_item("standard file")->save()`.
	/// @return false if there is no dispatch, else true, whatever the items did.
	/// @since 2.9
	bool save();

	/// Empties the items, except user items, which keep their values. A file item keeps the
	/// name of the file that it found.
	/// @return false if there is no dispatch, else true, whatever the items did.
	/// @since 2.9
	bool unload();

	/// The value of a key.
	///
	/// The first item that has a node at the key decides, even if the node is one that only
	/// a deeper key passed through and so has a nil value: "a.b" on the command line hides a
	/// plain "a" of a file.
	///
	/// For an array it is the first element, as it stands there, and nil if there is none.
	/// A key that ends in a separator finds the array but not its elements: "list." is nil.
	/// For a reference (flag 4) it is the value of the key that the text of the value names,
	/// asked for again from the first item on. A chain of references that comes back to
	/// a name ends with the value that is stored there, which is that name. Names in a chain
	/// are compared byte for byte, "A" and "a" being two.
	/// @return nil if no item has the key.
	/// @throws std::bad_alloc.
	/// Cost: one look-up in each item up to the first that has the key. Following references
	/// takes time and memory linear in the chain; nothing is allocated without them.
	/// @since 2.9
	types::variant get_value(strings::ustring8 const &key) const;

	/// Whether `get_value` gives something other than nil: false for a key that was only
	/// passed through, true for an empty text. @since 2.9
	bool value_exist(strings::ustring8 const &key) const;

	/// Whether any item holds an array at the key. Unlike `get_value` this looks past items
	/// in which the key is something else. @since 2.9
	bool is_array(strings::ustring8 const &key) const;

	/// Appends the elements of the array to `out`: those of the first item in which the key
	/// is an array, from index 0 up to the first gap. References among them aren't
	/// followed. No such item: nothing is appended.
	/// @throws std::bad_alloc, with nothing appended. @since 2.9
	void get_array(strings::ustring8 const &key, std::vector<types::variant> &out) const;

	/// Appends the names and values below a key to `out`: those of the first item that has a
	/// node at the key, whatever it is. Names are relative to the key and stand in byte
	/// order, keys that were only passed through included; with `recursive` every key is
	/// followed by those below it. No such item: nothing is appended.
	///
	/// The empty key asks for the child with the empty name, which hardly ever exists; an item
	/// that has one lists all of its keys then. To list an item, fetch it by `get_config_item`
	/// and call its `get_value_pair_array` with the empty key.
	/// @throws std::bad_alloc, with nothing appended. @since 2.9
	void get_key_value_array(strings::ustring8 const &key,
	                         std::vector<std::pair<strings::ustring8, types::variant>> &out, bool recursive) const;

	/// The first item of that id, compared byte for byte; null if there is none. The item is
	/// shared with the manager.
	///
	/// The library's ids are "command line", "standard file", "enviroment" and, for the user
	/// item of a `module_config_dispatch`, "user_item". @since 2.9
	memory::pointers::rc_pointer<base_config_item> get_config_item(strings::ustring8 const &id) const;

	/// Writes all items with all of their keys for a human. @since 2.9
	void dump(std::ostream &stream) const;

private:
	class shared_dispatch;

	config_dispatch::item_list m_items;
	memory::pointers::rc_pointer<shared_dispatch> m_dispatch;
};

/// The same as `manager.dump(stream)`; returns the stream. @since 2.9
QUOR_API std::ostream &operator<<(std::ostream &stream, config_manager const &manager);

} // namespace QUOR_2_9::config

#endif
