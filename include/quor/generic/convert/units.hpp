#ifndef QUOR_GENERIC_CONVERT_UNITS_HPP
#define QUOR_GENERIC_CONVERT_UNITS_HPP

/// @file
/// Conversions between lengths: `to_md` gives a length that doesn't depend on a device,
/// `to_device_unit` and its second name `to_dpx` pixels of a device.
///
///     namespace convert = quor::generic::convert;
///     using quor::types::absolute_unit;
///     convert::to_md(21.0, absolute_unit::cm).as_md();              // 826771
///     convert::to_dpx(21.0, absolute_unit::cm, 300).as_int32();     // 2480
///     convert::to_md(150.0, quor::types::device_unit::dpx, 300).as_md();   // 50000
///
/// All of them: `dpi` is the device's number of pixels in an inch. Integers are of 32 bits:
/// divisions drop the fraction, and whatever overflows wraps round. A number that isn't
/// `int32` or `double` is taken as one of them: floating ones as `double`, integers by
/// their low 32 bits. Nothing is rounded, reported or thrown. Thread-safety: pure.
///
/// @since 2.9

#include <type_traits>

#include <quor/export.hpp>
#include <quor/types/absolute_unit.hpp>
#include <quor/types/device_unit.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::generic::convert {

namespace detail {

/// Whether `T` is a number, the held 32-bit ones included.
template <class T>
constexpr bool is_number =
    std::is_arithmetic_v<T> || std::is_same_v<T, types::long_t> || std::is_same_v<T, types::ulong_t>;

/// Whether `T` can name a unit of the enumeration `Unit`: it is `Unit` or an integer.
template <class T, class Unit>
constexpr bool names_unit = std::is_same_v<T, Unit> || (std::is_integral_v<T> && !std::is_same_v<T, bool>);

/// Enables a call with a number and a unit, or the number of one.
template <class Number, class Named, class Unit>
using enable_for_unit = std::enable_if_t<is_number<Number> && names_unit<Named, Unit>, int>;

/// A number as one of the two that the conversions take.
template <class Number>
constexpr auto as_parameter(Number value) noexcept {
	if constexpr (std::is_floating_point_v<Number>) {
		return static_cast<double>(value);
	} else if constexpr (std::is_same_v<Number, types::ulong_t>) {
		return static_cast<types::int32>(static_cast<types::uint32>(value));
	} else {
		return static_cast<types::int32>(value);
	}
}

/// The unit of a number: one of `Unit`, or one that is none for any other number.
template <class Unit, class Named>
constexpr Unit as_unit(Named value) noexcept {
	constexpr auto largest = static_cast<Named>(types::absolute_unit::dot_96);
	return value > Named() && value <= largest ? static_cast<Unit>(value) : Unit();
}

} // namespace detail

/// The same length, its fraction of an md too, as one in md. @since 2.9
QUOR_API types::basic_absolute_impl<types::absolute_unit::md> to_md(types::absolute_unit const &length);
/// `value` of `unit` as a length in md, as `absolute_unit::value` sets it, not rounded. A
/// number that is no unit stands for md. @since 2.9
QUOR_API types::basic_absolute_impl<types::absolute_unit::md> to_md(double const &value,
                                                                    types::absolute_unit::unit_types unit);
/// The same with `double(value)`. @since 2.9
QUOR_API types::basic_absolute_impl<types::absolute_unit::md> to_md(types::int32 const &value,
                                                                    types::absolute_unit::unit_types unit);
/// Whole inches of pixels: `(length / dpi) * 100000`. The division comes first, so 150
/// pixels of 300 in an inch are 0 md, and 450 are 100000; pass `length.as_double()` with
/// `device_unit::dpx` to keep the rest.
///
/// With a `dpi` of 0 this is the division by zero of the target's machine, which ends the
/// program on x86 (the signal SIGFPE on POSIX). The library never calls it.
/// @since 2.9
QUOR_API types::basic_absolute_impl<types::absolute_unit::md> to_md(types::device_unit const &length, types::int32 dpi);
/// `(value / dpi) * 100000`, as for a `device_unit` and with the same fault for a `dpi` of
/// 0. @since 2.9
QUOR_API types::basic_absolute_impl<types::absolute_unit::md>
to_md(types::int32 const &value, types::device_unit::unit_types unit, types::int32 dpi);
/// `value / dpi * 100000.0`, with its fraction. A `dpi` of 0 gives an infinity, or NaN for
/// a `value` of 0. @since 2.9
QUOR_API types::basic_absolute_impl<types::absolute_unit::md>
to_md(double const &value, types::device_unit::unit_types unit, types::int32 dpi);

