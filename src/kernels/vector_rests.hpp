#ifndef QUOR_KERNELS_VECTOR_RESTS_HPP
#define QUOR_KERNELS_VECTOR_RESTS_HPP

#include <cstddef>
#include <cstring>

#include "kernels/vectors.hpp"

namespace QUOR_2_9::kernels::QUOR_VECTORS {

/// Copies up to 64 bytes: from both ends, which meet in the middle. A call would take longer.
template <class Unit>
QUOR_VECTOR_PART void copy_rest(Unit *to, Unit const *from, std::size_t units) noexcept {
	std::size_t const size = units * sizeof(Unit);
	auto *const out = reinterpret_cast<char *>(to);
	auto const *const in = reinterpret_cast<char const *>(from);
	if (size >= 32) {
		// The first part last: what is loaded from there at once is found whole then.
		copy_long(out + size - 32, in + size - 32);
		copy_long(out, in);
	} else if (size >= 16) {
		store(out, load(in));
		store(out + size - 16, load(in + size - 16));
	} else if (size >= 8) {
		std::memcpy(out, in, 8);
		std::memcpy(out + size - 8, in + size - 8, 8);
	} else if (size >= 4) {
		std::memcpy(out, in, 4);
		std::memcpy(out + size - 4, in + size - 4, 4);
	} else {
		for (std::size_t i = 0; i != size; ++i) {
			out[i] = in[i];
		}
	}
}

} // namespace QUOR_2_9::kernels::QUOR_VECTORS

#endif
