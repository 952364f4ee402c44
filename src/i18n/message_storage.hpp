#ifndef QUOR_SRC_I18N_MESSAGE_STORAGE_HPP
#define QUOR_SRC_I18N_MESSAGE_STORAGE_HPP

#include <functional>
#include <map>
#include <type_traits>
#include <utility>

#include <quor/i18n/catalog.hpp>

#include "support/node_blocks.hpp"

namespace QUOR_2_9::i18n {

// The messages of a catalog, of which none is ever taken out.
class catalog_t::storage {
	using allocator = support::node_allocator<element>;

	support::node_blocks m_blocks;

public:
	storage() = default;
	storage(storage const &other) : messages(other.messages, allocator(m_blocks)) {}
	explicit storage(std::map<strings::ustring8, message_t> const &other)
	    : messages(other.begin(), other.end(), allocator(m_blocks)) {}
	storage &operator=(storage const &) = delete;

	std::map<strings::ustring8, message_t, std::less<>, allocator> messages{allocator(m_blocks)};

	static_assert(std::is_same_v<decltype(messages)::const_iterator, const_iterator>);
};

} // namespace QUOR_2_9::i18n

#endif
