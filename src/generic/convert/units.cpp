#include <quor/generic/convert/units.hpp>

#include "types/length_units.hpp"

namespace QUOR_2_9::generic::convert {
namespace {

using types::absolute_unit;
using types::device_unit;
using types::int32;
using types::uint32;

using md_length = types::basic_absolute_impl<absolute_unit::md>;

constexpr int32 md_per_inch = static_cast<int32>(absolute_unit::m_md_per_inch);

int32 wrapping_product(int32 left, int32 right) noexcept {
	return static_cast<int32>(static_cast<uint32>(left) * static_cast<uint32>(right));
}

/// The quotient; the smallest number divided by -1 wraps. Zero is left to the machine.
int32 quotient(int32 dividend, int32 divisor) noexcept {
	return divisor == -1 ? wrapping_product(dividend, -1) : dividend / divisor;
}

md_length whole_inches(int32 pixels, int32 dpi) noexcept {
	return md_length(wrapping_product(quotient(pixels, dpi), md_per_inch));
}

/// A number in a unit, or in md where it is none, as one in md.
double md_of(double value, absolute_unit::unit_types unit) noexcept {
	return types::detail::units_per_inch(unit) == 0 ? value : types::detail::as_md(value, unit);
}

md_length exactly(double md) {
	md_length length;
	length.value(md);
	return length;
}

device_unit pixels_of(int32 md, int32 dpi) noexcept {
	return device_unit(wrapping_product(md, dpi) / md_per_inch);
}

} // namespace

md_length to_md(absolute_unit const &length) {
	return md_length(length);
}

md_length to_md(double const &value, absolute_unit::unit_types unit) {
	return exactly(md_of(value, unit));
}

md_length to_md(int32 const &value, absolute_unit::unit_types unit) {
	return to_md(static_cast<double>(value), unit);
}

md_length to_md(device_unit const &length, int32 dpi) {
	return whole_inches(length.as_int32(), dpi);
}

md_length to_md(int32 const &value, device_unit::unit_types /*unit*/, int32 dpi) {
	return whole_inches(value, dpi);
}

md_length to_md(double const &value, device_unit::unit_types /*unit*/, int32 dpi) {
	return exactly(value / static_cast<double>(dpi) * types::detail::md_per_inch);
}

device_unit to_device_unit(device_unit const &length) {
	return length;
}

device_unit to_device_unit(absolute_unit const &length, int32 dpi) {
	return pixels_of(length.as_md(), dpi);
}

device_unit to_device_unit(double value, absolute_unit::unit_types unit, int32 dpi) {
	return pixels_of(types::detail::whole_int32(md_of(value, unit)), dpi);
}

device_unit to_device_unit(int32 value, absolute_unit::unit_types unit, int32 dpi) {
	return to_device_unit(static_cast<double>(value), unit, dpi);
}

device_unit to_device_unit(double value, device_unit::unit_types /*unit*/) {
	return device_unit(value);
}

device_unit to_device_unit(int32 value, device_unit::unit_types /*unit*/) {
	return device_unit(value);
}

device_unit to_dpx(device_unit const &length) {
	return to_device_unit(length);
}

device_unit to_dpx(absolute_unit const &length, int32 dpi) {
	return to_device_unit(length, dpi);
}

device_unit to_dpx(double value, absolute_unit::unit_types unit, int32 dpi) {
	return to_device_unit(value, unit, dpi);
}

device_unit to_dpx(int32 value, absolute_unit::unit_types unit, int32 dpi) {
	return to_device_unit(value, unit, dpi);
}

device_unit to_dpx(double value, device_unit::unit_types unit) {
	return to_device_unit(value, unit);
}

device_unit to_dpx(int32 value, device_unit::unit_types unit) {
	return to_device_unit(value, unit);
}

} // namespace QUOR_2_9::generic::convert
