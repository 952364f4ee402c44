#include <quor/serialization/labeled_text_buffer.hpp>

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include <quor/memory/pointers/rc_pointer.hpp>

#include "serialization/slots.hpp"
#include "support/labeled_records.hpp"

namespace {

namespace quor = QUOR_2_9;
using quor::generic::abilities::create_dynamic;
using quor::serialization::labeled_serialize_buffer;
using quor::serialization::labeled_text_buffer;
using quor::types::nil;
using quor_test::framed;
using quor_test::spelled;

std::string text_of(labeled_serialize_buffer const &record) {
	return spelled(record.as_str());
}

labeled_text_buffer read(std::string const &text) {
	return labeled_text_buffer(framed(text));
}

// A group with the operations of its class.
labeled_text_buffer &group_of(labeled_serialize_buffer &record, std::string const &label) {
	return dynamic_cast<labeled_text_buffer &>(*record.retrieve_group(label));
}

TEST(labeled_text_buffer, new_record_is_empty) {
	labeled_text_buffer const record;
	EXPECT_TRUE(record.is_empty());
	EXPECT_EQ(record.as_str(), "");
	EXPECT_FALSE(record.has_label(""));
	EXPECT_FALSE(record.has_value(""));
	EXPECT_FALSE(record.has_group(""));
	EXPECT_TRUE(record.retrieve_value("") == nil);
	EXPECT_EQ(record.retrieve_group(""), nullptr);
}

TEST(labeled_text_buffer, texts_of_every_kind_compile) {
	using quor::strings::ustring8;
	char const *const pointer = "1\x01p\x01"
	                            "1\x01v\x01";
	std::string const text = pointer;
	ustring8 const utf8 = pointer;
	EXPECT_EQ(labeled_text_buffer(pointer).as_str(), text);
	EXPECT_EQ(labeled_text_buffer(utf8).as_str(), text);
	labeled_text_buffer record;
	labeled_serialize_buffer &base = record;
	EXPECT_EQ(record.assign(pointer).assign(utf8).assign(text).as_str(), text);
	EXPECT_EQ(base.assign(pointer).assign(utf8).as_str(), text);
	EXPECT_EQ((record = utf8).as_str(), text);
	EXPECT_EQ((base = pointer).as_str(), text);
	EXPECT_EQ((base = utf8).as_str(), text);
	EXPECT_EQ(record.add_value(ustring8("u"), 0), labeled_serialize_buffer::value_stored);
	EXPECT_EQ(record.add_value("u", 1L), labeled_serialize_buffer::value_replaced);
	record.add_value("u", 1UL);
	record.add_value("u", 1ULL);
	record.add_value("u", 1.5F);
	record.add_value("u", utf8);
	record.add_value("u", pointer);
	record.create_group(ustring8("g"))->create_group("h")->add_value("i", 'c');
	labeled_text_buffer const &constant = record;
	EXPECT_TRUE(constant.has_label(ustring8("u")));
	EXPECT_TRUE(constant.has_value("u"));
	EXPECT_TRUE(constant.has_group(std::string("g")));
	EXPECT_EQ(constant.retrieve_value(ustring8("u")).as_string(), text);
	EXPECT_EQ(constant.retrieve_group("g")->retrieve_group("h")->retrieve_value("i").as_int(), 'c');
}

TEST(labeled_text_buffer, labels_are_stripped_of_four_bytes) {
	struct row {
		std::string given;
		std::string stored;
	};
	using namespace std::string_literals;
	std::vector<row> const rows{
	    {"a", "a"},
	    {" a", "a"},
	    {"a ", "a"},
	    {"\n\r\t a\t\r\n ", "a"},
	    {"  x\n", "x"},
	    {"a b", "a b"},
	    {" a \t b ", "a \t b"},
	    {"\va\v", "\va\v"},
	    {"\fa\f", "\fa\f"},
	    {"\0a\0"s, "\0a\0"s},
	    {"\xA0"
	     "a\xA0",
	     "\xA0"
	     "a\xA0"},
	    {"\x01 a \x01", "\x01 a \x01"},
	    {"\b a", "\b a"},
	    {"", ""},
	    {" \t\r\n", ""},
	    {"\x1F", "\x1F"},
	    {"!", "!"},
	    {"\x85 ", "\x85"},
	};
	for (row const &one : rows) {
		SCOPED_TRACE(testing::PrintToString(one.given));
		labeled_text_buffer record;
		EXPECT_EQ(record.add_value(one.given, 1), labeled_serialize_buffer::value_stored);
		EXPECT_TRUE(record.has_label(one.stored));
		EXPECT_EQ(record.has_label(one.given), one.given == one.stored);
		EXPECT_EQ(record.has_value(one.given), one.given == one.stored);
		EXPECT_EQ(record.retrieve_value(one.given) == nil, one.given != one.stored);
		EXPECT_EQ(record.add_value(one.stored, 2), labeled_serialize_buffer::value_replaced);
		labeled_serialize_buffer *const group = record.create_group(one.given);
		group->add_value("in", 1);
		EXPECT_EQ(record.retrieve_group(one.stored), group);
		EXPECT_EQ(record.retrieve_group(one.given) == group, one.given == one.stored);
		EXPECT_EQ(record.has_group(one.given), one.given == one.stored);
		EXPECT_EQ(record.retrieve_value(one.stored).as_int(), 2);
	}
}

TEST(labeled_text_buffer, every_byte_can_be_in_a_label) {
	labeled_text_buffer record;
	for (int byte = 0; byte != 256; ++byte) {
		record.add_value(std::string("<") + static_cast<char>(byte) + ">", byte);
	}
	labeled_text_buffer const back(record.as_str());
	for (int byte = 0; byte != 256; ++byte) {
		EXPECT_EQ(back.retrieve_value(std::string("<") + static_cast<char>(byte) + ">").as_int(), byte);
	}
	EXPECT_EQ(back.as_str(), record.as_str());
}

TEST(labeled_text_buffer, labels_stand_in_the_order_of_unsigned_bytes) {
	labeled_text_buffer record;
	for (char const *const label : {"\xFF", "b", "\x80", "aa", "B", "a", "\x7F", "10", "2"}) {
		record.add_value(label, "");
	}
	EXPECT_EQ(text_of(record), "2S10S0SS1S2S0SS1SBS0SS1SaS0SS2SaaS0SS1SbS0SS1S\x7FS0SS1S\x80S0SS1S\xFFS0SS");
}

TEST(labeled_text_buffer, add_value_tells_whether_there_was_one) {
	labeled_text_buffer record;
	EXPECT_EQ(record.add_value("a", nil), labeled_serialize_buffer::value_stored);
	EXPECT_TRUE(record.has_label("a"));
	EXPECT_FALSE(record.has_value("a"));
	EXPECT_FALSE(record.is_empty());
	EXPECT_EQ(record.add_value("a", 1), 0);
	EXPECT_EQ(record.add_value("a", "two"), 1);
	EXPECT_EQ(record.retrieve_value("a").as_string(), "two");
	EXPECT_EQ(record.add_value("a", nil), 1);
	EXPECT_FALSE(record.has_value("a"));
	EXPECT_TRUE(record.has_label("a"));
	EXPECT_EQ(record.add_value("a", ""), 0);
	EXPECT_TRUE(record.has_value("a"));
	record.create_group("g");
	EXPECT_EQ(record.add_value("g", 1), 0);
	EXPECT_EQ(record.add_value("g", 2), 1);
}

TEST(labeled_text_buffer, values_keep_their_type_until_they_are_text) {
	labeled_text_buffer record;
	record.add_value("n", 5);
	record.add_value("d", 5.0);
	EXPECT_TRUE(record.retrieve_value("n").type() == typeid(int));
	EXPECT_TRUE(record.retrieve_value("d").type() == typeid(double));
	record.assign(record.as_str());
	EXPECT_TRUE(record.retrieve_value("n").type() == typeid(std::string));
	EXPECT_EQ(record.retrieve_value("n").as_string(), "5");
	EXPECT_EQ(record.retrieve_value("d").as_string(), "5.");
}

TEST(labeled_text_buffer, groups_are_there_and_empty_until_something_is_added) {
	labeled_text_buffer record;
	record.add_value("a", 1);
	labeled_serialize_buffer *const group = record.retrieve_group("a");
	ASSERT_NE(group, nullptr);
	EXPECT_TRUE(group->is_empty());
	EXPECT_FALSE(record.has_group("a"));
	labeled_text_buffer const &constant = record;
	EXPECT_EQ(constant.retrieve_group("a"), group);
	EXPECT_EQ(constant.retrieve_group("b"), nullptr);
	EXPECT_EQ(record.retrieve_group("b"), nullptr);
	EXPECT_FALSE(record.has_group("b"));
	group->add_value("x", nil);
	EXPECT_TRUE(record.has_group("a"));
}

TEST(labeled_text_buffer, create_group_keeps_value_and_address) {
	labeled_text_buffer record;
	record.add_value("g", "v");
	labeled_serialize_buffer *const entry = record.retrieve_group("g");
	labeled_serialize_buffer *const group = record.create_group(" g ");
	EXPECT_EQ(group, entry);
	group->add_value("x", 1);
	group->create_group("y")->add_value("z", 1);
	for (int i = 0; i != 100; ++i) {
		record.add_value("other" + std::to_string(i), i);
	}
	EXPECT_EQ(record.retrieve_group("g"), group);
	EXPECT_EQ(record.create_group("g"), group);
	EXPECT_TRUE(group->is_empty());
	EXPECT_EQ(record.retrieve_value("g").as_string(), "v");
	labeled_serialize_buffer *const fresh = record.create_group("h");
	EXPECT_TRUE(fresh->is_empty());
	EXPECT_TRUE(record.has_label("h"));
	EXPECT_FALSE(record.has_value("h"));
	EXPECT_FALSE(record.has_group("h"));
}

TEST(labeled_text_buffer, as_str_can_be_asked_for_again) {
	labeled_text_buffer record;
	record.add_value("a", 1);
	record.create_group("g")->add_value("b", "2");
	std::string const &first = record.as_str();
	EXPECT_EQ(spelled(first), "1SaS1S1S2Sg S8S1SbS1S2SS");
	std::string const &second = record.as_str();
	EXPECT_EQ(&first, &second);
	EXPECT_EQ(spelled(second), "1SaS1S1S2Sg S8S1SbS1S2SS");
	record.add_value("a", "a longer text than before");
	EXPECT_EQ(text_of(record), "1SaS25Sa longer text than beforeS2Sg S8S1SbS1S2SS");
	record.add_value("a", "");
	EXPECT_EQ(text_of(record), "1SaS0SS2Sg S8S1SbS1S2SS");
}

TEST(labeled_text_buffer, assign_empties_the_text_that_was_written) {
	labeled_text_buffer const other = read("1SbS1S2S");
	labeled_serialize_buffer const &base = other;
	labeled_text_buffer record;
	std::string const &text = record.as_str();
	record.add_value("a", 1);
	record.as_str();
	record.assign(framed("1SaS1S1S"));
	EXPECT_EQ(text, "");
	record.as_str();
	record.assign(other);
	EXPECT_EQ(text, "");
	record.as_str();
	record.assign(base);
	EXPECT_EQ(text, "");
	EXPECT_EQ(text_of(record), "1SbS1S2S");
}

TEST(labeled_text_buffer, groups_texts_outlive_that_of_their_record) {
	labeled_text_buffer record;
	labeled_serialize_buffer *const group = record.create_group("g");
	group->add_value("b", 2);
	std::string const &inner = group->as_str();
	std::string const &outer = record.as_str();
	EXPECT_TRUE(record.has_group("g"));
	EXPECT_EQ(spelled(inner), "1SbS1S2S");
	EXPECT_EQ(spelled(outer), "2Sg S8S1SbS1S2SS");
}

TEST(labeled_text_buffer, constructors_and_assignments_take_what_they_tell) {
	labeled_text_buffer source;
	source.add_value("n", nil);
	source.add_value("i", 7);
	labeled_serialize_buffer const &base = source;
	std::string const text = source.as_str();

	labeled_text_buffer const copied(source);
	EXPECT_TRUE(copied.retrieve_value("n") == nil);
	EXPECT_TRUE(copied.retrieve_value("i").type() == typeid(int));

	labeled_text_buffer target;
	target = source;
	EXPECT_TRUE(target.retrieve_value("i").type() == typeid(int));
	target = base;
	EXPECT_TRUE(target.retrieve_value("n").type() == typeid(std::string));
	EXPECT_TRUE(target.retrieve_value("i").type() == typeid(std::string));
	static_assert(std::is_same_v<decltype(target.assign(source)), labeled_text_buffer &>);
	EXPECT_EQ(&target.assign(source), &target);
	EXPECT_TRUE(target.retrieve_value("n") == nil);
	EXPECT_EQ(&target.assign(base), &target);
	EXPECT_TRUE(target.retrieve_value("n").type() == typeid(std::string));
	labeled_serialize_buffer &target_base = target;
	target_base.assign(base);
	EXPECT_TRUE(target.retrieve_value("n").type() == typeid(std::string));
	target_base = base;
	EXPECT_TRUE(target.retrieve_value("i").type() == typeid(std::string));

	labeled_text_buffer const from_text(text);
	EXPECT_EQ(from_text.as_str(), text);
	target = text;
	EXPECT_EQ(target.as_str(), text);
	target = "1\x01x\x01"
	         "1\x01y\x01";
	EXPECT_EQ(text_of(target), "1SxS1SyS");
	target.assign("1\x01z\x01");
	EXPECT_EQ(text_of(target), "1SzS0SS");
}

TEST(labeled_text_buffer, assign_of_bytes_takes_what_is_there) {
	std::string const bytes = framed("1SaS1S1S1SbS1S2S");
	labeled_text_buffer record;
	EXPECT_EQ(&record.assign(bytes.data(), 8), &record);
	EXPECT_EQ(text_of(record), "1SaS1S1S");
	record.assign(bytes.data(), static_cast<int>(bytes.size()));
	EXPECT_EQ(record.as_str(), bytes);
	record.assign(bytes.data(), 0);
	EXPECT_TRUE(record.is_empty());
	for (int const length : {-1, -2147483647 - 1, 0, 5}) {
		record.assign(bytes);
		record.assign(nullptr, length);
		EXPECT_TRUE(record.is_empty()) << length;
	}
	record.assign(bytes);
	record.assign(bytes.data(), -1);
	EXPECT_TRUE(record.is_empty());
}

TEST(labeled_text_buffer, copies_are_deep) {
	labeled_text_buffer source = read("2Sg S8S1SbS1S2SS1SgS1S1S");
	labeled_text_buffer copy(source);
	copy.add_value("g", "other");
	copy.retrieve_group("g")->create_group("c")->add_value("d", 1);
	EXPECT_EQ(text_of(source), "1SgS1S1S2Sg S8S1SbS1S2SS");
	source.create_group("g");
	EXPECT_EQ(text_of(copy), "1SgS5SotherS2Sg S24S1SbS1S2S2Sc S8S1SdS1S1SSS");
}

TEST(labeled_text_buffer, create_and_clone_make_records_on_the_heap) {
	labeled_text_buffer record = read("1SaS1S1S2Sg S8S1SbS1S2SS");
	labeled_serialize_buffer const &base = record;
	std::unique_ptr<labeled_serialize_buffer> const created(base.create());
	EXPECT_NE(dynamic_cast<labeled_text_buffer *>(created.get()), nullptr);
	EXPECT_TRUE(created->is_empty());
	EXPECT_TRUE(created->is_created_dynamic());
	EXPECT_EQ(created->get_ref_count(), 0U);
	std::unique_ptr<labeled_serialize_buffer> const cloned(base.clone());
	EXPECT_EQ(cloned->as_str(), record.as_str());
	EXPECT_TRUE(cloned->is_created_dynamic());
	EXPECT_EQ(cloned->get_ref_count(), 0U);
	EXPECT_FALSE(record.is_created_dynamic());
	quor::memory::pointers::rc_pointer<labeled_serialize_buffer> const held(record.clone());
	EXPECT_EQ(held->get_ref_count(), 1U);
	EXPECT_FALSE(held->retrieve_group("g")->is_created_dynamic());
}

TEST(labeled_text_buffer, copies_carry_count_and_mark_and_assignments_do_not) {
	std::unique_ptr<labeled_text_buffer> const source(create_dynamic<labeled_text_buffer>());
	source->create_group("g")->inc_pointer_ref();
	source->inc_pointer_ref();
	source->inc_pointer_ref();
	labeled_text_buffer const copy(*source);
	EXPECT_EQ(copy.get_ref_count(), 2U);
	EXPECT_TRUE(copy.is_created_dynamic());
	EXPECT_EQ(copy.retrieve_group("g")->get_ref_count(), 1U);
	std::unique_ptr<labeled_serialize_buffer> const clone(source->clone());
	EXPECT_EQ(clone->get_ref_count(), 2U);

	labeled_text_buffer target;
	target.inc_pointer_ref();
	labeled_serialize_buffer const &base = *source;
	target = *source;
	target.assign(*source);
	EXPECT_EQ(target.retrieve_group("g")->get_ref_count(), 1U);
	target = base;
	target.assign(base);
	target.overlay(*source);
	EXPECT_EQ(target.get_ref_count(), 1U);
	EXPECT_FALSE(target.is_created_dynamic());
}

TEST(labeled_text_buffer, assignment_to_itself_changes_nothing) {
	labeled_text_buffer record;
	record.add_value("n", nil);
	record.create_group("g")->add_value("i", 5);
	labeled_serialize_buffer *const group = record.retrieve_group("g");
	labeled_serialize_buffer const &base = record;
	labeled_text_buffer const &same = record;
	record = same;
	record.assign(same);
	record = base;
	record.assign(base);
	record.overlay(same);
	EXPECT_TRUE(record.retrieve_value("n") == nil);
	EXPECT_EQ(record.retrieve_group("g"), group);
	EXPECT_TRUE(group->retrieve_value("i").type() == typeid(int));
	record.assign(record.as_str());
	EXPECT_EQ(text_of(record), "2Sg S8S1SiS1S5SS1SnS0SS");
}

struct overlay_row {
	char const *name;
	char const *here;
	char const *there;
	char const *result;
};

TEST(labeled_text_buffer, overlay_adds_what_another_record_has) {
	overlay_row const rows[] = {
	    {"nothing onto nothing", "", "", ""},
	    {"nothing", "1SaS1S1S", "", "1SaS1S1S"},
	    {"onto nothing", "", "1SaS1S1S2Sg S8S1SbS1S2SS", "1SaS1S1S2Sg S8S1SbS1S2SS"},
	    {"other labels", "1SbS1S2S", "1SaS1S1S1ScS1S3S", "1SaS1S1S1SbS1S2S1ScS1S3S"},
	    {"a value onto a value", "1SaS1S1S", "1SaS1S2S", "1SaS1S2S"},
	    {"a value onto a group", "2Sa S8S1SbS1S2SS", "1SaS1S1S", "1SaS1S1S2Sa S8S1SbS1S2SS"},
	    {"a group onto a value", "1SaS1S1S", "2Sa S8S1SbS1S2SS", "1SaS1S1S2Sa S8S1SbS1S2SS"},
	    {"a group onto none", "1SxS1S1S", "2Sa S8S1SbS1S2SS", "2Sa S8S1SbS1S2SS1SxS1S1S"},
	    {"a group onto a group", "2Sa S8S1SbS1S2SS", "2Sa S16S1SbS1S3S1ScS1S4SS", "2Sa S16S1SbS1S3S1ScS1S4SS"},
	    {"both onto both", "1SaS1S1S2Sa S8S1SbS1S2SS", "1SaS1S5S2Sa S8S1ScS1S6SS", "1SaS1S5S2Sa S16S1SbS1S2S1ScS1S6SS"},
	    {"groups in groups", "2Sa S16S2Sb S8S1ScS1S1SSS", "2Sa S16S2Sb S8S1SdS1S2SSS",
	     "2Sa S25S2Sb S16S1ScS1S1S1SdS1S2SSS"},
	};
	for (overlay_row const &one : rows) {
		SCOPED_TRACE(one.name);
		labeled_text_buffer here = read(one.here);
		labeled_text_buffer const there = read(one.there);
		here.overlay(there);
		EXPECT_EQ(text_of(here), one.result);
		EXPECT_EQ(text_of(there), one.there);
	}
}

TEST(labeled_text_buffer, overlay_takes_a_value_away_but_no_group) {
	labeled_text_buffer here;
	here.add_value("a", 1);
	here.create_group("a")->add_value("b", 2);
	labeled_serialize_buffer *const group = here.retrieve_group("a");
	labeled_text_buffer there;
	there.add_value("a", nil);
	here.overlay(there);
	EXPECT_TRUE(here.has_label("a"));
	EXPECT_FALSE(here.has_value("a"));
	EXPECT_EQ(here.retrieve_group("a"), group);
	EXPECT_EQ(text_of(*group), "1SbS1S2S");
	// With a group, a nil value leaves the one here.
	here.add_value("a", 3);
	there.create_group("a")->add_value("c", 4);
	here.overlay(there);
	EXPECT_TRUE(here.retrieve_value("a").type() == typeid(int));
	EXPECT_EQ(here.retrieve_group("a"), group);
	EXPECT_EQ(text_of(here), "1SaS1S3S2Sa S16S1SbS1S2S1ScS1S4SS");
	// What is copied is apart from its source.
	there.retrieve_group("a")->add_value("c", 5);
	EXPECT_EQ(group->retrieve_value("c").as_int(), 4);
}

TEST(labeled_text_buffer, overlay_keeps_groups_that_were_empty_at_their_address) {
	labeled_text_buffer here;
	labeled_serialize_buffer *const group = here.create_group("a");
	here.overlay(read("2Sa S8S1SbS1S2SS"));
	EXPECT_EQ(here.retrieve_group("a"), group);
	EXPECT_EQ(text_of(*group), "1SbS1S2S");
}

TEST(labeled_text_buffer, own_groups_can_be_assigned_and_laid_over) {
	std::string const text = "1SaS1S1S2Sg S24S1SaS1S2S2Sh S8S1SaS1S3SSS";
	std::string const group_text = "1SaS1S2S2Sh S8S1SaS1S3SS";
	{
		labeled_text_buffer record = read(text);
		record.assign(group_of(record, "g"));
		EXPECT_EQ(text_of(record), group_text);
		record = group_of(record, "h");
		EXPECT_EQ(text_of(record), "1SaS1S3S");
	}
	{
		labeled_text_buffer record = read(text);
		record.assign(*record.retrieve_group("g"));
		EXPECT_EQ(text_of(record), group_text);
		record.assign(record.retrieve_group("h")->as_str());
		EXPECT_EQ(text_of(record), "1SaS1S3S");
	}
	{
		labeled_text_buffer record = read(text);
		record.overlay(group_of(record, "g"));
		EXPECT_EQ(text_of(record), "1SaS1S2S2Sg S24S1SaS1S2S2Sh S8S1SaS1S3SSS2Sh S8S1SaS1S3SS");
	}
	{
		labeled_text_buffer record = read(text);
		group_of(record, "g").assign(record);
		EXPECT_EQ(text_of(record), "1SaS1S1S2Sg S41S" + text + "S");
	}
	{
		labeled_text_buffer record = read(text);
		labeled_serialize_buffer const &base = record;
		record.retrieve_group("g")->assign(base);
		EXPECT_EQ(text_of(record), "1SaS1S1S2Sg S41S" + text + "S");
	}
	{
		labeled_text_buffer record = read("1SaS1S1S2Sg S8S1SbS1S2SS");
		group_of(record, "g").overlay(record);
		EXPECT_EQ(text_of(record), "1SaS1S1S2Sg S32S1SaS1S1S1SbS1S2S2Sg S8S1SbS1S2SSS");
	}
}

TEST(labeled_text_buffer, labels_can_be_texts_of_the_record) {
	labeled_text_buffer record;
	labeled_serialize_buffer *const group = record.create_group("g");
	group->add_value("x", 1);
	std::string const label = group->as_str();
	record.create_group(group->as_str())->add_value("y", 2);
	EXPECT_TRUE(record.has_group(label));
	std::string const text = record.as_str();
	record.add_value(record.as_str(), record.retrieve_value(label));
	EXPECT_TRUE(record.has_label(text));
	labeled_serialize_buffer *const same = record.retrieve_group(label);
	same->create_group(label);
	EXPECT_EQ(record.create_group(group->as_str()), same);
	EXPECT_TRUE(same->is_empty());
}

// A class that watches the texts that it is assigned.
class watching_record : public labeled_text_buffer {
public:
	using labeled_text_buffer::assign;
	labeled_serialize_buffer &assign(std::string const &text) override {
		texts.push_back(spelled(text));
		return labeled_text_buffer::assign(text);
	}

