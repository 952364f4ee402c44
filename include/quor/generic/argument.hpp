#ifndef QUOR_GENERIC_ARGUMENT_HPP
#define QUOR_GENERIC_ARGUMENT_HPP

/// @file
/// A value with an optional name: one element of a `varg_list`.
///
///     quor::generic::argument size("size", 2048);
///     size = 4096;                    // the name stays
///     quor::generic::argument text("plain");     // an unnamed argument with a text
///
/// @since 2.9

#include <type_traits>

#include <quor/export.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/nil.hpp>
#include <quor/types/variant.hpp>

namespace QUOR_2_9::generic {

class argument;

namespace detail {

struct argument_parts;

/// Whether a `T` stands for the value of an argument: whatever a `variant` can be made
/// from, but neither nil nor a variant nor an argument.
template <class T>
using enable_for_value = std::enable_if_t<
    std::conjunction_v<std::negation<std::is_base_of<argument, T>>, std::negation<std::is_base_of<types::variant, T>>,
                       std::negation<std::is_same<T, types::nil_t>>, std::is_convertible<T const &, types::variant>>,
    int>;

} // namespace detail

/// A value with an optional name. Nil is the argument without a name and with a nil value.
///
/// A value type; copies share their values. Thread-safety: many readers or one writer.
/// @since 2.9
class QUOR_API argument {
public:
	/// Nil: no name, nil value. @since 2.9
	argument();
	/// Nil: no name, nil value. @since 2.9
	argument(types::nil_t const &);
	/// An unnamed argument. @since 2.9
	argument(types::variant const &value);
	/// An unnamed argument with anything that a `variant` can hold, `argument(5)`. @since 2.9
	template <class T, detail::enable_for_value<T> = 0>
	argument(T const &value) : argument(types::variant(value)) {}
	/// A named argument; an empty name makes it unnamed. @since 2.9
	argument(strings::ustring8 const &name, types::variant const &value);

	/// Replaces the value; the name stays. @since 2.9
	argument &operator=(types::variant const &value) noexcept;
	/// Replaces the value; the name stays. @since 2.9
	argument &assign(types::variant const &value) noexcept;
	/// Replaces the value by anything that a `variant` can hold; the name stays. @since 2.9
	template <class T, detail::enable_for_value<T> = 0>
	argument &operator=(T const &value) {
		return assign(types::variant(value));
	}
	/// Replaces the value by anything that a `variant` can hold; the name stays. @since 2.9
	template <class T, detail::enable_for_value<T> = 0>
	argument &assign(T const &value) {
		return assign(types::variant(value));
	}
	/// Becomes nil: empties the name too, unlike `assign(variant())`. @since 2.9
	argument &operator=(types::nil_t const &);
	/// Becomes nil: empties the name too. @since 2.9
	argument &assign(types::nil_t const &);
	/// Replaces name and value; self-assignment does nothing. @since 2.9
	argument &assign(argument const &other);
	/// Replaces name and value. @since 2.9
	argument &assign(strings::ustring8 const &name, types::variant const &value);

	/// The name, empty for an unnamed argument. @since 2.9
	strings::ustring8 const &name() const noexcept;
	/// Sets the name and returns it. In a list it may then equal another one's. @since 2.9
	strings::ustring8 const &name(strings::ustring8 const &value);
	/// The value. @since 2.9
	types::variant const &value() const noexcept;
	/// Sets the value and returns it. @since 2.9
	types::variant const &value(types::variant const &value) noexcept;
	/// Whether the name is not empty. @since 2.9
	bool has_name() const noexcept;

	/// Whether this is nil; an argument with a name never is. @since 2.9
	bool equal(types::nil_t const &) const;
	/// Whether this is nil. @since 2.9
	bool operator==(types::nil_t const &) const;
	/// Whether this is not nil. @since 2.9
	bool operator!=(types::nil_t const &) const;

private:
	friend struct detail::argument_parts;

	strings::ustring8 m_name;
	types::variant m_value;
};

} // namespace QUOR_2_9::generic

#endif
