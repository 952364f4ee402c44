// What loading asks of the heap grows with the text, and running out of memory does no harm.

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <string>
#include <vector>

#include <quor/config/commandline_item.hpp>
#include <quor/config/enviroment_item.hpp>

#include "support/allocation_counter.hpp"
#include "support/config_sources.hpp"
#include "support/cout_capture.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::config::commandline_item;
using quor::config::enviroment_item;
using quor_test::listing_of;
using quor_test::string_block;

using texts_t = std::vector<std::string>;

// Many pieces between two ends.
std::string repeated(std::string text, std::string const &piece, std::size_t count, std::string const &end = "") {
	text.reserve(text.size() + piece.size() * count + end.size());
	for (std::size_t i = 0; i != count; ++i) {
		text += piece;
	}
	return text += end;
}

texts_t each(std::string const &text, std::size_t count) {
	return texts_t(count, text);
}

texts_t behind(texts_t first, texts_t const &rest) {
	first.insert(first.end(), rest.begin(), rest.end());
	return first;
}

struct shape {
	char const *name;
	texts_t (*make)(std::size_t count);
};

shape const shapes[] = {
    {"one switch", [](std::size_t n) { return each("-switch", n); }},
    {"different switches",
     [](std::size_t n) {
	     texts_t texts;
	     for (std::size_t i = 0; i != n; ++i) {
		     texts.push_back(repeated("-a.key", std::to_string(1000000 + i), 1, "=some value"));
	     }
	     return texts;
     }},
    {"values of one key", [](std::size_t n) { return behind({"-k"}, each("value", n)); }},
    {"values of a long key", [](std::size_t n) { return behind({repeated("-", "k.", n, "k")}, each("value", n)); }},
    {"commas", [](std::size_t n) { return texts_t{repeated("-k=", "v,", n)}; }},
    {"commas of a long key", [](std::size_t n) { return texts_t{repeated(repeated("-", "k.", n, "="), ",", n)}; }},
    {"commas of a key of separators",
     [](std::size_t n) { return texts_t{repeated(repeated("-", ".", n, "="), ",", n)}; }},
    {"components", [](std::size_t n) { return texts_t{repeated("-", "k/", n)}; }},
    {"separators", [](std::size_t n) { return texts_t{repeated("-", ".", n)}; }},
    {"a long key", [](std::size_t n) { return texts_t{repeated("-", "key", n, "=v")}; }},
    {"a long value", [](std::size_t n) { return texts_t{repeated("-k=", "value1", n)}; }},
    {"a long value behind $", [](std::size_t n) { return texts_t{repeated("-k$", "a,1", n)}; }},
    {"words and blanks", [](std::size_t n) { return texts_t{repeated("-k=", "word ", n)}; }},
    {"blanks", [](std::size_t n) { return texts_t{repeated("-k=", " ", n)}; }},
    {"a long word and a blank", [](std::size_t n) { return texts_t{repeated("-k=", "word", n, " ")}; }},
    {"quoted texts", [](std::size_t n) { return texts_t{repeated("-k=", "\"a b\"", n)}; }},
    {"an open quote", [](std::size_t n) { return texts_t{repeated("-k=\"", "\\\"", n, "\\")}; }},
    {"open quotes", [](std::size_t n) { return behind({"-k"}, each("\"", n)); }},
    {"empty values", [](std::size_t n) { return behind({"-k"}, each("", n)); }},
};

struct cost {
	std::size_t count;
	std::size_t bytes;
};

template <class Item>
cost cost_of(Item &item) {
	quor_test::allocation_counter const counter;
	item.load();
	return {counter.count(), counter.bytes()};
}

cost cost_of_arguments(texts_t const &texts) {
	string_block block(behind({"p"}, texts));
	commandline_item item(block.count(), block.pointers());
	return cost_of(item);
}

cost cost_of_environment(texts_t const &texts) {
	string_block block(texts);
	enviroment_item item(block.pointers());
	return cost_of(item);
}

