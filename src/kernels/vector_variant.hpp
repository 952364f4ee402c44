#ifndef QUOR_KERNELS_VECTOR_VARIANT_HPP
#define QUOR_KERNELS_VECTOR_VARIANT_HPP

#include <algorithm>
#include <cstddef>

#include <quor/types/widths.hpp>

#include "kernels/steps.hpp"
#include "kernels/variants.hpp"
#include "kernels/vector_read_utf8.hpp"
#include "kernels/vector_rests.hpp"
#include "kernels/vector_write_utf8.hpp"

/// The kernels of one kind of vectors, made of its parts.
namespace QUOR_2_9::kernels::QUOR_VECTORS {

/// How many units change their width together.
inline constexpr std::size_t stride = 16;

/// What they make at most.
inline constexpr std::size_t longest_stride = 2 * stride + 2;

/// Whether a unit has a step of its own.
QUOR_VECTOR_PART bool is_other(types::wide_char unit) noexcept {
	return is_surrogate(unit);
}

QUOR_VECTOR_PART bool is_other(types::utf32_char unit) noexcept {
	return unit >= 0xFFFF;
}

/// Goes on behind some units that kept their numbers: with the others that stand there.
template <class In, class Out>
QUOR_VECTOR_PART bool change_others(course<In, Out> &at) noexcept {
	bool well_formed = step(at);
	while (well_formed && at.has(1, longest_stride) && is_other(*at.in)) {
		well_formed = step(at);
	}
	return well_formed;
}

/// Fewer units than a stride, taken for a text that goes on with zeros.
template <class In, class Out>
QUOR_VECTOR_PART bool change_rest(course<In, Out> &at) noexcept {
	In rest[stride] = {};
	std::size_t const size = std::min(at.left(), stride);
	copy_rest(rest, at.in, size);
	std::size_t const same = std::min(change_units(at.out, rest), size);
	at.in += same;
	at.out += same;
	return same == size || change_others(at);
}

template <class In, class Out>
QUOR_VECTOR progress change_width(In const *in, std::size_t size, Out *out, std::size_t room) noexcept {
	course<In, Out> at(in, size, out, room);
	bool well_formed = true;
	while (well_formed && at.has(stride, longest_stride)) {
		std::size_t const same = change_units(at.out, at.in);
		at.in += same;
		at.out += same;
		well_formed = same == stride || change_others(at);
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
