#ifndef QUOR_MEMORY_POINTERS_RC_POINTER_HPP
#define QUOR_MEMORY_POINTERS_RC_POINTER_HPP

/// @file
/// The smart pointer by which a class holds parts of its own, one word in size: `variant`
/// holds its value through one. `shared_pointer` does the same under the name by which
/// objects are handed from one owner to another.
///
///     rc_pointer<node> held(generic::abilities::create_dynamic<node>());
///     held->get_ref_count();                  // 1
///     rc_pointer<node> second = held;         // 2
///
/// @since 2.9

#include <quor/memory/pointers/counted_pointer.hpp>

namespace QUOR_2_9::memory::pointers {

/// A counted pointer to a part of an object.
///
/// All of its operations are those of `counted_pointer`.
/// @since 2.9
template <class T>
class rc_pointer : public counted_pointer<T> {
public:
	using counted_pointer<T>::counted_pointer;

	/// Empty. @since 2.9
	constexpr rc_pointer() noexcept = default;

	/// Holds `object`, which may be null, and lets go of the object held before; nothing
	/// happens when it is held already. @since 2.9
	rc_pointer &operator=(T *object) noexcept {
		counted_pointer<T>::operator=(object);
		return *this;
	}
};

} // namespace QUOR_2_9::memory::pointers

#endif
