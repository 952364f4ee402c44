// Texts of labeled records: what is written, what is read, and what damage does.

#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <quor/quor.hpp>

#include "reference/labeled_record.hpp"
#include "support/comma_locale.hpp"
#include "support/labeled_records.hpp"

namespace {

using quor::serialization::labeled_serialize_buffer;
using quor::serialization::labeled_text_buffer;
using quor::types::nil;
using quor::types::variant;
using quor_test::difference;
using quor_test::framed;
using quor_test::framed_string;
using quor_test::spelled;

using namespace std::string_literals;

std::string text_of(labeled_serialize_buffer const &record) {
	return spelled(record.as_str());
}

TEST(labeled_text_format, values_are_written_as_their_text) {
	struct row {
		char const *name;
		variant value;
		std::string text;
	};
	std::vector<row> const rows{
	    {"nil", nil, ""},
	    {"int", -5, "-5"},
	    {"signed char", static_cast<signed char>(65), "65"},
	    {"unsigned char", static_cast<unsigned char>(255), "255"},
	    {"smallest of 64 bits", variant(static_cast<quor::types::int64>(-9223372036854775807LL - 1)), "-O"},
	    {"largest of 64 bits", variant(static_cast<quor::types::uint64>(18446744073709551615ULL)),
	     "18446744073709551615"},
	    {"long", variant(quor::types::long_t(-2147483647 - 1)), "-2147483648"},
	    {"bool", true, "1"},
	    {"double", 5.0, "5."},
	    {"double 0", 0.0, "0"},
	    {"large double", 1e10, "1.e+010"},
	    {"long double", variant(5.0L), "5"},
	    {"long double 0", variant(0.0L), "0"},
	    {"text", "abc", "abc"},
	    {"empty text", "", ""},
	    {"text with zeros", variant("a\0b"s), "a\0b"s},
	    {"text with separators", variant(framed("1SaS")), framed("1SaS")},
	    {"wide text", variant(quor::strings::ustring16(QUOR_W("\u00C4"))), "\xC3\x84"},
	    {"malformed wide text", variant(quor::strings::ustring16(1, static_cast<quor::types::wide_char>(0xD800))),
	     "-1"},
	};
	quor_test::comma_locale const locale;
	for (row const &one : rows) {
		SCOPED_TRACE(one.name);
		labeled_text_buffer record;
		record.add_value("v", one.value);
		EXPECT_EQ(record.as_str(), framed("1SvS") + framed_string(one.text));
		labeled_text_buffer const back(record.as_str());
		EXPECT_TRUE(back.retrieve_value("v").type() == typeid(std::string));
		EXPECT_EQ(back.retrieve_value("v").as_string(), one.text);
	}
}

TEST(labeled_text_format, lengths_have_no_marks_of_thousands) {
	quor_test::comma_locale const locale;
	labeled_text_buffer record;
	record.add_value("v", std::string(1234567, 'x'));
	EXPECT_EQ(record.as_str().substr(0, 12), framed("1SvS1234567S"));
	EXPECT_EQ(labeled_text_buffer(record.as_str()).retrieve_value("v").as_string().size(), 1234567U);
}

TEST(labeled_text_format, labels_give_a_value_a_group_or_both) {
	labeled_text_buffer record;
	EXPECT_EQ(text_of(record), "");
	record.create_group("g");
	EXPECT_EQ(text_of(record), "1SgS0SS");
	record.create_group("g")->add_value("b", 2);
	EXPECT_EQ(text_of(record), "2Sg S8S1SbS1S2SS");
	record.add_value("g", "v");
	EXPECT_EQ(text_of(record), "1SgS1SvS2Sg S8S1SbS1S2SS");
	record.add_value("g", nil);
	EXPECT_EQ(text_of(record), "2Sg S8S1SbS1S2SS");
	record.create_group("g")->create_group("h");
	EXPECT_EQ(text_of(record), "2Sg S7S1ShS0SSS");
	record.create_group("");
	EXPECT_EQ(text_of(record), "0SS0SS2Sg S7S1ShS0SSS");
	record.create_group("")->add_value("", 1);
	EXPECT_EQ(text_of(record), "1S S7S0SS1S1SS2Sg S7S1ShS0SSS");
}

TEST(labeled_text_format, an_empty_group_comes_back_as_a_value) {
	labeled_text_buffer record;
	record.create_group("g");
	labeled_text_buffer const back(record.as_str());
	EXPECT_TRUE(back.has_value("g"));
	EXPECT_FALSE(back.has_group("g"));
	EXPECT_EQ(back.retrieve_value("g").as_string(), "");
	EXPECT_TRUE(labeled_text_buffer(framed("2Sg S0SS")).retrieve_value("g") == nil);
}

TEST(labeled_text_format, labels_beside_those_of_groups_are_told_apart) {
	labeled_text_buffer record;
	record.create_group("a")->add_value("x", 1);
	record.add_value("a", 2);
	record.add_value("a b", 3);
	record.create_group("a b")->add_value("y", 4);
	EXPECT_EQ(text_of(record), "1SaS1S2S2Sa S8S1SxS1S1SS3Sa bS1S3S4Sa b S8S1SyS1S4SS");
	EXPECT_EQ(labeled_text_buffer(record.as_str()).as_str(), record.as_str());
}

struct parse_row {
	char const *name;
	char const *text;
	/// What is written after the reading.
	char const *read;
};

parse_row const parse_rows[] = {
    {"nothing", "", ""},
    {"a value", "1SaS1S1S", "1SaS1S1S"},
    {"an example", "1SaS1S1S2Sg S8S1SbS1S2SS", "1SaS1S1S2Sg S8S1SbS1S2SS"},
    {"values in any order", "1SbS1S2S1SaS1S1S", "1SaS1S1S1SbS1S2S"},
    {"a later value", "1SaS1S1S1SaS1S2S", "1SaS1S2S"},
    {"a later group", "2Sg S8S1SbS1S2SS2Sg S8S1ScS1S3SS", "2Sg S8S1ScS1S3SS"},
    {"a later empty group", "2Sg S8S1SbS1S2SS2Sg S0SS", "1SgS0SS"},
    {"a group, then a value", "2Sg S8S1SbS1S2SS1SgS1SvS", "1SgS1SvS2Sg S8S1SbS1S2SS"},
    {"a later group beside a value", "1SgS1SvS2Sg S8S1SbS1S2SS2Sg S0SS", "1SgS1SvS"},
    {"blanks around a label", "3S\ta\nS1SvS2S bS1SwS", "1SaS1SvS1SbS1SwS"},
    {"a group with more blanks", "5S\n a  S8S1SbS1S2SS", "2Sa S8S1SbS1S2SS"},
    {"a blank that isn't the last byte", "3Sa \tS1SvS", "1SaS1SvS"},
    {"a group without a name", "1S S8S1SbS1S2SS", "1S S8S1SbS1S2SS"},
    {"a value without a name", "1S\nS1SvS1SbS1S2S", "0SS1SvS1SbS1S2S"},

    {"an empty key", "0SS1SaS1S1S", ""},
    {"an empty key behind others", "1SaS1S1S0SS1SbS1S2S", "1SaS1S1S"},
    {"a key without a value", "1SaS", "1SaS0SS"},
    {"a key without its end", "1Sa", "1SaS0SS"},
    {"a key that is cut", "9Sab", "2SabS0SS"},
    {"a group without its text", "2Sg S", "1SgS0SS"},
    {"a length alone", "1S", ""},
    {"a length that is cut", "1", ""},
    {"no length", "abc", ""},
    {"a separator", "S", ""},
    {"separators", "SSSS", ""},
    {"an empty length of a value", "1SaSSS1SbS1S2S", "1SaS0SS1SbS1S2S"},
    {"a value without its end", "1SaS1S1", "1SaS1S1S"},
    {"a value that is cut", "1SaS5Sxy", "1SaS2SxyS"},
    {"a value's length that is cut", "1SaS5", "1SaS0SS"},
    {"a value's length without a separator", "1SaS5xyz", "1SaS0SS"},
    {"other bytes behind strings", "1Sa?1SvS1Sb!1SwS", "1SaS1SvS1SbS1SwS"},
    {"a length that is too small", "1SabS1SvS", "1SaS0SS"},

    {"hexadecimal lengths", "0x1SaS0X2SxyS", "1SaS2SxyS"},
    {"an octal length", "1SaS010S12345678S", "1SaS8S12345678S"},
    {"a length with a sign", "+1SaS1SvS", "1SaS1SvS"},
    {"a length with more behind it", "1aSaS1SvS", "1SaS1SvS"},
    {"a length with more before it", "a1SaS1SvS", ""},
    {"a large length", "1SaS2147483647SxyS", "1SaS3SxySS"},
    {"a length of 2^31", "1SaS2147483648SxyS", "1SaS3SxySS"},
    {"a length of 2^32-1", "1SaS4294967295SxyS", "1SaS3SxySS"},
    {"a length of 2^32", "1SaS4294967296SxyS", "1SaS3SxySS"},
    {"a length of 2^64", "1SaS18446744073709551616SxyS", "1SaS3SxySS"},
    {"a long length", "1SaS00000000000000000000000000000000000000002SxyS", "1SaS2SxyS"},
    {"a key of a large length", "2147483647SaS1SvS", "6SaS1SvSS0SS"},

    {"a negative length of a key", "-1SabS1SvS", "7SabS1SvSS0SS"},
    {"a negative length of a group's key", "-1Sab ", "2SabS0SS"},
    {"a negative length of nothing", "-1S", ""},
    {"a negative length of a value", "1SaS-8SvS", "1SaS2SvSS"},
    {"a negative length of no value", "1SaS-1S", "1SaS0SS"},
    {"a negative length ends the reading", "1SaS-1S1SbS1S2S", "1SaS8S1SbS1S2SS"},
    {"the smallest length", "1SaS-2147483648SvS", "1SaS2SvSS"},
    {"below the smallest length", "1SaS-99999999999SvS", "1SaS2SvSS"},
    {"a negative length of zero", "1SaS-0SS1SbS1S2S", "1SaS0SS1SbS1S2S"},
    {"a negative length of a group", "2Sg S-1S1SbS1S2S1ScS", "2Sg S15S1SbS1S2S1ScS0SSS"},
    {"a negative length of an empty group", "2Sg S-1S", "1SgS0SS"},
    {"groups of negative lengths", "1S S-1S1S S-1S1SaS1S1S", "1S S15S1S S8S1SaS1S1SSS"},

    {"damage inside of a group", "2Sg S3S5SxS1SaS1S1S", "1SaS1S1S2Sg S7S1SxS0SSS"},
    {"a key without a value in a group", "2Sg S4S1SxSS1SaS1S1S", "1SaS1S1S2Sg S7S1SxS0SSS"},
    {"a negative length inside of a group", "2Sg S7S-1SabcdS1SaS1S1S", "1SaS1S1S2Sg S10S4SabcdS0SSS"},
    {"a large length inside of a group", "2Sg S6S1SbS9SS1SaS1S1S", "1SaS1S1S2Sg S7S1SbS0SSS"},
    {"a length without end inside of a group", "2Sg S5S1SbS9S1SaS1S1S", "1SaS1S1S2Sg S7S1SbS0SSS"},
    {"a group that is no text", "2Sg S3SabcS1SaS1S1S", "1SaS1S1S1SgS0SS"},
    {"a group that is cut", "2Sg S99S1SbS1S2S1ScS", "2Sg S15S1SbS1S2S1ScS0SSS"},
};

TEST(labeled_text_format, texts_are_read_by_the_rules) {
	for (parse_row const &one : parse_rows) {
		SCOPED_TRACE(one.name);
		labeled_text_buffer record;
		record.add_value("before", 1);
		record.create_group("before")->add_value("before", 1);
		EXPECT_EQ(&record.assign(framed(one.text)), &record);
		EXPECT_EQ(text_of(record), one.read);
		quor_reference::labeled_record expected;
		expected.assign(framed(one.text));
		EXPECT_EQ(difference(expected, record), "");
		EXPECT_EQ(difference(expected, labeled_text_buffer(framed(one.text))), "");
	}
}

TEST(labeled_text_format, what_is_cut_short_is_read_as_far_as_it_goes) {
	for (parse_row const &one : parse_rows) {
		std::string const text = framed(one.text);
		for (std::size_t size = 0; size != text.size(); ++size) {
			SCOPED_TRACE(std::string(one.name) + " cut at " + std::to_string(size));
			quor_reference::labeled_record expected;
			expected.assign(text.substr(0, size));
			EXPECT_EQ(difference(expected, labeled_text_buffer(text.substr(0, size))), "");
		}
	}
}

TEST(labeled_text_format, any_byte_may_be_another) {
	std::string const text = framed("1SaS1S1S2Sg S24S1SbS1S2S2Sh S8S1ScS1S3SSS1SnS2S-5S");
	for (std::size_t place = 0; place != text.size(); ++place) {
		for (int byte = 0; byte != 256; ++byte) {
			std::string damaged = text;
			damaged[place] = static_cast<char>(byte);
			SCOPED_TRACE(testing::PrintToString(damaged));
			quor_reference::labeled_record expected;
			expected.assign(damaged);
			labeled_text_buffer const record(damaged);
			ASSERT_EQ(difference(expected, record), "");
		}
	}
}

// Groups that each hold one, with a value in the innermost.
std::string nested_text(std::size_t depth) {
	std::string text = framed("1SvS1S1S");
	for (std::size_t i = 0; i != depth; ++i) {
		text = framed("2Sg S") + framed_string(text);
	}
	return text;
}

TEST(labeled_text_format, groups_that_are_too_deep_stay_empty) {
	constexpr std::size_t limit = labeled_text_buffer::nesting_limit;
	static_assert(limit == 1000);
	for (std::size_t const depth : {limit - 1, limit, limit + 1, limit + 2}) {
		SCOPED_TRACE(depth);
		labeled_text_buffer record(nested_text(depth));
		labeled_serialize_buffer *last = &record;
		std::size_t groups = 0;
		while (labeled_serialize_buffer *const next = last->retrieve_group("g")) {
			last = next;
			++groups;
		}
		EXPECT_EQ(groups, std::min(depth, limit + 1));
		EXPECT_EQ(last->is_empty(), depth > limit);
		EXPECT_EQ(last->has_value("v"), depth <= limit);
		if (depth <= limit) {
			EXPECT_EQ(record.as_str(), nested_text(depth));
		}
		// Groups count from the record that is assigned to.
		last->assign(nested_text(limit));
		EXPECT_EQ(last->as_str(), nested_text(limit));
	}
}

TEST(labeled_text_format, what_lies_behind_a_group_that_is_too_deep_is_read) {
	std::string text = framed("1SvS1S1S");
	for (std::size_t i = 0; i != labeled_text_buffer::nesting_limit + 5; ++i) {
		text = framed("2Sg S") + framed_string(text) + framed("1SzS1S2S");
	}
	labeled_text_buffer record(text);
	labeled_serialize_buffer *group = &record;
	for (std::size_t i = 0; i <= labeled_text_buffer::nesting_limit; ++i) {
		EXPECT_TRUE(group->has_value("z"));
		group = group->retrieve_group("g");
		ASSERT_NE(group, nullptr);
	}
	EXPECT_TRUE(group->is_empty());
}

} // namespace
