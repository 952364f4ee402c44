// Numbers from text and back, beside the standard library's routines for the same form.
// Each pair is first checked to agree on every input that is measured.

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include <quor/quor.hpp>

namespace {

namespace convert = quor::generic::convert;

constexpr std::size_t count = 1024;

// Numbers of one to ten digits, each length equally often.
std::vector<std::string> const &texts() {
	static std::vector<std::string> const result = [] {
		std::vector<std::string> list;
		std::mt19937_64 random(2900);
		for (std::size_t i = 0; i != count; ++i) {
			std::uint64_t const bound = std::uint64_t(1) << (1 + random() % 31);
			list.push_back(std::to_string(static_cast<int>(random() % bound)));
		}
		return list;
	}();
	return result;
}

int with_library(std::string const &text) {
	return convert::str_to_int(text.data(), static_cast<quor::types::uint32>(text.size()), 10, true);
}

int with_from_chars(std::string const &text) {
	int value = 0;
	std::from_chars(text.data(), text.data() + text.size(), value);
	return value;
}

void require_agreement() {
	for (std::string const &text : texts()) {
		if (with_library(text) != with_from_chars(text)) {
			std::cerr << "the routines differ on " << text << '\n';
			std::abort();
		}
	}
}

template <int (*Routine)(std::string const &)>
void read_int(benchmark::State &state) {
	require_agreement();
	for (auto _ : state) {
		for (std::string const &text : texts()) {
			benchmark::DoNotOptimize(Routine(text));
		}
	}
	state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * count));
}

BENCHMARK(read_int<&with_library>)->Name("int from text/library");
BENCHMARK(read_int<&with_from_chars>)->Name("int from text/std::from_chars");

} // namespace
