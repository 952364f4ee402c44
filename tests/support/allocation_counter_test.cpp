#include "support/allocation_counter.hpp"

#include <gtest/gtest.h>

#include <new>
#include <string>

namespace {

// Compilers may leave out allocations that nobody looks at.
char const *volatile seen = nullptr;

TEST(allocation_counter, counts_count_bytes_and_live_blocks) {
	quor_test::allocation_counter const counter;
	{
		std::string const text(1000, 'x');
		EXPECT_EQ(counter.count(), 1U);
		EXPECT_GE(counter.bytes(), 1001U);
		EXPECT_EQ(counter.live(), 1);
	}
	EXPECT_EQ(counter.count(), 1U);
	EXPECT_EQ(counter.live(), 0);
}

TEST(allocation_counter, nothing_done_counts_nothing) {
	quor_test::allocation_counter const counter;
	std::string const text("short");
	EXPECT_EQ(counter.count(), 0U);
	EXPECT_EQ(text.size(), 5U);
}

TEST(allocation_failure, fails_the_named_allocation_alone) {
	bool happened = false;
	int made = 0;
	{
		quor_test::allocation_failure const failure(1);
		std::string const first(100, 'a');
		seen = first.data();
		++made;
		try {
			std::string const second(100, 'b');
			seen = second.data();
			++made;
		} catch (std::bad_alloc const &) {
			happened = failure.happened();
		}
		std::string const third(100, 'c');
		seen = third.data();
		++made;
	}
	EXPECT_TRUE(happened);
	EXPECT_EQ(made, 2);
}

TEST(allocation_failure, fails_all_later_ones_on_demand) {
	int failed = 0;
	{
		quor_test::allocation_failure const failure(0, true);
		for (int i = 0; i != 3; ++i) {
			try {
				std::string const text(100, 'a');
				seen = text.data();
			} catch (std::bad_alloc const &) {
				++failed;
			}
		}
	}
	EXPECT_EQ(failed, 3);
}

} // namespace
