// What the string operations ask the heap for.

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "reference/text.hpp"
#include "support/allocation_counter.hpp"

namespace {

using quor::strings::character_index;
using quor::strings::from_native_wide;
using quor::strings::lower_case;
using quor::strings::replace_all;
using quor::strings::split_string;
using quor::strings::string_length;
using quor::strings::to_lower;
using quor::strings::to_native_wide;
using quor::strings::to_upper;
using quor::strings::unichar;
using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;
using quor::strings::utf16_to_utf32;
using quor::strings::utf16_to_utf8;
using quor::strings::utf32_to_utf16;
using quor::strings::utf32_to_utf8;
using quor::strings::utf8_to_utf16;
using quor::strings::utf8_to_utf32;
using quor_reference::numbers;
using quor_reference::text_of;
using quor_test::allocation_counter;

// A long text of one piece.
template <class Text>
Text repeated(numbers const &piece, std::size_t times) {
	numbers units;
	for (std::size_t i = 0; i != times; ++i) {
		units.insert(units.end(), piece.begin(), piece.end());
	}
	return text_of<Text>(units);
}

template <class Operation>
std::size_t allocations(Operation operation) {
	allocation_counter const counter;
	operation();
	return counter.count();
}

template <class Operation>
std::size_t bytes(Operation operation) {
	allocation_counter const counter;
	operation();
	return counter.bytes();
}

std::vector<numbers> const pieces8{{'a'}, {0xC3, 0xA9}, {0xE2, 0x82, 0xAC}, {0xF0, 0x9F, 0x98, 0x80}};
std::vector<numbers> const pieces16{{'a'}, {0xE9}, {0x20AC}, {0xD83D, 0xDE00}};
std::vector<numbers> const pieces32{{'a'}, {0xE9}, {0x20AC}, {0xFFFF}, {0x1F600}};

TEST(allocation, transcoders_allocate_their_result_once) {
	for (std::size_t const times : {std::size_t(40), std::size_t(1000), std::size_t(40000)}) {
		for (numbers const &piece : pieces8) {
			auto const text = repeated<ustring8>(piece, times);
			EXPECT_EQ(allocations([&] { utf8_to_utf16(text); }), 1U);
			EXPECT_EQ(allocations([&] { utf8_to_utf32(text); }), 1U);
		}
		for (numbers const &piece : pieces16) {
			auto const text = repeated<ustring16>(piece, times);
			EXPECT_EQ(allocations([&] { utf16_to_utf8(text); }), 1U);
			EXPECT_EQ(allocations([&] { utf16_to_utf32(text); }), 1U);
			EXPECT_LE(allocations([&] { to_native_wide(text); }), 1U);
		}
		for (numbers const &piece : pieces32) {
			auto const text = repeated<ustring32>(piece, times);
			EXPECT_EQ(allocations([&] { utf32_to_utf8(text); }), 1U);
			EXPECT_EQ(allocations([&] { utf32_to_utf16(text); }), 1U);
			auto const native = repeated<std::wstring>(piece, times);
			EXPECT_LE(allocations([&] { from_native_wide(native); }), 1U);
		}
	}
}

TEST(allocation, transcoders_reserve_their_room_by_the_units_of_the_text) {
	EXPECT_GE(utf16_to_utf8(ustring16(1000, QUOR_W('a'))).capacity(), 2000U);
	EXPECT_GE(utf32_to_utf8(ustring32(1000, QUOR_U32('a'))).capacity(), 2000U);
	EXPECT_GE(utf8_to_utf16(repeated<ustring8>({0xE2, 0x82, 0xAC}, 1000)).capacity(), 1500U);
}

TEST(allocation, results_of_transcoders_waste_no_unbounded_memory) {
	for (std::size_t const times : {std::size_t(10), std::size_t(200), std::size_t(40000)}) {
		// Short texts get the room that the standard string takes at least.
		auto const check = [](auto const &result) { EXPECT_LE(result.capacity(), 4 * result.size() + 32); };
		for (numbers const &piece : pieces8) {
			check(utf8_to_utf16(repeated<ustring8>(piece, times)));
			check(utf8_to_utf32(repeated<ustring8>(piece, times)));
		}
		for (numbers const &piece : pieces16) {
			check(utf16_to_utf8(repeated<ustring16>(piece, times)));
			check(utf16_to_utf32(repeated<ustring16>(piece, times)));
		}
		for (numbers const &piece : pieces32) {
			check(utf32_to_utf8(repeated<ustring32>(piece, times)));
			check(utf32_to_utf16(repeated<ustring32>(piece, times)));
		}
	}
}

TEST(allocation, short_texts_are_transcoded_without_the_heap) {
	ustring8 const text("abc");
	EXPECT_EQ(allocations([&] { utf8_to_utf16(text); }), 0U);
	EXPECT_EQ(allocations([&] { utf8_to_utf32(text); }), 0U);
	ustring16 const wide(QUOR_W("abc"));
	EXPECT_EQ(allocations([&] { utf16_to_utf8(wide); }), 0U);
	ustring32 const utf32(QUOR_U32("abc"));
	EXPECT_EQ(allocations([&] { utf32_to_utf16(utf32); }), 0U);
}

TEST(allocation, decoding_and_measuring_allocate_nothing) {
	auto const text = repeated<ustring8>({0xE2, 0x82, 0xAC}, 1000);
	auto const wide = repeated<ustring16>({0xD83D, 0xDE00}, 1000);
	quor::types::uint32 consumed = 0;
	EXPECT_EQ(allocations([&] {
		          string_length(text);
		          string_length(text.c_str());
		          unichar(text.data(), 3000, 3, consumed);
		          character_index(text, 900);
		          character_index(wide, 900);
	          }),
	          0U);
}

TEST(allocation, replace_all_without_a_match_allocates_nothing) {
	ustring8 text(1000, 'a');
	ustring8 const from("b");
	ustring8 const to("c");
	EXPECT_EQ(allocations([&] { replace_all(text, from, to); }), 0U);
}

TEST(allocation, replace_all_of_the_same_size_or_less_allocates_once) {
	ustring8 text(1000, 'a');
	ustring8 const from("a");
	ustring8 const to("b");
	EXPECT_EQ(allocations([&] { replace_all(text, from, to); }), 1U);
	EXPECT_EQ(allocations([&] { replace_all(text, to, ustring8()); }), 1U);
}

TEST(allocation, case_functions_allocate_their_result_once) {
	ustring16 const text(1000, QUOR_W('a'));
	EXPECT_EQ(allocations([&] { to_lower(text); }), 1U);
	EXPECT_EQ(allocations([&] { to_upper(text); }), 1U);
	EXPECT_EQ(allocations([&] { lower_case(text, 5, 10); }), 1U);
}

TEST(allocation, memory_grows_in_proportion_to_the_text) {
	ustring8 const separator(",");
	ustring8 const longer("--");
	auto const split = [&](std::size_t times) {
		auto const text = repeated<ustring8>({'a', ','}, times);
		return bytes([&] { split_string(text, separator, 0); });
	};
	auto const replace = [&](std::size_t times) {
		auto text = repeated<ustring8>({'a', ','}, times);
		return bytes([&] { replace_all(text, separator, longer); });
	};
	auto const transcode = [&](std::size_t times) {
		auto const text = repeated<ustring8>({0xE2, 0x82, 0xAC}, times);
		return bytes([&] { utf8_to_utf32(text); }) + bytes([&] { utf8_to_utf16(text); });
	};
	for (std::size_t const times : {std::size_t(1000), std::size_t(5000), std::size_t(40000)}) {
		EXPECT_LE(split(2 * times) * 10, split(times) * 22);
		EXPECT_LE(replace(2 * times) * 10, replace(times) * 22);
		EXPECT_LE(transcode(2 * times) * 10, transcode(times) * 22);
	}
}

// Runs the operation with each of its allocations failing in turn; what it began must
// be freed and the bad_alloc must come out.
template <class Operation>
void expect_survives_failures(Operation operation) {
	for (std::size_t index = 0;; ++index) {
		ASSERT_LT(index, 1000U);
		allocation_counter const counter;
		bool happened = false;
		bool thrown = false;
		{
			quor_test::allocation_failure const failure(index);
			try {
				operation();
			} catch (std::bad_alloc const &) {
				thrown = true;
			}
			happened = failure.happened();
		}
		EXPECT_EQ(thrown, happened);
		EXPECT_EQ(counter.live(), 0);
		if (!happened) {
			return;
		}
	}
}

TEST(allocation, failures_leave_nothing_behind) {
	auto const text = repeated<ustring8>({'A', ','}, 50);
	auto const wide = repeated<ustring16>({'a', 0x20AC}, 50);
	auto const utf32 = repeated<ustring32>({'a', 0x20AC}, 50);
	ustring8 const comma(",");
	expect_survives_failures([&] { utf8_to_utf16(text); });
	expect_survives_failures([&] { utf8_to_utf32(text); });
	expect_survives_failures([&] { utf16_to_utf8(wide); });
	expect_survives_failures([&] { utf16_to_utf32(wide); });
	expect_survives_failures([&] { utf32_to_utf8(utf32); });
	expect_survives_failures([&] { utf32_to_utf16(utf32); });
	expect_survives_failures([&] { to_native_wide(wide); });
	expect_survives_failures([&] { split_string(text, comma, 0); });
	expect_survives_failures([&] { to_lower(text); });
}

TEST(allocation, failed_replace_all_leaves_the_text) {
	ustring8 const before = repeated<ustring8>({'a', ','}, 50);
	ustring8 const from(",");
	ustring8 const to(100, '-');
	for (std::size_t index = 0; index != 4; ++index) {
		ustring8 text(before);
		bool thrown = false;
		{
			quor_test::allocation_failure const failure(index);
			try {
				replace_all(text, from, to);
			} catch (std::bad_alloc const &) {
				thrown = true;
			}
		}
		EXPECT_TRUE(thrown) << index;
		EXPECT_EQ(text, before) << index;
	}
}

} // namespace
