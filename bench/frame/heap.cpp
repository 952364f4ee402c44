#include "heap.hpp"

#include <cstdlib>

#include <malloc.h>

extern "C" {

void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *block, std::size_t size);

} // extern "C"

namespace {

// The programs run in one thread, so that counting costs next to nothing.
std::uint64_t calls = 0;

[[maybe_unused]] bool const keeps_memory = [] {
	constexpr int never = 1 << 30;
	constexpr int highest_mmap_threshold = 1 << 25;
	return mallopt(M_TRIM_THRESHOLD, never) == 1 && mallopt(M_MMAP_THRESHOLD, highest_mmap_threshold) == 1;
}();

} // namespace

// These stand before the ones of the C library and hand on to them.
extern "C" {

void *malloc(std::size_t size) noexcept {
	++calls;
	return __libc_malloc(size);
}

void *calloc(std::size_t count, std::size_t size) noexcept {
	++calls;
	return __libc_calloc(count, size);
}

void *realloc(void *block, std::size_t size) noexcept {
	++calls;
	return __libc_realloc(block, size);
}

} // extern "C"

namespace bench {

std::size_t heap_bytes() {
	struct mallinfo2 const info = mallinfo2();
	return info.uordblks + info.hblkhd;
}

std::uint64_t heap_calls() {
	return calls;
}

void tidy_heap() {
	// Large blocks make the allocator look at all small ones.
	void *volatile const block = std::malloc(std::size_t(1) << 20);
	std::free(block);
}

} // namespace bench
