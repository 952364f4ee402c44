#include <gtest/gtest.h>

#include <type_traits>

#include <quor/quor.hpp>

namespace {

using quor::traits::function_traits;

TEST(function_traits, names_the_parts_of_a_function_type) {
	using traits = function_traits<int(char const *, double, unsigned int &)>;
	EXPECT_EQ(traits::arity, 3U);
	EXPECT_TRUE((std::is_same_v<traits::result_type, int>));
	EXPECT_TRUE((std::is_same_v<traits::argument_type<0>, char const *>));
	EXPECT_TRUE((std::is_same_v<traits::argument_type<1>, double>));
	EXPECT_TRUE((std::is_same_v<traits::argument_type<2>, unsigned int &>));
}

TEST(function_traits, function_without_arguments_has_arity_zero) {
	EXPECT_EQ(function_traits<void()>::arity, 0U);
	EXPECT_TRUE((std::is_same_v<function_traits<void()>::result_type, void>));
}

TEST(function_traits, classes_are_empty_and_derived_as_declared) {
	using function = void(quor::strings::ustring8 const &);
	EXPECT_TRUE(std::is_empty_v<function_traits<function>>);
	EXPECT_TRUE(
	    (std::is_base_of_v<quor::traits::_private::function_traits_helper<function>, function_traits<function>>));
	EXPECT_TRUE((std::is_base_of_v<function_traits<function>, quor::functor::function_type_interface<function>>));
}

} // namespace
