#include "overload_matrix.hpp"

#include <gtest/gtest.h>

namespace {

TEST(overload_matrix, every_argument_finds_its_overload) {
	EXPECT_EQ(quor_test::overload_matrix_failures(), std::vector<std::string>());
}

} // namespace
