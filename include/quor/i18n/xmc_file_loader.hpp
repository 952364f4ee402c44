#ifndef QUOR_I18N_XMC_FILE_LOADER_HPP
#define QUOR_I18N_XMC_FILE_LOADER_HPP

/// @file
/// Reads XMC message-catalog files: an XML file with one root `xmc` that holds `catalog`
/// elements, each with `msg` elements, and `include` elements that pull in further files.
/// Applications use `quor/i18n/message_catalogs.hpp`, which stands on this; the loader
/// is for those that want the fault itself, or to read a text instead of a file.
///
///     quor::i18n::_private::xmc_file_loader loader;
///     auto error = loader.parse("app.xmc", "de_AT");
///     std::map<quor::strings::ustring8, quor::memory::pointers::shared_pointer<quor::i18n::catalog_t>> catalogs;
///     if (error.type() == 0) { loader.combine_data(catalogs); } else { std::cerr << error.message() << '\n'; }
///
/// @since 2.9

#include <cstddef>
#include <map>
#include <string_view>
#include <vector>

#include <quor/export.hpp>
#include <quor/i18n/catalog.hpp>
#include <quor/i18n/message.hpp>
#include <quor/i18n/message_item.hpp>
#include <quor/memory/pointers/shared_pointer.hpp>
#include <quor/parser/xml_parser.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::i18n::detail {
class message_draft;
} // namespace QUOR_2_9::i18n::detail

namespace QUOR_2_9::i18n::_private {

/// Reads the catalogs that match a language, and optionally a name, out of XMC files.
///
/// Languages: an id is compared with "." and "-" replaced by "_", unless it is one
/// character long. Accepted are "." (neutral text, weight 1), "en" (weight 2) and the
/// requested id with all its beginnings: "de_AT_x" accepts "de", "de_AT", "de_AT_x", each
/// heavier than the one before. A catalog of any other language is passed over. Of two
/// texts for one message the heavier stays; with equal weights the first one of this
/// loader stays, while a merge prefers the newer one.
///
/// Includes: a path that begins with "/" or "\", or that has ":" as its second of at
/// least three characters, is taken as it stands; any other lies beside the including
/// file. Files are included at most `max_include_depth` deep, and at most `max_files`
/// are read in one call; beyond that the load fails with `load_unexpected`.
///
/// What was read stays in the loader: a further call adds to it, its languages add to
/// those accepted (the place of the first mention decides), and a catalog name given to
/// one call filters all that follow. Nothing reaches a map of catalogs before
/// `combine_data`.
///
/// Untrusted input: files and texts are safe; work and memory grow linearly with what is
/// read. Thread-safety: one thread at a time. Files are raw bytes, UTF-8 by convention.
/// @since 2.9
class QUOR_API xmc_file_loader {
public:
	/// How deep files may include each other below the first one.
	static constexpr types::uint32 max_include_depth = 64;
	/// How many files one call reads, the first one, or the text, included.
	static constexpr types::uint32 max_files = 4096;

	/// What went wrong.
	/// @since 2.9
	enum error_type : int {
		load_none = 0,              ///< Nothing.
		load_no_catalog = 1,        ///< Neither a catalog nor an include in the file.
		load_no_default_locale = 2, ///< Reserved; nothing reports it.
		load_file_not_found = 3,    ///< A file that doesn't exist.
		load_xml_error = 4,         ///< The file isn't well-formed XML.
		load_invalid_attribute = 5, ///< An attribute that can't stand here.
		load_invalid_element = 6,   ///< An element or other content that can't stand here.
		load_not_xmc = 7,           ///< The root element isn't `xmc`.
		load_bad_version = 8,       ///< A version other than "1.0" and "1.1".
		load_no_br_end = 9,         ///< Something inside a `br` element.
		load_no_msg_end = 10,       ///< Reserved; nothing reports it.
		load_no_arg_end = 11,       ///< An argument element that runs to the end.
		load_no_include_end = 12,   ///< Something inside an `include` element.
		load_no_catalog_end = 13,   ///< Something other than `msg` in a catalog.
		load_unexpected = 14        ///< Anything else, includes beyond their limits among it.
	};

