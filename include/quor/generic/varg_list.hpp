#ifndef QUOR_GENERIC_VARG_LIST_HPP
#define QUOR_GENERIC_VARG_LIST_HPP

/// @file
/// An ordered list of arguments, each with an optional name: what a message is rendered
/// with.
///
///     using quor::generic::argument;
///     quor::generic::varg_list args(argument("name", "disk"), argument("size", 2048));
///     args.push_back("free", 17.5);
///     args["size"].value().as_int();        // 2048
///     args[0].name();                       // "name"
///     args["no such name"] == quor::types::nil;
///
/// @since 2.9

#include <cstddef>
#include <type_traits>
#include <vector>

#include <quor/export.hpp>
#include <quor/generic/argument.hpp>
#include <quor/strings/ustring.hpp>
#include <quor/types/nil.hpp>
#include <quor/types/variant.hpp>
#include <quor/types/widths.hpp>

namespace QUOR_2_9::generic {

/// A list of arguments in the order of their insertion.
///
/// A name stands at most once in what the constructor and `push_back` build; unnamed
/// arguments may repeat. Copies and assignments take what their source holds, and
/// `argument::name` can give an element the name of another: lookups find the first.
/// Names are compared byte for byte, and the empty name finds the first unnamed argument.
///
/// The nil list is the empty one. A value type; copies share the values of the arguments.
/// Arguments passed in may be elements of the list itself. Thread-safety: many readers or
/// one writer. Cost: lists are meant to be short; every lookup by name and every named
/// `push_back` looks at all arguments from the first on.
/// @since 2.9
class QUOR_API varg_list {
public:
	/// Walks the arguments and may change them.
	using iterator = std::vector<argument>::iterator;
	/// Walks the arguments.
	using const_iterator = std::vector<argument>::const_iterator;

	/// The nil argument: what a lookup by name gives when it finds nothing. Exists before
	/// and after every static object of a program. @since 2.9
	static argument const nil_argument;

	/// An empty list. @since 2.9
	varg_list();

	/// A list of up to 26 arguments.
	///
	/// The first nil argument ends it; what comes behind is ignored. A named argument with
	/// nil value is none. An argument whose name is in the list already is left out.
	/// Everything that a `variant` can hold may stand for an unnamed argument:
	/// `varg_list(1, "two", argument("n", 3.0))`.
	/// @since 2.9
	varg_list(argument const &a1, argument const &a2 = nil_argument, argument const &a3 = nil_argument,
	          argument const &a4 = nil_argument, argument const &a5 = nil_argument, argument const &a6 = nil_argument,
	          argument const &a7 = nil_argument, argument const &a8 = nil_argument, argument const &a9 = nil_argument,
	          argument const &a10 = nil_argument, argument const &a11 = nil_argument,
	          argument const &a12 = nil_argument, argument const &a13 = nil_argument,
	          argument const &a14 = nil_argument, argument const &a15 = nil_argument,
	          argument const &a16 = nil_argument, argument const &a17 = nil_argument,
	          argument const &a18 = nil_argument, argument const &a19 = nil_argument,
	          argument const &a20 = nil_argument, argument const &a21 = nil_argument,
	          argument const &a22 = nil_argument, argument const &a23 = nil_argument,
	          argument const &a24 = nil_argument, argument const &a25 = nil_argument,
	          argument const &a26 = nil_argument);

	/// Copies all arguments of `other`, names that repeat included. @since 2.9
	varg_list &assign(varg_list const &other);
	/// Becomes empty. @since 2.9
	template <class Nil, std::enable_if_t<std::is_same_v<Nil, types::nil_t>, int> = 0>
	varg_list &operator=(Nil const &) noexcept {
		clear();
		return *this;
	}

	/// Appends a copy of the argument, nil or not, and returns true; if it has a name that
	/// is in the list already, returns false and changes nothing. @since 2.9
	bool push_back(argument const &value);
	/// The same with the name and the value of the argument; an empty name appends an
	/// unnamed one. @since 2.9
	bool push_back(strings::ustring8 const &name, types::variant const &value);

	/// The number of arguments. @since 2.9
	types::uint32 size() const noexcept;
	/// The number of arguments. @since 2.9
	types::uint32 count() const noexcept;
	/// Whether there are no arguments. @since 2.9
	bool empty() const noexcept;

