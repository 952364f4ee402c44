#ifndef QUOR_SUPPORT_NODE_BLOCKS_HPP
#define QUOR_SUPPORT_NODE_BLOCKS_HPP

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace QUOR_2_9::support {

/// Memory for what only grows, such as the nodes of a container: the pieces stand one behind the
/// other in large blocks, which are freed together.
class node_blocks {
public:
	node_blocks() = default;
	node_blocks(node_blocks const &) = delete;
	node_blocks &operator=(node_blocks const &) = delete;

	/// A piece that any pointer or number may stand in.
	void *take(std::size_t size) {
		std::size_t const bytes = (size + alignment - 1) / alignment * alignment;
		if (bytes > m_left) {
			add(bytes);
		}
		std::byte *const taken = m_free;
		m_free += bytes;
		m_left -= bytes;
		return taken;
	}

private:
	static constexpr std::size_t alignment = std::max({alignof(std::uint64_t), alignof(double), alignof(void *)});
	static constexpr std::size_t smallest = 512;
	static constexpr std::size_t largest = 65536;

	std::vector<std::unique_ptr<std::byte[]>> m_blocks;
	std::byte *m_free = nullptr;
	std::size_t m_left = 0;
	std::size_t m_total = 0;

	// A block is small beside what is there, so that little is left over at the end.
	void add(std::size_t bytes) {
		std::size_t const size = std::max(bytes, std::clamp(m_total / 8, smallest, largest));
		std::unique_ptr<std::byte[]> block(new std::byte[size]);
		m_blocks.push_back(std::move(block));
		m_free = m_blocks.back().get();
		m_left = size;
		m_total += size;
	}
};

/// Takes nodes from blocks, which outlive the container.
template <class T>
class node_allocator {
public:
	using value_type = T;

	explicit node_allocator(node_blocks &from) noexcept : m_blocks(&from) {}
	template <class Other>
	node_allocator(node_allocator<Other> const &other) noexcept : m_blocks(other.m_blocks) {}

	T *allocate(std::size_t count) { return static_cast<T *>(m_blocks->take(count * sizeof(T))); }
	void deallocate(T * /*node*/, std::size_t /*count*/) noexcept {}

	template <class Other>
	bool operator==(node_allocator<Other> const &other) const noexcept {
		return m_blocks == other.m_blocks;
	}

private:
	template <class Other>
	friend class node_allocator;

	node_blocks *m_blocks;
};

} // namespace QUOR_2_9::support

#endif