TEST(config_sources, loading_is_linear) {
	constexpr std::size_t small = 4096;
	for (auto const cost_of_texts : {&cost_of_arguments, &cost_of_environment}) {
		for (shape const &one : shapes) {
			SCOPED_TRACE(one.name);
			cost const first = cost_of_texts(one.make(small));
			cost const second = cost_of_texts(one.make(2 * small));
			EXPECT_LE(second.count, first.count * 22 / 10 + 20);
			EXPECT_LE(second.bytes, first.bytes * 22 / 10 + 4096);
			EXPECT_LE(second.bytes, 2 * small * 800);
		}
	}
}

// Anything quadratic or deep would not come to an end here.
TEST(config_sources, large_texts_are_loaded_copied_and_destroyed) {
	constexpr std::size_t large = 100000;
	for (shape const &one : shapes) {
		SCOPED_TRACE(one.name);
		string_block block(behind({"p"}, one.make(large)));
		commandline_item item(block.count(), block.pointers());
		EXPECT_TRUE(item.load());
		commandline_item copy(item);
		item.unload();
		EXPECT_EQ(item.get_value("application.name"), nullptr);
		EXPECT_NE(copy.get_value("application.name"), nullptr);
		enviroment_item environment(block.pointers());
		EXPECT_TRUE(environment.load());
	}
}

TEST(config_sources, warnings_are_linear) {
	constexpr std::size_t small = 4096;
	std::size_t bytes[2] = {};
	for (std::size_t round : {0U, 1U}) {
		quor_test::cout_capture const capture;
		bytes[round] =
		    cost_of_arguments(behind({repeated("", "word ", small << round)}, each("word", small << round))).bytes;
	}
	EXPECT_LE(bytes[1], bytes[0] * 22 / 10 + 4096);
}

// Whichever allocation fails, the item can be used after it and ends with the whole tree.
template <class Make>
void expect_harmless_failures(Make const &make) {
	auto complete = make();
	complete.load();
	auto const expected = listing_of(complete);
	std::size_t index = 0;
	std::size_t failures = 0;
	for (bool failed = true; failed; ++index) {
		auto item = make();
		{
			quor_test::allocation_failure const failure(index);
			try {
				item.load();
			} catch (std::bad_alloc const &) {
				++failures;
			}
			failed = failure.happened();
		}
		EXPECT_TRUE(item.load());
		EXPECT_EQ(listing_of(item), expected);
	}
	EXPECT_EQ(failures, index - 1);
	EXPECT_GT(failures, 5U);
}

TEST(config_sources, running_out_of_memory_leaves_usable_items) {
	std::string const text(40, 'x');
	string_block const block({"dir\\program that is long enough to need memory.exe",
	                          "-some.long.key.of.some.parts=" + text, "-list.of.texts=" + text + "," + text, "-values",
	                          text, text, "-switch" + text, "other"});
	quor_test::cout_capture const capture;
	expect_harmless_failures([&] { return commandline_item(block.count(), block.pointers()); });
	expect_harmless_failures([&] { return enviroment_item(block.pointers()); });
}

TEST(config_sources, failed_assignment_leaves_a_usable_item) {
	string_block const block({"p", repeated("-a.b.c=", "x", 40), "-d"});
	commandline_item source(block.count(), block.pointers());
	source.load();
	auto const expected = listing_of(source);
	std::size_t index = 0;
	for (bool failed = true; failed; ++index) {
		commandline_item target(7, nullptr);
		target.set("old", "value", 0);
		auto const before = listing_of(target);
		quor_test::allocation_failure const failure(index);
		bool thrown = false;
		try {
			target = source;
		} catch (std::bad_alloc const &) {
			thrown = true;
		}
		failed = failure.happened();
		EXPECT_EQ(thrown, failed);
		EXPECT_EQ(target.get_argc(), failed ? 7 : 3);
		EXPECT_EQ(target.get_id(), "command line");
	}
	EXPECT_GT(index, 3U);
}

} // namespace
