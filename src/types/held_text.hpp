#ifndef QUOR_SRC_TYPES_HELD_TEXT_HPP
#define QUOR_SRC_TYPES_HELD_TEXT_HPP

#include <string>

#include <quor/types/variant.hpp>

namespace QUOR_2_9::types::detail {

/// Looks into a variant.
struct held_text {
	/// The text of a variant that holds a narrow one, which is what `as_string` copies; null for
	/// all others. Good as long as a variant shares the value.
	static std::string const *of(variant const &value) noexcept;
};

} // namespace QUOR_2_9::types::detail

#endif
