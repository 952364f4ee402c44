#ifndef QUOR_GENERIC_ABILITIES_CREATE_ABILITY_HPP
#define QUOR_GENERIC_ABILITIES_CREATE_ABILITY_HPP

/// @file
/// Marks classes whose objects can make a new, empty object of their own type. The
/// operation, `create() const`, is declared by each class family with its own result.
///
///     class shape : public quor::generic::abilities::create_ability {
///     public:
///         virtual shape *create() const = 0;
///     };
///
/// @since 2.9

#include <quor/export.hpp>

namespace QUOR_2_9::generic::abilities {

/// An empty polymorphic base; its destructor is its one virtual operation.
/// @since 2.9
class QUOR_API create_ability {
public:
	/// Does nothing. @since 2.9
	create_ability() noexcept = default;
	/// Copies nothing. @since 2.9
	create_ability(create_ability const &) noexcept = default;
	/// Copies nothing. @since 2.9
	create_ability &operator=(create_ability const &) noexcept = default;
	/// Destroys the derived object. @since 2.9
	virtual ~create_ability();
};

} // namespace QUOR_2_9::generic::abilities

#endif
