// What a program compiled against 2.9 has built into itself and the library must keep:
// the sizes of the objects it makes and the order of the virtual functions it calls.

#include <cstddef>
#include <cstdio>
#include <cstring>
#include <string>

#include <quor/quor.hpp>

namespace {

int failures = 0;

void check(char const *what, std::size_t expected, std::size_t found) {
	if (expected != found) {
		std::printf("%s: expected %zu, found %zu\n", what, expected, found);
		++failures;
	}
}

// The place of a virtual function in its table: a pointer to such a member holds the
// table offset plus one.
template <class Member>
std::size_t slot_of(Member member) {
	std::ptrdiff_t words[2];
	static_assert(sizeof words == sizeof member);
	std::memcpy(words, &member, sizeof words);
	return static_cast<std::size_t>(words[0] - 1) / sizeof(void *);
}

} // namespace

int main() {
	check("size of exceptions::exception::state", 516, sizeof(quor::exceptions::exception::state));
	check("size of strings::ustring8", sizeof(std::string), sizeof(quor::strings::ustring8));
	check("size of strings::ustring16", sizeof(std::string), sizeof(quor::strings::ustring16));
	check("size of strings::ustring32", sizeof(std::string), sizeof(quor::strings::ustring32));
	check("size of types::long_t", 4, sizeof(quor::types::long_t));
	return failures;
}
