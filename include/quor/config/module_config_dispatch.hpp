#ifndef QUOR_CONFIG_MODULE_CONFIG_DISPATCH_HPP
#define QUOR_CONFIG_MODULE_CONFIG_DISPATCH_HPP

/// @file
/// The sources of a module inside of a program: files, over the environment, over values
/// that the program sets. A program with a command line uses `std_config_dispatch`.
///
///     quor::config::config_manager settings;
///     settings.init(quor::config::module_config_dispatch({"mine.cfg", "common.cfg"}, environ));
///     settings.get_config_item("user_item")->set("log.level", 2, 0);
///     settings.load();
///     settings.get_value("log.level").as_int();   // 2, unless a file or the environment tells
///
/// @since 2.9

#include <vector>

#include <quor/config/config_dispatch.hpp>
#include <quor/export.hpp>
#include <quor/generic/varg_list.hpp>
#include <quor/strings/ustring.hpp>

namespace QUOR_2_9::config {

/// Sets up a `file_item` for each file, an `enviroment_item` and a `user_item`, in this
/// order of precedence and of loading. The user item has the id "user_item"; its values
/// come last, as defaults do.
///
/// The order decides which keys a file item sees when it seeks its file. A `cfg_file` key
/// inside of the first file thus redirects every file item behind it, and from the second
/// load on also the first one. One of the environment redirects all of them from the
/// second load on, one of the user values from the first on.
///
/// A value type; copies copy all fields. The environment strings aren't owned and must
/// outlive the dispatch and every manager that it was given to.
/// @since 2.9
class QUOR_API module_config_dispatch : public config_dispatch {
public:
	/// The sources of a module.
	/// @param files the paths: each argument's value as text, in the order of the list, an
	///        empty one too. The arguments' names aren't looked at.
	/// @param envp zero-terminated strings up to a null entry, as `environ` is; may be null.
	/// @since 2.9
	module_config_dispatch(generic::varg_list const &files, char const *const *envp);
	/// Copies all fields. @since 2.9
	module_config_dispatch(module_config_dispatch const &);
	/// Copies all fields. @throws std::bad_alloc, with nothing changed. @since 2.9
	module_config_dispatch &operator=(module_config_dispatch const &other);
	/// Leaves the environment strings alone. @since 2.9
	~module_config_dispatch() override;

	/// Appends a file item for each file, an environment item and a user item, all empty.
	/// @throws std::bad_alloc, with nothing appended. @since 2.9
	void setup(item_list &items) const override;

	/// A copy on the heap; the caller owns it. @since 2.9
	module_config_dispatch *clone() const override;

private:
	char const *const *m_envp = nullptr;
	std::vector<strings::ustring8> m_file_names;
};

} // namespace QUOR_2_9::config

#endif
