#ifndef QUOR_MEMORY_POINTERS_COUNTED_POINTER_HPP
#define QUOR_MEMORY_POINTERS_COUNTED_POINTER_HPP

/// @file
/// What `rc_pointer` and `shared_pointer` have in common; programs use one of these two
/// (`quor/memory/pointers/rc_pointer.hpp`, `quor/memory/pointers/shared_pointer.hpp`).
///
///     using namespace quor;
///     memory::pointers::rc_pointer<node> first(generic::abilities::create_dynamic<node>());
///     auto second = first;          // one atomic increment, nothing is copied
///     first = nullptr;              // second still holds the node
///
/// @since 2.9

#include <cstddef>
#include <functional>
#include <utility>

#include <quor/version.hpp>

namespace QUOR_2_9::memory::pointers {

/// A pointer of one word to an object that carries its reference count in itself.
///
/// `T` derives from `generic::abilities::reference_count_pointer_ability<T>`. Null is the
/// empty state. The pointer shares its object: while it holds it, the object's count
/// includes it. When the last pointer lets go, the object is deleted as a `T` if its
/// created-dynamic flag is set, and otherwise left as it is, to be held again. A `T` from
/// which others derive needs a virtual destructor.
///
/// A pointer made from a new object takes it over: its count goes from 0 to 1. An object
/// with count 0 that no pointer ever held belongs to whoever made it.
///
/// A moved-from pointer is empty. No operation allocates; copying is one atomic
/// increment, moving and swapping change no count. Thread-safety: pointers to one object
/// may be copied and destroyed by several threads at once; a single pointer object is
/// used by one thread at a time.
/// @since 2.9
template <class T>
class counted_pointer {
public:
	/// What the pointer holds.
	using element_type = T;

	/// Empty. @since 2.9
	constexpr counted_pointer() noexcept = default;

	/// Holds `object`, which may be null. @since 2.9
	counted_pointer(T *object) noexcept : m_object(object) { take(object); }

	/// Holds what `other` holds; empty if `other` is this pointer itself. @since 2.9
	counted_pointer(counted_pointer const &other) noexcept {
		if (&other != this) {
			m_object = other.m_object;
			take(m_object); // NOLINT(clang-analyzer-cplusplus.NewDelete): it can't follow the count
		}
	}

	/// Takes over what `other` holds and leaves it empty. @since 2.9
	counted_pointer(counted_pointer &&other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}

	/// Lets go of the object. @since 2.9
	~counted_pointer() { release(std::exchange(m_object, nullptr)); }

	/// Holds `object`, which may be null, and lets go of the object held before.
	///
	/// Nothing happens when it is held already. The new reference is taken first, so an
	/// object that only lives through the old one is safe to assign: `list = list->next`.
	/// @since 2.9
	counted_pointer &operator=(T *object) noexcept {
		if (m_object != object) {
			take(object);
			release(std::exchange(m_object, object));
		}
		return *this;
	}

	/// Holds what `other` holds, as the assignment of its object does. @since 2.9
	counted_pointer &operator=(counted_pointer const &other) noexcept { return *this = other.m_object; }

	/// Takes over what `other` holds and leaves it empty; moving to itself does nothing.
	/// @since 2.9
	counted_pointer &operator=(counted_pointer &&other) noexcept {
		if (this != &other) {
			release(std::exchange(m_object, std::exchange(other.m_object, nullptr)));
		}
		return *this;
	}

	/// The object, or null. The pointer keeps its reference. @since 2.9
	T *get() const noexcept { return m_object; }

	/// The object; the pointer must not be empty. @since 2.9
	T &operator*() const noexcept { return *m_object; }

	/// Access to the object's members; the pointer must not be empty. @since 2.9
	// NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDelete): it can't follow the count
	T *operator->() const noexcept { return m_object; }

	/// Whether an object is held. @since 2.9
	explicit operator bool() const noexcept { return m_object != nullptr; }

	/// Whether no object is held. @since 2.9
	bool empty() const noexcept { return m_object == nullptr; }

	/// Lets go of the object. @since 2.9
	void reset() noexcept { release(std::exchange(m_object, nullptr)); }

	/// The same as the assignment of `object`. @since 2.9
	void reset(T *object) noexcept { *this = object; }

	/// Exchanges the objects of two pointers. @since 2.9
	void swap(counted_pointer &other) noexcept { std::swap(m_object, other.m_object); }

	/// Exchanges the objects of two pointers. @since 2.9
	friend void swap(counted_pointer &left, counted_pointer &right) noexcept { left.swap(right); }

	/// Whether both hold the same object or none. @since 2.9
	friend bool operator==(counted_pointer const &left, counted_pointer const &right) noexcept {
		return left.m_object == right.m_object;
	}
	/// The opposite of `==`. @since 2.9
	friend bool operator!=(counted_pointer const &left, counted_pointer const &right) noexcept {
		return left.m_object != right.m_object;
	}
	/// The order of the addresses, for ordered containers. @since 2.9
	friend bool operator<(counted_pointer const &left, counted_pointer const &right) noexcept {
		return std::less<T const *>()(left.m_object, right.m_object);
	}

	/// Whether this very object is held; takes no reference. @since 2.9
	friend bool operator==(counted_pointer const &left, T const *right) noexcept { return left.m_object == right; }
	/// Whether this very object is held; takes no reference. @since 2.9
	friend bool operator==(T const *left, counted_pointer const &right) noexcept { return left == right.m_object; }
	/// The opposite of `==`. @since 2.9
	friend bool operator!=(counted_pointer const &left, T const *right) noexcept { return left.m_object != right; }
	/// The opposite of `==`. @since 2.9
	friend bool operator!=(T const *left, counted_pointer const &right) noexcept { return left != right.m_object; }

	/// Whether no object is held. @since 2.9
	friend bool operator==(counted_pointer const &left, std::nullptr_t) noexcept { return left.empty(); }
	/// Whether no object is held. @since 2.9
	friend bool operator==(std::nullptr_t, counted_pointer const &right) noexcept { return right.empty(); }
	/// Whether an object is held. @since 2.9
	friend bool operator!=(counted_pointer const &left, std::nullptr_t) noexcept { return !left.empty(); }
	/// Whether an object is held. @since 2.9
	friend bool operator!=(std::nullptr_t, counted_pointer const &right) noexcept { return !right.empty(); }

private:
	static void take(T *object) noexcept {
		if (object != nullptr) {
			object->inc_pointer_ref();
		}
	}

	static void release(T *object) noexcept {
		if (object != nullptr && object->dec_pointer_ref() == 0 && object->is_created_dynamic()) {
			destroy(object);
		}
	}

	/// Not inlined, so that compilers don't suspect a deletion of objects that they see on
	/// the stack; the flag prevents it.
	// NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDelete): it can't follow the flag
	[[gnu::noinline]] static void destroy(T *object) noexcept { delete object; }

	T *m_object = nullptr;
};

} // namespace QUOR_2_9::memory::pointers

#endif
