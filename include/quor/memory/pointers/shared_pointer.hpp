#ifndef QUOR_MEMORY_POINTERS_SHARED_POINTER_HPP
#define QUOR_MEMORY_POINTERS_SHARED_POINTER_HPP

/// @file
/// The smart pointer by which objects are handed from one owner to another, one word in
/// size: sets of catalogs share their catalogs through it. It counts together with
/// `rc_pointer`: both may hold one object.
///
///     shared_pointer<catalog_t> shared(generic::abilities::create_dynamic<catalog_t>());
///     catalogs["app"] = shared;               // count 2
///     shared.reset();                         // count 1
///
/// @since 2.9

#include <quor/memory/pointers/counted_pointer.hpp>

namespace QUOR_2_9::memory::pointers {

/// A counted pointer that is handed from one owner to another.
///
/// All of its operations are those of `counted_pointer`.
/// @since 2.9
template <class T>
class shared_pointer : public counted_pointer<T> {
public:
	using counted_pointer<T>::counted_pointer;

	/// Empty. @since 2.9
	constexpr shared_pointer() noexcept = default;

	/// Holds `object`, which may be null, and lets go of the object held before; nothing
	/// happens when it is held already. @since 2.9
	shared_pointer &operator=(T *object) noexcept {
		counted_pointer<T>::operator=(object);
		return *this;
	}
};

} // namespace QUOR_2_9::memory::pointers

#endif
