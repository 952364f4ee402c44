#ifndef QUOR_GENERIC_ABILITIES_ID_ABILITY_HPP
#define QUOR_GENERIC_ABILITIES_ID_ABILITY_HPP

/// @file
/// The ability to carry an identifier, by default the object's own address.
///
///     class job : public quor::generic::abilities::id_ability {};
///     job first, second;
///     assert(first.id() != second.id());
///     job copy = first;                     // the same job under another address
///     assert(copy.id() == first.id());
///
/// @since 2.9

#include <quor/types/widths.hpp>

namespace QUOR_2_9::generic::abilities {

/// Base of classes whose objects carry an identifier.
///
/// Copies and assignments take the identifier of their source, also one that is the
/// source's address. Thread-safety: as any value, many readers or one writer.
/// @since 2.9
class id_ability {
public:
	/// The identifier is the object's own address, as a number. @since 2.9
	id_ability() noexcept : m_id(reinterpret_cast<types::address_id>(this)) {}

	/// The identifier is the given number. @since 2.9
	id_ability(types::address_id id) noexcept : m_id(id) {}

	/// The identifier. @since 2.9
	types::address_id id() const noexcept { return m_id; }

	/// Sets the identifier and returns it. @since 2.9
	types::address_id id(types::address_id const &value) noexcept { return m_id = value; }

private:
	types::address_id m_id;
};

} // namespace QUOR_2_9::generic::abilities

#endif
