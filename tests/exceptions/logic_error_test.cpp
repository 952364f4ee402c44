#include <quor/quor.hpp>

#include <gtest/gtest.h>

#include <type_traits>

#include "support/exception_classes.hpp"

namespace {

namespace exceptions = QUOR_2_9::exceptions;
using exceptions::logic_error;
using exceptions::runtime_error;

TEST(logic_error, behaves_as_an_exception_class) {
	quor_test::check_class<logic_error, logic_error, runtime_error>();
}

TEST(logic_error, invalid_argument_value_is_a_leaf_of_it) {
	static_assert(sizeof(exceptions::invalid_argument_value) == sizeof(logic_error));
	quor_test::check_class<exceptions::invalid_argument_value, logic_error, runtime_error>();
}

TEST(logic_error, length_error_is_a_leaf_of_it) {
	static_assert(sizeof(exceptions::length_error) == sizeof(logic_error));
	quor_test::check_class<exceptions::length_error, logic_error, runtime_error>();
}

TEST(logic_error, out_of_range_is_a_leaf_of_it) {
	static_assert(sizeof(exceptions::out_of_range) == sizeof(logic_error));
	quor_test::check_class<exceptions::out_of_range, logic_error, runtime_error>();
}

TEST(logic_error, leaves_do_not_catch_each_other_or_their_branch) {
	EXPECT_FALSE((quor_test::catches<exceptions::invalid_argument_value>(exceptions::length_error("", 1, "", ""))));
	EXPECT_FALSE((quor_test::catches<exceptions::invalid_argument_value>(exceptions::out_of_range("", 1, "", ""))));
	EXPECT_FALSE((quor_test::catches<exceptions::invalid_argument_value>(exceptions::logic_error("", 1, "", ""))));
	EXPECT_FALSE((quor_test::catches<exceptions::length_error>(exceptions::invalid_argument_value("", 1, "", ""))));
	EXPECT_FALSE((quor_test::catches<exceptions::length_error>(exceptions::out_of_range("", 1, "", ""))));
	EXPECT_FALSE((quor_test::catches<exceptions::length_error>(exceptions::logic_error("", 1, "", ""))));
	EXPECT_FALSE((quor_test::catches<exceptions::out_of_range>(exceptions::invalid_argument_value("", 1, "", ""))));
	EXPECT_FALSE((quor_test::catches<exceptions::out_of_range>(exceptions::length_error("", 1, "", ""))));
	EXPECT_FALSE((quor_test::catches<exceptions::out_of_range>(exceptions::logic_error("", 1, "", ""))));
}

} // namespace
