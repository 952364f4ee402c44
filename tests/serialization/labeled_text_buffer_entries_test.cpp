// The entries of labeled records: their order, their groups, their texts, and what becomes of
// them when they move.

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <quor/memory/pointers/rc_pointer.hpp>
#include <quor/serialization/labeled_text_buffer.hpp>
#include <quor/strings/ustring.hpp>

#include "support/labeled_records.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::memory::pointers::rc_pointer;
using quor::serialization::labeled_serialize_buffer;
using quor::serialization::labeled_text_buffer;
using quor_test::framed;
using quor_test::framed_string;

// Labels that begin alike, end with zero bytes, or have bytes beyond 127, in no order.
std::vector<std::string> similar_labels() {
	std::vector<std::string> labels;
	for (std::string const begin : {"", "a", "abc", "abcd", "abcdefg", "abcdefgh", "abcdefghi", "b", "\xFF"}) {
		for (std::string const &end :
		     {std::string(), std::string(1, '\0'), std::string(2, '\0'), std::string("\0\1", 2), std::string("\x01"),
		      std::string("\x7F"), std::string("\x80"), std::string("\xFF"), std::string("\xFF\xFF"), std::string("z"),
		      std::string(8, '\0'), std::string(9, '\0')}) {
			labels.push_back(end + begin);
			labels.push_back(begin + end);
		}
	}
	std::sort(labels.begin(), labels.end());
	labels.erase(std::unique(labels.begin(), labels.end()), labels.end());
	return labels;
}

std::string text_of(std::vector<std::string> const &labels) {
	std::string text;
	for (std::string const &label : labels) {
		text += framed_string(label) + framed_string("v");
	}
	return text;
}

TEST(labeled_entries, labels_stand_in_the_order_of_their_bytes) {
	std::vector<std::string> const sorted = similar_labels();
	std::string const expected = text_of(sorted);
	for (std::size_t const step : {1U, 5U, 7U, 11U}) {
		labeled_text_buffer record;
		for (std::size_t i = 0; i != sorted.size(); ++i) {
			std::string const &label = sorted[(i + 1) * step % sorted.size()];
			if (!record.has_label(label)) {
				EXPECT_EQ(record.add_value(label, "v"), labeled_serialize_buffer::value_stored);
			}
		}
		for (std::string const &label : sorted) {
			record.add_value(label, "v");
			EXPECT_EQ(record.add_value(label, "v"), labeled_serialize_buffer::value_replaced);
		}
		EXPECT_EQ(record.as_str(), expected);
	}
	labeled_text_buffer backwards;
	for (auto label = sorted.rbegin(); label != sorted.rend(); ++label) {
		backwards.add_value(*label, "v");
	}
	EXPECT_EQ(backwards.as_str(), expected);
}

TEST(labeled_entries, labels_that_differ_in_zero_bytes_are_others) {
	labeled_text_buffer record;
	record.add_value("a", "v");
	EXPECT_TRUE(record.has_label("a"));
	for (std::size_t count = 1; count != 12; ++count) {
		EXPECT_FALSE(record.has_label(std::string("a").append(count, '\0'))) << count;
		EXPECT_FALSE(record.has_label(std::string(count, '\0').append("a"))) << count;
		EXPECT_FALSE(record.has_label(std::string(count, '\0'))) << count;
	}
	EXPECT_FALSE(record.has_label(""));
}

// The longest length that fits, and the shortest that doesn't, stand at the very begin.
TEST(labeled_entries, texts_that_grow_by_one_byte_are_exact) {
	for (std::size_t const label_size : {9U, 10U, 11U, 99U, 100U, 101U}) {
		std::string const label(label_size, 'a');
		labeled_text_buffer reused;
		for (std::size_t size = 900; size != 1400; ++size) {
			reused.add_value(label, std::string(size, 'x'));
			ASSERT_EQ(reused.as_str(), framed_string(label) + framed_string(std::string(size, 'x')));
		}
	}
}

// The length of a string has one to four digits, and the text fits what is at hand or doesn't.
TEST(labeled_entries, texts_of_every_size_are_exact) {
	labeled_text_buffer reused;
	for (std::size_t size = 0; size != 1200; ++size) {
		std::string const value(size, 'x');
		std::string const expected = framed("1SaS") + framed_string(value);
		labeled_text_buffer fresh;
		fresh.add_value("a", value);
		ASSERT_EQ(fresh.as_str(), expected);
		ASSERT_EQ(fresh.as_str(), expected);
		reused.add_value("a", value);
		ASSERT_EQ(reused.as_str(), expected);
	}
	for (std::size_t size = 1200; size != 0; --size) {
		reused.add_value("a", std::string(size, 'x'));
		ASSERT_EQ(reused.as_str(), framed("1SaS") + framed_string(std::string(size, 'x')));
	}
	for (std::size_t const size : {9999U, 10000U, 99999U, 100000U, 5U, 3000U}) {
		reused.add_value("a", std::string(size, 'x'));
		ASSERT_EQ(reused.as_str(), framed("1SaS") + framed_string(std::string(size, 'x')));
	}
}

