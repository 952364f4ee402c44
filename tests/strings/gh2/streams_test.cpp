#include <quor/strings/gh2/streams.hpp>

#include <gtest/gtest.h>

#include <ios>
#include <iostream>
#include <sstream>
#include <string>
#include <type_traits>

#include <quor/strings/native_wide.hpp>

namespace {

namespace strings = QUOR_2_9::strings;
namespace gh2 = strings::gh2;
using QUOR_2_9::types::wide_char;
using QUOR_2_9::types::wide_string;
using strings::ustring16;

static_assert(std::is_same_v<decltype(gh2::ucin), std::wistream &>);
static_assert(std::is_same_v<decltype(gh2::ucout), std::wostream &>);
static_assert(std::is_same_v<decltype(gh2::ucerr), std::wostream &>);

TEST(gh2_streams, are_the_standard_ones) {
	EXPECT_EQ(&gh2::ucin, &std::wcin);
	EXPECT_EQ(&gh2::ucout, &std::wcout);
	EXPECT_EQ(&gh2::ucerr, &std::wcerr);
}

TEST(gh2_streams, insertion_converts_to_the_streams_unit) {
	std::wostringstream stream;
	stream << ustring16(QUOR_W("caf\u00E9 \u20AC \U0001F600")) << L'|' << ustring16(wide_string(QUOR_W("wide"))) << 5;
	EXPECT_EQ(stream.str(), L"caf\u00E9 \u20AC \U0001F600|wide5");
	std::wostringstream empty;
	empty << ustring16();
	EXPECT_EQ(empty.str(), L"");
	EXPECT_TRUE(empty.good());
}

TEST(gh2_streams, insertion_keeps_zeros) {
	std::wostringstream stream;
	stream << ustring16(QUOR_W("a\0b"), 3);
	EXPECT_EQ(stream.str(), std::wstring(L"a\0b", 3));
}

TEST(gh2_streams, insertion_obeys_width_and_fill_and_resets_the_width) {
	std::wostringstream stream;
	stream.fill(L'.');
	stream.width(5);
	stream << ustring16(QUOR_W("ab"));
	EXPECT_EQ(stream.width(), 0);
	stream.width(5);
	stream << std::left << ustring16(QUOR_W("cd")) << L'|';
	EXPECT_EQ(stream.str(), L"...abcd...|");
}

TEST(gh2_streams, half_a_pair_alone_is_a_replacement_character) {
	if (sizeof(wchar_t) == sizeof(wide_char)) {
		return; // units pass as they are
	}
	for (unsigned int half : {0xD800U, 0xDBFFU, 0xDC00U, 0xDFFFU}) {
		std::wostringstream stream;
		stream << ustring16({wide_char('a'), static_cast<wide_char>(half), wide_char('b')});
		EXPECT_EQ(stream.str(), L"a\uFFFDb") << half;
	}
	std::wostringstream stream;
	stream << ustring16({wide_char(0xD7FF), wide_char(0xE000), wide_char(0xDE00), wide_char(0xD83D)});
	EXPECT_EQ(stream.str(), L"\uD7FF\uE000\uFFFD\uFFFD");
}

TEST(gh2_streams, insertion_into_a_bad_stream_writes_nothing) {
	std::wostringstream stream;
	stream.setstate(std::ios_base::badbit);
	stream << ustring16(QUOR_W("a"));
	EXPECT_EQ(stream.str(), L"");
}

TEST(gh2_streams, output_through_the_name_reaches_the_standard_stream) {
	std::wostringstream kept;
	std::wstreambuf *const before = std::wcout.rdbuf(kept.rdbuf());
	gh2::ucout << ustring16(QUOR_W("caf\u00E9"));
	std::wcout.rdbuf(before);
	EXPECT_EQ(kept.str(), L"caf\u00E9");
	std::wistringstream given(L"one two");
	std::wstreambuf *const input_before = std::wcin.rdbuf(given.rdbuf());
	std::wstring word;
	gh2::ucin >> word;
	std::wcin.rdbuf(input_before);
	EXPECT_EQ(strings::from_native_wide(word), QUOR_W("one"));
}

} // namespace
