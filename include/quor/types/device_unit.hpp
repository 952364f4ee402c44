#ifndef QUOR_TYPES_DEVICE_UNIT_HPP
#define QUOR_TYPES_DEVICE_UNIT_HPP

/// @file
/// A length counted in the pixels of a device. Lengths that don't depend on a device are
/// `absolute_unit` in `quor/types/absolute_unit.hpp`; `quor/generic/convert/units.hpp`
/// converts between the two.
///
///     quor::types::device_unit width(640);
///     width = 800;
///     width.as_int32();                            // 800
///     quor::types::device_unit(2.9).as_int32();    // 2
///
/// @since 2.9

#include <type_traits>

#include <quor/export.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::types {

/// A count of device pixels: a signed number of 32 bits.
///
/// Made from any number: floating ones lose their fraction, and whatever doesn't fit keeps
/// the low 32 bits of its whole part (0x100000005 is 5, 4294967295 is -1); NaN and
/// infinities are 0. Nothing throws. Thread-safety: plain value. An object isn't deleted
/// through a pointer to a base, since the destructor isn't virtual.
/// @since 2.9
class QUOR_API device_unit { // NOLINT(cppcoreguidelines-virtual-class-destructor): the table has no destructor
public:
	/// What the number counts.
	/// @since 2.9
	enum unit_types : int {
		dpx = 1 ///< Pixels of the device.
	};

	/// No pixels. @since 2.9
	device_unit() noexcept : m_value(0) {}
	/// The same count. @since 2.9
	device_unit(device_unit const &) noexcept = default;
	/// A count of 32 bits. @since 2.9
	device_unit(long_t const &value) noexcept : m_value(static_cast<int32>(value)) {}
	/// The whole part of a number. @since 2.9
	device_unit(double const &value) noexcept;
	/// The whole part of a number. @since 2.9
	device_unit(float const &value) noexcept;
	/// The whole part of a number. @since 2.9
	device_unit(long double const &value) noexcept;
	/// The number. @since 2.9
	device_unit(signed char const &value) noexcept : m_value(value) {}
	/// The number. @since 2.9
	device_unit(short const &value) noexcept : m_value(value) {}
	/// The number. @since 2.9
	device_unit(int const &value) noexcept : m_value(value) {}
	/// The number's bits. @since 2.9
	device_unit(unsigned int const &value) noexcept : m_value(static_cast<int32>(value)) {}
	/// The low 32 bits. @since 2.9
	device_unit(int64 const &value) noexcept : m_value(static_cast<int32>(value)) {}
	/// The number. @since 2.9
	device_unit(unsigned char const &value) noexcept : m_value(value) {}
	/// The number. @since 2.9
	device_unit(unsigned short const &value) noexcept : m_value(value) {}
	/// The low 32 bits. @since 2.9
	device_unit(uint64 const &value) noexcept : m_value(static_cast<int32>(value)) {}
	/// The number's bits. @since 2.9
	device_unit(ulong_t const &value) noexcept : m_value(static_cast<int32>(static_cast<uint32>(value))) {}
	/// The low 32 bits of a native `long` of 64. @since 2.9
	device_unit(native_long64 const &value) noexcept;
	/// The low 32 bits of a native `unsigned long` of 64. @since 2.9
	device_unit(native_ulong64 const &value) noexcept;

	/// Becomes the same count. @since 2.9
	device_unit const &assign(device_unit const &other) noexcept { return *this = other; }
	/// Becomes the count. @since 2.9
	device_unit const &assign(int32 value) noexcept { return *this = value; }
	/// Becomes `device_unit(value)` of any other number. @since 2.9
	template <class Number, std::enable_if_t<std::is_convertible_v<Number, double>, int> = 0>
	device_unit const &assign(Number value) noexcept {
		return *this = device_unit(value);
	}
	/// Becomes the same count. @since 2.9
	device_unit const &operator=(device_unit const &other) noexcept {
		m_value = other.m_value;
		return *this;
	}
	/// Becomes the count. @since 2.9
	device_unit const &operator=(int32 value) noexcept {
		m_value = value;
		return *this;
	}
	/// Becomes `device_unit(value)` of any other number. @since 2.9
	template <class Number, std::enable_if_t<std::is_convertible_v<Number, double>, int> = 0>
	device_unit const &operator=(Number value) noexcept {
		return *this = device_unit(value);
	}

	/// Whether the counts are equal. @since 2.9
	bool equal(device_unit const &other) const noexcept { return m_value == other.m_value; }
	/// Whether the counts are equal. @since 2.9
	bool operator==(device_unit const &other) const noexcept { return equal(other); }
	/// Whether the counts differ. @since 2.9
	bool operator!=(device_unit const &other) const noexcept { return !equal(other); }

	/// What the number counts: `dpx`. @since 2.9
	unit_types type() const { return do_type(); }
	/// The count. @since 2.9
	int32 as_int32() const { return do_as_int32(); }
	/// The count, rounded to what a `float` holds. @since 2.9
	float as_float() const { return do_as_float(); }
	/// The count. @since 2.9
	double as_double() const { return do_as_double(); }

protected:
	/// What `type` gives. @since 2.9
	virtual unit_types do_type() const;
	/// What `as_int32` gives. @since 2.9
	virtual int32 do_as_int32() const;
	/// What `as_float` gives. @since 2.9
	virtual float do_as_float() const;
	/// What `as_double` gives. @since 2.9
	virtual double do_as_double() const;

private:
	int32 m_value;
};

} // namespace QUOR_2_9::types

#endif
