#ifndef QUOR_CONFIG_CHILD_MAP_HPP
#define QUOR_CONFIG_CHILD_MAP_HPP

/// @file
/// The children of a node in a `config_tree`, by their names. Include
/// `quor/config/config_tree.hpp` to do something with the nodes.
///
///     for (auto const &[name, child] : tree.children) {
///         std::cout << name << ": " << child->node_data.second << '\n';
///     }
///     auto const found = tree.children.find("server");
///
/// @since 2.9

#include <cstddef>
#include <iterator>
#include <string_view>
#include <utility>

#include <quor/export.hpp>
#include <quor/memory/pointers/rc_pointer.hpp>
#include <quor/strings/ustring.hpp>

namespace QUOR_2_9::config {

class config_tree;

namespace detail {
struct child_access;
} // namespace detail

/// A map from names to nodes, in the order of the names' bytes from 0 to 255, a prefix first:
/// `10` stands before `2`.
///
/// Nodes keep their address. Entries don't: references to them and iterators are valid until
/// something is inserted. Small maps, which nearly all are, lie in one block of memory.
/// Letting go of nodes never uses the call stack for the depth of what lies below them.
///
/// Thread-safety: many readers or one writer. Cost: look-ups and insertions are logarithmic.
/// @since 2.9
class QUOR_API child_map {
	struct block;

public:
	/// A name and its node. @since 2.9
	using value_type = std::pair<strings::ustring8, memory::pointers::rc_pointer<config_tree>>;
	/// @since 2.9
	using key_type = strings::ustring8;
	/// @since 2.9
	using mapped_type = memory::pointers::rc_pointer<config_tree>;
	/// @since 2.9
	using size_type = std::size_t;

	/// Walks through the entries in their order, one way. @since 2.9
	class QUOR_API const_iterator {
	public:
		/// @{
		/// What the standard library asks of an iterator. @since 2.9
		using iterator_category = std::forward_iterator_tag;
		using value_type = child_map::value_type;
		using difference_type = std::ptrdiff_t;
		using pointer = value_type const *;
		using reference = value_type const &;
		/// @}

		/// No place in any map. @since 2.9
		const_iterator() noexcept = default;

		/// The entry, which must exist. @since 2.9
		value_type const &operator*() const noexcept;
		/// Access to the entry, which must exist. @since 2.9
		value_type const *operator->() const noexcept { return &**this; }
		/// Goes to the next entry, or to the end. @since 2.9
		const_iterator &operator++() noexcept;
		/// The same; returns the place before. @since 2.9
		const_iterator operator++(int) noexcept {
			const_iterator const before = *this;
			++*this;
			return before;
		}

		/// Whether both are the same place of one map. @since 2.9
		friend bool operator==(const_iterator const &left, const_iterator const &right) noexcept {
			return left.m_block == right.m_block && left.m_index == right.m_index;
		}
		/// The opposite of `==`. @since 2.9
		friend bool operator!=(const_iterator const &left, const_iterator const &right) noexcept {
			return !(left == right);
		}

	private:
		friend child_map;
		const_iterator(block *place, unsigned int index) noexcept : m_block(place), m_index(index) {}

		block *m_block = nullptr;
		unsigned int m_index = 0;
	};
	/// Names can't be changed. @since 2.9
	using iterator = const_iterator;

	/// Empty. @since 2.9
	child_map() noexcept = default;
	child_map(child_map const &) = delete;
	child_map &operator=(child_map const &) = delete;
	/// Takes the entries; `other` is empty then. @since 2.9
	child_map(child_map &&other) noexcept : m_first(std::exchange(other.m_first, nullptr)) {}
	/// Takes the entries and lets go of those that it had; `other` is empty then. @since 2.9
	child_map &operator=(child_map &&other) noexcept {
		child_map(std::move(other)).swap(*this);
		return *this;
	}
	/// The same as `clear`. @since 2.9
	~child_map();

	/// @since 2.9
	bool empty() const noexcept { return m_first == nullptr; }
	/// The number of entries. @since 2.9
	std::size_t size() const noexcept;
	/// The first entry. @since 2.9
	const_iterator begin() const noexcept { return {m_first, 0}; }
	/// Behind the last entry. @since 2.9
	const_iterator end() const noexcept { return {}; }

	/// The entry of a name, or `end`. Names are compared byte by byte. @since 2.9
	const_iterator find(std::string_view name) const noexcept;
	/// How many entries have a name: 0 or 1. @since 2.9
	size_type count(std::string_view name) const noexcept;
	/// The pointer at a name. @throws std::out_of_range if there is no such entry. @since 2.9
	mapped_type const &at(std::string_view name) const;
	/// The node of a name, or null if there is none. @since 2.9
	config_tree *get(std::string_view name) const noexcept;

	/// The pointer at a name; a missing one is made, and null. If memory runs out, nothing is
	/// changed. @since 2.9
	mapped_type &operator[](std::string_view name);

	/// The pointer at a name. A missing one becomes the pointer that `make()` returns; what it
	/// throws leaves the map as it is. `make` must not touch the map. @since 2.9
	template <class Make>
	mapped_type &get_or_insert(std::string_view name, Make make) {
		place const found = locate(name);
		return found.exists ? pointer_at(found) : insert_at(found, name, make());
	}

	/// Adds an entry if the name has none, and leaves the one it has otherwise. Returns the entry
	/// of the name, and whether it is a new one. If memory runs out, nothing is changed.
	/// @since 2.9
	std::pair<const_iterator, bool> emplace(std::string_view name, mapped_type const &node);
	/// The same with the two members of a pair. @since 2.9
	std::pair<const_iterator, bool> insert(value_type const &entry);

	/// Lets go of all nodes; those that somebody else holds live on. @since 2.9
	void clear() noexcept;
	/// Exchanges the entries of two maps. @since 2.9
	void swap(child_map &other) noexcept { std::swap(m_first, other.m_first); }

private:
	friend detail::child_access;
	struct directory;
	/// Where a name stands or would be inserted.
	struct place {
		block *in;
		unsigned int index;
		bool exists;
	};

	place locate(std::string_view name) const noexcept;
	static mapped_type &pointer_at(place const &found) noexcept;
	mapped_type &insert_at(place to, std::string_view name, mapped_type node);
	place grow(place const &to);
	place split(place const &to, strings::ustring8 const &name);

	block *m_first = nullptr;
};

} // namespace QUOR_2_9::config

#endif
