// The overload matrix as a program of its own, for targets without the test framework.

#include <cstdio>

#include "overload_matrix.hpp"

int main() {
	std::vector<std::string> const failures = quor_test::overload_matrix_failures();
	for (std::string const &failure : failures) {
		std::fprintf(stderr, "does not hold: %s\n", failure.c_str());
	}
	std::printf("overload matrix: %u failures\n", static_cast<unsigned int>(failures.size()));
	return failures.empty() ? 0 : 1;
}
