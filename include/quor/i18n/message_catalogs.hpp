#ifndef QUOR_I18N_MESSAGE_CATALOGS_HPP
#define QUOR_I18N_MESSAGE_CATALOGS_HPP

/// @file
/// What an application holds: a set of catalogs by name, filled from XMC files for a
/// language, asked by catalog and message name. No fault of a file is thrown: each `load`
/// returns a kind and a readable text. A lookup that misses gives a nil object, which can
/// be rendered like any other.
///
///     quor::i18n::message_catalogs catalogs;
///     auto result = catalogs.load("catalogs", "de_AT");
///     if (result != quor::i18n::message_catalogs::no_error) { std::cerr << result << '\n'; }
///     std::cout << catalogs.message("app", "used").as_string(args);
///
/// @since 2.9

#include <cstddef>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <quor/export.hpp>
#include <quor/i18n/catalog.hpp>
#include <quor/i18n/load_result.hpp>
#include <quor/i18n/message.hpp>
#include <quor/memory/pointers/shared_pointer.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/nil.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::i18n {

/// Catalogs by name.
///
/// Copies share their catalogs: what is loaded into a catalog of a copy changes the
/// original's too, while catalogs that are new to the copy appear there only. A null
/// pointer, which only a caller can put into the map, counts as no catalog in the queries.
/// References to catalogs and messages end with the last set that shares the catalog, or
/// with its `erase`; a load that replaces a message changes the text behind the reference.
///
/// Thread-safety: messages may be looked up by several threads while nobody loads, erases or asks
/// for languages, in this set or in one that shares catalogs with it.
/// @since 2.9
class QUOR_API message_catalogs : public load_result_types {
public:
	/// The text classes.
	/// @{
	using ustring8 = strings::ustring8;
	using ustring16 = strings::ustring16;
	using ustring32 = strings::ustring32;
	/// @}

	/// The catalogs by name.
	using catalog_map = std::map<ustring8, memory::pointers::shared_pointer<catalog_t>>;
	/// Walks the catalogs; an element is a pair of name and pointer.
	using iterator = catalog_map::iterator;
	/// Walks the catalogs without changing the set.
	using const_iterator = catalog_map::const_iterator;
	/// Walks the messages of one catalog.
	using message_iterator = catalog_t::const_iterator;

	/// What failed lookups refer to; equal to `types::nil`, ready for static initialisers.
	/// @since 2.9
	/// @{
	static catalog_t const s_nil_catalog;
	static message_t const s_nil_message;
	/// @}

	/// The empty set.
	/// @since 2.9
	message_catalogs();
	/// A set that shares the catalogs of another.
	/// @since 2.9
	message_catalogs(message_catalogs const &other);
	/// Gives up the catalogs.
	/// @since 2.9
	~message_catalogs();

	/// Gives up the catalogs and shares those of another set; for nil, none.
	/// @since 2.9
	/// @{
	message_catalogs &assign(message_catalogs const &other);
	message_catalogs &operator=(message_catalogs const &other);
	message_catalogs &assign(types::nil_t const &);
	message_catalogs &operator=(types::nil_t const &);
	/// @}

	/// Whether no catalog is held; by `!=`, whether one is.
	/// @since 2.9
	/// @{
	bool equal(types::nil_t const &) const noexcept;
	bool operator==(types::nil_t const &) const noexcept;
	bool operator!=(types::nil_t const &) const noexcept;
	/// @}

	/// Loads one path: a file as `load_file` does, a directory as `load_directory` does; with
	/// a catalog name only that catalog (an empty name: all). Merges into what is held.
	///
	/// `language` is the wanted language, "de_AT" say; its beginnings ("de"), "en" and "."
	/// are loaded too, where nothing better is found. Which text stays where several have
	/// one name is told at `xmc_file_loader::combine_data`; texts of a language that this
	/// call doesn't ask for give way to any. For a fresh language call `erase()` first.
	/// Malformed paths and names in UTF-16 and UTF-32 become "-1".
	/// @return `no_error`, or `entity_not_found` where there is neither a file nor a
	/// directory, or the first fault. What was merged before a fault stays.
	/// @throws std::bad_alloc, std::length_error where a file doesn't fit into memory; some of its
	/// messages may be merged by then; char const * as `combine_data` does at a null pointer in the map.
	/// Untrusted input: files are safe; work and memory are linear in what is read.
	/// @since 2.9
	/// @{
	result_type load(ustring8 const &path, ustring8 const &language);
	result_type load(ustring16 const &path, ustring16 const &language);
	result_type load(ustring32 const &path, ustring32 const &language);
	result_type load(ustring8 const &path, ustring8 const &language, ustring8 const &catalog);
	result_type load(ustring16 const &path, ustring16 const &language, ustring16 const &catalog);
	result_type load(ustring32 const &path, ustring32 const &language, ustring32 const &catalog);
	/// @}

