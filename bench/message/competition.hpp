#ifndef QUOR_BENCH_MESSAGE_COMPETITION_HPP
#define QUOR_BENCH_MESSAGE_COMPETITION_HPP

// What each competitor does with the same messages, each with a text, an integer and a number
// with two decimals:
//
//     explicit store(std::vector<sample> const &samples);
//     ... arguments(sample const &one) const;                 what a program hands over
//     ... render(char const *key, ... arguments) const;       the text, as the store gives it
//     static std::string plain(... text);                     the same as a standard string

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "frame/frame.hpp"

namespace message_bench {

inline constexpr char const *render_name = "look up and render 3 arguments";
inline constexpr char const *whole_name = "make 3 arguments, look up and render";

/// A message with {name}, {count} and {seconds} in its pattern.
struct sample {
	std::string key;
	std::string pattern;
	std::string name;
	int count;
	double seconds;
	std::string expected;
};

/// All messages that the stores hold.
std::vector<sample> const &samples();

/// The pattern in the form of a competitor.
std::string pattern_with(std::string pattern, std::string const &name, std::string const &count,
                         std::string const &seconds);

template <class Store>
void compete(std::string const &competitor) {
	auto const store = std::make_shared<Store const>(samples());
	using arguments_type = decltype(store->arguments(samples().front()));
	// Messages from all over the store, in an order that keeps to no pattern.
	constexpr std::size_t asked = 64;
	std::vector<sample const *> chosen;
	std::vector<arguments_type> arguments;
	for (std::size_t i = 0; i != asked; ++i) {
		sample const &one = samples()[i * 2654435761U % samples().size()];
		chosen.push_back(&one);
		arguments.push_back(store->arguments(one));
		std::string const found = Store::plain(store->render(one.key.c_str(), arguments.back()));
		if (found != one.expected) {
			bench::disagree(competitor + " renders " + one.key + " as \"" + found + "\", not \"" + one.expected + "\"");
		}
	}
	bench::operation(render_name, competitor, [store, chosen, arguments](benchmark::State &state) {
		for (auto _ : state) {
			for (std::size_t i = 0; i != asked; ++i) {
				benchmark::DoNotOptimize(store->render(chosen[i]->key.c_str(), arguments[i]));
			}
		}
		state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * asked));
	});
	bench::operation(whole_name, competitor, [store, chosen](benchmark::State &state) {
		for (auto _ : state) {
			for (sample const *one : chosen) {
				benchmark::DoNotOptimize(store->render(one->key.c_str(), store->arguments(*one)));
			}
		}
		state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * asked));
	});
}

} // namespace message_bench

#endif
