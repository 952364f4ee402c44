#ifndef QUOR_BENCH_HEAP_HPP
#define QUOR_BENCH_HEAP_HPP

// What the whole process has on the heap, whichever library asked for it. A program that
// links heap.cpp counts the calls of malloc, calloc and realloc, and keeps the memory that
// it once got: what is timed is the work of the libraries, not that of the system which
// hands out pages.

#include <cstddef>
#include <cstdint>

namespace bench {

/// Bytes in blocks that are in use, with what the allocator adds to each.
std::size_t heap_bytes();

/// Calls that asked for memory since the start of the process.
std::uint64_t heap_calls();

/// Joins what is free, which the allocator would else put off until somebody needs memory.
void tidy_heap();

} // namespace bench

#endif
