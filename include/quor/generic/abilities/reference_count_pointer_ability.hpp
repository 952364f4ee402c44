#ifndef QUOR_GENERIC_ABILITIES_REFERENCE_COUNT_POINTER_ABILITY_HPP
#define QUOR_GENERIC_ABILITIES_REFERENCE_COUNT_POINTER_ABILITY_HPP

/// @file
/// The ability to be held by `rc_pointer` and `shared_pointer`: the object carries its
/// reference count in itself, so a pointer to it is one word and allocates nothing.
///
///     class node : public reference_count_pointer_ability<node> {
///     public:
///         virtual ~node();
///     };
///     memory::pointers::rc_pointer<node> held(create_dynamic<node>());   // count 1
///
/// The object need not live on the heap. One on the stack may be held too and survives
/// the last release, since only objects made by `create_dynamic` are ever deleted.
///
/// @since 2.9

#include <atomic>

#include <quor/generic/abilities/alloc_detection_ability.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::generic::abilities {

/// Flag and reference count of an object.
///
/// A new object has count 0. Copying copies flag and count as they stand, in the copy
/// constructor and in the assignment: a copy of an object with count 3 has count 3. A
/// derived class whose copies must start fresh default-constructs this base in its copy
/// constructor; one whose objects keep their own count when assigned to leaves this
/// base out of its assignment.
/// Thread-safety: taking and giving up references may go on in several threads at once;
/// all else as a value: many readers or one writer.
/// @since 2.9
class reference_count_pointer_ability_b : public alloc_detection_ability {
public:
	/// Flag false, count 0. @since 2.9
	reference_count_pointer_ability_b() noexcept = default;

	/// Copies flag and count. @since 2.9
	reference_count_pointer_ability_b(reference_count_pointer_ability_b const &other) noexcept
	    : alloc_detection_ability(other), m_count(other.m_count.load(std::memory_order_relaxed)) {}

	/// Copies flag and count. @since 2.9
	reference_count_pointer_ability_b &operator=(reference_count_pointer_ability_b const &other) noexcept {
		alloc_detection_ability::operator=(other);
		m_count.store(other.m_count.load(std::memory_order_relaxed), std::memory_order_relaxed);
		return *this;
	}

	/// Takes a reference: adds one to the count, atomically. @since 2.9
	void inc_pointer_ref() noexcept { m_count.fetch_add(1, std::memory_order_relaxed); }

	/// Gives up a reference: takes one from the count, atomically, and returns the new
	/// count. Whatever was done to the object before other references were given up has
	/// happened before a return of 0. A count below zero is not noticed. @since 2.9
	int dec_pointer_ref() noexcept {
		auto const before = static_cast<types::uint32>(m_count.fetch_sub(1, std::memory_order_acq_rel));
		return static_cast<int>(before - 1U);
	}

	/// Whether the count is not zero. @since 2.9
	bool is_pointer_referenced() const noexcept { return get_ref_count() != 0; }

	/// The count; another thread may change it at any time. @since 2.9
	types::uint32 get_ref_count() const noexcept {
		return static_cast<types::uint32>(m_count.load(std::memory_order_relaxed));
	}

private:
	std::atomic<types::int32> m_count{0};
};

/// The counted base of class `T`; adds nothing but a type of its own for each class.
/// @since 2.9
template <class T>
class reference_count_pointer_ability : public reference_count_pointer_ability_b {};

} // namespace QUOR_2_9::generic::abilities

#endif