	/// Loads several paths in their order, each as `load` of one path does, up to the first
	/// that fails. Paths in standard strings are UTF-8 and UTF-16.
	/// @return the result of the last path that was tried; `no_error` for no paths.
	/// @since 2.9
	/// @{
	result_type load(std::vector<ustring8> const &paths, ustring8 const &language);
	result_type load(std::vector<ustring16> const &paths, ustring16 const &language);
	result_type load(std::vector<ustring32> const &paths, ustring32 const &language);
	result_type load(std::vector<std::string> const &paths, ustring8 const &language);
	result_type load(std::vector<std::string> const &paths, ustring16 const &language);
	result_type load(std::vector<std::string> const &paths, ustring32 const &language);
	result_type load(std::vector<types::wide_string> const &paths, ustring8 const &language);
	result_type load(std::vector<types::wide_string> const &paths, ustring16 const &language);
	result_type load(std::vector<types::wide_string> const &paths, ustring32 const &language);
	result_type load(std::vector<ustring8> const &paths, ustring8 const &language, ustring8 const &catalog);
	result_type load(std::vector<ustring16> const &paths, ustring16 const &language, ustring16 const &catalog);
	result_type load(std::vector<ustring32> const &paths, ustring32 const &language, ustring32 const &catalog);
	result_type load(std::vector<std::string> const &paths, ustring8 const &language, ustring8 const &catalog);
	result_type load(std::vector<std::string> const &paths, ustring16 const &language, ustring16 const &catalog);
	result_type load(std::vector<std::string> const &paths, ustring32 const &language, ustring32 const &catalog);
	result_type load(std::vector<types::wide_string> const &paths, ustring8 const &language, ustring8 const &catalog);
	result_type load(std::vector<types::wide_string> const &paths, ustring16 const &language, ustring16 const &catalog);
	result_type load(std::vector<types::wide_string> const &paths, ustring32 const &language, ustring32 const &catalog);
	/// @}

	/// The same for a list in braces, of literals or of 8-bit strings of any class:
	/// `load({"common.xmc", "app"}, "de")`. @since 2.9
	result_type load(std::initializer_list<ustring8> paths, ustring8 const &language, ustring8 const &catalog = {}) {
		return load(std::vector<ustring8>(paths), language, catalog);
	}

	/// Loads one file and what it includes, whatever its suffix; with a catalog name only
	/// that catalog.
	/// @return `no_error`, `file_not_found`, `no_catalog` where the file has no catalog at
	/// all, or `load_failed`.
	/// @since 2.9
	/// @{
	result_type load_file(ustring8 const &file, ustring8 const &language);
	result_type load_file(ustring16 const &file, ustring16 const &language);
	result_type load_file(ustring32 const &file, ustring32 const &language);
	result_type load_file(ustring8 const &file, ustring8 const &language, ustring8 const &catalog);
	result_type load_file(ustring16 const &file, ustring16 const &language, ustring16 const &catalog);
	result_type load_file(ustring32 const &file, ustring32 const &language, ustring32 const &catalog);
	/// @}

	/// Loads the files of a directory and of the directories below it, in the order in which
	/// the system lists them. Files are those whose names end in ".xmc" or ".xml", in any
	/// case of letters; others are passed over. Stops at the first file that fails. Links
	/// are followed, but not into a directory that the walk is already inside of.
	///
	/// Entries are named by the directory as it was given, a backslash and the name.
	/// @return `directory_not_found`, or the result of the last file or directory below;
	/// `no_error` for an empty one.
	/// Cost: the depth isn't paid for with the call stack.
	/// @since 2.9
	/// @{
	result_type load_directory(ustring8 const &directory, ustring8 const &language);
	result_type load_directory(ustring16 const &directory, ustring16 const &language);
	result_type load_directory(ustring32 const &directory, ustring32 const &language);
	result_type load_directory(ustring8 const &directory, ustring8 const &language, ustring8 const &catalog);
	result_type load_directory(ustring16 const &directory, ustring16 const &language, ustring16 const &catalog);
	result_type load_directory(ustring32 const &directory, ustring32 const &language, ustring32 const &catalog);
	/// @}

