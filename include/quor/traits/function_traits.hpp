#ifndef QUOR_TRAITS_FUNCTION_TRAITS_HPP
#define QUOR_TRAITS_FUNCTION_TRAITS_HPP

/// @file
/// The parts of a function type, by name.
///
///     using traits = quor::traits::function_traits<int(char const *, double)>;
///     static_assert(traits::arity == 2);
///     static_assert(std::is_same_v<traits::result_type, int>);
///     static_assert(std::is_same_v<traits::argument_type<1>, double>);
///
/// @since 2.9

#include <cstddef>
#include <tuple>

#include <quor/version.hpp>

namespace QUOR_2_9::traits {

/// What the public traits are made from.
namespace _private {

/// Takes a function type apart; defined for function types alone.
/// @since 2.9
template <class F>
class function_traits_helper;

/// Takes a function type apart.
/// @since 2.9
template <class Result, class... Arguments>
class function_traits_helper<Result(Arguments...)> {
public:
	/// What the function returns.
	using result_type = Result;
	/// The type of argument number `Index`, counted from 0.
	template <std::size_t Index>
	using argument_type = std::tuple_element_t<Index, std::tuple<Arguments...>>;
	/// The number of arguments.
	static constexpr std::size_t arity = sizeof...(Arguments);
};

} // namespace _private

/// The result type and the argument types of the function type `F`; an empty class.
/// @since 2.9
template <class F>
class function_traits : public _private::function_traits_helper<F> {};

} // namespace QUOR_2_9::traits

#endif
