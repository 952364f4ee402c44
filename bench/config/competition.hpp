#ifndef QUOR_BENCH_CONFIG_COMPETITION_HPP
#define QUOR_BENCH_CONFIG_COMPETITION_HPP

// What each competitor does with the same files.
//
// A store that loads:
//
//     explicit store(config_file const &file);   loads the file, lists every key
//     contents all() const;                       what it holds now, slowly
//
// A store that answers:
//
//     explicit store(config_file const &file);
//     key_type key(setting const &one) const;     what a program would keep to ask with
//     ... text(key_type const &key) const;        as the text type that the store gives
//     int number(key_type const &key) const;
//     static std::string plain(... text);         that text as a standard string

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "config/input.hpp"
#include "frame/frame.hpp"
#include "frame/heap.hpp"

namespace config_bench {

inline constexpr char const *load_name = "load 1 MB";
inline constexpr char const *memory_name = "memory of the loaded 1 MB, times the file";
inline constexpr char const *text_name = "text by key";
inline constexpr char const *number_name = "integer by key";
inline constexpr char const *text_calls_name = "allocations, text of 16 bytes and more by key";
inline constexpr char const *number_calls_name = "allocations, integer by key";

template <class Store>
void compare_contents(std::string const &name) {
	contents const &expected = large_file().expected;
	contents const found = Store(large_file()).all();
	for (auto const &[key, value] : expected) {
		auto const place = found.find(key);
		if (place == found.end() || unquoted(place->second) != value) {
			bench::disagree(name + " at " + key);
		}
	}
	if (found.size() != expected.size()) {
		bench::disagree(name + " has " + std::to_string(found.size()) + " keys, not " +
		                std::to_string(expected.size()));
	}
}

/// Loading, without the time in which the store is released and its memory tidied up.
template <class Store>
void load(benchmark::State &state) {
	for (auto _ : state) {
		auto loaded = std::make_unique<Store>(large_file());
		benchmark::DoNotOptimize(loaded);
		state.PauseTiming();
		loaded.reset();
		bench::tidy_heap();
		state.ResumeTiming();
	}
}

template <class Loader>
void compete_in_loading(std::string const &name) {
	compare_contents<Loader>(name);
	bench::tidy_heap();
	std::size_t const before = bench::heap_bytes();
	auto loaded = std::make_unique<Loader>(large_file());
	std::size_t const after = bench::heap_bytes();
	bench::figure(memory_name, name, static_cast<double>(after - before) / static_cast<double>(large_file().size));
	loaded.reset();
	bench::tidy_heap();
	bench::operation(load_name, name, &load<Loader>);
}

/// A store with what it is asked for.
template <class Store>
struct asked {
	using keys = std::vector<typename Store::key_type>;

	explicit asked(config_file const &file)
	    : store(file), text_keys(sample_keys(file, false)), number_keys(sample_keys(file, true)) {}

	keys sample_keys(config_file const &file, bool numbers_only) const {
		keys result;
		for (setting const &one : sample(file, numbers_only)) {
			result.push_back(store.key(one));
		}
		return result;
	}

	Store store;
	keys text_keys;
	keys number_keys;
};

/// Asks with one key after the other, whose number is a power of two.
template <class Key, class Ask>
void ask(benchmark::State &state, std::vector<Key> const &keys, Ask const &answer) {
	std::size_t const last = keys.size() - 1;
	std::size_t index = 0;
	for (auto _ : state) {
		benchmark::DoNotOptimize(answer(keys[index]));
		index = (index + 1) & last;
	}
}

/// Answers are right, and cost the told number of allocations on average.
template <class Store>
void check_answers(std::string const &name, Store const &store, config_file const &file, bool tell) {
	std::uint64_t text_calls = 0;
	std::uint64_t number_calls = 0;
	std::size_t texts = 0;
	std::size_t numbers = 0;
	for (setting const &one : file.settings) {
		auto const key = store.key(one);
		std::uint64_t const start = bench::heap_calls();
		auto text = store.text(key);
		if (one.value.size() >= 16) {
			text_calls += bench::heap_calls() - start;
			++texts;
		}
		if (unquoted(Store::plain(std::move(text))) != one.value) {
			bench::disagree(name + ", the text of " + one.section + "." + one.name);
		}
		if (one.number) {
			std::uint64_t const second_start = bench::heap_calls();
			int const number = store.number(key);
			number_calls += bench::heap_calls() - second_start;
			++numbers;
			if (number != std::stoi(one.value)) {
				bench::disagree(name + ", the number of " + one.section + "." + one.name);
			}
		}
	}
	if (tell) {
		bench::figure(text_calls_name, name, static_cast<double>(text_calls) / static_cast<double>(texts));
		bench::figure(number_calls_name, name, static_cast<double>(number_calls) / static_cast<double>(numbers));
	}
}

template <class Answerer>
void compete_in_answers(std::string const &name) {
	struct place {
		config_file const &file;
		char const *suffix;
	};
	for (place const &one : {place{small_file(), " of a small file"}, place{large_file(), " of the 1 MB"}}) {
		auto const with = std::make_shared<asked<Answerer> const>(one.file);
		check_answers(name, with->store, one.file, &one.file == &large_file());
		bench::operation(std::string(text_name) + one.suffix, name, [with](benchmark::State &state) {
			ask(state, with->text_keys, [&with](auto const &key) { return with->store.text(key); });
		});
		bench::operation(std::string(number_name) + one.suffix, name, [with](benchmark::State &state) {
			ask(state, with->number_keys, [&with](auto const &key) { return with->store.number(key); });
		});
	}
}

/// Stores that will be asked are loaded first, so that each lies in memory as its allocations
/// come and not in the gaps that a released store has left.
template <class Loader, class Answerer>
void compete(std::string const &name) {
	compete_in_answers<Answerer>(name);
	compete_in_loading<Loader>(name);
}

} // namespace config_bench

#endif
