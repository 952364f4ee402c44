// What labeled records ask of the heap grows with the text, whatever it holds; deep records
// use no call stack; running out of memory does no harm.

#include <gtest/gtest.h>

#include <chrono>
#include <cstddef>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include <quor/serialization/labeled_text_buffer.hpp>
#include <quor/strings/ustring.hpp>

#include "support/allocation_counter.hpp"
#include "support/labeled_records.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::serialization::labeled_serialize_buffer;
using quor::serialization::labeled_text_buffer;
using quor_test::framed;
using quor_test::framed_string;

std::string repeated(std::string const &piece, std::size_t count, std::string const &end = "") {
	std::string text;
	for (std::size_t i = 0; i != count; ++i) {
		text += piece;
	}
	return framed(text + end);
}

// Groups that each hold one, written in one go.
std::string nested_text(std::size_t depth) {
	std::vector<std::string> lengths;
	std::size_t size = 0;
	for (std::size_t i = 0; i != depth; ++i) {
		lengths.push_back(std::to_string(size));
		size += 6 + lengths.back().size();
	}
	std::string text;
	for (std::size_t i = depth; i != 0; --i) {
		text += "2Sg S" + lengths[i - 1] + "S";
	}
	return framed(text + std::string(depth, 'S'));
}

std::string numbered(char const *begin, std::size_t count, char const *end) {
	std::string text;
	for (std::size_t i = 0; i != count; ++i) {
		text += framed(begin) + std::to_string(10000000 + i) + framed(end);
	}
	return text;
}

struct shape {
	char const *name;
	std::string (*make)(std::size_t count);
};

shape const shapes[] = {
    {"values", [](std::size_t n) { return numbered("8S", n, "S0SS"); }},
    {"values in the other order",
     [](std::size_t n) {
	     std::string text;
	     for (std::size_t i = n; i != 0; --i) {
		     text += framed_string(std::to_string(10000000 + i)) + framed("1SvS");
	     }
	     return text;
     }},
    {"values of one label",
     [](std::size_t n) { return repeated("1SaS40S0123456789012345678901234567890123456789S", n); }},
    {"a long value", [](std::size_t n) { return framed("1SaS") + framed_string(std::string(10 * n, 'v')); }},
    {"a long label", [](std::size_t n) { return framed_string(std::string(10 * n, 'a')); }},
    {"a label of blanks", [](std::size_t n) { return framed_string('a' + std::string(10 * n, ' ')); }},
    {"groups", [](std::size_t n) { return numbered("9S", n, " S8S1SbS1S2SS"); }},
    {"one group again", [](std::size_t n) { return repeated("2Sg S8S1SbS1S2SS", n); }},
    {"one deep group again",
     [](std::size_t n) {
	     std::string text;
	     for (std::size_t i = 0; i != n / 64; ++i) {
		     text += nested_text(64);
	     }
	     return text;
     }},
    {"nested groups", &nested_text},
    {"nested groups of negative length", [](std::size_t n) { return repeated("2Sg S-1S", n); }},
    {"nested groups of large length", [](std::size_t n) { return repeated("2Sg S2147483647S", n); }},
    {"nested groups behind values", [](std::size_t n) { return repeated("1SaS1SvS2Sg S-1S", n); }},
    {"nested groups and values of negative length", [](std::size_t n) { return repeated("2Sg S-1S1SaS-9S", n); }},
    {"keys of negative length", [](std::size_t n) { return repeated("-1S", n, "a"); }},
    {"groups' keys of negative length", [](std::size_t n) { return repeated("-1S", n, "a "); }},
    {"values of negative length", [](std::size_t n) { return repeated("1SaS-1S", n); }},
    {"values that lead back", [](std::size_t n) { return repeated("1SaS-8SvS", n); }},
    {"values of negative length in groups", [](std::size_t n) { return repeated("2Sg S11S1SaS-1Sabc SS", n); }},
    {"values of large length in groups", [](std::size_t n) { return repeated("2Sg S9S1SaS9999SS", n); }},
    {"separators", [](std::size_t n) { return repeated("S", n); }},
    {"digits", [](std::size_t n) { return repeated("1234567", n); }},
    {"zeros before a length", [](std::size_t n) { return repeated("0", n, "1SaS1SvS"); }},
    {"groups of long lengths", [](std::size_t n) { return repeated("2Sg S", n / 8, std::string(n, '9')); }},
};

