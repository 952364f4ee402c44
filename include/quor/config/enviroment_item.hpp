#ifndef QUOR_CONFIG_ENVIROMENT_ITEM_HPP
#define QUOR_CONFIG_ENVIROMENT_ITEM_HPP

/// @file
/// The configuration source that reads the environment of the process.
///
///     // APP.PORT=8080 server
///     quor::config::enviroment_item item(environ);
///     item.load();
///     item.get_value("app.port")->second.as_int();  // 8080
///
/// @since 2.9

#include <quor/config/base_config_item.hpp>
#include <quor/export.hpp>

namespace QUOR_2_9::config {

/// The environment as a configuration source. Its id is "enviroment".
///
/// The strings are not owned: `envp` and what it points to must outlive the item and its
/// copies. A copy has a tree of its own, is held by nobody and is not marked as created
/// dynamically; assignment leaves the target's own count and mark. Thread-safety: many
/// readers or one writer; `load` reads the strings as they are then.
/// @since 2.9
class QUOR_API enviroment_item : public base_config_item {
public:
	/// An item for the strings up to the first null pointer, with an empty tree. `envp` may
	/// be null. Nothing is read before `load`.
	/// @since 2.9
	explicit enviroment_item(char const *const *envp);

	/// Copies `envp` and the tree, deeply. The id is "enviroment".
	/// @since 2.9
	enviroment_item(enviroment_item const &other);

	/// Destroys the tree; the strings stay.
	/// @since 2.9
	~enviroment_item() override;

	/// Copies `envp`, id and tree.
	/// @since 2.9
	enviroment_item &operator=(enviroment_item const &other);

	/// Stores each string of the environment with `set(string, 0)`; always true. A null
	/// `envp` stores nothing.
	///
	/// "NAME=value" is stored under "name", and `.`, `\` and `/` in the name separate the
	/// components of the key as ever. Values lose the blanks that don't stand in quotes,
	/// and the quotes: `P=C:\Program Files` is `p` = "C:\ProgramFiles". A value ends at the
	/// first line end. The name ends at the first `=` that is a token of its own: "A==b" and
	/// "A+=b" have none and are names as a whole, with an empty value.
	///
	/// The tree isn't emptied first: equal keys are overwritten, others stay. Untrusted
	/// input: safe, any bytes. Cost: linear in the length of the strings, and what storing
	/// takes.
	/// @throws std::bad_alloc; what was read before stays stored.
	/// @since 2.9
	bool load() override;
	using base_config_item::load;

	/// Empties the tree.
	/// @since 2.9
	void unload() override;

	/// A copy on the heap, made with `create_dynamic`. The caller owns it until it hands
	/// it to a pointer.
	/// @since 2.9
	enviroment_item *clone() const override;

	/// The strings, as they were given.
	/// @since 2.9
	char const *const *get_envp() const noexcept;

private:
	char const *const *m_envp;
};

} // namespace QUOR_2_9::config

#endif
