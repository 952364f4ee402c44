#include <quor/generic/convert/bin_str.hpp>

#include <bit>
#include <cstddef>
#include <cstring>

#include <quor/debug/invalid_parameter.hpp>

#include "generic/convert/byte_image.hpp"

namespace QUOR_2_9::generic::convert {
namespace {

using detail::load_number;

constexpr std::endian least_significant_first = std::endian::little;
constexpr std::endian most_significant_first = std::endian::big;

template <std::endian Order, class Number>
std::string encode(Number const &value) {
	std::string bytes(sizeof value, '\0');
	detail::store_number<Order>(value, bytes.data());
	return bytes;
}

/// Decodes a string of at least `Wanted` bytes; a shorter one is 0.
template <class Number, std::endian Order, std::size_t Wanted = sizeof(Number)>
Number decode(std::string const &bytes) noexcept {
	return bytes.size() < Wanted ? Number() : load_number<Number, Order>(bytes.data());
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
	return load_number<double, least_significant_first>(image);
}

} // namespace

/// Defines the encoder of one number type and its decoder from a pointer.
#define QUOR_DEFINE_BIN_STR(word, number, order)                                                                       \
  std::string word##_to_bin_str(number const &value) {                                                                 \
	return encode<order>(value);                                                                                       \
  }                                                                                                                    \
  number bin_str_to_##word(char const *bytes) noexcept {                                                               \
	return load_number<number, order>(bytes);                                                                          \
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
