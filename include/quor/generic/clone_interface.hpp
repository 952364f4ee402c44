#ifndef QUOR_GENERIC_CLONE_INTERFACE_HPP
#define QUOR_GENERIC_CLONE_INTERFACE_HPP

/// @file
/// An abstract base of classes that are cloned through one common result type. A class
/// family with a result of its own derives from `abilities::clone_ability` instead.
///
///     class point : public quor::generic::clone_interface {
///     public:
///         point *clone() const override { return new point(*this); }
///     };
///
/// @since 2.9

#include <quor/export.hpp>
#include <quor/generic/abilities/clone_ability.hpp>

namespace QUOR_2_9::generic {

/// Can be cloned; nothing in the library derives from it.
/// @since 2.9
class QUOR_API clone_interface : public abilities::clone_ability {
public:
	/// Does nothing. @since 2.9
	clone_interface() noexcept = default;
	/// Copies nothing. @since 2.9
	clone_interface(clone_interface const &) noexcept = default;
	/// Copies nothing. @since 2.9
	clone_interface &operator=(clone_interface const &) noexcept = default;
	/// Destroys the derived object. @since 2.9
	~clone_interface() override;

	/// A new heap object with the same contents; the caller owns it. @since 2.9
	virtual clone_interface *clone() const = 0;
};

} // namespace QUOR_2_9::generic

#endif
