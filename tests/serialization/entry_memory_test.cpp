// Memory of entries that go in any order and after their record.

#include "serialization/entry_memory.hpp"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>
#include <vector>

#include <gtest/gtest.h>

#include "support/allocation_counter.hpp"

namespace {

using QUOR_2_9::serialization::detail::entry_allocator;
using QUOR_2_9::serialization::detail::entry_memory;
using quor_test::allocation_counter;
using quor_test::allocation_failure;

// Each entry is filled, so that those that overlap are seen.
template <std::size_t Size>
void take_and_give_back() {
	for (std::size_t count = 0; count != 40; ++count) {
		for (std::size_t step : {1U, 3U, 7U, 11U}) {
			allocation_counter const counter;
			std::vector<unsigned char *> entries;
			entries.reserve(count);
			auto memory = std::make_unique<entry_memory>();
			for (std::size_t i = 0; i != count; ++i) {
				entries.push_back(static_cast<unsigned char *>(memory->take(Size)));
				std::memset(entries.back(), static_cast<int>(i), Size);
			}
			for (std::size_t given = 0, at = 0; given != count; ++given) {
				if (given == count / 2) {
					memory.reset();
				}
				for (at = (at + step) % count; entries[at] == nullptr; at = (at + 1) % count) {
				}
				for (std::size_t i = 0; i != Size; ++i) {
					ASSERT_EQ(entries[at][i], at);
				}
				entry_memory::give_back(entries[at]);
				entries[at] = nullptr;
			}
			memory.reset();
			entries.clear();
			entries.shrink_to_fit();
			ASSERT_EQ(counter.live(), 0) << count << " by " << step;
		}
	}
}

TEST(entry_memory, entries_go_in_any_order) {
	take_and_give_back<8>();
	take_and_give_back<120>();
}

TEST(entry_memory, blocks_grow_to_eight_entries) {
	allocation_counter const counter;
	{
		entry_memory memory;
		std::vector<std::size_t> const expected{1, 2, 2, 3, 3, 3, 3, 4, 4, 4, 4, 4, 4, 4, 4, 5, 5, 5, 5, 5, 5, 5, 5, 6};
		std::vector<void *> entries;
		entries.reserve(expected.size());
		std::size_t const before = counter.count();
		for (std::size_t i = 0; i != expected.size(); ++i) {
			entries.push_back(memory.take(16));
			EXPECT_EQ(counter.count() - before, expected[i]) << i;
		}
		for (void *const entry : entries) {
			entry_memory::give_back(entry);
		}
	}
	EXPECT_EQ(counter.live(), 0);
}

// A block whose entries are all given back goes at once, but for the one that is taken from.
TEST(entry_memory, blocks_go_with_their_last_entry) {
	allocation_counter const counter;
	{
		entry_memory memory;
		void *const first = memory.take(16);
		void *const second = memory.take(16);
		EXPECT_EQ(counter.live(), 2);
		entry_memory::give_back(first);
		EXPECT_EQ(counter.live(), 1);
		entry_memory::give_back(second);
		EXPECT_EQ(counter.live(), 1);
		entry_memory::give_back(memory.take(16));
		EXPECT_EQ(counter.live(), 1);
	}
	EXPECT_EQ(counter.live(), 0);
}

TEST(entry_memory, failure_changes_nothing) {
	allocation_counter const counter;
	{
		entry_memory memory;
		void *const first = memory.take(16);
		{
			allocation_failure const failure(0);
			EXPECT_THROW(memory.take(16), std::bad_alloc);
		}
		void *const second = memory.take(16);
		EXPECT_NE(first, second);
		entry_memory::give_back(second);
		entry_memory::give_back(first);
	}
	EXPECT_EQ(counter.live(), 0);
}

TEST(entry_memory, allocators_are_equal) {
	entry_memory first;
	entry_memory second;
	entry_allocator<std::uint64_t> const one(first);
	entry_allocator<std::uint64_t> const other(second);
	EXPECT_TRUE(one == other);
	EXPECT_FALSE(one != other);
	entry_allocator<double> rebound(one);
	rebound.deallocate(rebound.allocate(1), 1);
}

} // namespace
