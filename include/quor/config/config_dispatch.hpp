#ifndef QUOR_CONFIG_CONFIG_DISPATCH_HPP
#define QUOR_CONFIG_CONFIG_DISPATCH_HPP

/// @file
/// The strategy of a `config_manager`: which sources there are, in which order, and how
/// they are loaded. Programs use `std_config_dispatch`, modules inside of a program
/// `module_config_dispatch`; this base is for strategies of one's own.
///
///     class two_files : public quor::config::config_dispatch {
///     public:
///         void setup(item_list &items) const override {
///             for (char const *name : {"mine.cfg", "common.cfg"}) {
///                 items.push_back(create_dynamic<quor::config::file_item>(name));
///             }
///         }
///         two_files *clone() const override { return new two_files(*this); }
///     };
///
/// @since 2.9

#include <quor/config/base_config_item.hpp>
#include <quor/export.hpp>
#include <quor/generic/abilities/clone_ability.hpp>

namespace QUOR_2_9::config {

/// Decides which configuration items exist and drives them.
///
/// A dispatch holds no items: the manager hands it its list. Null pointers in a list are
/// passed over.
///
/// The virtual operations stand in this order, behind the destructor: `setup`, `load`,
/// `unload`, `save`, `clone`. Thread-safety: as a value, many readers or one writer; the
/// items that are handed in belong to one thread.
/// @since 2.9
class QUOR_API config_dispatch : public generic::abilities::clone_ability {
public:
	/// The items of a manager, highest precedence first.
	using item_list = base_config_item::item_list;

	/// Does nothing. @since 2.9
	config_dispatch() noexcept = default;
	/// Copies nothing. @since 2.9
	config_dispatch(config_dispatch const &) noexcept = default;
	/// Copies nothing. @since 2.9
	config_dispatch &operator=(config_dispatch const &) noexcept = default;
	/// Destroys the derived object. @since 2.9
	~config_dispatch() override;

	/// Appends the items of this strategy to a list, highest precedence first. Loads nothing.
	/// @since 2.9
	virtual void setup(item_list &items) const = 0;

	/// Calls `load(items)` on each item in the order of the list, so an item finds loaded
	/// those before it only. What the items answer is dropped. Where one throws, those behind
	/// it aren't called; the same holds for `unload` and `save`. @since 2.9
	virtual void load(item_list &items) const;

	/// Calls `unload()` on each item in the order of the list. @since 2.9
	virtual void unload(item_list &items) const;

	/// Calls `save(items)` on each item in the order of the list. None of the library's items
	/// writes anything then: `file_item::save()` without a list does. @since 2.9
	virtual void save(item_list &items) const;

	/// A new heap object with the same contents; the caller owns it and deletes it.
	/// @since 2.9
	virtual config_dispatch *clone() const = 0;
};

} // namespace QUOR_2_9::config

#endif
