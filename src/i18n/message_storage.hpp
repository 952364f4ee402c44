#ifndef QUOR_SRC_I18N_MESSAGE_STORAGE_HPP
#define QUOR_SRC_I18N_MESSAGE_STORAGE_HPP

#include <atomic>
#include <cstddef>
#include <functional>
#include <map>
#include <mutex>
#include <new>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <quor/export.hpp>
#include <quor/i18n/catalog.hpp>

#include "i18n/compiled_message.hpp"
#include "support/node_blocks.hpp"

namespace QUOR_2_9::i18n {

/// The messages of a catalog, of which none is ever taken out. They are found by a hash of
/// their names; those that a loader brought are made when they are asked for.
///
/// Look-ups may be made by many threads at once, as long as nobody stores.
class QUOR_LOCAL catalog_t::storage {
	using allocator = support::node_allocator<element>;

public:
	/// By name; each element stays where it is.
	using message_map = std::map<strings::ustring8, message_t, std::less<>, allocator>;
	static_assert(std::is_same_v<message_map::const_iterator, const_iterator>);

	/// A message by its name: made, or what it is made of.
	class record {
	public:
		std::string_view name() const noexcept { return m_texts.name; }
		/// Null for one that nobody has asked for yet.
		message_t const *made() const noexcept;
		detail::compiled_message const &texts() const noexcept { return m_texts; }
		std::string_view locale() const noexcept;

	private:
		friend class storage;

		std::atomic<element *> m_made{nullptr};
		detail::compiled_message m_texts;
		std::size_t m_room = 0; // for the texts
	};

	storage() = default;
	storage(storage const &other);
	explicit storage(std::map<strings::ustring8, message_t> const &messages);
	storage &operator=(storage const &) = delete;

	std::size_t size() const noexcept { return m_size; }
	record const *find(std::string_view name) const noexcept { return find(name, hash_of(name)); }
	/// The record's message, made now where it isn't yet.
	message_t const &message(record const &of) const;
	/// All messages, made.
	message_map const &messages() const;

	message_t const &store(strings::ustring8 const &name, message_t const &message);

	/// Stores a message of a record of others, or one that is compiled, unless one of its name
	/// is there that doesn't yield, which is asked for with the language of that one.
	template <class From, class Yields>
	bool offer(From const &from, Yields yields) {
		std::size_t const hash = hash_of(name_of(from));
		record *const found = find(name_of(from), hash);
		if (found == nullptr) {
			add(from, hash);
		} else if (yields(found->locale())) {
			replace(*found, from);
		} else {
			return false;
		}
		return true;
	}

	/// Hands each record to a function, in no order.
	template <class Function>
	void visit(Function function) const {
		for (place const &one : m_places) {
			if (one.taken_by != nullptr) {
				function(*one.taken_by);
			}
		}
		for (auto const &entry : m_crowded) {
			function(*entry.second);
		}
	}

private:
	/// A record by the hash of its name.
	struct place {
		std::size_t hash = 0;
		record *taken_by = nullptr;
	};
	/// A power of two of places, at most half of them taken.
	using places = std::vector<place>;
	/// Those whose place and all places near it are taken, which takes somebody who chose them.
	using crowd = std::map<std::string_view, record *>;

	static std::string_view name_of(record const &from) noexcept { return from.name(); }
	static std::string_view name_of(detail::compiled_message const &from) noexcept { return from.name; }

	static std::size_t hash_of(std::string_view name) noexcept { return std::hash<std::string_view>()(name); }

	record *find(std::string_view name, std::size_t hash) const noexcept;
	static void put(places &to, crowd &others, place const &one);
	void reserve(std::size_t count);
	std::string_view kept_locale(std::string_view locale);
	record *new_record() { return new (m_texts.take(sizeof(record))) record; }
	void write_texts(record &to, detail::compiled_message const &from);
	element &make(record &of) const;
	void add(record const &from, std::size_t hash);
	void add(detail::compiled_message const &from, std::size_t hash);
	message_t const &add(strings::ustring8 const &name, message_t const &message, std::size_t hash);
	void replace(record &there, record const &from);
	void replace(record &there, detail::compiled_message const &from);

	places m_places;
	crowd m_crowded;
	std::size_t m_size = 0;
	support::node_blocks m_texts;
	std::set<std::string, std::less<>> m_locales;
	std::string_view m_last_locale;
	// What look-ups make.
	mutable std::mutex m_making;
	mutable support::node_blocks m_nodes;
	mutable message_map m_messages{allocator(m_nodes)};
};

} // namespace QUOR_2_9::i18n

#endif
