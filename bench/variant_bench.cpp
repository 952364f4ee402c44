// Values that know their type: sharing them, and asking them for another type.

#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include <quor/quor.hpp>

#include "variant/competition.hpp"

namespace variant_bench {
namespace {

using quor::types::variant;

void describe() {
	// From here on counts are atomic, whatever a standard library would save before.
	std::thread([] {}).join();

	std::vector<variant> ints;
	std::vector<variant> texts;
	for (int const number : numbers()) {
		ints.emplace_back(number);
		texts.emplace_back(std::to_string(number));
		if (texts.back().as_int() != number || ints.back().as_string() != std::to_string(number)) {
			bench::disagree("the text of " + std::to_string(number));
		}
	}
	std::vector<variant> doubles;
	std::vector<variant> double_texts;
	for (std::size_t i = 0; i != fractions().size(); ++i) {
		doubles.emplace_back(fractions()[i]);
		double_texts.emplace_back(fraction_texts()[i]);
		if (doubles.back().as_string() != fraction_texts()[i] || double_texts.back().as_double() != fractions()[i]) {
			bench::disagree("the text of " + fraction_texts()[i]);
		}
	}
	measure(copy_name, bench::library, ints, [](variant const &value) { return variant(value); });
	measure(make_name, bench::library, numbers(), [](int value) { return variant(value); });
	measure(to_int_name, bench::library, texts, [](variant const &value) { return value.as_int(); });
	measure(to_text_name, bench::library, ints, [](variant const &value) { return value.as_string(); });
	measure(to_double_name, bench::library, double_texts, [](variant const &value) { return value.as_double(); });
	measure(from_double_name, bench::library, doubles, [](variant const &value) { return value.as_string(); });
	// Both are one atomic operation each way.
	bench::limit(copy_name, "boost::intrusive_ptr", 1.05, 1, bench::call_ns);
	bench::limit(to_int_name, "QVariant", 0.5);
	bench::limit(to_text_name, "QVariant", 0.5);
	bench::limit(to_double_name, "QVariant", 0.5);
	bench::limit(from_double_name, "QVariant", 0.5);
}

bench::entry const added(&describe);

} // namespace

std::vector<int> const &numbers() {
	static std::vector<int> const result = [] {
		std::vector<int> list;
		std::mt19937 random(2900);
		for (int i = 0; i != 256; ++i) {
			int bound = 10;
			for (auto digits = random() % 9; digits != 0; --digits) {
				bound *= 10;
			}
			int const number = bound / 10 + static_cast<int>(random() % 1000000007) % (bound - bound / 10);
			list.push_back(random() % 8 == 0 ? -number : number);
		}
		return list;
	}();
	return result;
}

std::vector<double> const &fractions() {
	static std::vector<double> const result = [] {
		std::vector<double> list;
		for (int const number : numbers()) {
			// An odd number of thousandths has no short text in binary.
			list.push_back((std::abs(number) % 1000000 * 2 + 1001) / 1000.0);
		}
		return list;
	}();
	return result;
}

std::vector<std::string> const &fraction_texts() {
	static std::vector<std::string> const result = [] {
		std::vector<std::string> list;
		for (double const number : fractions()) {
			char text[40];
			std::snprintf(text, sizeof text, "%.3f", number);
			list.emplace_back(text);
		}
		return list;
	}();
	return result;
}

} // namespace variant_bench
