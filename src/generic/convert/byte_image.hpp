#ifndef QUOR_SRC_GENERIC_CONVERT_BYTE_IMAGE_HPP
#define QUOR_SRC_GENERIC_CONVERT_BYTE_IMAGE_HPP

#include <algorithm>
#include <bit>
#include <cstring>

/// Numbers as the bytes of their memory image in a given order, written to and read from
/// plain storage, aligned or not. Nothing here allocates.
namespace QUOR_2_9::generic::convert::detail {

static_assert(sizeof(float) == 4 && sizeof(double) == 8, "floating numbers are IEEE 754 singles and doubles");
static_assert(std::endian::native == std::endian::little || std::endian::native == std::endian::big);

/// Writes the `sizeof(Number)` bytes of `value` to `bytes`.
template <std::endian Order, class Number>
void store_number(Number const &value, char *bytes) noexcept {
	std::memcpy(bytes, &value, sizeof value);
	if constexpr (Order != std::endian::native) {
		std::reverse(bytes, bytes + sizeof value);
	}
}

/// Reads the number in the `sizeof(Number)` bytes at `bytes`.
template <class Number, std::endian Order>
Number load_number(char const *bytes) noexcept {
	Number value;
	if constexpr (Order == std::endian::native) {
		std::memcpy(&value, bytes, sizeof value);
	} else {
		char image[sizeof value];
		std::reverse_copy(bytes, bytes + sizeof value, image);
		std::memcpy(&value, image, sizeof value);
	}
	return value;
}

} // namespace QUOR_2_9::generic::convert::detail

#endif
