#ifndef QUOR_BENCH_HEAP_HPP
#define QUOR_BENCH_HEAP_HPP

// What the whole process has on the heap, whichever library asked for it. A program that
// links heap.cpp counts the calls of malloc, calloc and realloc.

#include <cstddef>
#include <cstdint>

namespace bench {

/// Bytes in blocks that are in use, with what the allocator adds to each.
std::size_t heap_bytes();

/// Calls that asked for memory since the start of the process.
std::uint64_t heap_calls();

} // namespace bench

#endif