	/// Whether the list is empty. @since 2.9
	bool equal(types::nil_t const &) const noexcept;
	/// Whether the list is empty. @since 2.9
	bool operator==(types::nil_t const &) const noexcept;
	/// Whether the list is not empty. @since 2.9
	bool operator!=(types::nil_t const &) const noexcept;

	/// Removes all arguments. @since 2.9
	void clear() noexcept;
	/// Removes all arguments. @since 2.9
	void erase() noexcept;
	/// Removes the first argument of that name, if there is one. @since 2.9
	void erase(strings::ustring8 const &name);
	/// Removes the argument at an index, counted from 0; beyond the list nothing. @since 2.9
	void erase(types::uint32 index);
	/// Removes the argument at an index of any integer type. @since 2.9
	template <class Index, std::enable_if_t<std::is_integral_v<Index>, int> = 0>
	void erase(Index index) {
		erase_element(position(index));
	}
	/// Removes the argument that `where` points at, which must be one. @since 2.9
	void erase(iterator where);
	/// Removes the arguments from `first` up to `last`, which itself stays. @since 2.9
	void erase(iterator first, iterator last);

	/// Whether there is an argument of that name. @since 2.9
	bool has_argument(strings::ustring8 const &name) const noexcept;
	/// The first argument of that name, or `end()`. @since 2.9
	iterator find(strings::ustring8 const &name) noexcept;
	/// The first argument of that name, or `end()`. @since 2.9
	const_iterator find(strings::ustring8 const &name) const noexcept;

	/// The first argument. @since 2.9
	iterator begin() noexcept;
	/// The first argument. @since 2.9
	const_iterator begin() const noexcept;
	/// Behind the last argument. @since 2.9
	iterator end() noexcept;
	/// Behind the last argument. @since 2.9
	const_iterator end() const noexcept;

	/// The argument at an index, counted from 0. The reference is valid until the list
	/// changes.
	/// @throws std::out_of_range with the text "invalid vector<T> subscript" beyond the
	///         list. @since 2.9
	argument &at(types::uint32 index);
	/// The argument at an index. @throws std::out_of_range as above. @since 2.9
	argument const &at(types::uint32 index) const;
	/// The argument at an index of any integer type. @throws std::out_of_range as above. @since 2.9
	template <class Index, std::enable_if_t<std::is_integral_v<Index>, int> = 0>
	argument &at(Index index) {
		return element(position(index));
	}
	/// The argument at an index of any integer type. @throws std::out_of_range as above. @since 2.9
	template <class Index, std::enable_if_t<std::is_integral_v<Index>, int> = 0>
	argument const &at(Index index) const {
		return element(position(index));
	}
	/// The same as `at`, checked too. @throws std::out_of_range as above. @since 2.9
	argument &operator[](types::uint32 index);
	/// The same as `at`, checked too. @throws std::out_of_range as above. @since 2.9
	argument const &operator[](types::uint32 index) const;
	/// The same as `at`, checked too. @throws std::out_of_range as above. @since 2.9
	template <class Index, std::enable_if_t<std::is_integral_v<Index>, int> = 0>
	argument &operator[](Index index) {
		return element(position(index));
	}
	/// The same as `at`, checked too. @throws std::out_of_range as above. @since 2.9
	template <class Index, std::enable_if_t<std::is_integral_v<Index>, int> = 0>
	argument const &operator[](Index index) const {
		return element(position(index));
	}

	/// The first argument of that name, or `nil_argument`. The reference is valid until the
	/// list changes. @since 2.9
	argument const &at(strings::ustring8 const &name) const noexcept;
	/// The same as `at`. @since 2.9
	argument const &operator[](strings::ustring8 const &name) const noexcept;

private:
	/// An index as the list counts; a negative one lies beyond every list.
	template <class Index>
	static types::uint64 position(Index index) noexcept {
		if constexpr (std::is_signed_v<Index>) {
			return index < 0 ? ~types::uint64(0) : static_cast<types::uint64>(index);
		} else {
			return static_cast<types::uint64>(index);
		}
	}

	argument &element(types::uint64 index);
	argument const &element(types::uint64 index) const;
	void erase_element(types::uint64 index);

	std::vector<argument> m_arguments;
};

} // namespace QUOR_2_9::generic

#endif