struct cost {
	std::size_t count;
	std::size_t bytes;
};

template <class Operation>
cost cost_of(Operation const &operation) {
	quor_test::allocation_counter const counter;
	operation();
	return {counter.count(), counter.bytes()};
}

void expect_linear(cost const &first, cost const &second) {
	EXPECT_LE(second.count, first.count * 22 / 10 + 20);
	EXPECT_LE(second.bytes, first.bytes * 22 / 10 + 4096);
}

TEST(labeled_text_growth, reading_is_linear) {
	constexpr std::size_t small = 4096;
	for (shape const &one : shapes) {
		SCOPED_TRACE(one.name);
		cost costs[2];
		for (std::size_t round : {0U, 1U}) {
			std::string const text = one.make(small << round);
			labeled_text_buffer record;
			costs[round] = cost_of([&] { record.assign(text); });
			EXPECT_LE(costs[round].bytes, 64 * text.size() + 4096);
		}
		expect_linear(costs[0], costs[1]);
	}
}

TEST(labeled_text_growth, all_that_reads_a_record_is_linear) {
	constexpr std::size_t small = 4096;
	for (shape const &one : shapes) {
		SCOPED_TRACE(one.name);
		cost written[2];
		cost copied[2];
		cost laid_over[2];
		for (std::size_t round : {0U, 1U}) {
			std::string const text = one.make(small << round);
			labeled_text_buffer record(text);
			written[round] = cost_of([&] { static_cast<void>(record.as_str()); });
			EXPECT_LE(written[round].bytes, 16 * text.size() + 4096);
			copied[round] = cost_of([&] { static_cast<void>(labeled_text_buffer(record)); });
			labeled_text_buffer target(record);
			laid_over[round] = cost_of([&] { target.overlay(record); });
			EXPECT_TRUE(target.as_str() == record.as_str());
			// The memory of the text is used again.
			EXPECT_LE(cost_of([&] { static_cast<void>(record.as_str()); }).bytes, written[round].bytes);
		}
		expect_linear(written[0], written[1]);
		expect_linear(copied[0], copied[1]);
		expect_linear(laid_over[0], laid_over[1]);
	}
}

// Anything quadratic or exponential would not come to an end here.
TEST(labeled_text_growth, large_texts_are_read_and_written) {
	constexpr std::size_t large = 50000;
	for (shape const &one : shapes) {
		SCOPED_TRACE(one.name);
		std::string const text = one.make(large);
		labeled_text_buffer const record(text);
		labeled_text_buffer const again(record.as_str());
		EXPECT_TRUE(again.as_str() == record.as_str());
	}
}

TEST(labeled_text_growth, has_group_writes_nothing) {
	labeled_text_buffer const record(framed("1SaS1S1S2Sg S8S1SbS1S2SS"));
	std::string const label = "g";
	quor_test::allocation_counter const counter;
	EXPECT_TRUE(record.has_group(label));
	EXPECT_EQ(counter.count(), 0U);
}

TEST(labeled_text_growth, asking_allocates_nothing) {
	labeled_text_buffer record(framed("1SaS1S1S2Sg S8S1SbS1S2SS"));
	record.as_str();
	std::string const present = "a";
	std::string const absent = "a label of more than a few bytes";
	quor_test::allocation_counter const counter;
	EXPECT_TRUE(record.has_label(present));
	EXPECT_TRUE(record.has_value(present));
	EXPECT_FALSE(record.has_value(absent));
	EXPECT_NE(record.retrieve_group(present), nullptr);
	EXPECT_EQ(record.retrieve_value(present).as_int(), 1);
	EXPECT_EQ(counter.count(), 0U);
	// Short texts in the memory of the last one need only the list of open groups.
	EXPECT_EQ(record.as_str().size(), 24U);
	EXPECT_EQ(counter.count(), 1U);
}

