#ifndef QUOR_CONFIG_STD_CONFIG_DISPATCH_HPP
#define QUOR_CONFIG_STD_CONFIG_DISPATCH_HPP

/// @file
/// The sources of a program: its command line, over a file, over its environment. A
/// module inside of a program, which has no command line, uses `module_config_dispatch`.
///
///     int main(int argc, char **argv) {
///         quor::config::config_manager settings;
///         settings.init(quor::config::std_config_dispatch(argc, argv, environ, "", ""));
///         settings.load();
///         auto const port = settings.get_value("server.port").as_int();
///     }
///
/// @since 2.9

#include <quor/config/config_dispatch.hpp>
#include <quor/export.hpp>
#include <quor/strings/ustring.hpp>

namespace QUOR_2_9::config {

/// Sets up a `commandline_item`, a `file_item` and an `enviroment_item`, in this order of
/// precedence and of loading.
///
/// The order decides which keys the file item sees when it seeks its file: those of the
/// command line, so `-cfg_file=x` works, while a `cfg_file` of the environment is there
/// from the second load on only, unless the command line names a file that opens.
///
/// A value type; copies copy all fields. The argument and environment strings aren't
/// owned and must outlive the dispatch and every manager that it was given to.
/// @since 2.9
class QUOR_API std_config_dispatch : public config_dispatch {
public:
	/// The sources of a program.
	/// @param argc the number of `argv`'s strings; 0 or below means no arguments.
	/// @param argv zero-terminated strings, as `main` gets them; may be null.
	/// @param envp zero-terminated strings up to a null entry, as `environ` is; may be null.
	/// @param config_file the path of the file; when empty, the file item seeks one. A
	///        `cfg_file` that opens takes its place.
	/// @param second_name kept with the object; nothing reads it.
	/// @since 2.9
	std_config_dispatch(int argc, char const *const *argv, char const *const *envp,
	                    strings::ustring8 const &config_file, strings::ustring8 const &second_name);
	/// Copies all fields. @since 2.9
	std_config_dispatch(std_config_dispatch const &);
	/// Copies all fields. @throws std::bad_alloc, with nothing changed. @since 2.9
	std_config_dispatch &operator=(std_config_dispatch const &other);
	/// Leaves the argument and environment strings alone. @since 2.9
	~std_config_dispatch() override;

	/// Appends a command-line item, a file item and an environment item, all empty.
	/// @throws std::bad_alloc, with nothing appended. @since 2.9
	void setup(item_list &items) const override;

	/// A copy on the heap; the caller owns it. @since 2.9
	std_config_dispatch *clone() const override;

private:
	std_config_dispatch() = default;

	char const *const *m_argv = nullptr;
	char const *const *m_envp = nullptr;
	int m_argc = 0;
	strings::ustring8 m_config_file;
	strings::ustring8 m_second_name;
};

} // namespace QUOR_2_9::config

#endif
