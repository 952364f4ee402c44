// Any bytes as UTF-8, UTF-16 and UTF-32 through every variant of the kernels, in blocks and
// rooms of exact sizes: each makes what the slow rules make.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>

#include "kernels/kernels.hpp"
#include "reference/text.hpp"
#include "support/fuzz_units.hpp"
#include "support/kernel_checks.hpp"

namespace {

using quor_reference::number;
using quor_reference::numbers;
using quor_test::units_from;

void check(std::string const &difference) {
	if (!difference.empty()) {
		std::cerr << difference;
		std::abort();
	}
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const *data, std::size_t size) {
	constexpr std::size_t longest = 2048;
	if (size == 0 || size > longest) {
		return 0;
	}
	// The first byte gives the place of the text in its block and the room.
	std::size_t const shift = data[0] % 16;
	std::size_t const room = quor_test::kernels::least_room + data[0];
	++data;
	--size;
	check(quor_test::utf8_difference(units_from(data, size, 1), shift, room));
	check(quor_test::utf16_difference(units_from(data, size, 2), shift, room));
	numbers units = units_from(data, size, 4);
	check(quor_test::utf32_difference(units, shift, room));
	// Most units of 32 bits are no code points; the lower bits of these are.
	std::transform(units.begin(), units.end(), units.begin(), [](number unit) { return unit % 0x110400; });
	check(quor_test::utf32_difference(units, shift, room));
	return 0;
}
