#include <quor/quor.hpp>

namespace {

TEST(widths, long_t_converts_both_ways) {
	quor::types::long_t const held = 5;
	EXPECT_EQ(held + 1, 6);
}

} // namespace
