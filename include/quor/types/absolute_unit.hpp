#ifndef QUOR_TYPES_ABSOLUTE_UNIT_HPP
#define QUOR_TYPES_ABSOLUTE_UNIT_HPP

/// @file
/// Lengths that don't depend on a device, each read and set in a unit of its own. Pixels
/// are `device_unit` in `quor/types/device_unit.hpp`; `quor/generic/convert/units.hpp`
/// converts.
///
///     using quor::types::absolute_unit;
///     quor::types::basic_absolute_impl<absolute_unit::cm> width;
///     width.value(21.0);
///     width.as_md();                                                        // 826771
///     quor::types::basic_absolute_impl<absolute_unit::point>(width).value();   // 595.27...
///
/// Every length is stored in md, a hundred-thousandth of an inch, as a `double`.
///
/// @since 2.9

#include <type_traits>

#include <quor/export.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::types {

/// A length, stored in md; classes derived from it name the unit.
///
/// A number set is multiplied by 100000 and then divided by the units of an inch, a number
/// read is multiplied by the units of an inch and then divided by 100000, both rounded to
/// `double` at each step, and nothing is rounded otherwise:
///
/// | unit | of an inch |
/// |---|---|
/// | `md` | 100000; taken as it is |
/// | `dot_300` | 300 |
/// | `mm` | 25.4 |
/// | `cm` | 2.54 |
/// | `inch` | 1 |
/// | `point` | 72 |
/// | `pica` | 6 |
/// | `dot_96` | 96 |
///
/// A whole number of 32 bits that is made of a larger one keeps its low 32 bits; one made
/// of NaN or an infinity is 0. Nothing throws. Thread-safety: plain value. An object isn't
/// deleted through a pointer to this class, since the destructor isn't virtual.
/// @since 2.9
class QUOR_API absolute_unit {
public:
	/// The unit in which a length is read and set. Any other number can be held too and is
	/// no unit.
	/// @since 2.9
	enum unit_types : int {
		md = 1,      ///< A hundred-thousandth of an inch.
		dot_300 = 2, ///< A dot of a device with 300 of an inch.
		mm = 3,      ///< A millimetre.
		cm = 4,      ///< A centimetre.
		inch = 5,    ///< An inch.
		point = 6,   ///< A 72nd of an inch.
		pica = 7,    ///< 12 points.
		dot_96 = 8   ///< A dot of a device with 96 of an inch.
	};

	/// How many md an inch has. @since 2.9
	static constexpr int64 m_md_per_inch = 100000;

	/// The length 0. @since 2.9
	absolute_unit() noexcept : m_md(0) {}
	/// The same length, not the same unit. @since 2.9
	absolute_unit(absolute_unit const &) noexcept = default;
	/// A length in md, whatever the unit. @since 2.9
	absolute_unit(int32 length) noexcept : m_md(static_cast<double>(length)) {}
	/// A length in md, whatever the unit, without its fraction: 2.9 gives 2 md, -2.9 gives
	/// -2. NaN and infinities give 0. @since 2.9
	absolute_unit(double length) noexcept;
	/// The same of the nearest `double`. @since 2.9
	absolute_unit(long double length) noexcept : absolute_unit(static_cast<double>(length)) {}
	/// A length in md: the low 32 bits of any other integer. @since 2.9
	template <class Integer,
	          std::enable_if_t<std::is_convertible_v<Integer, int32> && !std::is_same_v<Integer, int32> &&
	                               !std::is_floating_point_v<Integer> && !std::is_enum_v<Integer>,
	                           int> = 0>
	absolute_unit(Integer length) noexcept : absolute_unit(static_cast<int32>(length)) {}

	/// Takes over the length, not the unit. @since 2.9
	absolute_unit &operator=(absolute_unit const &) noexcept = default;

	/// The unit. @since 2.9
	unit_types type() const { return do_type(); }
	/// The length in its unit as a whole number, see `do_as_int32`. @since 2.9
	int32 as_int32() const { return do_as_int32(); }
	/// The length in its unit, see `do_as_double`. @since 2.9
	double as_double() const { return do_as_double(); }
	/// The length in md, without its fraction. @since 2.9
	int32 as_md() const noexcept;
	/// The length in its unit, not rounded; 0 where the unit is none of the listed. @since 2.9
	double value() const;
	/// Sets the length from a number in its unit; to 0 where the unit is none of the
	/// listed. @since 2.9
	void value(double length);

	/// What `type` gives. @since 2.9
	virtual unit_types do_type() const = 0;
	/// What `as_int32` gives. @since 2.9
	virtual int32 do_as_int32() const = 0;
	/// What `as_double` gives. @since 2.9
	virtual double do_as_double() const = 0;

protected:
	~absolute_unit() = default;

	/// `value()` rounded to a whole number, halves up. @since 2.9
	int32 rounded() const;
	/// `value()` rounded to two decimals, halves up. @since 2.9
	double rounded_to_hundredths() const;

private:
	double m_md;
};

/// A length in the unit whose number is `Unit`: `basic_absolute_impl<absolute_unit::mm>`.
///
/// Constructors from a number take md, as those of `absolute_unit`; `value` sets it in the
/// unit. Made from or assigned a length in another unit, it is the same length. With a
/// `Unit` that isn't listed it has that type and the value 0.
/// @since 2.9
template <int Unit>
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor): the table has no destructor
class QUOR_API_TYPE basic_absolute_impl : public absolute_unit {
public:
	using absolute_unit::absolute_unit;

	/// The length 0. @since 2.9
	basic_absolute_impl() noexcept = default;
	/// The same length. @since 2.9
	basic_absolute_impl(absolute_unit const &length) noexcept : absolute_unit(length) {}

	/// The unit. @since 2.9
	unit_types do_type() const override { return static_cast<unit_types>(Unit); }
	/// `value()` rounded to a whole number, halves up: 2.5 is 3, -2.5 is -2. @since 2.9
	int32 do_as_int32() const override { return rounded(); }
	/// `value()` rounded to two decimals, halves up. @since 2.9
	double do_as_double() const override { return rounded_to_hundredths(); }
};

} // namespace QUOR_2_9::types

#endif