	/// How a load ended: a kind and a readable text of the fault, with the line number for most
	/// XML faults, and a line for each enclosing message, catalog and file, innermost first.
	/// Thrown inside the loader, returned by its operations; not part of the exception tree.
	///
	/// The text may hold raw bytes of the input, malformed UTF-8 and zero bytes among them.
	/// @since 2.9
	class QUOR_API load_error {
	public:
		/// A context line of the text.
		/// @since 2.9
		enum append_type : int {
			append_message = 1, ///< The message that holds the fault.
			append_catalog = 2, ///< The catalog that holds the fault.
			append_file = 3,    ///< The file that holds the fault.
			append_line = 4     ///< A line number.
		};

		/// A fault of the given kind with the name or value that it is about.
		/// @since 2.9
		load_error(error_type type, strings::ustring8 const &data);

		/// A fault that the XML parser found.
		/// @since 2.9
		load_error(error_type type, parser::xml_parser::parse_error const &error);

		/// The text for a kind of fault, or "unknown, or unhandle case happened!  str data="
		/// and the data for `load_xml_error` and for a value that is none of the list.
		/// @since 2.9
		static strings::ustring8 format_msg(error_type type, strings::ustring8 const &data);

		/// The text for a fault of the XML parser, with its line where it has one. The
		/// kind plays no part.
		/// @since 2.9
		static strings::ustring8 format_msg(error_type type, parser::xml_parser::parse_error const &error);

		/// A context line, line feed in front.
		/// @since 2.9
		static strings::ustring8 format_msg(append_type type, strings::ustring8 const &data);

		/// Adds a context line to the text. @since 2.9
		void append_error_stack(append_type type, strings::ustring8 const &data);

		/// The text with the context lines added so far.
		/// @since 2.9
		strings::ustring8 const &message() const noexcept { return m_message; }

		/// The kind of fault; 0 is success.
		/// @since 2.9
		error_type type() const noexcept { return m_type; }

	private:
		strings::ustring8 m_message;
		error_type m_type;
	};

	/// Catalogs by name, as a set of catalogs holds them.
	using catalog_map = std::map<strings::ustring8, memory::pointers::shared_pointer<catalog_t>>;

	/// A loader that has read nothing and accepts no language yet.
	/// @since 2.9
	xmc_file_loader();

	/// Reads a file and its includes, for the languages "." and "en".
	///
	/// What can't be opened or read counts as empty and so as an XML fault; a path that
	/// doesn't exist is `load_file_not_found`. Paths and ids in UTF-16 and UTF-32 are
	/// converted first; malformed ones turn into "-1".
	/// @return type 0, or the first fault with its context lines; catalogs that were read
	///         before it stay in the loader.
	/// @throws std::bad_alloc, std::length_error where a file doesn't fit into memory.
	/// @since 2.9
	load_error parse(strings::ustring8 const &file);
	/// The same, for a requested language too, for the catalogs of one name only (an empty
	/// name: all), and for arguments in UTF-16 and UTF-32. @since 2.9
	/// @{
	load_error parse(strings::ustring8 const &file, strings::ustring8 const &language);
	load_error parse(strings::ustring8 const &file, strings::ustring8 const &language,
	                 strings::ustring8 const &catalog);
	load_error parse(strings::ustring16 const &file);
	load_error parse(strings::ustring16 const &file, strings::ustring16 const &language);
	load_error parse(strings::ustring16 const &file, strings::ustring16 const &language,
	                 strings::ustring16 const &catalog);
	load_error parse(strings::ustring32 const &file);
	load_error parse(strings::ustring32 const &file, strings::ustring32 const &language);
	load_error parse(strings::ustring32 const &file, strings::ustring32 const &language,
	                 strings::ustring32 const &catalog);
	/// @}

	/// Reads a file with the languages and the filter as they are. One zero byte is
	/// parsed behind the file's own, so a file that ends in "<" is an unexpected character.
	/// @since 2.9
	load_error parse_file(strings::ustring8 const &file);

	/// Reads a text as it stands; `file` is the name for the fault's text. Relative
	/// includes are looked for where the last file lay, or in the working directory.
	/// @since 2.9
	load_error parse_string(strings::ustring8 const &text, strings::ustring8 const &file);

	/// Merges what was read into a map of catalogs, making new catalogs where there are
	/// none of a name. A message replaces one of its name unless that one's language is
	/// heavier for this loader.
	/// @return the number of messages stored.
	/// @throws char const * "unreferanced object" where the map holds a null pointer for a
	///         catalog; catalogs that come before it in order are merged then.
	/// @since 2.9
	types::uint32 combine_data(catalog_map &target);

