#include <cstddef>

#include <quor/types/widths.hpp>

#include "kernels/ascii_blocks.hpp"
#include "kernels/steps.hpp"
#include "kernels/variants.hpp"

namespace QUOR_2_9::kernels {
namespace {

template <class In, class Out>
progress convert(In const *in, std::size_t size, Out *out, std::size_t room) noexcept {
	course<In, Out> at(in, size, out, room);
	while (at.has(ascii::block, ascii::block * step_room)) {
		if (ascii::is_block(at.in)) {
			ascii::copy(at.in, at.out);
			at.in += ascii::block;
			at.out += ascii::block;
			continue;
		}
		for (In const *const stop = at.in + ascii::block; at.in < stop;) {
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
