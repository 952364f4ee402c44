// Copies of one variant in several threads at once. Meant for the thread sanitizer too.

#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include <quor/quor.hpp>

namespace {

using quor::types::variant;

TEST(variant_threads, copies_are_used_and_released_at_once) {
	for (int round = 0; round != 100; ++round) {
		variant source("1234567890 is a text that no short string holds");
		std::vector<std::thread> threads;
		for (int i = 0; i != 4; ++i) {
			threads.emplace_back([copy = source, i]() mutable {
				for (int use = 0; use != 50; ++use) {
					// NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the count is what is raced for
					variant const another(copy);
					EXPECT_EQ(another.as_int(), 1234567890);
				}
				copy = i;
				EXPECT_EQ(copy.as_int(), i);
			});
		}
		source = quor::types::nil;
		for (std::thread &thread : threads) {
			thread.join();
		}
	}
}

} // namespace
