#include "serialization/contents.hpp"

#include <algorithm>

namespace QUOR_2_9::serialization::detail {

/// The least that is asked of the heap: small records fit, and don't grow step by step.
constexpr std::size_t least_capacity = 120;

void take_bytes(stored_bytes &stored, std::string_view bytes) {
	stored.bytes = bytes;
	stored.size = bytes.size();
}

std::string const &lend(stored_bytes &stored) noexcept {
	stored.bytes.erase(stored.size);
	stored.lent = true;
	return stored.bytes;
}

void make_room(stored_bytes &stored, std::size_t further) {
	std::string &bytes = stored.bytes;
	std::size_t const held = stored.lent ? bytes.capacity() : bytes.size();
	if (held - stored.size >= further) {
		return;
	}
	std::size_t const doubled = std::min(2 * held, bytes.max_size());
	std::size_t const wanted = std::max({stored.size + further, doubled, least_capacity});
	if (stored.lent) {
		bytes.reserve(wanted);
	} else {
		bytes.resize(wanted);
	}
}

void append_bytes(stored_bytes &stored, char const *bytes, std::size_t count) {
	make_room(stored, count);
	if (stored.lent) {
		stored.bytes.append(bytes, count);
	} else {
		copy_text(next_byte(stored), bytes, count);
	}
	stored.size += count;
}

} // namespace QUOR_2_9::serialization::detail
