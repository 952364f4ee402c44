#ifndef QUOR_GENERIC_ABILITIES_ALLOC_DETECTION_ABILITY_HPP
#define QUOR_GENERIC_ABILITIES_ALLOC_DETECTION_ABILITY_HPP

/// @file
/// The ability to know whether an object was made on the heap by creating code. The
/// knowledge is a flag that the creating code sets by hand: no `operator new` is
/// involved, and an object made with a plain `new` does not have it.
///
///     class node : public reference_count_pointer_ability<node> { ... };
///     node local;                               // local.is_created_dynamic() is false
///     node *heap = create_dynamic<node>();      // heap->is_created_dynamic() is true
///
/// @since 2.9

#include <utility>

#include <quor/version.hpp>

namespace QUOR_2_9::generic::abilities {

/// Base of classes whose objects know whether creating code made them.
///
/// Copies carry the flag of their source as it stands, also copies on the stack of an
/// object on the heap; a derived class that doesn't want this default-constructs this
/// base in its copy constructor and leaves it alone in its assignment.
/// Thread-safety: the flag is written once, before the object is shared.
/// @since 2.9
class alloc_detection_ability {
public:
	/// Sets the flag to false. @since 2.9
	alloc_detection_ability() noexcept = default;

	/// Whether the object was made by `create_dynamic`, so that the last pointer to let
	/// go of it deletes it. @since 2.9
	bool is_created_dynamic() const noexcept { return m_created_dynamic; }

private:
	template <class T, class... Arguments>
	friend T *create_dynamic(Arguments &&...arguments);

	void mark_created_dynamic() noexcept { m_created_dynamic = true; }

	bool m_created_dynamic = false;
};

/// Makes an object on the heap: allocates it with the global `operator new`, constructs
/// it from the arguments and sets its created-dynamic flag, in this order.
///
/// The count of the new object is 0, unless its constructor copies another one's. The
/// caller owns it until it hands it to an `rc_pointer` or `shared_pointer`, or deletes it.
/// A `clone()` is `return create_dynamic<my_class>(*this);`.
/// @throws std::bad_alloc and what the constructor throws; nothing is leaked.
/// @since 2.9
template <class T, class... Arguments>
T *create_dynamic(Arguments &&...arguments) {
	T *const object = ::new T(std::forward<Arguments>(arguments)...);
	static_cast<alloc_detection_ability &>(*object).mark_created_dynamic();
	return object;
}

} // namespace QUOR_2_9::generic::abilities

#endif
