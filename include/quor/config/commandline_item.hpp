#ifndef QUOR_CONFIG_COMMANDLINE_ITEM_HPP
#define QUOR_CONFIG_COMMANDLINE_ITEM_HPP

/// @file
/// The configuration source that reads the arguments of the program. Programs mostly get
/// it from a `std_config_dispatch`, together with a file and the environment.
///
///     // server -port=8080 -hosts a b -title$"x, y" -verbose
///     quor::config::commandline_item item(argc, argv);
///     item.load();
///     item.get_value("port")->second.as_int();      // 8080
///     item.get_value("hosts.1")->second.as_utf8();  // "b"
///     item.get_value("verbose") != nullptr;         // true
///
/// @since 2.9

#include <quor/config/base_config_item.hpp>
#include <quor/export.hpp>

namespace QUOR_2_9::config {

/// The arguments of the program as a configuration source. Its id is "command line".
///
/// | argument | what is stored |
/// |---|---|
/// | `-key` alone, or before another `-` or `/` argument | a switch: `key` = "", flags word 1 |
/// | `-key value` | `key` = "value" |
/// | `-key a b c` | the array `key` of "a", "b", "c" |
/// | `-key=value`, `-key:value`, `-key:=value` | `key` = "value" |
/// | `-key=a,b,c` | the array `key` of "a", "b", "c" |
/// | `-key$a,b` | `key` = "a,b" |
/// | `/key...` | as with `-` |
/// | anything else | a warning on `std::cout`; the argument is ignored |
///
/// Beside these the name of the program is stored under "application.name",
/// "application.name.extention" and "application.name.raw".
///
/// The strings are not owned: `argv` and what it points to must outlive the item and its
/// copies. A copy has a tree of its own, is held by nobody and is not marked as created
/// dynamically; assignment leaves the target's own count and mark. Thread-safety: many
/// readers or one writer.
/// @since 2.9
class QUOR_API commandline_item : public base_config_item {
public:
	/// An item for the arguments of `main`, with an empty tree.
	///
	/// `argv` may be null. If not, `argv[0]` is the program, whatever `argc` is. Arguments are
	/// read from index 1 on, below `argc`; an `argc` that is negative as an `int` counts as 0.
	/// A null pointer ends them, that of the program too. Nothing is read before `load`.
	/// @since 2.9
	commandline_item(unsigned int argc, char const *const *argv);

	/// Copies `argc`, `argv` and the tree, deeply. The id is "command line".
	/// @since 2.9
	commandline_item(commandline_item const &other);

	/// Destroys the tree; the arguments stay.
	/// @since 2.9
	~commandline_item() override;

	/// Copies `argc`, `argv`, id and tree.
	/// @since 2.9
	commandline_item &operator=(commandline_item const &other);

	/// Reads the program's name and all arguments into the tree; always true.
	///
	/// The tree isn't emptied first: equal keys are overwritten, others stay.
	///
	/// The name is what stands behind the last `\` of `argv[0]`, on systems that separate
	/// directories by `/` behind the last one of both; one separator at the very end is
	/// left out of account, and so is one dot at the end of the name where the name is cut.
	/// "application.name" is the whole name, "application.name.extention" what stands
	/// behind its last dot, if there is one, and "application.name.raw" the rest without
	/// any dots, for a name without a dot the empty text. "tool.test.exe" has the raw name
	/// "tooltest", "tool" has "". Nothing at all is stored if `argv` or `argv[0]` is null.
	///
	/// An argument is cut into tokens (`config_token`), and keys and values are made of
	/// the texts of these tokens: quotes vanish, and what stands in them separates nothing.
	/// A key ends at `=`, `:`, `:=` or `$`. `>=`, `<=`, `+=`, `-=`, `*=` and `/=` end it too
	/// and leave their first character in the key; `==` ends nothing. A second `-` belongs
	/// to the key. Behind `$` a comma is an ordinary character. A run of blanks outside
	/// quotes stands for the text of the token before it once more: "-k v" given as one
	/// argument is a switch named "kkv", and "-t=a b" is `t` = "aab". Whatever holds blanks
	/// has to be quoted for the item: `-t="a b"` with the quotes reaching the program.
	///
	/// A key without a delimiter takes the next argument as its value unless that begins
	/// with `-` or `/`, and all arguments behind that one up to the next that begins with
	/// `-`: `-x a /b` is the array `x` of "a" and "/b", while `-x /b` is two switches. The
	/// text of a switch is itself read as an assignment.
	///
	/// The warning is "Warning! unknown key:", the argument,
	/// "\nIgnoring key and continuing\n".
	///
	/// Untrusted input: safe, any bytes; an argument of 0xFFFFFFFE bytes or more has no
	/// tokens. Cost: linear in the length of the arguments, and what storing takes; a run of
	/// blanks at the start of an argument costs what the token before it did.
	/// @throws std::bad_alloc and what `std::cout` is told to throw; what was read before
	///         stays stored.
	/// @since 2.9
	bool load() override;
	using base_config_item::load;

	/// Empties the tree.
	/// @since 2.9
	void unload() override;

	/// A copy on the heap, made with `create_dynamic`. The caller owns it until it hands
	/// it to a pointer.
	/// @since 2.9
	commandline_item *clone() const override;

	/// The number of entries in `get_argv()`, as it was given.
	/// @since 2.9
	int get_argc() const noexcept;

	/// The arguments, as they were given.
	/// @since 2.9
	char const *const *get_argv() const noexcept;

private:
	unsigned int m_argc;
	char const *const *m_argv;
};

} // namespace QUOR_2_9::config

#endif
