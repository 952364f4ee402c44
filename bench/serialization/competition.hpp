#ifndef QUOR_BENCH_SERIALIZATION_COMPETITION_HPP
#define QUOR_BENCH_SERIALIZATION_COMPETITION_HPP

// What each competitor does with the same records.
//
// One of values in a fixed order:
//
//     struct archive {
//         using record_type = record;                what it writes, its strings of its own type
//         using bytes_type = std::string;            what it keeps in memory
//         class writer {
//             void write(record_type const &one);
//             ... bytes() const;                     all bytes, without a copy where it can
//         };
//         class reader {
//             explicit reader(bytes_type const &bytes);
//             record_type read();                    a new one, in the shortest way there is
//         };
//     };
//
// One of records with labels:
//
//     struct archive {
//         using record_type = ...;                       what is rendered and what parsing gives
//         static record_type record_of(labels const &from);
//         static std::string render(record_type const &from);
//         static record_type parse(std::string const &text);
//         static labels values_of(record_type const &from);
//     };

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "frame/frame.hpp"
#include "serialization/records.hpp"

namespace serialization_bench {

inline constexpr char const *render_name = "labeled, record to text";
inline constexpr char const *parse_name = "labeled, text to record";
inline constexpr char const *values_to_text_name = "labeled, values through a record to text";
inline constexpr char const *text_to_values_name = "labeled, text through a record to values";

template <class Archive>
using own_records = std::vector<typename Archive::record_type>;

/// The records as those of a competitor, whose strings may be of another type.
template <class Archive>
own_records<Archive> own(records const &from) {
	using text = decltype(Archive::record_type::name);
	own_records<Archive> result;
	for (record const &one : from) {
		result.push_back({record_of<text>{one.a, one.b, one.c, one.d, one.e, one.f, one.g, one.h, one.x, one.y,
		                                  text(one.name.c_str()), text(one.note.c_str())}});
	}
	return result;
}

template <class Archive>
typename Archive::bytes_type bytes_of(own_records<Archive> const &from) {
	typename Archive::writer out;
	for (auto const &one : from) {
		out.write(one);
	}
	return typename Archive::bytes_type(out.bytes());
}

/// Reading gives what was written.
template <class Archive>
void check(std::string const &name, own_records<Archive> const &from) {
	auto const bytes = bytes_of<Archive>(from);
	typename Archive::reader in(bytes);
	for (std::size_t i = 0; i != from.size(); ++i) {
		if (!(in.read() == from[i])) {
			bench::disagree(name + ", record " + std::to_string(i));
		}
	}
}

template <class Archive>
void write_many(benchmark::State &state, own_records<Archive> const &from) {
	for (auto _ : state) {
		typename Archive::writer out;
		for (auto const &one : from) {
			out.write(one);
		}
		auto &&bytes = out.bytes();
		benchmark::DoNotOptimize(bytes.data());
	}
	state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(from.size()));
}

template <class Archive>
void read_many(benchmark::State &state, own_records<Archive> const &from) {
	auto const bytes = bytes_of<Archive>(from);
	for (auto _ : state) {
		typename Archive::reader in(bytes);
		for (std::size_t left = from.size(); left != 0; --left) {
			auto const one = in.read();
			benchmark::DoNotOptimize(&one);
			benchmark::ClobberMemory();
		}
	}
	state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(from.size()));
}

template <class Archive>
void write_one(benchmark::State &state, own_records<Archive> const &from) {
	std::size_t index = 0;
	for (auto _ : state) {
		typename Archive::writer out;
		out.write(from[index]);
		auto &&bytes = out.bytes();
		benchmark::DoNotOptimize(bytes.data());
		index = index + 1 == from.size() ? 0 : index + 1;
	}
}

template <class Archive>
void read_one(benchmark::State &state, own_records<Archive> const &from) {
	std::vector<typename Archive::bytes_type> bytes;
	for (auto const &one : from) {
		bytes.push_back(bytes_of<Archive>({one}));
	}
	std::size_t index = 0;
	for (auto _ : state) {
		typename Archive::reader in(bytes[index]);
		auto const one = in.read();
		benchmark::DoNotOptimize(&one);
		benchmark::ClobberMemory();
		index = index + 1 == bytes.size() ? 0 : index + 1;
	}
}

/// The operations are called "<kind>, write ..." and "<kind>, read ...".
template <class Archive>
void compete(std::string const &kind, std::string const &name) {
	struct input {
		records const &list;
		char const *strings;
	};
	for (input const &one : {input{short_records(), ""}, input{long_records(), " with long strings"}}) {
		auto const list = std::make_shared<own_records<Archive>>(own<Archive>(one.list));
		check<Archive>(kind + " of " + name, *list);
		auto const add = [&](std::string const &what, void (*run)(benchmark::State &, own_records<Archive> const &)) {
			bench::operation(kind + ", " + what + one.strings, name,
			                 [run, list](benchmark::State &state) { run(state, *list); });
		};
		add("write one of 256 records", &write_many<Archive>);
		add("read one of 256 records", &read_many<Archive>);
		add("write a record alone", &write_one<Archive>);
		add("read a record alone", &read_one<Archive>);
	}
}

/// Times `run` for each element of the list in turn.
template <class List, class Function>
void for_each(benchmark::State &state, List const &list, Function run) {
	std::size_t index = 0;
	for (auto _ : state) {
		auto const made = run(list[index]);
		benchmark::DoNotOptimize(&made);
		benchmark::ClobberMemory();
		index = index + 1 == list.size() ? 0 : index + 1;
	}
}

template <class Archive>
void compete_in_labels(std::string const &name) {
	auto const kept = std::make_shared<std::vector<typename Archive::record_type>>();
	auto const texts = std::make_shared<std::vector<std::string>>();
	for (labels const &one : labeled_records()) {
		kept->push_back(Archive::record_of(one));
		texts->push_back(Archive::render(kept->back()));
		if (!(Archive::values_of(Archive::parse(texts->back())) == one)) {
			bench::disagree("the labels of " + name);
		}
	}
	bench::operation(render_name, name, [kept](benchmark::State &state) { for_each(state, *kept, &Archive::render); });
	bench::operation(parse_name, name, [texts](benchmark::State &state) { for_each(state, *texts, &Archive::parse); });
	bench::operation(values_to_text_name, name, [](benchmark::State &state) {
		for_each(state, labeled_records(),
		         [](labels const &from) { return Archive::render(Archive::record_of(from)); });
	});
	bench::operation(text_to_values_name, name, [texts](benchmark::State &state) {
		for_each(state, *texts, [](std::string const &from) { return Archive::values_of(Archive::parse(from)); });
	});
}

} // namespace serialization_bench

#endif
