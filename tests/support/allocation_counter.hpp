#ifndef QUOR_TESTS_SUPPORT_ALLOCATION_COUNTER_HPP
#define QUOR_TESTS_SUPPORT_ALLOCATION_COUNTER_HPP

// Counts what the global operator new is asked for by the thread that looks, and makes
// it fail on demand. Link the test program with quor_allocation_counter:
//
//     quor_internal_tests(strings FILES allocation_test.cpp LIBRARIES quor_allocation_counter)
//
// An internal test program is the one to use: on some targets the shared library keeps
// an operator new of its own.
//
//     quor_test::allocation_counter counter;
//     auto const result = operation();
//     EXPECT_EQ(counter.count(), 1U);

#include <cstddef>

namespace quor_test {

// Allocations since its construction, on this thread.
class allocation_counter {
public:
	allocation_counter() noexcept;

	// How often memory was asked for.
	std::size_t count() const noexcept;
	// How many bytes were asked for, over all.
	std::size_t bytes() const noexcept;
	// How many allocations were made and not freed; negative when older ones were freed.
	std::ptrdiff_t live() const noexcept;

private:
	std::size_t m_count;
	std::size_t m_bytes;
	std::ptrdiff_t m_live;
};

// While it lives, the allocation with the given index (0 is the next one) throws
// std::bad_alloc on this thread; with `and_all_later` every one behind it too.
class allocation_failure {
public:
	explicit allocation_failure(std::size_t index, bool and_all_later = false) noexcept;
	~allocation_failure();
	allocation_failure(allocation_failure const &) = delete;
	allocation_failure &operator=(allocation_failure const &) = delete;

	// Whether an allocation was made to fail.
	bool happened() const noexcept;
};

} // namespace quor_test

#endif