/// A copy. @since 2.9
QUOR_API types::device_unit to_device_unit(types::device_unit const &length);
/// `(length.as_md() * dpi) / 100000`. The product wraps: from 2^31 / `dpi` md on, 71 inches
/// at 300, the result is another length. @since 2.9
QUOR_API types::device_unit to_device_unit(types::absolute_unit const &length, types::int32 dpi);
/// The pixels of `value` of `unit`: `to_device_unit(to_md(value, unit), dpi)`. @since 2.9
QUOR_API types::device_unit to_device_unit(double value, types::absolute_unit::unit_types unit, types::int32 dpi);
/// The same with `double(value)`. @since 2.9
QUOR_API types::device_unit to_device_unit(types::int32 value, types::absolute_unit::unit_types unit, types::int32 dpi);
/// `device_unit(value)`; the unit isn't looked at. @since 2.9
QUOR_API types::device_unit to_device_unit(double value, types::device_unit::unit_types unit);
/// `device_unit(value)`; the unit isn't looked at. @since 2.9
QUOR_API types::device_unit to_device_unit(types::int32 value, types::device_unit::unit_types unit);

/// The same as `to_device_unit`. @since 2.9
QUOR_API types::device_unit to_dpx(types::device_unit const &length);
/// The same as `to_device_unit`. @since 2.9
QUOR_API types::device_unit to_dpx(types::absolute_unit const &length, types::int32 dpi);
/// The same as `to_device_unit`. @since 2.9
QUOR_API types::device_unit to_dpx(double value, types::absolute_unit::unit_types unit, types::int32 dpi);
/// The same as `to_device_unit`. @since 2.9
QUOR_API types::device_unit to_dpx(types::int32 value, types::absolute_unit::unit_types unit, types::int32 dpi);
/// The same as `to_device_unit`. @since 2.9
QUOR_API types::device_unit to_dpx(double value, types::device_unit::unit_types unit);
/// The same as `to_device_unit`. @since 2.9
QUOR_API types::device_unit to_dpx(types::int32 value, types::device_unit::unit_types unit);

/// `to_md` of any number in a unit, named or given as its number: `to_md(0.5, 5)` is half
/// an inch. A number in front of another number is never a `device_unit` here: write
/// `to_md(device_unit(150), 300)` for that.
/// @since 2.9
template <class Number, class Unit, detail::enable_for_unit<Number, Unit, types::absolute_unit::unit_types> = 0>
types::basic_absolute_impl<types::absolute_unit::md> to_md(Number value, Unit unit) {
	return to_md(detail::as_parameter(value), detail::as_unit<types::absolute_unit::unit_types>(unit));
}

/// `to_md` of any number of pixels. @since 2.9
template <class Number, class Unit, detail::enable_for_unit<Number, Unit, types::device_unit::unit_types> = 0>
types::basic_absolute_impl<types::absolute_unit::md> to_md(Number value, Unit /*unit*/, types::int32 dpi) {
	return to_md(detail::as_parameter(value), types::device_unit::dpx, dpi);
}

/// `to_device_unit` of any number in a unit, named or given as its number. @since 2.9
template <class Number, class Unit, detail::enable_for_unit<Number, Unit, types::absolute_unit::unit_types> = 0>
types::device_unit to_device_unit(Number value, Unit unit, types::int32 dpi) {
	return to_device_unit(detail::as_parameter(value), detail::as_unit<types::absolute_unit::unit_types>(unit), dpi);
}

/// `to_device_unit` of any number of pixels. @since 2.9
template <class Number, class Unit, detail::enable_for_unit<Number, Unit, types::device_unit::unit_types> = 0>
types::device_unit to_device_unit(Number value, Unit /*unit*/) {
	return to_device_unit(detail::as_parameter(value), types::device_unit::dpx);
}

/// The same as `to_device_unit`. @since 2.9
template <class Number, class Unit, detail::enable_for_unit<Number, Unit, types::absolute_unit::unit_types> = 0>
types::device_unit to_dpx(Number value, Unit unit, types::int32 dpi) {
	return to_device_unit(value, unit, dpi);
}

/// The same as `to_device_unit`. @since 2.9
template <class Number, class Unit, detail::enable_for_unit<Number, Unit, types::device_unit::unit_types> = 0>
types::device_unit to_dpx(Number value, Unit unit) {
	return to_device_unit(value, unit);
}

} // namespace QUOR_2_9::generic::convert

#endif
