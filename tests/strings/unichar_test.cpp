#include <quor/strings/unichar.hpp>

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <random>
#include <vector>

#include <quor/quor.hpp>

#include "reference/text.hpp"
#include "strings/text_rows.hpp"
#include "support/stop_handler.hpp"

namespace {

namespace reference = quor_reference;

using quor::strings::character_index;
using quor::strings::string_length;
using quor::strings::unichar;
using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor::types::uint32;
using quor_test::shown;
using reference::all_ones;
using reference::decoded;
using reference::numbers;
using reference::text_of;

// Calls unichar on a block of exactly the units, so that the sanitizers see a read
// behind the end.
template <class Unit>
decoded unichar_in_block(numbers const &units, uint32 index) {
	std::unique_ptr<Unit[]> const block(new Unit[units.size()]);
	for (std::size_t i = 0; i != units.size(); ++i) {
		block[i] = static_cast<Unit>(units[i]);
	}
	uint32 consumed = 12345;
	uint32 const result = unichar(block.get(), static_cast<uint32>(units.size()), index, consumed);
	return {result, consumed};
}

void expect_decoded(decoded got, decoded expected, numbers const &units) {
	if (!(got == expected)) {
		ADD_FAILURE() << shown(units) << " gives " << std::hex << got.code_point << " consumed " << got.consumed
		              << ", expected " << expected.code_point << " consumed " << expected.consumed;
	}
}

TEST(string_length, pointer_counts_the_units_before_the_first_zero) {
	EXPECT_EQ(string_length(""), 0U);
	EXPECT_EQ(string_length("abc"), 3U);
	EXPECT_EQ(string_length("ab\0c"), 2U);
	EXPECT_EQ(string_length("\xC3\xA9"), 2U);
	EXPECT_EQ(string_length(QUOR_W("")), 0U);
	EXPECT_EQ(string_length(QUOR_W("abc")), 3U);
	EXPECT_EQ(string_length(QUOR_W("ab\0c")), 2U);
	EXPECT_EQ(string_length(QUOR_U32("")), 0U);
	EXPECT_EQ(string_length(QUOR_U32("abc")), 3U);
	EXPECT_EQ(string_length(QUOR_U32("ab\0c")), 2U);
}

TEST(string_length, pointer_to_wide_units_tests_the_whole_unit) {
	// Units whose low byte is zero end nothing.
	quor::types::wide_char const wide[] = {0x100, 0xFF00, 0, 1};
	EXPECT_EQ(string_length(wide), 2U);
	quor::types::utf32_char const utf32[] = {0x100, 0xFF0000, 0xFF000000, 0, 1};
	EXPECT_EQ(string_length(utf32), 3U);
}

TEST(string_length, class_gives_the_stored_size) {
	EXPECT_EQ(string_length(ustring8()), 0U);
	EXPECT_EQ(string_length(ustring8("\xC3\xA9")), 2U);
	EXPECT_EQ(string_length(ustring8("ab\0c", 4)), 4U);
	EXPECT_EQ(string_length(ustring16()), 0U);
	EXPECT_EQ(string_length(ustring16(QUOR_W("ab\0c"), 4)), 4U);
	EXPECT_EQ(string_length(ustring32()), 0U);
	EXPECT_EQ(string_length(ustring32(QUOR_U32("ab\0c"), 4)), 4U);
}

TEST(unichar, utf8_rows) {
	struct row {
		char const *name;
		numbers bytes;
		uint32 index;
		decoded expected;
	};
	decoded const bad{63, all_ones};
	row const rows[] = {
	    {"one byte", {'A'}, 0, {65, 1}},
	    {"index at the length", {'A'}, 1, bad},
	    {"index beyond the length", {'A'}, 2, bad},
	    {"index of all ones", {'A'}, all_ones, bad},
	    {"no text", {}, 0, bad},
	    {"zero byte", {0}, 0, {0, 1}},
	    {"largest single byte", {0x7F}, 0, {0x7F, 1}},
	    {"smallest continuation byte", {0x80}, 0, bad},
	    {"largest continuation byte", {0xBF}, 0, bad},
	    {"overlong zero", {0xC0, 0x80}, 0, {0, 2}},
	    {"overlong in C1", {0xC1, 0xBF}, 0, {0x7F, 2}},
	    {"smallest of two bytes", {0xC2, 0x80}, 0, {0x80, 2}},
	    {"largest of two bytes", {0xDF, 0xBF}, 0, {0x7FF, 2}},
	    {"two bytes cut", {0xC3}, 0, bad},
	    {"two bytes with no continuation", {0xC3, 0x41}, 0, bad},
	    {"two bytes with a lead behind", {0xC3, 0xC3}, 0, bad},
	    {"two bytes in the middle", {'A', 0xC3, 0xA9, 'B'}, 1, {0xE9, 2}},
	    {"the second of two bytes", {0xC3, 0xA9}, 1, bad},
	    {"overlong three bytes", {0xE0, 0x80, 0x80}, 0, {0, 3}},
	    {"smallest of three bytes", {0xE0, 0xA0, 0x80}, 0, {0x800, 3}},
	    {"lead E8", {0xE8, 0x80, 0x80}, 0, {0x8000, 3}},
	    {"an encoded high surrogate", {0xED, 0xA0, 0x80}, 0, {0xD800, 3}},
	    {"an encoded low surrogate", {0xED, 0xBF, 0xBF}, 0, {0xDFFF, 3}},
	    {"largest of three bytes", {0xEF, 0xBF, 0xBF}, 0, {0xFFFF, 3}},
	    {"three bytes cut to two", {0xE2, 0x82}, 0, bad},
	    {"three bytes cut to one", {0xE2}, 0, bad},
	    {"three bytes, third no continuation", {0xE2, 0x82, 0x41}, 0, bad},
	    {"three bytes, second no continuation", {0xE2, 0x41, 0x82}, 0, bad},
	    {"overlong four bytes", {0xF0, 0x80, 0x80, 0x80}, 0, {0, 4}},
	    {"smallest of four bytes", {0xF0, 0x90, 0x80, 0x80}, 0, {0x10000, 4}},
	    {"last code point", {0xF4, 0x8F, 0xBF, 0xBF}, 0, {0x10FFFF, 4}},
	    {"above the last code point", {0xF4, 0x90, 0x80, 0x80}, 0, {0x110000, 4}},
	    {"largest of four bytes", {0xF7, 0xBF, 0xBF, 0xBF}, 0, {0x1FFFFF, 4}},
	    {"four bytes cut to three", {0xF0, 0x90, 0x80}, 0, bad},
	    {"four bytes, fourth no continuation", {0xF0, 0x90, 0x80, 0xC0}, 0, bad},
	    {"four bytes, third no continuation", {0xF0, 0x90, 0x40, 0x80}, 0, bad},
	    {"four bytes, second no continuation", {0xF0, 0x10, 0x80, 0x80}, 0, bad},
	    {"F8", {0xF8, 0x80, 0x80, 0x80, 0x80}, 0, bad},
	    {"FF", {0xFF, 0xBF, 0xBF, 0xBF, 0xBF}, 0, bad},
	};
	for (row const &r : rows) {
		SCOPED_TRACE(r.name);
		expect_decoded(unichar_in_block<char>(r.bytes, r.index), r.expected, r.bytes);
	}
}

TEST(unichar, bad_index_reads_nothing) {
	uint32 consumed = 0;
	EXPECT_EQ(unichar(static_cast<char const *>(nullptr), 0, 0, consumed), 63U);
	EXPECT_EQ(consumed, all_ones);
	consumed = 0;
	EXPECT_EQ(unichar(static_cast<quor::types::wide_char const *>(nullptr), 0, 0, consumed), 63U);
	EXPECT_EQ(consumed, all_ones);
	consumed = 0;
	EXPECT_EQ(unichar(static_cast<quor::types::utf32_char const *>(nullptr), 5, 5, consumed), 63U);
	EXPECT_EQ(consumed, all_ones);
}

TEST(unichar, length_ends_the_text_before_its_units_do) {
	uint32 consumed = 0;
	EXPECT_EQ(unichar("\xC3\xA9", 1, 0, consumed), 63U);
	EXPECT_EQ(consumed, all_ones);
	EXPECT_EQ(unichar("\xC3\xA9", 2, 0, consumed), 0xE9U);
	EXPECT_EQ(consumed, 2U);
	quor::types::wide_char const pair[] = {0xD83D, 0xDE00};
	EXPECT_EQ(unichar(pair, 1, 0, consumed), 63U);
	EXPECT_EQ(consumed, all_ones);
	EXPECT_EQ(unichar(pair, 2, 0, consumed), 0x1F600U);
	EXPECT_EQ(consumed, 2U);
}

TEST(unichar, utf8_agrees_with_the_reference_on_all_two_byte_texts) {
	for (uint32 first = 0; first != 256; ++first) {
		for (uint32 second = 0; second != 256; ++second) {
			numbers const bytes{first, second};
			expect_decoded(unichar_in_block<char>(bytes, 0), reference::unichar(bytes, 0, reference::read_utf8), bytes);
		}
		numbers const byte{first};
		expect_decoded(unichar_in_block<char>(byte, 0), reference::unichar(byte, 0, reference::read_utf8), byte);
	}
}

TEST(unichar, utf8_agrees_with_the_reference_on_longer_sequences) {
	std::array<uint32, 11> const behind{0, 0x3F, 0x40, 0x7F, 0x80, 0x8F, 0x90, 0xBF, 0xC0, 0xE0, 0xFF};
	for (uint32 first = 0xC0; first != 256; ++first) {
		for (uint32 const second : behind) {
			for (uint32 const third : behind) {
				numbers const three{first, second, third};
				expect_decoded(unichar_in_block<char>(three, 0), reference::unichar(three, 0, reference::read_utf8),
				               three);
				for (uint32 const fourth : behind) {
					numbers const four{first, second, third, fourth};
					expect_decoded(unichar_in_block<char>(four, 0), reference::unichar(four, 0, reference::read_utf8),
					               four);
				}
			}
		}
	}
}

TEST(unichar, utf16_rows) {
	struct row {
		char const *name;
		numbers units;
		uint32 index;
		decoded expected;
	};
	decoded const bad{63, all_ones};
	row const rows[] = {
	    {"one unit", {'A'}, 0, {65, 1}},
	    {"index at the length", {'A'}, 1, bad},
	    {"no text", {}, 0, bad},
	    {"below the surrogates", {0xD7FF}, 0, {0xD7FF, 1}},
	    {"above the surrogates", {0xE000}, 0, {0xE000, 1}},
	    {"largest unit", {0xFFFF}, 0, {0xFFFF, 1}},
	    {"first pair", {0xD800, 0xDC00}, 0, {0x10000, 2}},
	    {"last pair", {0xDBFF, 0xDFFF}, 0, {0x10FFFF, 2}},
	    {"a pair in the middle", {'A', 0xD83D, 0xDE00, 'B'}, 1, {0x1F600, 2}},
	    {"the second half of a pair", {0xD83D, 0xDE00}, 1, bad},
	    {"high surrogate at the end", {0xD800}, 0, bad},
	    {"high surrogate before a letter", {0xD800, 'A'}, 0, bad},
	    {"high surrogate before another", {0xD800, 0xDBFF}, 0, bad},
	    {"high surrogate before the unit above the low ones", {0xD800, 0xE000}, 0, bad},
	    {"first low surrogate", {0xDC00, 0xDC00}, 0, bad},
	    {"last low surrogate", {0xDFFF}, 0, bad},
	};
	for (row const &r : rows) {
		SCOPED_TRACE(r.name);
		expect_decoded(unichar_in_block<quor::types::wide_char>(r.units, r.index), r.expected, r.units);
	}
}

TEST(unichar, utf16_agrees_with_the_reference_on_all_units_and_all_pairs) {
	std::array<uint32, 8> const behind{0, 0xD7FF, 0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xE000, 0xFFFF};
	quor::types::wide_char block[2];
	uint32 failures = 0;
	auto const check = [&](uint32 first, uint32 second) {
		block[0] = static_cast<quor::types::wide_char>(first);
		block[1] = static_cast<quor::types::wide_char>(second);
		uint32 consumed = 0;
		uint32 const got = unichar(block, 2, 0, consumed);
		bool const pair = first >= 0xD800 && first <= 0xDBFF && second >= 0xDC00 && second <= 0xDFFF;
		bool const single = first < 0xD800 || first > 0xDFFF;
		uint32 const expected = pair ? 0x10000 + (first - 0xD800) * 0x400 + (second - 0xDC00) : single ? first : 63;
		uint32 const expected_consumed = pair ? 2 : single ? 1 : all_ones;
		failures += got == expected && consumed == expected_consumed ? 0 : 1;
	};
	for (uint32 first = 0; first != 0x10000; ++first) {
		for (uint32 const second : behind) {
			check(first, second);
		}
	}
	for (uint32 first = 0xD800; first != 0xDC00; ++first) {
		for (uint32 second = 0xDC00; second != 0xE000; ++second) {
			check(first, second);
		}
	}
	EXPECT_EQ(failures, 0U);
}

TEST(unichar, utf32_gives_the_unit_as_it_stands) {
	for (uint32 const unit : {0U, 65U, 0xD800U, 0xDFFFU, 0xFFFFU, 0x10FFFFU, 0x110000U, 0xFFFFFFFFU}) {
		numbers const units{unit};
		expect_decoded(unichar_in_block<quor::types::utf32_char>(units, 0), {unit, 1}, units);
		expect_decoded(unichar_in_block<quor::types::utf32_char>(units, 1), {63, all_ones}, units);
	}
	expect_decoded(unichar_in_block<quor::types::utf32_char>({1, 2, 3}, 2), {3, 1}, {1, 2, 3});
}

struct index_row {
	char const *name;
	numbers units;
	uint32 index;
	uint32 expected;
};

TEST(character_index, utf8_rows) {
	index_row const rows[] = {
	    {"empty text, index 0", {}, 0, all_ones},
	    {"empty text, index 5", {}, 5, all_ones},
	    {"empty text, all ones", {}, all_ones, all_ones},
	    {"first", {'a', 'b', 'c'}, 0, 0},
	    {"last", {'a', 'b', 'c'}, 2, 2},
	    {"index at the size", {'a', 'b', 'c'}, 3, all_ones},
	    {"index of all ones", {'a', 'b', 'c'}, all_ones, all_ones},
	    {"behind two bytes", {0xC3, 0xA9, '!'}, 1, 2},
	    {"behind three bytes", {0xE2, 0x82, 0xAC, '!'}, 1, 3},
	    {"behind four bytes", {0xF0, 0x90, 0x80, 0x80, '!'}, 1, 4},
	    {"one of each, the last", {'a', 0xC3, 0xA9, 0xE2, 0x82, 0xAC, 0xF0, 0x90, 0x80, 0x80, 'z'}, 4, 10},
	    {"zero bytes are characters", {0, 0, 0}, 2, 2},
	    {"overlong forms pass", {0xC0, 0x80, 'a'}, 1, 2},
	    {"to the text's end", {0xC3, 0xA9}, 1, 2},
	    {"over the terminating zero", {0xC3, 0xA9, 0xC3, 0xA9}, 3, 5},
	    {"a stray continuation byte on the way", {'a', 0x80, 'b'}, 2, all_ones},
	    {"a stray continuation byte at the place", {'a', 0x80, 'b'}, 1, 1},
	    {"bad at the start, index 0", {0xFF, 'a'}, 0, 0},
	    {"F8", {0xF8, 0x80, 0x80, 0x80, 0x80}, 1, all_ones},
	    {"two bytes without a continuation", {0xC3, 'a', 'b'}, 1, all_ones},
	    {"two bytes cut by the end", {'a', 0xC3}, 1, 1},
	    {"two bytes cut by the end, stepped", {'a', 'b', 0xC3, 0xC3}, 3, all_ones},
	    {"three bytes cut by the end", {0xE2, 0x82}, 1, all_ones},
	    {"four bytes cut by the end", {0xF0, 0x90, 0x80}, 1, all_ones},
	    {"a lone lead byte of three", {'a', 'b', 0xE2}, 2, 2},
	    {"four bytes, a bad third", {0xF0, 0x90, 'a', 0x80}, 1, all_ones},
	};
	quor_test::stop_handler const stops(quor_test::on_stop::returns);
	for (index_row const &r : rows) {
		SCOPED_TRACE(r.name);
		EXPECT_EQ(character_index(text_of<ustring8>(r.units), r.index), r.expected);
	}
	EXPECT_EQ(stops.count(), 0U);
}

TEST(character_index, utf16_rows) {
	index_row const rows[] = {
	    {"empty text, index 0", {}, 0, all_ones},
	    {"empty text, all ones", {}, all_ones, all_ones},
	    {"last", {'a', 'b', 'c'}, 2, 2},
	    {"index at the size", {'a', 'b', 'c'}, 3, all_ones},
	    {"behind a pair", {0xD83D, 0xDE00, '!'}, 1, 2},
	    {"behind two pairs", {0xD83D, 0xDE00, 0xD800, 0xDC00, '!'}, 2, 4},
	    {"to the text's end", {0xD83D, 0xDE00}, 1, 2},
	    {"over the terminating zero", {0xD83D, 0xDE00, 0xD83D, 0xDE00}, 3, 5},
	    {"a high surrogate before a letter", {'a', 0xD800, 'b'}, 2, all_ones},
	    {"a high surrogate at the end", {'a', 'b', 0xD800}, 2, 2},
	    {"a high surrogate at the end, stepped", {0xD83D, 0xDE00, 0xD800}, 2, all_ones},
	    {"a low surrogate in the middle counts one", {'a', 0xDC00, 'b'}, 2, 2},
	    {"a low surrogate first, index 0", {0xDC00, 'a'}, 0, 0},
	    {"a low surrogate first, index 1", {0xDC00, 'a'}, 1, all_ones},
	    {"a low surrogate first, index 2", {0xDFFF, 'a', 'b'}, 2, all_ones},
	};
	quor_test::stop_handler const stops(quor_test::on_stop::returns);
	for (index_row const &r : rows) {
		SCOPED_TRACE(r.name);
		EXPECT_EQ(character_index(text_of<ustring16>(r.units), r.index), r.expected);
	}
	EXPECT_EQ(stops.count(), 0U);
}

TEST(character_index, walk_beyond_the_terminating_zero_stops) {
	ustring8 const text("\xC3\xA9\xC3\xA9\xC3\xA9");
	ustring16 const wide(text_of<ustring16>({0xD83D, 0xDE00, 0xD83D, 0xDE00, 0xD83D, 0xDE00}));
	{
		quor_test::stop_handler const stops(quor_test::on_stop::throws);
		EXPECT_EQ(character_index(text, 4), 7U);
		EXPECT_THROW(character_index(text, 5), quor_test::stopped);
		EXPECT_EQ(character_index(wide, 4), 7U);
		EXPECT_THROW(character_index(wide, 5), quor_test::stopped);
		EXPECT_EQ(stops.count(), 2U);
	}
	quor_test::stop_handler const stops(quor_test::on_stop::returns);
	EXPECT_EQ(character_index(text, 5), 8U);
	EXPECT_EQ(stops.count(), 1U);
	EXPECT_EQ(character_index(wide, 5), 8U);
	EXPECT_EQ(stops.count(), 2U);
}

TEST(character_index, stop_names_the_failure_and_the_place) {
	quor_test::stop_handler const stops(quor_test::on_stop::throws);
	try {
		character_index(ustring8("\xC3\xA9\xC3\xA9\xC3\xA9"), 5);
		ADD_FAILURE() << "did not stop";
	} catch (quor_test::stopped const &stop) {
		EXPECT_EQ(stop.what, "string subscript out of range");
		EXPECT_EQ(stop.file, "strings\\unichar");
	}
}

TEST(character_index, agrees_with_the_reference_on_random_texts) {
	std::vector<numbers> const pieces8{{'a'},        {0},    {0xC3, 0xA9}, {0xE2, 0x82, 0xAC}, {0xF0, 0x90, 0x80, 0x80},
	                                   {0xC3, 0xA9}, {0xC3}, {0x80}};
	std::vector<numbers> const pieces16{{'a'}, {0}, {0xD83D, 0xDE00}, {0xD800, 0xDC00}, {0xDC00}, {0xD800}, {0xE000}};
	std::mt19937 random(1);
	for (int i = 0; i != 4000; ++i) {
		numbers const units8 = quor_test::random_text(random, pieces8, 12);
		numbers const units16 = quor_test::random_text(random, pieces16, 12);
		for (uint32 index = 0; index != 16; ++index) {
			{
				quor_test::stop_handler const stops(quor_test::on_stop::returns);
				uint32 const got = character_index(text_of<ustring8>(units8), index);
				reference::offset_of const expected = reference::character_index_utf8(units8, index);
				ASSERT_TRUE(got == expected.offset && stops.count() == expected.stops) << shown(units8) << ' ' << index;
			}
			quor_test::stop_handler const stops(quor_test::on_stop::returns);
			uint32 const got = character_index(text_of<ustring16>(units16), index);
			reference::offset_of const expected = reference::character_index_utf16(units16, index);
			ASSERT_TRUE(got == expected.offset && stops.count() == expected.stops) << shown(units16) << ' ' << index;
		}
	}
}

} // namespace
