#ifndef QUOR_CONFIG_FILE_ITEM_HPP
#define QUOR_CONFIG_FILE_ITEM_HPP

/// @file
/// The configuration source that is a text file: sections, keys, arrays and comments.
/// `quor/config/std_config_dispatch.hpp` sets one up between the command line and the
/// environment; on its own it reads and writes one file.
///
///     // top = 1
///     // [server]
///     // name = "my server"     # comments of both kinds
///     // list[] = a, b,
///     //          c
///     quor::config::file_item item("app.cfg");
///     item.load();
///     item.get_value("server.name");      // flags 1 and the text "my server"
///
/// @since 2.9

#include <quor/config/base_config_item.hpp>
#include <quor/export.hpp>
#include <quor/strings/ustring.hpp>

namespace QUOR_2_9::config {

/// The settings of one file.
///
/// The text is cut into tokens as `base_config_item::get_token` tells, and tokens decide,
/// not lines. A file is a sequence of statements, with blanks, tabs, line ends (LF or
/// CR LF) and comments between them:
///
/// - *Comments* run from `#` or `//` to the line end, at the beginning of a statement and
///   in a value; in keys and section names both are text. A comment is stepped over token by
///   token: a lone `"` in it takes all up to the next `"`, line ends included. There are no
///   block comments.
/// - *Sections*: `[name]` puts "name." in front of all keys that follow; `[]` goes back to
///   the top. Blanks, tabs and line ends in a name vanish. Only a `[` at the beginning of a
///   statement opens a section. What follows the `]` is a new statement.
/// - *Values*: `key = value` stores the text with flags 1. Blanks and tabs outside quotes
///   vanish from both ("a b = c d" is "ab" and "cd"), quotes vanish and keep what is
///   between them, backslashes included. A value ends at the line end or at a comment, a
///   key only at a `=` that is no part of `==`, `+=`, `:=` or the like: it runs over line
///   ends, so that text without `=` becomes part of the next key. An empty value, even
///   a quoted one, stores nothing.
/// - *Arrays*: `key[] = a, b, c` stores what `set_array` does. Behind a comma the value
///   goes on over line ends and comments until the next text. An empty last element stores
///   nothing: the elements before it wait, and become the first ones of the next array of
///   the file.
///
/// **A key of one byte** (`a = 1`, a stray last byte of the file) goes to
/// `debug::invalid_parameter` and by default ends the process. Where the handler throws,
/// nothing of that statement is stored, but all before it is. Where it returns, the key
/// is an ordinary one.
///
/// Bytes are taken as they stand: a byte order mark is part of the first key, and zero bytes
/// are text. Untrusted input: safe, but for the key of one byte; time and memory are linear
/// in the text, for each component of the keys logarithmic in the number of its neighbours.
/// A file of 4 GiB - 2 bytes or more, or of unknown size, counts as unreadable.
///
/// A value type: copies are deep and have the id "standard file". Thread-safety: many
/// readers or one writer; two items on one file know nothing of each other.
/// @since 2.9
class QUOR_API file_item : public base_config_item {
public:
	/// An item with the id "standard file", an empty tree and the path of its file, empty
	/// for none. Nothing is opened. @since 2.9
	file_item(strings::ustring8 const &file_name);
	/// Copies the tree and the path; the id is "standard file". @since 2.9
	file_item(file_item const &other);
	/// Copies id, tree and path. @since 2.9
	file_item &operator=(file_item const &other);
	/// Releases the tree. @since 2.9
	~file_item() override;

	/// The path of the file; empty if there is none. @since 2.9
	strings::ustring8 get_filename() const;

	/// Reads the file into the tree and returns true, whatever came of it.
	///
	/// Adds to the tree: equal keys are overwritten, all others stay. Without a path, and
	/// where the file doesn't open, the tree stays as it is; only regular files open.
	/// @throws what the handler of `debug::invalid_parameter` throws for a key of one byte.
	///         std::bad_alloc, std::length_error where the file doesn't fit into memory.
	/// @since 2.9
	bool load() override;

	/// Finds the file with the help of all items, then reads it as `load` does.
	///
	/// The first item, in the order of the list, whose "cfg_file" is the path of a file that
	/// opens gives the path, also against one given before. If the path is still empty,
	/// the first item does for whose "application.name.raw" + ".cfg" a file opens. Only
	/// regular files open: directories, pipes and devices are no candidates, and nothing
	/// here waits. The path found stays when the item is unloaded.
	/// @return true.
	/// @throws as `load`.
	/// @since 2.9
	bool load(item_list const &items) override;

	/// Writes the tree to the file and returns true, also where the file can't be written.
	///
	/// For each node without a value of its own (flags 0), in the order of the tree, a
	/// section is written: "[name]", a line `key=value` for each entry, an empty line; line
	/// ends are CR LF. A name or value with a blank, a tab, CR or LF stands in quotes, and
	/// nothing is escaped. Not everything comes back when the file is loaded again:
	///
	/// - Keys of the top level are not written, nor is what lies below a node that has a
	///   value of its own, unless another section's name has the same length.
	/// - A section takes in all entries whose own section's name has the same *length* as
	///   its own; loading such a file gives each of these sections the keys of all.
	/// - An array (flags exactly 3) takes the entry behind it if that has the name `0`, and
	///   then all up to the first whose name is no number or the number 0 (as `str_to_int`
	///   reads it, by its prefix). The order is that of the tree: `0`, `1`, `10`, `2`. The
	///   entry that ends the array, or stands behind a head without a `0`, is **left out**.
	/// - Values that no blank brings into quotes are read as the reader reads them: `#` and
	///   `//` begin a comment, quotes vanish, a leading `=` becomes part of the key, a comma
	///   ends an element. A backslash at the end of one in quotes hides the closing quote. An
	///   empty value, and an array with an empty last element, store nothing.
	/// - Comments are not kept.
	///
	/// An array that runs to the last entry of the tree goes to `debug::invalid_parameter`
	/// and by default ends the process. Where the handler throws, nothing is written and the
	/// old file stays; where it returns, the array is complete.
	/// @throws what the handler throws. std::bad_alloc, std::length_error: S sections with
	///         names of one length and N entries in all make S times N lines.
	/// @since 2.9
	bool save() override;

	/// Does nothing and returns true: a manager that saves its items writes no file.
	/// @since 2.9
	bool save(item_list const &items) override;

	/// Empties the tree; the path stays. @since 2.9
	void unload() override;

	/// A new heap item with the same contents, count 0 and the created-dynamic flag set; the
	/// caller owns it. @since 2.9
	file_item *clone() const override;

protected:
	/// Reads the file into the tree, as `load` tells.
	void load_file();

	/// Steps over a comment: moves `pos`, which stands behind its `#` or `//`, to the line end
	/// that closes it, or to the end of the text. Linear in what is passed.
	void parse_comment(strings::ustring8 const &text, unsigned int &pos) const;

	/// The path of the file, empty if unknown.
	strings::ustring8 file_name;
};

} // namespace QUOR_2_9::config

#endif
