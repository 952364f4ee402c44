#include "support/allocation_counter.hpp"

#include <cstdlib>
#include <new>

namespace {

struct totals {
	std::size_t count;
	std::size_t bytes;
	std::ptrdiff_t live;
	bool failing;
	bool fail_all_later;
	bool failed;
	std::size_t until_failure;
};

constinit thread_local totals seen{};

bool fails_now() noexcept {
	if (!seen.failing) {
		return false;
	}
	if (seen.until_failure != 0) {
		--seen.until_failure;
		return false;
	}
	seen.failed = true;
	seen.failing = seen.fail_all_later;
	return true;
}

void *allocate(std::size_t size) noexcept {
	if (fails_now()) {
		return nullptr;
	}
	void *const memory = std::malloc(size != 0 ? size : 1);
	if (memory != nullptr) {
		++seen.count;
		seen.bytes += size;
		++seen.live;
	}
	return memory;
}

void release(void *memory) noexcept {
	if (memory != nullptr) {
		--seen.live;
		std::free(memory);
	}
}

} // namespace

void *operator new(std::size_t size) {
	if (void *const memory = allocate(size)) {
		return memory;
	}
	throw std::bad_alloc();
}

void *operator new[](std::size_t size) {
	return operator new(size);
}

void *operator new(std::size_t size, std::nothrow_t const &) noexcept {
	return allocate(size);
}

void *operator new[](std::size_t size, std::nothrow_t const &) noexcept {
	return allocate(size);
}

void operator delete(void *memory) noexcept {
	release(memory);
}

void operator delete[](void *memory) noexcept {
	release(memory);
}

void operator delete(void *memory, std::size_t) noexcept {
	release(memory);
}

void operator delete[](void *memory, std::size_t) noexcept {
	release(memory);
}

void operator delete(void *memory, std::nothrow_t const &) noexcept {
	release(memory);
}

void operator delete[](void *memory, std::nothrow_t const &) noexcept {
	release(memory);
}

namespace quor_test {

allocation_counter::allocation_counter() noexcept : m_count(seen.count), m_bytes(seen.bytes), m_live(seen.live) {}

std::size_t allocation_counter::count() const noexcept {
	return seen.count - m_count;
}

std::size_t allocation_counter::bytes() const noexcept {
	return seen.bytes - m_bytes;
}

std::ptrdiff_t allocation_counter::live() const noexcept {
	return seen.live - m_live;
}

allocation_failure::allocation_failure(std::size_t index, bool and_all_later) noexcept {
	seen.until_failure = index;
	seen.fail_all_later = and_all_later;
	seen.failed = false;
	seen.failing = true;
}

allocation_failure::~allocation_failure() {
	seen.failing = false;
}

bool allocation_failure::happened() const noexcept {
	return seen.failed;
}

} // namespace quor_test
