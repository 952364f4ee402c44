#include <quor/strings/transcode.hpp>

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>
#include <vector>

#include <quor/quor.hpp>

#include "reference/text.hpp"
#include "strings/text_rows.hpp"
#include "strings/transcode_units.hpp"

namespace {

namespace reference = quor_reference;

using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor::strings::utf16_to_utf32;
using quor::strings::utf16_to_utf8;
using quor::strings::utf32_to_utf16;
using quor::strings::utf32_to_utf8;
using quor::strings::utf8_to_utf16;
using quor::strings::utf8_to_utf32;
using quor::types::uint32;
using quor_test::expect_same;
using quor_test::expect_utf8_to_utf32_agrees;
using quor_test::utf16_to_utf32_units;
using quor_test::utf16_to_utf8_units;
using quor_test::utf32_to_utf16_units;
using quor_test::utf32_to_utf8_units;
using quor_test::utf8_to_utf16_units;
using quor_test::utf8_to_utf32_units;
using reference::numbers;
using reference::text_of;
using reference::units_of;

struct row {
	char const *name;
	numbers from;
	numbers to;
};

numbers const minus_one{'-', '1'};

TEST(transcode, empty_text_gives_empty_text) {
	EXPECT_TRUE(utf8_to_utf16(ustring8()).empty());
	EXPECT_TRUE(utf8_to_utf32(ustring8()).empty());
	EXPECT_TRUE(utf16_to_utf8(ustring16()).empty());
	EXPECT_TRUE(utf16_to_utf32(ustring16()).empty());
	EXPECT_TRUE(utf32_to_utf8(ustring32()).empty());
	EXPECT_TRUE(utf32_to_utf16(ustring32()).empty());
}

TEST(transcode, zero_units_are_ordinary) {
	numbers const units{'a', 0, 'b', 0};
	EXPECT_EQ(utf8_to_utf16_units(units), units);
	EXPECT_EQ(utf8_to_utf32_units(units), units);
	EXPECT_EQ(utf16_to_utf8_units(units), units);
	EXPECT_EQ(utf16_to_utf32_units(units), units);
	EXPECT_EQ(utf32_to_utf8_units(units), units);
	EXPECT_EQ(utf32_to_utf16_units(units), units);
}

TEST(utf8_to_utf16, rows) {
	row const rows[] = {
	    {"letters", {'a', 'b'}, {'a', 'b'}},
	    {"0x7F", {0x7F}, {0x7F}},
	    {"two bytes", {0xC2, 0x80, 0xDF, 0xBF}, {0x80, 0x7FF}},
	    {"overlong two bytes", {0xC0, 0x80}, {0}},
	    {"three bytes", {0xE0, 0xA0, 0x80, 0xEF, 0xBF, 0xBF}, {0x800, 0xFFFF}},
	    {"U+FFFF stays one unit", {0xEF, 0xBF, 0xBF}, {0xFFFF}},
	    {"overlong three bytes", {0xE0, 0x80, 0x80}, {0}},
	    {"an encoded surrogate becomes a bare one", {0xED, 0xA0, 0x80}, {0xD800}},
	    {"U+10000", {0xF0, 0x90, 0x80, 0x80}, {0xD840, 0xDC00}},
	    {"U+1F600", {0xF0, 0x9F, 0x98, 0x80}, {0xD87D, 0xDE00}},
	    {"U+FFFFF", {0xF3, 0xBF, 0xBF, 0xBF}, {0xDBFF, 0xDFFF}},
	    {"U+100000", {0xF4, 0x80, 0x80, 0x80}, {0xDC00, 0xDC00}},
	    {"U+10FFFF", {0xF4, 0x8F, 0xBF, 0xBF}, {0xDC3F, 0xDFFF}},
	    {"0x110000 passes", {0xF4, 0x90, 0x80, 0x80}, {0xDC40, 0xDC00}},
	    {"0x1FFFFF passes", {0xF7, 0xBF, 0xBF, 0xBF}, {0xDFFF, 0xDFFF}},
	    {"overlong four bytes give a pair", {0xF0, 0x80, 0x80, 0x80}, {0xD800, 0xDC00}},
	    {"cut three bytes behind text", {'a', 'b', 'c', 0xE2}, minus_one},
	    {"cut three bytes, two there", {'a', 0xE2, 0x82}, minus_one},
	    {"cut two bytes", {0xC3}, minus_one},
	    {"cut four bytes", {0xF0, 0x90, 0x80}, minus_one},
	    {"a stray continuation byte", {'a', 0x80, 'b'}, minus_one},
	    {"F8", {0xF8}, minus_one},
	    {"FF at the end", {'a', 0xFF}, minus_one},
	    {"no continuation byte", {0xC3, 'a'}, minus_one},
	    {"a bad third byte", {0xE2, 0x82, 'a'}, minus_one},
	    {"a bad fourth byte", {0xF0, 0x90, 0x80, 'a'}, minus_one},
	    {"a genuine -1", {'-', '1'}, minus_one},
	};
	for (row const &r : rows) {
		SCOPED_TRACE(r.name);
		expect_same(utf8_to_utf16_units(r.from), r.to, r.from);
	}
}

TEST(utf8_to_utf32, rows) {
	row const rows[] = {
	    {"letters", {'a', 'b'}, {'a', 'b'}},
	    {"two bytes", {0xC3, 0xA9}, {0xE9}},
	    {"three bytes", {0xE2, 0x82, 0xAC}, {0x20AC}},
	    {"four bytes", {0xF0, 0x9F, 0x98, 0x80}, {0x1F600}},
	    {"U+10FFFF", {0xF4, 0x8F, 0xBF, 0xBF}, {0x10FFFF}},
	    {"0x1FFFFF passes", {0xF7, 0xBF, 0xBF, 0xBF}, {0x1FFFFF}},
	    {"overlong forms pass", {0xC0, 0x80, 0xE0, 0x80, 0x80, 0xF0, 0x80, 0x80, 0x80}, {0, 0, 0}},
	    {"encoded surrogates pass", {0xED, 0xA0, 0x80, 0xED, 0xBF, 0xBF}, {0xD800, 0xDFFF}},
	    {"a stray continuation byte first", {0x80}, {'?'}},
	    {"a stray continuation byte first, text behind", {0x80, 'a', 'b'}, {'?'}},
	    {"F8 first, malformed text behind", {0xF8, 0x80, 0xFF}, {'?'}},
	    {"a cut sequence that is all", {0xE2, 0x82}, {'?'}},
	    {"a sequence broken at the start", {0xC3, 'a'}, {'?'}},
	};
	for (row const &r : rows) {
		SCOPED_TRACE(r.name);
		expect_same(utf8_to_utf32_units(r.from), r.to, r.from);
	}
}

TEST(utf8_to_utf32, malformed_behind_the_start_throws_length_error) {
	row const rows[] = {
	    {"a stray continuation byte", {'a', 0x80}, {}},
	    {"F8 with text behind", {'a', 0xF8, 'b'}, {}},
	    {"a cut sequence", {'a', 0xE2, 0x82}, {}},
	    {"behind two bytes", {0xC3, 0xA9, 0xFF}, {}},
	    {"behind four bytes", {0xF0, 0x90, 0x80, 0x80, 0x80}, {}},
	    {"far behind", {'a', 'b', 'c', 'd', 'e', 'f', 0xC3, 'g'}, {}},
	};
	for (row const &r : rows) {
		SCOPED_TRACE(r.name);
		EXPECT_THROW(utf8_to_utf32_units(r.from), std::length_error);
	}
}

TEST(utf8_to_utf32, malformed_end_of_a_long_text_throws_at_once) {
	ustring8 text(std::size_t(1) << 20, 'a');
	text.push_back('\xFF');
	EXPECT_THROW(utf8_to_utf32(text), std::length_error);
}

TEST(utf16_to_utf8, rows) {
	row const rows[] = {
	    {"one byte", {0, 0x7F}, {0, 0x7F}},
	    {"two bytes", {0x80, 0x7FF}, {0xC2, 0x80, 0xDF, 0xBF}},
	    {"three bytes",
	     {0x800, 0xD7FF, 0xE000, 0xFFFF},
	     {0xE0, 0xA0, 0x80, 0xED, 0x9F, 0xBF, 0xEE, 0x80, 0x80, 0xEF, 0xBF, 0xBF}},
	    {"first pair", {0xD800, 0xDC00}, {0xF0, 0x90, 0x80, 0x80}},
	    {"a pair of this library", {0xD840, 0xDC00}, {0xF0, 0xA0, 0x80, 0x80}},
	    {"U+1F600", {0xD83D, 0xDE00}, {0xF0, 0x9F, 0x98, 0x80}},
	    {"last pair", {0xDBFF, 0xDFFF}, {0xF4, 0x8F, 0xBF, 0xBF}},
	    {"a lone high surrogate", {0xD800}, minus_one},
	    {"a lone high surrogate behind text", {'a', 'b', 0xD800}, minus_one},
	    {"a high surrogate before a letter", {0xD800, 'a'}, minus_one},
	    {"a high surrogate before another", {0xD800, 0xD800, 0xDC00}, minus_one},
	    {"a high surrogate before a zero unit", {0xD800, 0}, minus_one},
	    {"a lone low surrogate", {0xDC00}, minus_one},
	    {"a low surrogate behind a pair", {0xD800, 0xDC00, 0xDC00}, minus_one},
	    {"a pair the wrong way round", {0xDC00, 0xD800}, minus_one},
	};
	for (row const &r : rows) {
		SCOPED_TRACE(r.name);
		expect_same(utf16_to_utf8_units(r.from), r.to, r.from);
		// utf16_to_utf32 refuses the same texts.
		bool const refused = r.to == minus_one;
		EXPECT_EQ(utf16_to_utf32_units(r.from) == minus_one, refused);
	}
}

TEST(utf16_to_utf32, rows) {
	row const rows[] = {
	    {"single units", {0, 'a', 0xD7FF, 0xE000, 0xFFFF}, {0, 'a', 0xD7FF, 0xE000, 0xFFFF}},
	    {"first pair", {0xD800, 0xDC00}, {0x10000}},
	    {"a pair of this library", {0xD840, 0xDC00}, {0x20000}},
	    {"last pair", {'a', 0xDBFF, 0xDFFF, 'b'}, {'a', 0x10FFFF, 'b'}},
	    {"a lone high surrogate", {0xDBFF}, minus_one},
	    {"a lone high surrogate behind text", {'a', 0xD800}, minus_one},
	    {"a high surrogate before a letter", {0xD800, 'a'}, minus_one},
	    {"a lone low surrogate", {0xDFFF}, minus_one},
	};
	for (row const &r : rows) {
		SCOPED_TRACE(r.name);
		expect_same(utf16_to_utf32_units(r.from), r.to, r.from);
	}
}

TEST(utf32_to_utf8, rows) {
	row const rows[] = {
	    {"one byte", {0, 0x7F}, {0, 0x7F}},
	    {"two bytes", {0x80, 0x7FF}, {0xC2, 0x80, 0xDF, 0xBF}},
	    {"three bytes", {0x800, 0xFFFF}, {0xE0, 0xA0, 0x80, 0xEF, 0xBF, 0xBF}},
	    {"around the surrogates", {0xD7FF, 0xE000}, {0xED, 0x9F, 0xBF, 0xEE, 0x80, 0x80}},
	    {"four bytes", {0x10000, 0x10FFFF}, {0xF0, 0x90, 0x80, 0x80, 0xF4, 0x8F, 0xBF, 0xBF}},
	    {"0x110000 is left out", {0x41, 0x110000, 0x42}, {'A', 'B'}},
	    {"all ones are left out", {0xFFFFFFFF, 'A'}, {'A'}},
	    {"units whose low bits are surrogates are left out", {0xFFFFD800, 0x11D800}, {}},
	    {"nothing else", {0x110000, 0x80000000}, {}},
	    {"a high surrogate", {'a', 0xD800, 'b'}, minus_one},
	    {"a low surrogate", {0xDFFF}, minus_one},
	    {"a pair", {0xD800, 0xDC00}, minus_one},
	    {"a surrogate behind one left out", {0x110000, 0xDC00}, minus_one},
	};
	for (row const &r : rows) {
		SCOPED_TRACE(r.name);
		expect_same(utf32_to_utf8_units(r.from), r.to, r.from);
	}
}

TEST(utf32_to_utf16, rows) {
	row const rows[] = {
	    {"single units", {0, 'a', 0xD7FF, 0xE000, 0xFFFE}, {0, 'a', 0xD7FF, 0xE000, 0xFFFE}},
	    {"U+FFFF is a pair", {0xFFFF}, {0xD83F, 0xDFFF}},
	    {"U+10000", {0x10000}, {0xD840, 0xDC00}},
	    {"U+1F600", {0x1F600}, {0xD87D, 0xDE00}},
	    {"U+100000", {0x100000}, {0xDC00, 0xDC00}},
	    {"U+10FFFF", {0x10FFFF}, {0xDC3F, 0xDFFF}},
	    {"0x110000", {0x41, 0x110000, 0x42}, minus_one},
	    {"all ones", {0xFFFFFFFF}, minus_one},
	    {"a high surrogate", {'a', 0xD800}, minus_one},
	    {"a low surrogate", {0xDFFF, 'a'}, minus_one},
	    {"a pair", {0xD800, 0xDC00}, minus_one},
	};
	for (row const &r : rows) {
		SCOPED_TRACE(r.name);
		expect_same(utf32_to_utf16_units(r.from), r.to, r.from);
	}
}

TEST(transcode, round_trip_through_utf16_moves_upper_code_points) {
	EXPECT_EQ(utf16_to_utf32_units(utf32_to_utf16_units({0x10000})), numbers{0x20000});
	EXPECT_EQ(utf16_to_utf8_units(utf8_to_utf16_units({0xF0, 0x90, 0x80, 0x80})), (numbers{0xF0, 0xA0, 0x80, 0x80}));
	EXPECT_EQ(utf16_to_utf32_units(utf32_to_utf16_units({0xFFFF})), numbers{0x1FFFF});
	EXPECT_EQ(utf16_to_utf32_units(utf32_to_utf16_units({0xFFFFF})), numbers{0x10FFFF});
	EXPECT_EQ(utf16_to_utf32_units(utf32_to_utf16_units({0x100000})), minus_one);
}

TEST(transcode, every_code_point_agrees_with_the_reference) {
	for (uint32 code_point = 0; code_point != 0x110010; ++code_point) {
		ustring32 const text(1, static_cast<quor::types::utf32_char>(code_point));
		bool const surrogate = code_point >= 0xD800 && code_point <= 0xDFFF;
		bool const beyond = code_point >= 0x110000;
		ustring8 const utf8 = utf32_to_utf8(text);
		ustring16 const utf16 = utf32_to_utf16(text);
		numbers expected8;
		numbers expected16;
		if (surrogate) {
			expected8 = expected16 = minus_one;
		} else if (beyond) {
			expected16 = minus_one;
		} else {
			reference::write_utf8(expected8, code_point);
			if (code_point < 0xFFFF) {
				expected16 = {code_point};
			} else {
				expected16 = {0xD800 + (code_point >> 10), 0xDC00 + (code_point & 0x3FF)};
			}
		}
		ASSERT_EQ(units_of(utf8), expected8) << std::hex << code_point;
		ASSERT_EQ(units_of(utf16), expected16) << std::hex << code_point;
		if (!surrogate && !beyond) {
			ASSERT_EQ(utf8_to_utf32(utf8), text) << std::hex << code_point;
			// Both roads to UTF-16 meet, but for U+FFFF.
			ASSERT_EQ(utf8_to_utf16(utf8) == utf16, code_point != 0xFFFF) << std::hex << code_point;
		}
		if (code_point < 0xFFFF && !surrogate) {
			ASSERT_EQ(utf16_to_utf32(utf16), text) << std::hex << code_point;
			ASSERT_EQ(utf16_to_utf8(utf16), utf8) << std::hex << code_point;
		}
	}
}

TEST(transcode, every_code_point_agrees_in_long_texts) {
	for (uint32 first = 0; first != 0x110000; first += 0x400) {
		if (first >= 0xD800 && first < 0xE000) {
			continue;
		}
		numbers units;
		for (uint32 code_point = first; code_point != first + 0x400; ++code_point) {
			units.push_back(code_point);
		}
		numbers const utf8 = reference::utf32_to_utf8(units);
		ASSERT_EQ(utf32_to_utf8_units(units), utf8);
		ASSERT_EQ(utf8_to_utf32_units(utf8), units);
		numbers const utf16 = reference::utf32_to_utf16(units);
		ASSERT_EQ(utf32_to_utf16_units(units), utf16);
		ASSERT_EQ(utf8_to_utf16_units(utf8), reference::utf8_to_utf16(utf8));
		ASSERT_EQ(utf16_to_utf8_units(utf16), reference::utf16_to_utf8(utf16));
		ASSERT_EQ(utf16_to_utf32_units(utf16), reference::utf16_to_utf32(utf16));
	}
}

TEST(transcode, every_two_byte_text_agrees_with_the_reference) {
	for (uint32 first = 0; first != 256; ++first) {
		for (uint32 second = 0; second != 256; ++second) {
			numbers const units{first, second};
			expect_same(utf8_to_utf16_units(units), reference::utf8_to_utf16(units), units);
			expect_utf8_to_utf32_agrees(units);
		}
		numbers const unit{first};
		expect_same(utf8_to_utf16_units(unit), reference::utf8_to_utf16(unit), unit);
		expect_utf8_to_utf32_agrees(unit);
	}
}

TEST(transcode, every_utf16_unit_and_sampled_pairs_agree_with_the_reference) {
	auto const check = [](numbers const &units) {
		expect_same(utf16_to_utf8_units(units), reference::utf16_to_utf8(units), units);
		expect_same(utf16_to_utf32_units(units), reference::utf16_to_utf32(units), units);
	};
	for (uint32 unit = 0; unit != 0x10000; ++unit) {
		check({unit});
	}
	for (uint32 first = 0; first < 0x10000; first += 251) {
		for (uint32 second = 0; second < 0x10000; second += 257) {
			check({first, second});
		}
	}
	for (uint32 first = 0xD7F0; first < 0xDC10; first += 5) {
		for (uint32 second = 0xDBF0; second < 0xE010; second += 7) {
			check({first, second});
		}
	}
}

TEST(transcode, random_texts_agree_with_the_reference) {
	std::vector<numbers> const pieces8{{'a'},
	                                   {'z', 'z', 'z', 'z', 'z', 'z', 'z', 'z', 'z'},
	                                   {0},
	                                   {0xC3, 0xA9},
	                                   {0xE2, 0x82, 0xAC},
	                                   {0xED, 0xA0, 0x80},
	                                   {0xF0, 0x9F, 0x98, 0x80},
	                                   {0xF7, 0xBF, 0xBF, 0xBF}};
	std::vector<numbers> const pieces16{{'a'}, {0}, {0xE9}, {0x20AC}, {0xD83D, 0xDE00}, {0xDBFF, 0xDFFF}, {0xFFFF}};
	std::vector<numbers> const pieces32{{'a'}, {0}, {0xE9}, {0x20AC}, {0x1F600}, {0x10FFFF}, {0xFFFE}, {0xFFFF}};
	std::mt19937 random(2);
	for (int i = 0; i != 20000; ++i) {
		numbers units8 = quor_test::random_text(random, pieces8, 20);
		numbers units16 = quor_test::random_text(random, pieces16, 20);
		numbers units32 = quor_test::random_text(random, pieces32, 20);
		// Half of the texts are spoilt at one place.
		if (i % 2 == 1) {
			auto const spoil = [&random](numbers &units, uint32 unit) {
				if (!units.empty()) {
					units[random() % units.size()] = unit;
				}
			};
			spoil(units8, static_cast<uint32>(random() % 256));
			spoil(units16, static_cast<uint32>(0xD700 + random() % 0xA00));
			spoil(units32, static_cast<uint32>(random() % 2 == 0 ? 0xD700 + random() % 0xA00 : random()));
		}
		expect_same(utf8_to_utf16_units(units8), reference::utf8_to_utf16(units8), units8);
		expect_utf8_to_utf32_agrees(units8);
		expect_same(utf16_to_utf8_units(units16), reference::utf16_to_utf8(units16), units16);
		expect_same(utf16_to_utf32_units(units16), reference::utf16_to_utf32(units16), units16);
		expect_same(utf32_to_utf8_units(units32), reference::utf32_to_utf8(units32), units32);
		expect_same(utf32_to_utf16_units(units32), reference::utf32_to_utf16(units32), units32);
	}
}

TEST(transcode, well_formed_text_below_u_10000_comes_back_from_every_width) {
	std::mt19937 random(3);
	for (int i = 0; i != 2000; ++i) {
		numbers units;
		for (std::size_t count = random() % 40; count != 0; --count) {
			auto const unit = static_cast<uint32>(random() % 0xF7FF);
			units.push_back(unit < 0xD800 ? unit : unit + 0x800);
		}
		auto const utf32 = text_of<ustring32>(units);
		ustring8 const utf8 = utf32_to_utf8(utf32);
		ustring16 const utf16 = utf32_to_utf16(utf32);
		EXPECT_EQ(utf8_to_utf32(utf8), utf32);
		EXPECT_EQ(utf16_to_utf32(utf16), utf32);
		EXPECT_EQ(utf8_to_utf16(utf8), utf16);
		EXPECT_EQ(utf16_to_utf8(utf16), utf8);
	}
}

} // namespace
