#ifndef QUOR_SRC_CONFIG_CHILD_BLOCK_HPP
#define QUOR_SRC_CONFIG_CHILD_BLOCK_HPP

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <map>
#include <memory>
#include <new>
#include <string_view>
#include <utility>

#include <quor/config/child_map.hpp>

#include "config/name_head.hpp"

/// What a `child_map` is made of, for look-ups that are compiled into their callers.
namespace QUOR_2_9::config {

/// The further blocks of a large map, each with the least name that may stand in it.
struct child_map::directory {
	std::map<strings::ustring8, block *, std::less<>> blocks;
	std::size_t size = 0;
};

/// Up to 64 entries. They stay where they were put: what is kept in order are the heads of
/// their names and their numbers. The arrays of heads, numbers and entries follow in the
/// same memory, each with room for `capacity`, which is a multiple of four.
struct child_map::block {
	/// The block that comes next in the order of the names.
	block *next = nullptr;
	/// In the first block of a map that has more than one.
	directory *others = nullptr;
	unsigned int count = 0;
	unsigned int capacity;

	static block *make(unsigned int capacity) {
		auto *const made =
		    static_cast<block *>(::operator new(entries_offset(capacity) + capacity * sizeof(value_type)));
		::new (made) block(capacity);
		// Behind all that are used, so that heads can be looked at four at a time.
		std::uninitialized_fill_n(made->heads(), capacity, detail::last_head);
		return made;
	}

	/// Frees the memory; the entries have been destroyed.
	static void free(block *one) noexcept {
		delete one->others;
		::operator delete(one);
	}

	detail::name_head *heads() noexcept { return at<detail::name_head>(sizeof(block)); }
	std::uint8_t *numbers() noexcept { return at<std::uint8_t>(numbers_offset(capacity)); }
	value_type *entries() noexcept { return at<value_type>(entries_offset(capacity)); }
	value_type &sorted(unsigned int index) noexcept { return entries()[numbers()[index]]; }

	/// Where a name stands or would be inserted.
	place locate(std::string_view name) noexcept;
	/// Puts an entry where it belongs; there is room.
	value_type &put(unsigned int index, value_type &&added) noexcept;
	/// Moves an entry out of its block to the end of this one.
	void take(value_type &from) noexcept {
		put(count, std::move(from));
		std::destroy_at(&from);
	}
	/// Leaves the first entries, whose number is at most half the capacity. The others are gone.
	void keep(unsigned int kept) noexcept;

private:
	explicit block(unsigned int entries) noexcept : capacity(entries) {}

	static constexpr std::size_t numbers_offset(unsigned int capacity) noexcept {
		return sizeof(block) + capacity * sizeof(detail::name_head);
	}
	static constexpr std::size_t entries_offset(unsigned int capacity) noexcept {
		return numbers_offset(capacity) + std::max<std::size_t>(capacity, alignof(value_type));
	}

	template <class T>
	T *at(std::size_t offset) noexcept {
		return reinterpret_cast<T *>(reinterpret_cast<char *>(this) + offset);
	}
};

inline child_map::place child_map::block::locate(std::string_view name) noexcept {
	detail::name_head const head = detail::head_of(name);
	unsigned int first = detail::count_less(heads(), capacity, head);
	if (first == count || heads()[first] != head) {
		return {this, first, false};
	}
	if (detail::is_same_name(sorted(first).first, name)) {
		return {this, first, true};
	}
	unsigned int last = first + 1;
	while (last != count && heads()[last] == head) {
		++last;
	}
	// All names from `first` on before `last` have this head.
	do {
		unsigned int const middle = first + (last - first) / 2;
		std::string_view const found = sorted(middle).first;
		if (detail::is_same_name(found, name)) {
			return {this, middle, true};
		}
		if (found < name) {
			first = middle + 1;
		} else {
			last = middle;
		}
	} while (first != last);
	return {this, first, false};
}

namespace detail {

struct child_access {
	static child_map::place locate(child_map const &map, std::string_view name) noexcept {
		child_map::block *in = map.m_first;
		if (in == nullptr) {
			return {nullptr, 0, false};
		}
		if (in->others != nullptr) {
			auto const behind = in->others->blocks.upper_bound(name);
			if (behind != in->others->blocks.begin()) {
				in = std::prev(behind)->second;
			}
		}
		return in->locate(name);
	}

	static config_tree *get(child_map const &map, std::string_view name) noexcept {
		child_map::place const found = locate(map, name);
		return found.exists ? found.in->sorted(found.index).second.get() : nullptr;
	}
};

} // namespace detail

} // namespace QUOR_2_9::config

#endif
