#ifndef QUOR_GENERIC_ABILITIES_CLONE_ABILITY_HPP
#define QUOR_GENERIC_ABILITIES_CLONE_ABILITY_HPP

/// @file
/// Marks classes whose objects can be copied without knowing their type. The operation,
/// `clone() const`, is declared by each class family with its own result.
///
///     class shape : public quor::generic::abilities::clone_ability {
///     public:
///         virtual shape *clone() const = 0;
///     };
///
/// @since 2.9

#include <quor/export.hpp>

namespace QUOR_2_9::generic::abilities {

/// An empty polymorphic base; its destructor is its one virtual operation.
/// @since 2.9
class QUOR_API clone_ability {
public:
	/// Does nothing. @since 2.9
	clone_ability() noexcept = default;
	/// Copies nothing. @since 2.9
	clone_ability(clone_ability const &) noexcept = default;
	/// Copies nothing. @since 2.9
	clone_ability &operator=(clone_ability const &) noexcept = default;
	/// Destroys the derived object. @since 2.9
	virtual ~clone_ability();
};

} // namespace QUOR_2_9::generic::abilities

#endif
