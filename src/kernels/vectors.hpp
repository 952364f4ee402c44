#ifndef QUOR_KERNELS_VECTORS_HPP
#define QUOR_KERNELS_VECTORS_HPP

// What the sources of one kind of vectors share, for x86 alone. Such a source names its
// namespace (QUOR_VECTORS) and what the processor must have for it (QUOR_VECTOR_TARGET),
// then includes this: what stands in the shared headers is compiled once for each kind.

#include <cstddef>

#include <immintrin.h>

#if !defined(QUOR_VECTORS) || !defined(QUOR_VECTOR_TARGET)
#  error "a kind of vectors includes this header"
#endif

/// Marks a function that may be called only after a look at what the processor can.
#if defined(__i386__)
// There a caller may have put the stack at any place.
#  define QUOR_VECTOR __attribute__((target(QUOR_VECTOR_TARGET), force_align_arg_pointer))
#else
#  define QUOR_VECTOR __attribute__((target(QUOR_VECTOR_TARGET)))
#endif

/// The same for a part of such a function. Inlined everywhere, so that places and vectors
/// stay in registers.
#define QUOR_VECTOR_PART __attribute__((target(QUOR_VECTOR_TARGET), always_inline)) inline

namespace QUOR_2_9::kernels::QUOR_VECTORS {

template <class Unit>
QUOR_VECTOR_PART __m128i load(Unit const *in) noexcept {
	return _mm_loadu_si128(reinterpret_cast<__m128i const *>(in));
}

template <class Unit>
QUOR_VECTOR_PART void store(Unit *out, __m128i vector) noexcept {
	_mm_storeu_si128(reinterpret_cast<__m128i *>(out), vector);
}

/// The lower 8 bytes.
template <class Unit>
QUOR_VECTOR_PART void store_half(Unit *out, __m128i vector) noexcept {
	_mm_storel_epi64(reinterpret_cast<__m128i *>(out), vector);
}

QUOR_VECTOR_PART bool any(__m128i vector) noexcept {
	return _mm_testz_si128(vector, vector) == 0;
}

} // namespace QUOR_2_9::kernels::QUOR_VECTORS

#endif
