// Copies of every small size, between blocks of just that size.

#include "support/short_copy.hpp"

#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

namespace {

TEST(short_copy, every_size_is_copied_whole) {
	for (std::size_t size = 0; size <= 100; ++size) {
		std::vector<char> from(size);
		for (std::size_t i = 0; i != size; ++i) {
			from[i] = static_cast<char>(i * 7 + size);
		}
		std::vector<char> to(size, '!');
		QUOR_2_9::support::copy_short(to.data(), from.data(), size);
		EXPECT_EQ(to, from) << size;
	}
}

} // namespace