// Texts of values are put where they belong at once.
TEST(labeled_text_growth, narrow_texts_are_written_without_a_copy) {
	std::string const text(100, 'x');
	for (quor::types::variant const &value :
	     {quor::types::variant(text), quor::types::variant(quor::strings::ustring8(text))}) {
		labeled_text_buffer record;
		record.add_value("a", value);
		record.as_str();
		quor_test::allocation_counter const counter;
		EXPECT_EQ(record.as_str().size(), 109U);
		EXPECT_EQ(counter.count(), 1U);
	}
}

// Memory of a large text that was written before is not gone through again each time. It would
// take many seconds.
TEST(labeled_text_growth, small_texts_after_a_large_one_are_quick) {
	labeled_text_buffer record;
	std::string large;
	large.resize(64000000, 'x');
	record.add_value("v", large);
	EXPECT_EQ(record.as_str().size(), 64000014U);
	record.add_value("v", 1);
	auto const start = std::chrono::steady_clock::now();
	for (int i = 0; i != 5000; ++i) {
		ASSERT_EQ(record.as_str().size(), 8U);
	}
	EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

// Texts that grow and shrink are written in the memory of those before.
TEST(labeled_text_growth, texts_of_changing_size_are_written_in_the_same_memory) {
	labeled_text_buffer record;
	std::string const value(1000, 'x');
	for (std::size_t size = 0; size != value.size(); ++size) {
		for (std::size_t const part : {size, size / 2, value.size() - size, std::size_t(0), size}) {
			std::string const text = value.substr(0, part);
			record.add_value("a", text);
			record.create_group("g")->add_value("b", text);
			std::string const inner = framed("1SbS") + framed_string(text);
			ASSERT_EQ(record.as_str(), framed("1SaS") + framed_string(text) + framed("2Sg S") + framed_string(inner));
		}
	}
	quor::types::variant const large(value);
	quor::types::variant const small("");
	std::string const label = "a";
	auto const written = [&](quor::types::variant const &changed) {
		record.add_value(label, changed);
		quor_test::allocation_counter const counter;
		record.as_str();
		return counter.count();
	};
	written(small);
	std::size_t const for_small = written(small);
	written(large);
	std::size_t const for_large = written(large);
	for (int i = 0; i != 10; ++i) {
		EXPECT_EQ(written(small), for_small);
		EXPECT_EQ(written(large), for_large);
	}
}

// A chain of groups that is deeper than the call stack could go.
constexpr std::size_t great_depth = 250000;

std::unique_ptr<labeled_text_buffer> make_deep(std::size_t depth, char const *label) {
	auto record = std::make_unique<labeled_text_buffer>();
	labeled_serialize_buffer *group = record.get();
	for (std::size_t i = 0; i != depth; ++i) {
		group = group->create_group("g");
	}
	group->add_value(label, 1);
	return record;
}

std::size_t depth_of(labeled_serialize_buffer const &record) {
	std::size_t depth = 0;
	for (auto const *group = record.retrieve_group("g"); group != nullptr; group = group->retrieve_group("g")) {
		++depth;
	}
	return depth;
}

TEST(labeled_text_growth, deep_records_are_written_in_one_go) {
	auto const record = make_deep(great_depth, "v");
	EXPECT_TRUE(record->has_group("g"));
	quor_test::allocation_counter const counter;
	std::string const &text = record->as_str();
	EXPECT_EQ(text.substr(0, 5), framed("2Sg S"));
	EXPECT_LE(counter.bytes(), 8 * text.size() + 128 * great_depth);
	EXPECT_LE(counter.count(), 100U);
	// Only the upper groups can be read back.
	EXPECT_EQ(depth_of(labeled_text_buffer(text)), labeled_text_buffer::nesting_limit + 1);
	labeled_serialize_buffer const &base = *record;
	labeled_text_buffer target;
	target.assign(base);
	EXPECT_EQ(depth_of(target), labeled_text_buffer::nesting_limit + 1);
}

TEST(labeled_text_growth, deep_records_are_copied_emptied_and_destroyed) {
	auto record = make_deep(great_depth, "v");
	auto copy = std::make_unique<labeled_text_buffer>(*record);
	EXPECT_EQ(depth_of(*copy), great_depth);
	record.reset();
	labeled_text_buffer target;
	target.assign(*copy);
	EXPECT_EQ(depth_of(target), great_depth);
	EXPECT_TRUE(target.create_group("g")->is_empty());
	target = *copy;
	target.assign("");
	EXPECT_TRUE(target.is_empty());
	target.assign(dynamic_cast<labeled_text_buffer &>(*copy->retrieve_group("g")));
	EXPECT_EQ(depth_of(target), great_depth - 1);
}

TEST(labeled_text_growth, deep_records_are_laid_over_each_other) {
	auto const record = make_deep(great_depth, "v");
	auto const other = make_deep(great_depth, "w");
	record->overlay(*other);
	EXPECT_EQ(depth_of(*record), great_depth);
	labeled_serialize_buffer const *last = record.get();
	for (std::size_t i = 0; i != great_depth; ++i) {
		last = last->retrieve_group("g");
	}
	EXPECT_TRUE(last->has_value("v"));
	EXPECT_TRUE(last->has_value("w"));
	labeled_text_buffer target;
	target.overlay(*record);
	EXPECT_EQ(depth_of(target), great_depth);
}

// Whichever allocation of an operation fails, the record is as it was before, and nothing
// is leaked.
template <class Operation>
void expect_no_change(char const *name, Operation const &operation) {
	SCOPED_TRACE(name);
	std::string const text = framed("1SaS1S1S2Sg S24S1SbS1S2S2Sh S8S1ScS1S3SSS");
	std::size_t index = 0;
	quor_test::allocation_counter const counter;
	for (bool failed = true; failed; ++index) {
		labeled_text_buffer record(text);
		auto const *const group = record.retrieve_group("g");
		bool thrown = false;
		{
			quor_test::allocation_failure const failure(index);
			try {
				operation(record);
			} catch (std::bad_alloc const &) {
				thrown = true;
			}
			failed = failure.happened();
		}
		EXPECT_EQ(thrown, failed);
		if (failed) {
			EXPECT_EQ(record.as_str(), text);
			EXPECT_EQ(record.retrieve_group("g"), group);
		}
	}
	EXPECT_GT(index, 1U);
	EXPECT_EQ(counter.live(), 0);
}

TEST(labeled_text_growth, running_out_of_memory_changes_nothing) {
	std::string const long_label(40, 'l');
	std::string const other_text =
	    framed("1SaS40S0123456789012345678901234567890123456789S2Sg S24S1SbS1S4S2Sk S8S1ScS1S5SSS2Sn S8S1SbS1S2SS");
	labeled_text_buffer const other(other_text);
	labeled_serialize_buffer const &base = other;
	other.as_str();
	quor::types::variant const value("v");
	expect_no_change("add_value", [&](labeled_text_buffer &record) { record.add_value(long_label, value); });
	expect_no_change("create_group", [&](labeled_text_buffer &record) { record.create_group(long_label); });
	expect_no_change("assign a text", [&](labeled_text_buffer &record) { record.assign(other_text); });
	expect_no_change("assign bytes", [&](labeled_text_buffer &record) {
		record.assign(other_text.data(), static_cast<int>(other_text.size()));
	});
	expect_no_change("assign a record", [&](labeled_text_buffer &record) { record.assign(other); });
	expect_no_change("assign a base", [&](labeled_text_buffer &record) { record.assign(base); });
	expect_no_change("overlay", [&](labeled_text_buffer &record) { record.overlay(other); });
	expect_no_change("overlay of a group", [](labeled_text_buffer &record) {
		record.overlay(dynamic_cast<labeled_text_buffer &>(*record.retrieve_group("g")));
	});
	expect_no_change("copy", [](labeled_text_buffer const &record) { static_cast<void>(labeled_text_buffer(record)); });
	expect_no_change("clone", [](labeled_text_buffer const &record) { delete record.clone(); });
	expect_no_change("create", [](labeled_text_buffer const &record) { delete record.create(); });
	expect_no_change("read", [&](labeled_text_buffer const &) { labeled_text_buffer const read(other_text); });
	expect_no_change("as_str", [](labeled_text_buffer const &record) { static_cast<void>(record.as_str()); });
}

} // namespace
