#ifndef QUOR_KERNELS_VECTOR_VARIANT_HPP
#define QUOR_KERNELS_VECTOR_VARIANT_HPP

#include <algorithm>
#include <cstddef>
#include <cstring>

#include <quor/types/widths.hpp>

#include "kernels/steps.hpp"
#include "kernels/variants.hpp"
#include "kernels/vector_read_utf8.hpp"
#include "kernels/vector_write_utf8.hpp"

/// The kernels of one kind of vectors, made of its parts.
namespace QUOR_2_9::kernels::QUOR_VECTORS {

/// How many units change their width together.
inline constexpr std::size_t stride = 16;

/// What they make at most.
inline constexpr std::size_t longest_stride = 2 * stride + 2;

/// Fewer units than that, taken for a text that goes on with zeros.
template <class In, class Out>
QUOR_VECTOR_PART bool change_rest(course<In, Out> &at) noexcept {
	In rest[stride] = {};
	std::size_t const size = std::min(at.left(), stride);
	std::memcpy(rest, at.in, size * sizeof(In));
	if (!change_units(at.out, rest)) {
		return step(at);
	}
	at.in += size;
	at.out += size;
	return true;
}

template <class In, class Out>
QUOR_VECTOR progress change_width(In const *in, std::size_t size, Out *out, std::size_t room) noexcept {
	course<In, Out> at(in, size, out, room);
	bool well_formed = true;
	while (well_formed && at.has(stride, longest_stride)) {
		if (change_units(at.out, at.in)) {
			at.in += stride;
			at.out += stride;
			continue;
		}
		for (In const *const stop = at.in + stride; well_formed && at.in < stop;) {
			well_formed = step(at);
		}
	}
	while (well_formed && at.has(1, longest_stride)) {
		well_formed = change_rest(at);
	}
	return at.made();
}

constexpr variant make_variant(char const *name, bool (*runs_here)() noexcept) noexcept {
	return {name,
	        runs_here,
	        &read_utf8<types::wide_char>,
	        &read_utf8<types::utf32_char>,
	        &write_utf8<types::wide_char>,
	        &change_width<types::wide_char, types::utf32_char>,
	        &write_utf8<types::utf32_char>,
	        &change_width<types::utf32_char, types::wide_char>};
}

} // namespace QUOR_2_9::kernels::QUOR_VECTORS

#endif
