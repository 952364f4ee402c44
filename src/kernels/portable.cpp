#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include <quor/types/widths.hpp>

#include "kernels/steps.hpp"
#include "kernels/variants.hpp"

namespace QUOR_2_9::kernels {
namespace {

/// How many units are looked at together: some words, in all three widths.
constexpr std::size_t stride = 8;

/// Whether the next units are all ASCII.
template <class Unit>
bool is_ascii(Unit const *in) noexcept {
	constexpr std::uint64_t bits = sizeof(Unit) == 1   ? 0x8080808080808080
	                               : sizeof(Unit) == 2 ? 0xFF80FF80FF80FF80
	                                                   : 0xFFFFFF80FFFFFF80;
	std::uint64_t words[sizeof(Unit)];
	static_assert(sizeof words == stride * sizeof(Unit));
	std::memcpy(words, in, sizeof words);
	std::uint64_t all = 0;
	for (std::uint64_t const word : words) {
		all |= word;
	}
	return (all & bits) == 0;
}

template <class In, class Out>
progress convert(In const *in, std::size_t size, Out *out, std::size_t room) noexcept {
	course<In, Out> at(in, size, out, room);
	while (at.has(stride, stride * step_room)) {
		if (is_ascii(at.in)) {
			std::transform(at.in, at.in + stride, at.out, [](In unit) { return static_cast<Out>(unit); });
			at.in += stride;
			at.out += stride;
			continue;
		}
		for (In const *const stop = at.in + stride; at.in < stop;) {
			if (!step(at)) {
				return at.made();
			}
		}
	}
	while (at.has(1, step_room) && step(at)) {
	}
	return at.made();
}

bool anywhere() noexcept {
	return true;
}

} // namespace

constinit variant const portable_variant = {"portable",
                                            &anywhere,
                                            &convert<char, types::wide_char>,
                                            &convert<char, types::utf32_char>,
                                            &convert<types::wide_char, char>,
                                            &convert<types::wide_char, types::utf32_char>,
                                            &convert<types::utf32_char, char>,
                                            &convert<types::utf32_char, types::wide_char>};

} // namespace QUOR_2_9::kernels
