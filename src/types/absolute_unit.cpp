#include <quor/types/absolute_unit.hpp>

#include <cmath>

#include "types/length_units.hpp"

namespace QUOR_2_9::types {

absolute_unit::absolute_unit(double length) noexcept : m_md(std::isfinite(length) ? std::trunc(length) : 0.0) {}

int32 absolute_unit::as_md() const noexcept {
	return detail::whole_int32(m_md);
}

double absolute_unit::value() const {
	return detail::from_md(m_md, type());
}

void absolute_unit::value(double length) {
	m_md = detail::as_md(length, type());
}

int32 absolute_unit::rounded() const {
	return detail::whole_int32(std::floor(value() + 0.5));
}

double absolute_unit::rounded_to_hundredths() const {
	return std::floor(value() * 100 + 0.5) / 100;
}

} // namespace QUOR_2_9::types
