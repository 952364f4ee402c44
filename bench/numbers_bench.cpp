// Integers from text and into text, beside the standard library's routines for the same forms.

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <quor/quor.hpp>

#include "frame/frame.hpp"

namespace {

namespace convert = quor::generic::convert;
using quor::types::int64;
using quor::types::uint32;

// Few enough to stay in the nearest cache in units of any width.
constexpr std::size_t count = 256;

/// Numbers of `first` to `last` digits in a radix, each length equally often, in random order.
std::vector<std::uint64_t> numbers(unsigned int first, unsigned int last, std::uint64_t radix) {
	std::vector<std::uint64_t> list;
	std::mt19937_64 random(2900);
	for (std::size_t i = 0; i != count; ++i) {
		std::uint64_t lowest = 1;
		for (std::uint64_t digits = first + random() % (last - first + 1); digits != 1; --digits) {
			lowest *= radix;
		}
		list.push_back(lowest + random() % (lowest * (radix - 1)));
	}
	return list;
}

/// Texts one behind the other, each with a zero unit behind it.
template <class Unit>
struct text_list {
	std::vector<Unit> units;
	std::vector<std::pair<std::size_t, uint32>> places;

	Unit const *text(std::size_t i) const { return units.data() + places[i].first; }
	uint32 size(std::size_t i) const { return places[i].second; }
};

template <class Unit>
text_list<Unit> texts_of(std::vector<std::uint64_t> const &list, int radix) {
	text_list<Unit> result;
	for (std::uint64_t const number : list) {
		char digits[24];
		char *const end = std::to_chars(digits, digits + sizeof digits, number, radix).ptr;
		result.places.emplace_back(result.units.size(), static_cast<uint32>(end - digits));
		result.units.insert(result.units.end(), digits, end);
		result.units.push_back(Unit());
	}
	return result;
}

/// How a competitor reads one number.
template <class Number, int Radix>
struct by_library {
	template <class Unit>
	Number operator()(Unit const *text, uint32 size) const {
		if constexpr (sizeof(Number) == 8) {
			return convert::str_to_int64(text, size, Radix, false);
		} else {
			return convert::str_to_uint32(text, size, Radix, false);
		}
	}
};

template <class Number, int Radix>
struct by_from_chars {
	Number operator()(char const *text, uint32 size) const {
		Number value = 0;
		std::from_chars(text, text + size, value, Radix);
		return value;
	}
};

template <class Number, int Radix>
struct by_strtoll {
	Number operator()(char const *text, uint32 /*size*/) const {
		return static_cast<Number>(std::strtoll(text, nullptr, Radix));
	}
};

template <class Read, class Unit>
void reading(std::string const &operation, char const *competitor, text_list<Unit> const &texts,
             std::vector<std::uint64_t> const &expected) {
	for (std::size_t i = 0; i != count; ++i) {
		if (static_cast<std::uint64_t>(Read()(texts.text(i), texts.size(i))) != expected[i]) {
			bench::disagree(operation + " by " + competitor + ": " + std::to_string(expected[i]));
		}
	}
	bench::operation(operation, competitor, [texts](benchmark::State &state) {
		for (auto _ : state) {
			for (std::size_t i = 0; i != count; ++i) {
				benchmark::DoNotOptimize(Read()(texts.text(i), texts.size(i)));
			}
		}
		state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * count));
	});
}

/// The wider units have no peer but the narrow ones.
template <class Read, class Unit>
void compare_widths(std::string const &operation, std::vector<std::uint64_t> const &list, int radix) {
	char const *const narrow = "8-bit units";
	reading<Read>(operation, bench::library, texts_of<Unit>(list, radix), list);
	reading<Read>(operation, narrow, texts_of<char>(list, radix), list);
	// The units are one with the narrow ones once they are loaded.
	bench::limit(operation, narrow, 1.1);
}

/// What is compiled into its caller spares a call, which shows where numbers are that short.
double call_beside(unsigned int digits) {
	return digits <= 5 ? bench::call_ns : 0;
}

template <class Number, int Radix>
void compete_in_reading(std::string const &operation, unsigned int first, unsigned int last) {
	using read = by_library<Number, Radix>;
	std::vector<std::uint64_t> const list = numbers(first, last, Radix);
	text_list<char> const texts = texts_of<char>(list, Radix);
	reading<read>(operation, bench::library, texts, list);
	reading<by_from_chars<Number, Radix>>(operation, "std::from_chars", texts, list);
	reading<by_strtoll<Number, Radix>>(operation, "strtoll", texts, list);
	bench::limit(operation, "std::from_chars", 1.2, 0.5, call_beside(last));
	bench::limit(operation, "strtoll", 0.25, 0.25, bench::call_ns);
	compare_widths<read, quor::types::wide_char>(operation + ", 16-bit units", list, Radix);
	compare_widths<read, quor::types::utf32_char>(operation + ", 32-bit units", list, Radix);
}

/// How a competitor writes one number: the end of the text in `buffer`.
struct by_lltoa {
	template <class Unit>
	static void write(int64 number, Unit *buffer) noexcept {
		convert::lltoa(number, buffer, 10);
	}
};

struct by_to_chars {
	static void write(int64 number, char *buffer) noexcept { *std::to_chars(buffer, buffer + 20, number).ptr = '\0'; }
};

template <class Write, class Unit>
void writing(std::string const &operation, char const *competitor, std::vector<std::uint64_t> const &list) {
	for (std::uint64_t const number : list) {
		Unit buffer[24];
		Write::write(static_cast<int64>(number), buffer);
		std::string const expected = std::to_string(number);
		for (std::size_t i = 0; i <= expected.size(); ++i) {
			if (buffer[i] != static_cast<Unit>(expected.c_str()[i])) {
				bench::disagree(operation + " by " + competitor + ": " + expected);
			}
		}
	}
	bench::operation(operation, competitor, [list](benchmark::State &state) {
		Unit buffer[24];
		for (auto _ : state) {
			for (std::uint64_t const number : list) {
				Write::write(static_cast<int64>(number), buffer);
				benchmark::DoNotOptimize(buffer);
				benchmark::ClobberMemory();
			}
		}
		state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations() * count));
	});
}

void compete_in_writing(std::string const &operation, unsigned int first, unsigned int last) {
	std::vector<std::uint64_t> const list = numbers(first, last, 10);
	writing<by_lltoa, char>(operation, bench::library, list);
	writing<by_to_chars, char>(operation, "std::to_chars", list);
	bench::limit(operation, "std::to_chars", 1.05, 0.5, call_beside(last));
	std::string const wide = operation + ", 16-bit units";
	writing<by_lltoa, quor::types::wide_char>(wide, bench::library, list);
	writing<by_lltoa, char>(wide, "8-bit units", list);
}

void describe() {
	compete_in_reading<int64, 10>("int64 from 1 to 18 digits", 1, 18);
	compete_in_reading<int64, 10>("int64 from 1 digit", 1, 1);
	compete_in_reading<int64, 10>("int64 from 5 digits", 5, 5);
	compete_in_reading<int64, 10>("int64 from 18 digits", 18, 18);
	compete_in_reading<uint32, 16>("uint32 from 1 to 8 hexadecimal digits", 1, 8);
	compete_in_reading<uint32, 16>("uint32 from 8 hexadecimal digits", 8, 8);
	compete_in_writing("int64 to 1 to 18 digits", 1, 18);
	compete_in_writing("int64 to 1 digit", 1, 1);
	compete_in_writing("int64 to 5 digits", 5, 5);
	compete_in_writing("int64 to 18 digits", 18, 18);
}

bench::entry const added(&describe);

} // namespace
