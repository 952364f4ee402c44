#ifndef QUOR_CONFIG_USER_ITEM_HPP
#define QUOR_CONFIG_USER_ITEM_HPP

/// @file
/// The configuration source that the application fills by hand: defaults, values from a
/// dialog, or whatever no other source knows.
///
///     quor::config::user_item defaults;
///     defaults.set("server.port", 8080, 0);
///     defaults.set("server.host = localhost", 0);
///     defaults.get_value("server.host")->second.as_utf8();   // "localhost"
///
/// @since 2.9

#include <quor/config/base_config_item.hpp>
#include <quor/export.hpp>

namespace QUOR_2_9::config {

/// Values that the application stored with `set` and `set_array`.
///
/// `load`, `save` and `unload` do nothing, so the values stay. The id is "user item" for an
/// item that was made from nothing and "user_item" for copies and clones: an item that
/// came into a `config_manager` through a dispatch is found as "user_item".
///
/// A copy has a tree of its own, is held by nobody and is not marked as created
/// dynamically; assignment leaves the target's own count and mark. Thread-safety: many
/// readers or one writer.
/// @since 2.9
class QUOR_API user_item : public base_config_item {
public:
	/// An item with an empty tree and the id "user item".
	/// @since 2.9
	user_item();

	/// Copies the tree, deeply. The id is "user_item", whatever that of `other` is.
	/// @since 2.9
	user_item(user_item const &other);

	/// Destroys the tree.
	/// @since 2.9
	~user_item() override;

	/// Copies id and tree: the id becomes that of `other`.
	/// @since 2.9
	user_item &operator=(user_item const &other);

	/// A copy on the heap, made with `create_dynamic`; its id is "user_item". The caller
	/// owns it until it hands it to a pointer.
	/// @since 2.9
	user_item *clone() const override;
};

} // namespace QUOR_2_9::config

#endif
