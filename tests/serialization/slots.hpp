#ifndef QUOR_TESTS_SERIALIZATION_SLOTS_HPP
#define QUOR_TESTS_SERIALIZATION_SLOTS_HPP

#include <cstddef>
#include <cstring>

namespace quor_test {

#if defined(__GXX_ABI_VERSION) && defined(__x86_64__)
#  define QUOR_TESTS_KNOW_SLOTS

/// The place of a virtual member function in its table, 0 being the destructor, which has
/// two places there: a pointer to the member holds the offset of its place, plus one.
template <class Member>
std::size_t slot_of(Member member) {
	std::ptrdiff_t words[2];
	static_assert(sizeof words == sizeof member);
	std::memcpy(words, &member, sizeof words);
	return static_cast<std::size_t>(words[0] - 1) / sizeof(void *) - 1;
}

#endif

} // namespace quor_test

#endif
