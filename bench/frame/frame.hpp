#ifndef QUOR_BENCH_FRAME_HPP
#define QUOR_BENCH_FRAME_HPP

// What a benchmark program is made of. Each source file of an area has an `entry`, whose
// function compares results, then names what is measured. Nothing is timed before every
// entry has agreed.
//
//     void describe() {
//         if (with_library() != with_peer()) {
//             bench::disagree("the sum");
//         }
//         bench::operation("sum", bench::library, [](benchmark::State &state) { ... });
//         bench::operation("sum", "std::accumulate", [](benchmark::State &state) { ... });
//         bench::limit("sum", "std::accumulate", 2.0);
//     }
//     bench::entry const added(&describe);

#include <functional>
#include <string>

#include <benchmark/benchmark.h>

namespace bench {

/// The competitor whose ratio to each of the others is told.
inline constexpr char const *library = "quor";

/// Takes part in the program that it is linked into.
struct entry {
	explicit entry(void (*describe)());
};

/// A measured operation of one competitor. A state with items processed is timed by the item.
void operation(std::string const &name, std::string const &competitor, std::function<void(benchmark::State &)> run);

/// What a call into the library may take where the work is a few nanoseconds.
inline constexpr double call_ns = 2;

/// The library takes at most `most` times the time of `peer`, and `extra_ns` more; `aim` is the
/// multiple that we would like, 0 for none.
void limit(std::string const &operation, std::string const &peer, double most, double aim = 0, double extra_ns = 0);

/// The median of the ratios to `peer` of all operations that have `part` in their names is at most `most`.
void median_limit(std::string const &part, std::string const &peer, double most);

/// A number that isn't a time, the smaller the better.
void figure(std::string const &name, std::string const &competitor, double value);

/// The figure of the library is at most `most`.
void bound(std::string const &figure, double most);

/// Ends the program: competitors that don't give the same are not compared by time.
[[noreturn]] void disagree(std::string const &what);

} // namespace bench

#endif