	std::vector<std::string> texts;
};

// A class with a text of its own.
class stating_record : public labeled_text_buffer {
public:
	std::string const &as_str() const override { return text; }

	std::string text = framed("1StS1SvS");
};

TEST(labeled_text_buffer, another_class_is_asked_for_its_text) {
	stating_record source;
	source.add_value("a", 1);
	labeled_serialize_buffer const &base = source;
	labeled_text_buffer record;
	record.assign(base);
	EXPECT_EQ(text_of(record), "1StS1SvS");
	static_cast<labeled_serialize_buffer &>(record) = base;
	EXPECT_EQ(text_of(record), "1StS1SvS");
	record.assign(source);
	EXPECT_EQ(text_of(record), "1SaS1S1S");
}

TEST(labeled_text_buffer, all_texts_go_through_one_operation) {
	watching_record record;
	labeled_text_buffer const other = read("1SaS1S1S");
	labeled_serialize_buffer const &base = other;
	std::string const bytes = framed("1SbS1S2S");
	record.assign(bytes.data(), 8);
	record.assign(base);
	static_cast<labeled_serialize_buffer &>(record) = bytes;
	record.assign(other);
	EXPECT_EQ(record.texts, (std::vector<std::string>{"1SbS1S2S", "1SaS1S1S", "1SbS1S2S"}));
	EXPECT_EQ(text_of(record), "1SaS1S1S");
}

#if defined(QUOR_TESTS_KNOW_SLOTS)

TEST(labeled_text_buffer, its_own_assign_is_the_last_slot) {
	using record = labeled_text_buffer;
	using quor_test::slot_of;
	EXPECT_EQ(slot_of(static_cast<record &(record::*)(record const &)>(&record::assign)), 16U);
	EXPECT_EQ(
	    slot_of(static_cast<labeled_serialize_buffer &(record::*)(labeled_serialize_buffer const &)>(&record::assign)),
	    3U);
	EXPECT_EQ(slot_of(&record::create), 14U);
	EXPECT_EQ(slot_of(&record::clone), 15U);
}

#endif

} // namespace
