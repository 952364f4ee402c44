#ifndef QUOR_SRC_GENERIC_ARGUMENT_PARTS_HPP
#define QUOR_SRC_GENERIC_ARGUMENT_PARTS_HPP

#include <quor/generic/argument.hpp>

namespace QUOR_2_9::generic::detail {

/// Looks into an argument without a call.
struct argument_parts {
	static strings::ustring8 const &name(argument const &of) noexcept { return of.m_name; }
	static types::variant const &value(argument const &of) noexcept { return of.m_value; }
};

} // namespace QUOR_2_9::generic::detail

#endif
