#ifndef QUOR_TESTS_TYPES_OVERLOAD_MATRIX_HPP
#define QUOR_TESTS_TYPES_OVERLOAD_MATRIX_HPP

#include <string>
#include <vector>

namespace quor_test {

// Calls the overload sets of the interface with every literal kind, number type and
// string class and gives the conditions that don't hold; none on every target. Most of
// the matrix is checked at compile time.
std::vector<std::string> overload_matrix_failures();

} // namespace quor_test

#endif
