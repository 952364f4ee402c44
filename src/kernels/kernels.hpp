#ifndef QUOR_KERNELS_KERNELS_HPP
#define QUOR_KERNELS_KERNELS_HPP

#include <cstddef>

#include <quor/types/widths.hpp>

#include "kernels/ascii_blocks.hpp"
#include "kernels/byte_blocks.hpp"
#include "kernels/digit_blocks.hpp"
#include "kernels/digit_vectors.hpp"

/// The loops that are worth the machine's vectors, behind plain functions. Which variant
/// runs is chosen by what the processor can, once; it can be called from any thread and
/// before the static objects of the program are made.
namespace QUOR_2_9::kernels {

/// How far a conversion came, in units.
struct progress {
	std::size_t read;
	std::size_t written;
};

/// A conversion that is given this much room makes progress.
inline constexpr std::size_t least_room = 192;

/// Each of these converts the text from its start until it ends, until malformed input
/// begins or until fewer than `least_room` units are left of the room. What counts as
/// malformed and what is written stands at the transcoder of the same name. Nothing is
/// read behind the text or written behind the room; what the room holds behind the units
/// written is undefined.
progress utf8_to_utf16(char const *in, std::size_t size, types::wide_char *out, std::size_t room) noexcept;
progress utf8_to_utf32(char const *in, std::size_t size, types::utf32_char *out, std::size_t room) noexcept;
progress utf16_to_utf8(types::wide_char const *in, std::size_t size, char *out, std::size_t room) noexcept;
progress utf16_to_utf32(types::wide_char const *in, std::size_t size, types::utf32_char *out,
                        std::size_t room) noexcept;
progress utf32_to_utf8(types::utf32_char const *in, std::size_t size, char *out, std::size_t room) noexcept;
progress utf32_to_utf16(types::utf32_char const *in, std::size_t size, types::wide_char *out,
                        std::size_t room) noexcept;

/// Numbers that are the whole text, by vectors where every processor of the target has them.
#ifdef __SSE2__
namespace whole_numbers = digits::vectors;
#else
namespace whole_numbers = digits;
#endif

} // namespace QUOR_2_9::kernels

#endif
