// Numbers from text, beside the standard library's routines for the same form.

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "frame/frame.hpp"

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

int with_strtol(std::string const &text) {
	return static_cast<int>(std::strtol(text.c_str(), nullptr, 10));
}

template <int (*Routine)(std::string const &)>
void read_int(benchmark::State &state) {
	for (auto _ : state) {
		for (std::string const &text : texts()) {
			benchmark::DoNotOptimize(Routine(text));
		}
	}
	state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * count));
}

void describe() {
	for (std::string const &text : texts()) {
		if (with_library(text) != with_from_chars(text) || with_library(text) != with_strtol(text)) {
			bench::disagree("the number of " + text);
		}
	}
	bench::operation("int from text", bench::library, &read_int<&with_library>);
	bench::operation("int from text", "std::from_chars", &read_int<&with_from_chars>);
	bench::operation("int from text", "std::strtol", &read_int<&with_strtol>);
	bench::limit("int from text", "std::from_chars", 3, 1);
	bench::limit("int from text", "std::strtol", 1.25);
}

bench::entry const added(&describe);

} // namespace
