#include <quor/types/device_unit.hpp>

#include "types/length_units.hpp"

namespace QUOR_2_9::types {
namespace {

/// The low bits of a native `long`; where there is none of 64 bits, it isn't called.
template <class Native>
int32 low_bits(Native const &value) noexcept {
	if constexpr (std::is_integral_v<Native>) {
		return static_cast<int32>(value);
	} else {
		return 0;
	}
}

} // namespace

device_unit::device_unit(double const &value) noexcept : m_value(detail::whole_int32(value)) {}

device_unit::device_unit(float const &value) noexcept : m_value(detail::whole_int32(value)) {}

device_unit::device_unit(long double const &value) noexcept : m_value(detail::whole_int32(value)) {}

device_unit::device_unit(native_long64 const &value) noexcept : m_value(low_bits(value)) {}

device_unit::device_unit(native_ulong64 const &value) noexcept : m_value(low_bits(value)) {}

device_unit::unit_types device_unit::do_type() const {
	return dpx;
}

int32 device_unit::do_as_int32() const {
	return m_value;
}

float device_unit::do_as_float() const {
	return static_cast<float>(m_value);
}

double device_unit::do_as_double() const {
	return static_cast<double>(m_value);
}

} // namespace QUOR_2_9::types
