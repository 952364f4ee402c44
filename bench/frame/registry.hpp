#ifndef QUOR_BENCH_REGISTRY_HPP
#define QUOR_BENCH_REGISTRY_HPP

// What the source files of a program have named, as its main function needs it.

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

namespace bench {

using runner = std::function<void(benchmark::State &)>;

/// What is measured, with the competitors by their full names.
struct measured {
	std::string name;
	std::vector<std::pair<std::string, runner>> competitors;
};

/// In the order of their first naming.
std::vector<measured> &operations();

/// The functions that do the naming.
std::vector<void (*)()> &entries();

} // namespace bench

#endif
