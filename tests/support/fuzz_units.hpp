#ifndef QUOR_TESTS_SUPPORT_FUZZ_UNITS_HPP
#define QUOR_TESTS_SUPPORT_FUZZ_UNITS_HPP

#include <cstddef>
#include <cstdint>

#include "reference/text.hpp"

namespace quor_test {

// The bytes of a fuzzer as units of `width` bytes, the lowest byte first; what is left at the end
// is no unit.
inline quor_reference::numbers units_from(std::uint8_t const *data, std::size_t size, std::size_t width) {
	quor_reference::numbers units;
	for (std::size_t i = 0; i + width <= size; i += width) {
		quor_reference::number unit = 0;
		for (std::size_t k = 0; k != width; ++k) {
			unit = unit << 8 | data[i + width - 1 - k];
		}
		units.push_back(unit);
	}
	return units;
}

} // namespace quor_test

#endif
