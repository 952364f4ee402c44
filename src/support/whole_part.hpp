#ifndef QUOR_SRC_SUPPORT_WHOLE_PART_HPP
#define QUOR_SRC_SUPPORT_WHOLE_PART_HPP

#include <limits>

/// Floating numbers as integers of any width, defined for every value.
namespace QUOR_2_9::support {

/// The whole part of a floating number modulo 2^64; 0 when it isn't finite. Exact: every
/// step takes bits away from the top. A narrower integer is this one's low bits.
template <class Floating>
unsigned long long whole_part(Floating value) noexcept {
	using whole_type = unsigned long long;
	constexpr Floating two_64 = static_cast<Floating>(18446744073709551616.0);
	Floating magnitude = value < 0 ? -value : value;
	if (!(magnitude <= std::numeric_limits<Floating>::max())) {
		return 0;
	}
	Floating unit = 1;
	while (magnitude / unit >= two_64) {
		unit *= two_64;
	}
	for (; unit >= two_64; unit /= two_64) {
		magnitude -= static_cast<Floating>(static_cast<whole_type>(magnitude / unit)) * unit;
	}
	auto const whole = static_cast<whole_type>(magnitude);
	return value < 0 ? 0 - whole : whole;
}

} // namespace QUOR_2_9::support

#endif
