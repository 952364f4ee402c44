#ifndef QUOR_I18N_LOAD_RESULT_HPP
#define QUOR_I18N_LOAD_RESULT_HPP

/// @file
/// How the loading of message catalogs ended: a kind for programs and a text for people.
/// `message_catalogs` (`quor/i18n/message_catalogs.hpp`) takes these names over, and they
/// are mostly used through it.
///
///     quor::i18n::message_catalogs::result_type result = catalogs.load("catalogs", "de");
///     if (result == quor::i18n::message_catalogs::entity_not_found) { std::cerr << result << '\n'; }
///
/// @since 2.9

#include <iosfwd>

#include <quor/export.hpp>
#include <quor/i18n/xmc_file_loader.hpp>
#include <quor/strings/ustring.hpp>

namespace QUOR_2_9::i18n {

/// The kinds and the result of a load, as members that `message_catalogs` inherits.
/// @since 2.9
struct load_result_types {
	/// How a load ended.
	/// @since 2.9
	enum error_type : int {
		/// Success.
		no_error = 0,
		/// A file without any catalog, or one that includes such a file.
		no_catalog = 1,
		/// A file that doesn't exist, or an include that leads nowhere.
		file_not_found = 3,
		/// A directory that doesn't exist.
		directory_not_found = 4,
		/// A path with neither a file nor a directory.
		entity_not_found = 5,
		/// A file that is there but faulty; the text tells how.
		load_failed = 6
	};

	/// The result of a load: a kind for programs and a text for people. A value.
	/// @since 2.9
	class QUOR_API result_type {
	public:
		/// A kind with its text for a path.
		/// @since 2.9
		result_type(error_type type, strings::ustring8 const &data);

		/// The result for what the loader found: its success is `no_error`, its missing file
		/// `file_not_found`, its lack of catalogs `no_catalog`, all else `load_failed`.
		/// @since 2.9
		result_type(_private::xmc_file_loader::load_error const &error);

		/// The text for a kind and a path.
		/// @since 2.9
		static strings::ustring8 format_message(error_type type, strings::ustring8 const &data);

		/// A line for the loader's kind of fault, and the loader's own text behind it.
		/// @since 2.9
		static strings::ustring8 format_message(_private::xmc_file_loader::load_error const &error);

		/// The kind; 0 is success, so that `if (result)` asks for a failure.
		/// @since 2.9
		operator error_type() const noexcept { return m_type; }

		/// The text, of one line or several. It may hold raw bytes of the files.
		/// @since 2.9
		strings::ustring8 const &message() const noexcept { return m_message; }

	private:
		error_type m_type;
		strings::ustring8 m_message;
	};
};

/// Writes the result's text.
/// @since 2.9
QUOR_API std::ostream &operator<<(std::ostream &stream, load_result_types::result_type const &result);

} // namespace QUOR_2_9::i18n

#endif
