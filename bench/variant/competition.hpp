#ifndef QUOR_BENCH_VARIANT_COMPETITION_HPP
#define QUOR_BENCH_VARIANT_COMPETITION_HPP

// The names of what is measured, and the values that all competitors work on.

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "frame/frame.hpp"

namespace variant_bench {

inline constexpr char const *copy_name = "copy and release";
inline constexpr char const *make_name = "make from int";
inline constexpr char const *to_int_name = "int of text";
inline constexpr char const *to_text_name = "text of int";
inline constexpr char const *to_double_name = "double of text";
inline constexpr char const *from_double_name = "text of double";

/// Numbers of one to nine digits, some below zero.
std::vector<int> const &numbers();

/// Numbers with some digits behind the point.
std::vector<double> const &fractions();
/// Their texts.
std::vector<std::string> const &fraction_texts();

/// Measures `work(value)` over all values.
template <class Value, class Work>
void measure(char const *operation, char const *competitor, std::vector<Value> values, Work work) {
	bench::operation(operation, competitor, [values = std::move(values), work](benchmark::State &state) {
		for (auto _ : state) {
			for (Value const &value : values) {
				benchmark::DoNotOptimize(work(value));
			}
		}
		state.SetItemsProcessed(
		    static_cast<std::int64_t>(static_cast<std::size_t>(state.iterations()) * values.size()));
	});
}

} // namespace variant_bench

#endif
