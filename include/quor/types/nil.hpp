#ifndef QUOR_TYPES_NIL_HPP
#define QUOR_TYPES_NIL_HPP

/// @file
/// The empty marker. Every class with an "empty" state can be constructed from,
/// assigned from and compared with `types::nil`.
///
///     quor::types::variant value = 5;
///     value = quor::types::nil;
///     assert(value == quor::types::nil);
///
/// @since 2.9

#include <quor/export.hpp>

namespace QUOR_2_9::types {

/// The type of the empty marker; it holds nothing and all its objects are alike.
/// @since 2.9
class QUOR_API_TYPE nil_t {
public:
	/// The empty marker.
	constexpr nil_t() noexcept = default;
};

/// The one global constant of `nil_t`; usable during static initialisation.
inline constexpr nil_t nil{};

} // namespace QUOR_2_9::types

#endif
