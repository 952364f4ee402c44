#include <quor/generic/convert/bin_str.hpp>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include <quor/debug/invalid_parameter.hpp>

namespace QUOR_2_9::generic::convert {
namespace {

static_assert(sizeof(float) == 4 && sizeof(double) == 8, "floating numbers are IEEE 754 singles and doubles");

/// The unsigned number of the same width, whose value doesn't depend on the target's byte order.
template <class Number>
using bits_of = std::conditional_t<sizeof(Number) == 2, std::uint16_t,
                                   std::conditional_t<sizeof(Number) == 4, std::uint32_t, std::uint64_t>>;

/// The place of the byte with the given significance.
struct most_significant_first {
	static constexpr std::size_t place(std::size_t significance, std::size_t width) noexcept {
		return width - 1 - significance;
	}
};

struct least_significant_first {
	static constexpr std::size_t place(std::size_t significance, std::size_t /*width*/) noexcept {
		return significance;
	}
};

template <class Order, class Number>
std::string encode(Number const &value) {
	bits_of<Number> bits;
	std::memcpy(&bits, &value, sizeof bits);
	std::string bytes(sizeof bits, '\0');
	for (std::size_t i = 0; i != sizeof bits; ++i) {
		bytes[Order::place(i, sizeof bits)] = static_cast<char>(static_cast<unsigned char>(bits >> (8 * i)));
	}
	return bytes;
}

template <class Number, class Order>
Number decode(char const *bytes) noexcept {
	bits_of<Number> bits = 0;
	for (std::size_t i = 0; i != sizeof bits; ++i) {
		bits_of<Number> const byte = static_cast<unsigned char>(bytes[Order::place(i, sizeof bits)]);
		bits = static_cast<bits_of<Number>>(bits | byte << (8 * i));
	}
	Number value;
	std::memcpy(&value, &bits, sizeof value);
	return value;
}

/// Decodes a string of at least `Wanted` bytes; a shorter one is 0.
template <class Number, class Order, std::size_t Wanted = sizeof(Number)>
Number decode(std::string const &bytes) noexcept {
	return bytes.size() < Wanted ? Number() : decode<Number, Order>(bytes.data());
}

/// Decodes from 4 bytes on and stops where the last of the 8 lies behind the terminating
/// zero. What is missing counts as zero.
double decode_short_double(std::string const &bytes) {
	if (bytes.size() < 4) {
		return 0.0;
	}
	if (bytes.size() < 7) {
		debug::invalid_parameter("string subscript out of range", "generic\\convert\\bin_str", __LINE__);
	}
	char image[8] = {};
	std::memcpy(image, bytes.data(), bytes.size() < sizeof image ? bytes.size() : sizeof image);
	return decode<double, least_significant_first>(image);
}

} // namespace

/// Defines the encoder of one number type and its decoder from a pointer.
#define QUOR_DEFINE_BIN_STR(word, number, order)                                                                       \
  std::string word##_to_bin_str(number const &value) {                                                                 \
	return encode<order>(value);                                                                                       \
  }                                                                                                                    \
  number bin_str_to_##word(char const *bytes) noexcept {                                                               \
	return decode<number, order>(bytes);                                                                               \
  }

/// The same with the decoder from a string.
#define QUOR_DEFINE_BIN_STR_WHOLE(word, number, order)                                                                 \
  QUOR_DEFINE_BIN_STR(word, number, order)                                                                             \
  number bin_str_to_##word(std::string const &bytes) noexcept {                                                        \
	return decode<number, order>(bytes);                                                                               \
  }

QUOR_DEFINE_BIN_STR_WHOLE(int16, short, least_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(int32, types::int32, least_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(int64, types::int64, least_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(uint16, unsigned short, least_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(uint32, types::uint32, least_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(uint64, types::uint64, least_significant_first)
QUOR_DEFINE_BIN_STR(float, float, least_significant_first)
QUOR_DEFINE_BIN_STR(double, double, least_significant_first)

/// Wants 8 bytes, though it reads 4.
float bin_str_to_float(std::string const &bytes) noexcept {
	return decode<float, least_significant_first, 8>(bytes);
}

double bin_str_to_double(std::string const &bytes) {
	return decode_short_double(bytes);
}

namespace big_endian {

QUOR_DEFINE_BIN_STR_WHOLE(int16, short, most_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(int32, types::int32, most_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(int64, types::int64, most_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(uint16, unsigned short, most_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(uint32, types::uint32, most_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(uint64, types::uint64, most_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(float, float, most_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(double, double, most_significant_first)

} // namespace big_endian

namespace little_endian {

QUOR_DEFINE_BIN_STR_WHOLE(int16, short, least_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(int32, types::int32, least_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(int64, types::int64, least_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(uint16, unsigned short, least_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(uint32, types::uint32, least_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(uint64, types::uint64, least_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(float, float, least_significant_first)
QUOR_DEFINE_BIN_STR_WHOLE(double, double, least_significant_first)

} // namespace little_endian

#undef QUOR_DEFINE_BIN_STR_WHOLE
#undef QUOR_DEFINE_BIN_STR

} // namespace QUOR_2_9::generic::convert
