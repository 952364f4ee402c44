#ifndef QUOR_SRC_PARSER_TOKEN_STORAGE_HPP
#define QUOR_SRC_PARSER_TOKEN_STORAGE_HPP

// The list of a token stream. Its nodes stand one behind the other in large blocks, which
// are freed together: tokens are only ever appended.

#include <algorithm>
#include <cstddef>
#include <list>
#include <memory>
#include <type_traits>
#include <vector>

#include <quor/parser/xml_token_stream.hpp>

namespace QUOR_2_9::parser {

class xml_token_stream::storage {
	class blocks {
	public:
		void *take(std::size_t bytes) {
			if (bytes > m_left) {
				add(bytes);
			}
			std::byte *const taken = m_free;
			m_free += bytes;
			m_left -= bytes;
			return taken;
		}

	private:
		static constexpr std::size_t smallest = 1024;
		static constexpr std::size_t largest = 65536;

		std::vector<std::unique_ptr<std::byte[]>> m_blocks;
		std::byte *m_free = nullptr;
		std::size_t m_left = 0;
		std::size_t m_total = 0;

		// A block has a sixteenth of what is there, so that little is left over at the end.
		void add(std::size_t bytes) {
			std::size_t const size = std::max(bytes, std::clamp(m_total / 16, smallest, largest));
			m_blocks.emplace_back(new std::byte[size]);
			m_free = m_blocks.back().get();
			m_left = size;
			m_total += size;
		}
	};

	// Only for nodes: all pieces have one size, which keeps them aligned.
	template <class T>
	class allocator {
	public:
		using value_type = T;

		explicit allocator(blocks &from) noexcept : m_blocks(&from) {}
		template <class Other>
		allocator(allocator<Other> const &other) noexcept : m_blocks(other.m_blocks) {}

		T *allocate(std::size_t count) { return static_cast<T *>(m_blocks->take(count * sizeof(T))); }
		void deallocate(T * /*node*/, std::size_t /*count*/) noexcept {}

		template <class Other>
		bool operator==(allocator<Other> const &other) const noexcept {
			return m_blocks == other.m_blocks;
		}

	private:
		template <class Other>
		friend class allocator;

		blocks *m_blocks;
	};

	blocks m_blocks;

public:
	storage() = default;
	storage(storage const &other) : tokens(other.tokens.begin(), other.tokens.end(), allocator<token>(m_blocks)) {}
	storage &operator=(storage const &) = delete;

	std::list<token, allocator<token>> tokens{allocator<token>(m_blocks)};

	static_assert(std::is_same_v<decltype(tokens)::iterator, iterator>);
	static_assert(std::is_same_v<decltype(tokens)::const_iterator, const_iterator>);
};

} // namespace QUOR_2_9::parser

#endif
