#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

#include <quor/quor.hpp>

#include "callables.hpp"

namespace {

using quor_test::adder;
using quor_test::callable_log;
using quor_test::number_callable;

TEST(function_type_interface, is_abstract_and_derived_as_declared) {
	EXPECT_TRUE(std::is_abstract_v<number_callable>);
	EXPECT_TRUE(std::has_virtual_destructor_v<number_callable>);
	EXPECT_TRUE((std::is_base_of_v<quor::generic::abilities::clone_ability, number_callable>));
	EXPECT_TRUE((std::is_same_v<number_callable::result_type, int>));
	EXPECT_TRUE((std::is_same_v<number_callable::argument_type<0>, int>));
}

TEST(function_type_interface, operators_are_the_virtual_equal) {
	callable_log log;
	adder const one(log, 1);
	adder const same(log, 1);
	adder const two(log, 2);
	number_callable const &callable = one;
	EXPECT_TRUE(callable == same);
	EXPECT_FALSE(callable != same);
	EXPECT_FALSE(callable == two);
	EXPECT_TRUE(callable != two);
}

TEST(function_type_interface, clone_is_destroyed_through_the_marker_base) {
	callable_log log;
	adder const source(log, 1);
	number_callable const &callable = source;
	std::unique_ptr<quor::generic::abilities::clone_ability> copy(callable.clone());
	EXPECT_EQ(log.living(), 2);
	copy.reset();
	EXPECT_EQ(log.living(), 1);
}

} // namespace
