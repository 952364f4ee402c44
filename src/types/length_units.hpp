#ifndef QUOR_SRC_TYPES_LENGTH_UNITS_HPP
#define QUOR_SRC_TYPES_LENGTH_UNITS_HPP

#include <quor/types/absolute_unit.hpp>

#include "support/whole_part.hpp"

/// Numbers in a unit of length as md and back. First the multiplication, then the
/// division: the results depend on it.
namespace QUOR_2_9::types::detail {

/// How many md an inch has, as the number to calculate with.
constexpr double md_per_inch = static_cast<double>(absolute_unit::m_md_per_inch);

/// How many of a unit an inch has; 0 for a number that is no unit.
constexpr double units_per_inch(int unit) noexcept {
	constexpr double counts[] = {0, 100000, 300, 25.4, 2.54, 1, 72, 6, 96};
	return unit >= absolute_unit::md && unit <= absolute_unit::dot_96 ? counts[unit] : 0.0;
}

/// A number in md as one in `unit`; 0 where that is no unit.
constexpr double from_md(double md, int unit) noexcept {
	if (unit == absolute_unit::md) {
		return md;
	}
	double const count = units_per_inch(unit);
	return count == 0 ? 0.0 : md * count / md_per_inch;
}

/// A number in `unit` as one in md; 0 where that is no unit.
constexpr double as_md(double length, int unit) noexcept {
	if (unit == absolute_unit::md) {
		return length;
	}
	double const count = units_per_inch(unit);
	return count == 0 ? 0.0 : length * md_per_inch / count;
}

/// The low 32 bits of the whole part.
template <class Floating>
int32 whole_int32(Floating value) noexcept {
	return static_cast<int32>(static_cast<uint32>(support::whole_part(value)));
}

} // namespace QUOR_2_9::types::detail

#endif