	/// The place of an id among the accepted languages, from 1; 0 for one that isn't
	/// accepted. Linear in the id, and in the number of different ids that were requested.
	/// @since 2.9
	types::uint32 get_locale_weight(strings::ustring8 const &language) const;

	/// Whether an id is accepted. @since 2.9
	bool is_lang_id_good(strings::ustring8 const &language) const;

	/// Whether only one catalog name is wanted. @since 2.9
	bool is_cat_id_set() const noexcept;

	/// Whether a catalog of this name is wanted. @since 2.9
	bool is_catalog_matched(strings::ustring8 const &name) const noexcept;

	/// Adds ".", "en", and an id with all its beginnings to the accepted languages. An id that
	/// begins with "_" has the empty one among these, and so accepts catalogs without a
	/// language. Memory: linear in the id. @since 2.9
	void handle_language(strings::ustring8 const &language);

	/// Does nothing. @since 2.9
	void reset();

protected:
	/// Steps over comments, white space and text.
	///
	/// This and the other readers walk tokens: `it` moves on, and never beyond `end`. They
	/// are compiled for the iterators of `xml_token_stream` (`iterator`, `const_iterator`).
	template <class Iterator>
	void parse_ignorable(Iterator &it, Iterator const &end);

	/// Reads the root's start and its version, and one token more, which is taken to
	/// be the attributes end.
	/// @throws load_error
	template <class Iterator>
	void parse_xmc_header(Iterator &it, Iterator const &end);

	/// Reads an `include` element and the file that it names.
	/// @throws load_error its own, or the one of the file.
	template <class Iterator>
	void parse_include(Iterator &it, Iterator const &end);

	/// Reads a `catalog` element, or steps over one that isn't wanted.
	/// @throws load_error with the catalog's context line.
	template <class Iterator>
	void parse_catalog(Iterator &it, Iterator const &end);

	/// Reads a `msg` element.
	/// @throws load_error with the message's context line.
	template <class Iterator>
	message_t parse_message(Iterator &it, Iterator const &end);

	/// Reads an `arg` or `argument` element.
	/// @throws load_error
	template <class Iterator>
	message_item parse_message_arg(Iterator &it, Iterator const &end);

	/// The type that a word stands for, in any case of ASCII letters; `type_string` for
	/// every word that isn't listed at `message_item::type_t`.
	message_item::type_t parse_message_type(strings::ustring8 const &word) const;

	/// Stores a message in a catalog of this loader unless one of its name is there
	/// whose language is as heavy or heavier.
	void set_message(message_t const &message, strings::ustring8 const &catalog);

private:
	friend class i18n::message_catalogs;

	// The normalised id, and the place of its first beginning among the accepted languages.
	// Not the beginnings: an id of many separators would take quadratic memory.
	struct requested_language {
		strings::ustring8 id;
		types::uint32 first;
	};

	class text_being_read;
	class include_level;
	class merging;

	load_error read_text(std::string_view text, strings::ustring8 const &file);
	template <class Iterator>
	load_error read_document(Iterator it, Iterator const &end, strings::ustring8 const &file);
	template <class Iterator>
	void read_catalog(Iterator &it, Iterator const &end, strings::ustring8 &name);
	template <class Iterator>
	void read_message(Iterator &it, Iterator const &end, detail::message_draft &draft);
	template <class Iterator>
	void read_message_items(Iterator &it, Iterator const &end, detail::message_draft &draft);
	template <class Iterator>
	message_item::type_t read_argument(Iterator &it, Iterator const &end, detail::message_draft &draft);

	void start_reading();
	void include_file(strings::ustring8 const &path);
	catalog_t &catalog_to_fill(strings::ustring8 const &name);

	std::vector<requested_language> m_languages;
	std::map<strings::ustring8, catalog_t> m_catalogs;
	text_being_read *m_text_being_read = nullptr;
	strings::ustring8 m_draft_memory[3]; // of the message that is being read
	strings::ustring8 m_include_base;
	strings::ustring8 m_catalog_filter;
	types::uint32 m_language_count = 0;
	types::uint32 m_include_depth = 0;
	types::uint32 m_file_count = 0;
};

} // namespace QUOR_2_9::i18n::_private

#endif
