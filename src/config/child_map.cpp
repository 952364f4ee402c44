#include <quor/config/child_map.hpp>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <stdexcept>

#include <quor/config/config_tree.hpp>

#include "config/child_block.hpp"

namespace QUOR_2_9::config {
namespace {

using entry = child_map::value_type;

constexpr unsigned int least_capacity = 4;
constexpr unsigned int most_capacity = 64;

/// Whether letting go of a node would destroy nodes below it.
bool takes_others_along(child_map::mapped_type const &node) noexcept {
	return node && !node->children.empty() && node->get_ref_count() == 1 && node->is_created_dynamic();
}

} // namespace

entry &child_map::block::put(unsigned int index, entry &&added) noexcept {
	detail::name_head const head = detail::head_of(added.first);
	// NOLINTNEXTLINE(clang-analyzer-cplusplus.PlacementNew): the entries lie behind the block itself
	entry *const made = ::new (entries() + count) entry(std::move(added));
	std::copy_backward(heads() + index, heads() + count, heads() + count + 1);
	std::copy_backward(numbers() + index, numbers() + count, numbers() + count + 1);
	heads()[index] = head;
	numbers()[index] = static_cast<std::uint8_t>(count);
	++count;
	return *made;
}

void child_map::block::keep(unsigned int kept) noexcept {
	// Entries that stand too far back move into the gaps.
	std::uint64_t used = 0;
	for (unsigned int i = 0; i != kept; ++i) {
		used |= std::uint64_t(1) << numbers()[i];
	}
	unsigned int gap = 0;
	for (unsigned int i = 0; i != kept; ++i) {
		std::uint8_t &number = numbers()[i];
		if (number >= kept) {
			while ((used >> gap & 1) != 0) {
				++gap;
			}
			::new (entries() + gap) entry(std::move(entries()[number]));
			std::destroy_at(entries() + number);
			number = static_cast<std::uint8_t>(gap++);
		}
	}
	std::fill(heads() + kept, heads() + count, detail::last_head);
	count = kept;
}

entry const &child_map::const_iterator::operator*() const noexcept {
	return m_block->sorted(m_index);
}

child_map::const_iterator &child_map::const_iterator::operator++() noexcept {
	if (++m_index == m_block->count) {
		m_block = m_block->next;
		m_index = 0;
	}
	return *this;
}

child_map::~child_map() {
	clear();
}

std::size_t child_map::size() const noexcept {
	if (m_first == nullptr) {
		return 0;
	}
	return m_first->others != nullptr ? m_first->others->size : m_first->count;
}

child_map::const_iterator child_map::find(std::string_view name) const noexcept {
	place const found = locate(name);
	return found.exists ? const_iterator(found.in, found.index) : end();
}

child_map::size_type child_map::count(std::string_view name) const noexcept {
	return locate(name).exists ? 1 : 0;
}

child_map::mapped_type const &child_map::at(std::string_view name) const {
	place const found = locate(name);
	if (!found.exists) {
		throw std::out_of_range("child_map::at");
	}
	return pointer_at(found);
}

config_tree *child_map::get(std::string_view name) const noexcept {
	return detail::child_access::get(*this, name);
}

child_map::mapped_type &child_map::operator[](std::string_view name) {
	return get_or_insert(name, [] { return mapped_type(); });
}

std::pair<child_map::const_iterator, bool> child_map::emplace(std::string_view name, mapped_type const &node) {
	place const found = locate(name);
	if (found.exists) {
		return {const_iterator(found.in, found.index), false};
	}
	strings::ustring8 const own_name(name);
	insert_at(found, own_name, node);
	return {find(own_name), true};
}

std::pair<child_map::const_iterator, bool> child_map::insert(value_type const &entry) {
	return emplace(entry.first, entry.second);
}

void child_map::clear() noexcept {
	block *doomed = std::exchange(m_first, nullptr);
	while (doomed != nullptr) {
		block *const one = doomed;
		doomed = one->next;
		for (unsigned int i = 0; i != one->count; ++i) {
			entry &current = one->entries()[i];
			if (takes_others_along(current.second)) {
				// The children come next, instead of being let go by the node's destructor.
				block *const below = std::exchange(current.second->children.m_first, nullptr);
				block *last = below;
				while (last->next != nullptr) {
					last = last->next;
				}
				last->next = doomed;
				doomed = below;
			}
			std::destroy_at(&current);
		}
		block::free(one);
	}
}

child_map::place child_map::locate(std::string_view name) const noexcept {
	return detail::child_access::locate(*this, name);
}

child_map::mapped_type &child_map::pointer_at(place const &found) noexcept {
	return found.in->sorted(found.index).second;
}

child_map::mapped_type &child_map::insert_at(place to, std::string_view name, mapped_type node) {
	entry added(strings::ustring8(name), std::move(node));
	if (m_first == nullptr) {
		m_first = block::make(least_capacity);
		to = {m_first, 0, false};
	} else if (to.in->count == most_capacity) {
		to = split(to, added.first);
	} else if (to.in->count == to.in->capacity) {
		to = grow(to);
	}
	if (m_first->others != nullptr) {
		++m_first->others->size;
	}
	return to.in->put(to.index, std::move(added)).second;
}

/// Moves the only block, which is full, to one of twice the size.
child_map::place child_map::grow(place const &to) {
	block *const larger = block::make(m_first->capacity * 2);
	for (unsigned int i = 0; i != m_first->count; ++i) {
		larger->take(m_first->sorted(i));
	}
	block::free(std::exchange(m_first, larger));
	return {larger, to.index, false};
}

/// Makes room in a block of the largest size, which is full, by a new block behind it. That
/// gets half of the entries, or none where names come in their order.
child_map::place child_map::split(place const &to, strings::ustring8 const &name) {
	block *const full = to.in;
	bool const in_order = full->next == nullptr && to.index == full->count;
	unsigned int const kept = in_order ? full->count : full->count / 2;
	if (m_first->others == nullptr) {
		m_first->others = new directory{{}, m_first->count};
	}
	auto const listed = m_first->others->blocks.emplace(in_order ? name : full->sorted(kept).first, nullptr).first;
	try {
		listed->second = block::make(most_capacity);
	} catch (...) {
		m_first->others->blocks.erase(listed);
		throw;
	}
	block *const added = listed->second;
	added->next = std::exchange(full->next, added);
	for (unsigned int i = kept; i != full->count; ++i) {
		added->take(full->sorted(i));
	}
	if (!in_order) {
		full->keep(kept);
	}
	bool const behind = in_order || to.index > kept;
	return behind ? place{added, to.index - kept, false} : place{full, to.index, false};
}

} // namespace QUOR_2_9::config