	/// Whether a catalog of that name is held. Names in UTF-16 and UTF-32, here and below,
	/// are converted to UTF-8; malformed ones become "-1".
	/// @since 2.9
	/// @{
	bool has_catalog(ustring8 const &name) const;
	bool has_catalog(ustring16 const &name) const;
	bool has_catalog(ustring32 const &name) const;
	/// @}

	/// Whether a catalog of that name holds a message of exactly that language; see
	/// `catalog_t::is_language_loaded` for the spelling.
	/// @since 2.9
	/// @{
	bool has_catalog(ustring8 const &name, ustring8 const &language) const;
	bool has_catalog(ustring16 const &name, ustring16 const &language) const;
	bool has_catalog(ustring32 const &name, ustring32 const &language) const;
	/// @}

	/// The catalog of that name, or `s_nil_catalog`.
	/// @since 2.9
	/// @{
	catalog_t const &catalog(ustring8 const &name) const;
	catalog_t const &catalog(ustring16 const &name) const;
	catalog_t const &catalog(ustring32 const &name) const;
	/// @}

	/// Whether a message is held that isn't nil. A stored nil message counts as absent here,
	/// unlike in `catalog_t::has_message`.
	/// @since 2.9
	/// @{
	bool has_message(ustring8 const &catalog, ustring8 const &key) const;
	bool has_message(ustring16 const &catalog, ustring16 const &key) const;
	bool has_message(ustring32 const &catalog, ustring32 const &key) const;
	/// @}

	/// The message of that name in that catalog; `s_nil_message` where there is no such
	/// catalog, `catalog_t::m_nil_message` where the catalog lacks it. No other language or
	/// catalog is tried: languages are chosen when loading. Logarithmic.
	/// @since 2.9
	/// @{
	message_t const &message(ustring8 const &catalog, ustring8 const &key) const;
	message_t const &message(ustring16 const &catalog, ustring16 const &key) const;
	message_t const &message(ustring32 const &catalog, ustring32 const &key) const;
	message_t const &message(std::string const &catalog, std::string const &key) const;
	message_t const &message(char const *catalog, char const *key) const;
	template <class Catalog, class Key,
	          std::enable_if_t<std::is_base_of_v<std::string, Catalog> && std::is_base_of_v<std::string, Key>, int> = 0>
	message_t const &message(Catalog const &catalog, Key const &key) const {
		return message(static_cast<std::string const &>(catalog), static_cast<std::string const &>(key));
	}
	/// @}

	/// The number of catalogs, or of messages in the named one; 0 where it isn't held.
	/// @since 2.9
	/// @{
	std::size_t size() const noexcept { return m_catalogs.size(); }
	std::size_t count() const noexcept { return m_catalogs.size(); }
	std::size_t size(ustring8 const &name) const;
	std::size_t size(ustring16 const &name) const;
	std::size_t size(ustring32 const &name) const;
	std::size_t count(ustring8 const &name) const;
	std::size_t count(ustring16 const &name) const;
	std::size_t count(ustring32 const &name) const;
	/// @}

	/// The first catalog, and behind the last.
	/// @since 2.9
	/// @{
	iterator begin() noexcept { return m_catalogs.begin(); }
	iterator end() noexcept { return m_catalogs.end(); }
	const_iterator begin() const noexcept { return m_catalogs.begin(); }
	const_iterator end() const noexcept { return m_catalogs.end(); }
	/// @}

	/// The first message of a catalog, and behind the last; an unknown one is an empty range.
	/// @since 2.9
	/// @{
	message_iterator begin(ustring8 const &name) const;
	message_iterator begin(ustring16 const &name) const;
	message_iterator begin(ustring32 const &name) const;
	message_iterator end(ustring8 const &name) const;
	message_iterator end(ustring16 const &name) const;
	message_iterator end(ustring32 const &name) const;
	/// @}

	/// Gives up all catalogs, or the one of that name if it is held; those that another set
	/// shares live on there.
	/// @since 2.9
	/// @{
	void erase();
	void remove();
	void erase(ustring8 const &name);
	void erase(ustring16 const &name);
	void erase(ustring32 const &name);
	/// @}

private:
	struct request;

	catalog_t const *find(ustring8 const &name) const;
	catalog_t const *find_view(std::string_view name) const;
	message_t const &message_view(std::string_view catalog, std::string_view key) const;
	result_type load_one(ustring8 const &path, request const &wanted);
	result_type load_one_file(ustring8 const &file, request const &wanted);
	result_type load_below(ustring8 const &directory, request const &wanted);
	template <class Path>
	result_type load_all(std::vector<Path> const &paths, request const &wanted);

	catalog_map m_catalogs;
};

} // namespace QUOR_2_9::i18n

#endif
