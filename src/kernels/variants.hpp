#ifndef QUOR_KERNELS_VARIANTS_HPP
#define QUOR_KERNELS_VARIANTS_HPP

#include <cstddef>

#include <quor/types/widths.hpp>

#include "kernels/kernels.hpp"

namespace QUOR_2_9::kernels {

template <class In, class Out>
using conversion = progress (*)(In const *in, std::size_t size, Out *out, std::size_t room) noexcept;

/// The kernels written for one kind of processor.
struct variant {
	char const *name;
	/// Whether this processor can run them.
	bool (*runs_here)() noexcept;
	conversion<char, types::wide_char> utf8_to_utf16;
	conversion<char, types::utf32_char> utf8_to_utf32;
	conversion<types::wide_char, char> utf16_to_utf8;
	conversion<types::wide_char, types::utf32_char> utf16_to_utf32;
	conversion<types::utf32_char, char> utf32_to_utf8;
	conversion<types::utf32_char, types::wide_char> utf32_to_utf16;
};

struct variant_list {
	variant const *const *first;
	variant const *const *last;
	variant const *const *begin() const noexcept { return first; }
	variant const *const *end() const noexcept { return last; }
};

/// All that are compiled for this target, the fastest first; the last one runs anywhere.
variant_list all_variants() noexcept;

/// The first that runs here.
variant const &chosen_variant() noexcept;

extern variant const portable_variant;
extern variant const sse41_variant;
extern variant const avx2_variant;

} // namespace QUOR_2_9::kernels

#endif
