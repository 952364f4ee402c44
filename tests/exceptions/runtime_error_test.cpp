#include <quor/quor.hpp>

#include <gtest/gtest.h>

#include <type_traits>

#include "support/exception_classes.hpp"

namespace {

namespace exceptions = QUOR_2_9::exceptions;
using exceptions::logic_error;
using exceptions::runtime_error;

TEST(runtime_error, behaves_as_an_exception_class) {
	quor_test::check_class<runtime_error, runtime_error, logic_error>();
}

TEST(runtime_error, overflow_error_is_a_leaf_of_it) {
	static_assert(sizeof(exceptions::overflow_error) == sizeof(runtime_error));
	quor_test::check_class<exceptions::overflow_error, runtime_error, logic_error>();
}

TEST(runtime_error, underflow_error_is_a_leaf_of_it) {
	static_assert(sizeof(exceptions::underflow_error) == sizeof(runtime_error));
	quor_test::check_class<exceptions::underflow_error, runtime_error, logic_error>();
}

TEST(runtime_error, leaves_do_not_catch_each_other_or_their_branch) {
	EXPECT_FALSE((quor_test::catches<exceptions::overflow_error>(exceptions::underflow_error("", 1, "", ""))));
	EXPECT_FALSE((quor_test::catches<exceptions::overflow_error>(exceptions::runtime_error("", 1, "", ""))));
	EXPECT_FALSE((quor_test::catches<exceptions::underflow_error>(exceptions::overflow_error("", 1, "", ""))));
	EXPECT_FALSE((quor_test::catches<exceptions::underflow_error>(exceptions::runtime_error("", 1, "", ""))));
}

} // namespace
