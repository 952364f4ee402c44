#ifndef QUOR_SRC_SERIALIZATION_ENTRY_MEMORY_HPP
#define QUOR_SRC_SERIALIZATION_ENTRY_MEMORY_HPP

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>

namespace QUOR_2_9::serialization::detail {

/// Memory for the entries of a record, all of one size, a few at a time: a block goes when the
/// last of its entries is given back and its record has done with it, so that entries may move
/// to other records. As blocks are small, an entry keeps little but itself alive.
class entry_memory {
public:
	entry_memory() = default;
	entry_memory(entry_memory const &) = delete;
	entry_memory &operator=(entry_memory const &) = delete;
	~entry_memory() {
		if (m_block != nullptr) {
			let_go(m_block);
		}
	}

	/// Memory for one more entry, of a type that is aligned as 64 bits are.
	void *take(std::size_t size) {
		std::size_t const place_size = sizeof(owner) + (size + alignment - 1) / alignment * alignment;
		if (m_used == m_count) {
			std::size_t const count = std::clamp<std::size_t>(2 * m_count, 1, most_in_block);
			auto *const added = static_cast<block *>(::operator new(sizeof(block) + count * place_size));
			added->users = 1;
			if (m_block != nullptr) {
				let_go(m_block);
			}
			m_block = added;
			m_count = count;
			m_used = 0;
		}
		char *const place = reinterpret_cast<char *>(m_block + 1) + m_used * place_size;
		++m_used;
		++m_block->users;
		return ::new (place) owner{m_block} + 1;
	}

	/// Takes an entry's memory back, whichever record took it.
	static void give_back(void *entry) noexcept { let_go((static_cast<owner *>(entry) - 1)->its); }

	/// How entries may be aligned.
	static constexpr std::size_t alignment = alignof(std::uint64_t);

private:
	static constexpr std::size_t most_in_block = 8;

	struct alignas(alignment) block {
		/// The entries, and the record that takes from it.
		std::size_t users;
	};

	/// What stands before an entry.
	struct alignas(alignment) owner {
		block *its;
	};

	static void let_go(block *one) noexcept {
		if (--one->users == 0) {
			::operator delete(one);
		}
	}

	block *m_block = nullptr;
	std::size_t m_count = 0;
	std::size_t m_used = 0;
};

/// The same as an allocator. All are equal, since each may give back what others took.
template <class T>
class entry_allocator {
public:
	using value_type = T;

	explicit entry_allocator(entry_memory &memory) noexcept : m_memory(&memory) {}
	template <class Other>
	entry_allocator(entry_allocator<Other> const &other) noexcept : m_memory(other.m_memory) {}

	T *allocate(std::size_t count) {
		static_assert(alignof(T) <= entry_memory::alignment);
		return static_cast<T *>(m_memory->take(count * sizeof(T)));
	}
	void deallocate(T *entry, std::size_t /*count*/) noexcept { entry_memory::give_back(entry); }

	friend bool operator==(entry_allocator const &, entry_allocator const &) noexcept { return true; }

private:
	template <class Other>
	friend class entry_allocator;

	entry_memory *m_memory;
};

} // namespace QUOR_2_9::serialization::detail

#endif
