#include <quor/strings/case.hpp>

#include <gtest/gtest.h>

#include <clocale>
#include <random>
#include <string>

#include <quor/quor.hpp>

#include "reference/text.hpp"
#include "strings/text_rows.hpp"
#include "support/stop_handler.hpp"

namespace {

using quor::strings::lower_case;
using quor::strings::to_lower;
using quor::strings::to_upper;
using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor::types::uint32;
using quor_reference::all_ones;
using quor_reference::number;
using quor_reference::numbers;
using quor_reference::text_of;
using quor_reference::units_of;
using quor_test::widened;

template <class Text>
class case_of : public testing::Test {};
using every_text = testing::Types<ustring8, ustring16, ustring32>;
TYPED_TEST_SUITE(case_of, every_text, );

TYPED_TEST(case_of, lower_case_rows) {
	struct row {
		char const *text;
		uint32 start;
		uint32 end;
		char const *result;
	};
	row const rows[] = {
	    {"ABCD", 1, 3, "AbcD"},
	    {"ABCD", 2, all_ones, "ABcd"},
	    {"ABCD", 3, 1, "ABCD"},
	    {"ABCD", 2, 2, "ABCD"},
	    {"ABCD", 0, 0, "ABCD"},
	    {"ABCD", 0, 1, "aBCD"},
	    {"ABCD", 0, 4, "abcd"},
	    {"ABCD", 3, 4, "ABCd"},
	    {"ABCD", 4, 4, "ABCD"},
	    {"ABCD", 4, all_ones, "ABCD"},
	    {"ABCD", 100, all_ones, "ABCD"},
	    {"ABCD", all_ones, all_ones, "ABCD"},
	    {"ABCD", all_ones, 0, "ABCD"},
	    // An end above the size is no matter where nothing is to be changed.
	    {"ABCD", 5, 5, "ABCD"},
	    {"ABCD", 100, 50, "ABCD"},
	    {"", 0, all_ones, ""},
	    {"", 0, 0, ""},
	    {"aB1[Z", 0, all_ones, "ab1[z"},
	};
	quor_test::stop_handler const stops(quor_test::on_stop::returns);
	for (row const &r : rows) {
		SCOPED_TRACE(std::string(r.text) + ' ' + std::to_string(r.start) + ' ' + std::to_string(r.end));
		EXPECT_EQ(lower_case(widened<TypeParam>(r.text), r.start, r.end), widened<TypeParam>(r.result));
	}
	EXPECT_EQ(stops.count(), 0U);
}

TYPED_TEST(case_of, lower_case_takes_the_whole_text_by_default) {
	EXPECT_EQ(lower_case(widened<TypeParam>("ABCD")), widened<TypeParam>("abcd"));
	EXPECT_EQ(lower_case(widened<TypeParam>("ABCD"), 2), widened<TypeParam>("ABcd"));
}

TYPED_TEST(case_of, lower_case_end_above_the_size_stops) {
	auto const text = widened<TypeParam>("ABCD");
	for (uint32 const end : {5U, 6U, 1000U, 0xFFFFFFFEU}) {
		for (uint32 const start : {0U, 2U, 4U}) {
			SCOPED_TRACE(std::to_string(start) + ' ' + std::to_string(end));
			{
				quor_test::stop_handler const stops(quor_test::on_stop::throws);
				EXPECT_THROW(lower_case(text, start, end), quor_test::stopped);
				EXPECT_EQ(text, widened<TypeParam>("ABCD"));
			}
			// Where the handler returns, the text's size counts.
			quor_test::stop_handler const stops(quor_test::on_stop::returns);
			EXPECT_EQ(lower_case(text, start, end), lower_case(text, start, 4));
			EXPECT_EQ(stops.count(), 1U);
		}
	}
	quor_test::stop_handler const stops(quor_test::on_stop::returns);
	EXPECT_EQ(lower_case(text, 7, 9), text);
	EXPECT_EQ(lower_case(TypeParam(), 0, 1), TypeParam());
	EXPECT_EQ(stops.count(), 2U);
}

TYPED_TEST(case_of, lower_case_stop_names_the_failure_and_the_place) {
	quor_test::stop_handler const stops(quor_test::on_stop::throws);
	try {
		lower_case(widened<TypeParam>("A"), 0, 2);
		ADD_FAILURE() << "did not stop";
	} catch (quor_test::stopped const &stop) {
		EXPECT_EQ(stop.what, "string subscript out of range");
		EXPECT_EQ(stop.file, "strings\\case");
	}
}

TYPED_TEST(case_of, first_65536_units_map_the_ascii_letters_alone) {
	numbers units;
	for (number unit = 0; unit != (sizeof(typename TypeParam::value_type) == 1 ? 0x100U : 0x10000U); ++unit) {
		units.push_back(unit);
	}
	auto const text = text_of<TypeParam>(units);
	EXPECT_EQ(units_of(to_lower(text)), quor_reference::lower(units));
	EXPECT_EQ(units_of(to_upper(text)), quor_reference::upper(units));
	EXPECT_EQ(units_of(lower_case(text, 0, all_ones)), quor_reference::lower(units));
}

TYPED_TEST(case_of, locale_of_the_program_is_not_asked) {
	std::string const before = std::setlocale(LC_ALL, nullptr);
	for (char const *name : {"", "C.UTF-8", "tr_TR.UTF-8", "de_DE.ISO-8859-1"}) {
		std::setlocale(LC_ALL, name);
		SCOPED_TRACE(std::setlocale(LC_ALL, nullptr));
		auto const text = widened<TypeParam>("I i \xC9\xE9\xDD");
		EXPECT_EQ(to_lower(text), widened<TypeParam>("i i \xC9\xE9\xDD"));
		EXPECT_EQ(to_upper(text), widened<TypeParam>("I I \xC9\xE9\xDD"));
	}
	std::setlocale(LC_ALL, before.c_str());
}

TYPED_TEST(case_of, zero_units_are_ordinary) {
	auto const text = widened<TypeParam>(std::string("A\0b", 3));
	EXPECT_EQ(to_lower(text), widened<TypeParam>(std::string("a\0b", 3)));
	EXPECT_EQ(to_upper(text), widened<TypeParam>(std::string("A\0B", 3)));
	EXPECT_EQ(to_lower(TypeParam()), TypeParam());
	EXPECT_EQ(to_upper(TypeParam()), TypeParam());
}

TYPED_TEST(case_of, random_ranges_agree_with_the_reference) {
	std::mt19937 random(8);
	for (int i = 0; i != 2000; ++i) {
		numbers units;
		for (std::size_t count = random() % 20; count != 0; --count) {
			units.push_back(static_cast<number>(random() % 128));
		}
		auto const size = static_cast<uint32>(units.size());
		auto const start = static_cast<uint32>(random() % (size + 2));
		auto const end = static_cast<uint32>(random() % (size + 1));
		numbers expected = units;
		numbers const lowered = quor_reference::lower(units);
		for (uint32 at = start; at < end; ++at) {
			expected[at] = lowered[at];
		}
		ASSERT_EQ(units_of(lower_case(text_of<TypeParam>(units), start, end)), expected)
		    << quor_test::shown(units) << ' ' << start << ' ' << end;
	}
}

TEST(to_upper, bytes_of_a_sequence_stay) {
	EXPECT_EQ(to_upper("\xC3\xA9"), "\xC3\xA9");
	EXPECT_EQ(to_upper("caf\xC3\xA9"), "CAF\xC3\xA9");
	EXPECT_EQ(to_lower("\xC3\x89"), "\xC3\x89");
}

TEST(to_lower, large_units_map_to_themselves) {
	for (number const unit : {0xFFFFFF80U, 0xFFFFFFC1U, 0xFFFFFFFEU, 0xFFFFFFFFU, 0x80000041U, 0x10041U, 0x141U, 0x130U,
	                          0x80000061U, 0x10061U, 0x161U, 0x131U, 0x212AU}) {
		SCOPED_TRACE(unit);
		auto const utf32 = text_of<ustring32>({unit});
		EXPECT_EQ(to_lower(utf32), utf32);
		EXPECT_EQ(to_upper(utf32), utf32);
		EXPECT_EQ(lower_case(utf32, 0, all_ones), utf32);
		auto const utf16 = text_of<ustring16>({unit % 0x10000 + (unit >= 0x10000 ? 0x100 : 0)});
		EXPECT_EQ(to_lower(utf16), utf16);
		EXPECT_EQ(to_upper(utf16), utf16);
	}
}

TEST(lower_case, literals_mean_the_unicode_classes) {
	ustring8 const narrow = lower_case("ABCD", 1, 3);
	EXPECT_EQ(narrow, "AbcD");
	EXPECT_EQ(lower_case("ABCD", 2, static_cast<uint32>(-1)), "ABcd");
	ustring16 const wide = lower_case(QUOR_W("ABCD"), 1, 3);
	EXPECT_EQ(wide, QUOR_W("AbcD"));
	ustring32 const utf32 = lower_case(QUOR_U32("ABCD"), 1, 3);
	EXPECT_EQ(utf32, QUOR_U32("AbcD"));
}

} // namespace
