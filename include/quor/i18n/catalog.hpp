#ifndef QUOR_I18N_CATALOG_HPP
#define QUOR_I18N_CATALOG_HPP

/// @file
/// One named set of messages. A catalog holds each message name once: its translations
/// don't lie side by side, the loader keeps the best one. Applications mostly hold
/// `message_catalogs` (`quor/i18n/message_catalogs.hpp`), which owns catalogs and loads
/// them from files.
///
///     quor::i18n::catalog_t texts;
///     texts._name("app");
///     texts.message("hello", quor::i18n::message_t({quor::i18n::message_item("Hello!")}));
///     std::cout << texts.message("hello").as_string({});
///
/// @since 2.9

#include <cstddef>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include <quor/export.hpp>
#include <quor/generic/abilities/reference_count_pointer_ability.hpp>
#include <quor/i18n/message.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/nil.hpp>

namespace QUOR_2_9::i18n {

/// Messages by name, in byte order of the names, upper and lower case apart.
///
/// A value that can also be counted: `shared_pointer` shares it. A copy is a new object
/// with deep copies of the messages, referenced by nobody and not marked as created
/// dynamically; assignment copies the contents and leaves the target's own count and
/// mark. There are no virtual operations.
///
/// Lookups that miss give `m_nil_message`, which the library owns. References to messages
/// stay valid until the catalog is assigned or destroyed; storing a message under the same
/// name changes the one that the reference leads to.
///
/// Thread-safety: messages may be looked up and walked by several threads while nobody stores
/// any. Languages are asked for by one thread at a time: their set is made inside const
/// operations when it is first asked for.
/// @since 2.9
class QUOR_API catalog_t : public generic::abilities::reference_count_pointer_ability<catalog_t> {
public:
	/// Walks the messages; an element is a pair of name and message.
	using const_iterator = std::map<strings::ustring8, message_t>::const_iterator;
	/// Walks the language ids.
	using language_iterator = std::set<strings::ustring8>::const_iterator;

	/// The message that a failed lookup refers to; equal to `types::nil`. May be used
	/// by static initialisers.
	/// @since 2.9
	static message_t const m_nil_message;

	/// A catalog without name and messages.
	/// @since 2.9
	catalog_t();

	/// A catalog with a name and a copy of the messages. `languages` isn't used: the
	/// languages come from the messages.
	/// @since 2.9
	catalog_t(strings::ustring8 const &name, std::vector<strings::ustring8> const &languages,
	          std::map<strings::ustring8, message_t> const &messages);

	/// Copies name and messages; the copy is a fresh object that nobody holds.
	/// @since 2.9
	catalog_t(catalog_t const &other);

	/// Drops name and messages. Whoever holds references to the messages loses them.
	/// @since 2.9
	~catalog_t();

	/// Replaces name and messages by copies of another catalog's. The number of holders
	/// stays this catalog's own.
	/// @since 2.9
	catalog_t &assign(catalog_t const &other);
	/// The same as `assign`.
	/// @since 2.9
	catalog_t &operator=(catalog_t const &other);

	/// Empties name and messages.
	/// @since 2.9
	catalog_t &assign(types::nil_t const &);
	/// The same as `assign(nil)`.
	/// @since 2.9
	catalog_t &operator=(types::nil_t const &);

	/// Whether the catalog has no name and no messages.
	/// @since 2.9
	bool equal(types::nil_t const &) const;
	/// The same as `equal`.
	/// @since 2.9
	bool operator==(types::nil_t const &) const;
	/// The opposite of `equal`.
	/// @since 2.9
	bool operator!=(types::nil_t const &) const;

	/// Sets the name.
	/// @since 2.9
	void _name(strings::ustring8 const &value);

	/// A copy of the name.
	/// @since 2.9
	strings::ustring8 name() const;

	/// Whether a message of that name is stored, a nil message too.
	///
	/// Keys in UTF-16 and UTF-32 are converted to UTF-8; malformed ones become "-1".
	/// @since 2.9
	/// @{
	bool has_message(strings::ustring8 const &key) const;
	bool has_message(strings::ustring16 const &key) const;
	bool has_message(strings::ustring32 const &key) const;
	/// @}

	/// The message of that name, or `m_nil_message`. Takes the same time for any `size()`; the
	/// first look-up of a message that a loader brought makes it.
	/// @throws std::bad_alloc
	/// @since 2.9
	/// @{
	message_t const &message(strings::ustring8 const &key) const;
	message_t const &message(strings::ustring16 const &key) const;
	message_t const &message(strings::ustring32 const &key) const;
	/// @}

	/// Stores a copy of a message under a name, in place of the one that has the name,
	/// and returns the stored one. The message's own `name()` plays no part.
	/// @since 2.9
	message_t const &message(strings::ustring8 const &key, message_t const &value);

	/// Adds the language of each message (`message_t::_orginal_locale`) to the set of
	/// languages. Lookups do this themselves.
	/// @since 2.9
	void gen_lang_set() const;

	/// The first of the languages in which the messages were found, each once, in byte
	/// order, spelled as they were stored. A catalog with messages but no languages has
	/// one: the empty id.
	/// Valid until a message is stored.
	/// @since 2.9
	language_iterator languages_begin() const;
	/// Behind the last of the languages.
	/// @since 2.9
	language_iterator languages_end() const;

	/// Whether a message of exactly this language is stored. The id asked for has each "."
	/// and "-" replaced by "_" first, the stored ones don't: "en-US" finds "en_US", and
	/// "." asks for "_". Upper and lower case differ, and "en" doesn't find "en_US".
	/// @since 2.9
	/// @{
	bool is_language_loaded(strings::ustring8 const &language) const;
	bool is_language_loaded(strings::ustring16 const &language) const;
	bool is_language_loaded(strings::ustring32 const &language) const;
	/// @}

	/// The number of messages.
	/// @since 2.9
	std::size_t size() const noexcept;

	/// The first message.
	///
	/// This and `end()` make all messages that a loader brought and nobody has asked for yet:
	/// n log n in these the first time, one lock after that.
	/// @throws std::bad_alloc
	/// @since 2.9
	const_iterator begin() const;

	/// Behind the last message.
	/// @since 2.9
	const_iterator end() const;

private:
	friend class message_catalogs;
	friend class _private::xmc_file_loader;

	class storage;
	using element = std::pair<strings::ustring8 const, message_t>;

	message_t const *find(std::string_view key) const;

	strings::ustring8 m_name;
	mutable std::set<strings::ustring8> m_languages;
	std::unique_ptr<storage> m_storage;
};

} // namespace QUOR_2_9::i18n

#endif