TEST(labeled_entries, text_of_each_string_class_is_that_of_the_value) {
	labeled_text_buffer record;
	record.add_value("a", std::string("a\0b", 3));
	record.add_value("b", quor::strings::ustring8("\xC3\x84"));
	record.add_value("c", quor::strings::ustring16(QUOR_W("\u00C4")));
	record.add_value("d", "literal");
	record.add_value("e", quor::types::nil);
	record.add_value("f", std::string());
	EXPECT_EQ(record.as_str(), framed("1SaS3S") + std::string("a\0b", 3) +
	                               framed("S1SbS2S\xC3\x84S1ScS2S\xC3\x84S1SdS7SliteralS1SeS0SS1SfS0SS"));
}

// A text stays until the next `as_str` or `assign`, whatever becomes of the entries.
TEST(labeled_entries, text_outlives_the_entries) {
	labeled_text_buffer record;
	labeled_serialize_buffer *const group = record.create_group("g");
	EXPECT_EQ(group->as_str(), "");
	group->add_value("a", 1);
	std::string const &text = group->as_str();
	std::string const expected = text;
	EXPECT_EQ(record.create_group("g"), group);
	EXPECT_TRUE(group->is_empty());
	EXPECT_EQ(text, expected);
	labeled_text_buffer other;
	other.create_group("g")->add_value("b", 2);
	record.overlay(other);
	EXPECT_EQ(text, expected);
	group->add_value("c", 3);
	EXPECT_EQ(text, expected);
	EXPECT_EQ(group->as_str(), framed("1SbS1S2S1ScS1S3S"));
}

TEST(labeled_entries, empty_group_has_no_text) {
	labeled_text_buffer record;
	labeled_serialize_buffer *const group = record.create_group("g");
	group->add_value("a", 1);
	EXPECT_NE(group->as_str(), "");
	record.create_group("g");
	EXPECT_EQ(group->as_str(), "");
	EXPECT_EQ(record.as_str(), framed("1SgS0SS"));
}

TEST(labeled_entries, group_has_one_address_before_and_after_it_is_filled) {
	labeled_text_buffer record;
	record.add_value("a", 1);
	labeled_text_buffer const &seen = record;
	labeled_serialize_buffer const *const group = seen.retrieve_group("a");
	ASSERT_NE(group, nullptr);
	EXPECT_TRUE(group->is_empty());
	EXPECT_FALSE(record.has_group("a"));
	for (int i = 0; i != 100; ++i) {
		record.add_value(std::to_string(i), i);
	}
	EXPECT_EQ(record.retrieve_group("a"), group);
	EXPECT_EQ(record.create_group("a"), group);
	record.create_group("a")->add_value("b", 2);
	EXPECT_TRUE(record.has_group("a"));
	EXPECT_EQ(record.retrieve_group("a"), group);
	EXPECT_EQ(record.retrieve_value("a").as_int(), 1);
}

// Count and mark of a group are copied with it, as those of records are.
TEST(labeled_entries, copied_groups_carry_their_count) {
	labeled_text_buffer record;
	record.add_value("unasked", 1);
	rc_pointer<labeled_serialize_buffer> const first(record.create_group("g"));
	rc_pointer<labeled_serialize_buffer> const second(record.retrieve_group("g"));
	labeled_text_buffer copy(record);
	EXPECT_EQ(copy.retrieve_group("g")->get_ref_count(), 2U);
	EXPECT_FALSE(copy.retrieve_group("g")->is_created_dynamic());
	EXPECT_EQ(copy.retrieve_group("unasked")->get_ref_count(), 0U);
	record.create_group("g");
	EXPECT_EQ(first->get_ref_count(), 2U);
}

// Entries that move to another record are there after their own has gone, in every number.
TEST(labeled_entries, moved_entries_outlive_their_record) {
	for (std::size_t count = 0; count != 40; ++count) {
		labeled_text_buffer target;
		target.add_value("k", "old");
		auto *const kept = target.create_group("kept");
		kept->add_value("k", "old");
		for (std::size_t round = 0; round != 3; ++round) {
			auto source = std::make_unique<labeled_text_buffer>();
			for (std::size_t i = 0; i != count; ++i) {
				std::string const label = std::to_string(100 * round + i);
				source->add_value(label, label);
				source->create_group("kept")->add_value(label, label);
				source->create_group(label)->add_value("inner", label);
			}
			source->add_value("k", "new");
			target.overlay(*source);
			source.reset();
		}
		EXPECT_EQ(target.retrieve_value("k").as_string(), "new");
		EXPECT_EQ(target.retrieve_group("kept"), kept);
		EXPECT_EQ(kept->retrieve_value("k").as_string(), "old");
		for (std::size_t round = 0; round != 3; ++round) {
			for (std::size_t i = 0; i != count; ++i) {
				std::string const label = std::to_string(100 * round + i);
				ASSERT_EQ(target.retrieve_value(label).as_string(), label);
				ASSERT_EQ(target.retrieve_group(label)->retrieve_value("inner").as_string(), label);
			}
		}
	}
}

} // namespace
