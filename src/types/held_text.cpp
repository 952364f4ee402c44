#include "types/held_text.hpp"

#include <typeinfo>

#include <quor/strings/ustring.hpp>
#include <quor/types/variant_type.hpp>

namespace QUOR_2_9::types::detail {

std::string const *held_text::of(variant const &value) noexcept {
	// Each type has one holder, and the library one description of it.
	variant_type const &held = *value.m_holder;
	if (&typeid(held) == &typeid(variant_value_t<std::string>)) {
		return &static_cast<variant_value_t<std::string> const &>(held).m_value;
	}
	if (&typeid(held) == &typeid(variant_value_t<strings::ustring8>)) {
		return &static_cast<variant_value_t<strings::ustring8> const &>(held).m_value;
	}
	return nullptr;
}

} // namespace QUOR_2_9::types::detail
