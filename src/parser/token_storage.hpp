#ifndef QUOR_SRC_PARSER_TOKEN_STORAGE_HPP
#define QUOR_SRC_PARSER_TOKEN_STORAGE_HPP

#include <list>
#include <type_traits>

#include <quor/export.hpp>
#include <quor/parser/xml_token_stream.hpp>

#include "support/node_blocks.hpp"

namespace QUOR_2_9::parser {

// The list of a token stream, whose tokens are only ever appended.
class QUOR_LOCAL xml_token_stream::storage {
	using allocator = support::node_allocator<token>;

	support::node_blocks m_blocks;

public:
	storage() = default;
	storage(storage const &other) : tokens(other.tokens, allocator(m_blocks)) {}
	storage &operator=(storage const &) = delete;

	std::list<token, allocator> tokens{allocator(m_blocks)};

	static_assert(std::is_same_v<decltype(tokens)::iterator, iterator>);
	static_assert(std::is_same_v<decltype(tokens)::const_iterator, const_iterator>);
};

} // namespace QUOR_2_9::parser

#endif
