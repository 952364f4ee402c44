#include "serialization/contents.hpp"

#include <algorithm>

namespace QUOR_2_9::serialization::detail {

/// The least that is asked of the heap: small records fit, and don't grow step by step.
constexpr std::size_t least_capacity = 120;

void grow(std::string &contents, std::size_t further) {
	std::size_t const doubled = std::min(2 * contents.capacity(), contents.max_size());
	contents.reserve(std::max({contents.size() + further, doubled, least_capacity}));
}

void append_growing(std::string &contents, char const *bytes, std::size_t count) {
	make_room(contents, count);
	contents.append(bytes, count);
}

} // namespace QUOR_2_9::serialization::detail
