// What the wide layer asks the heap for.

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <string>

#include <quor/strings/gh2/wide_text.hpp>

#include "support/allocation_counter.hpp"

namespace {

namespace gh2 = QUOR_2_9::strings::gh2;
using QUOR_2_9::types::wide_string;
using quor_test::allocation_counter;

template <class Operation>
std::size_t allocations(Operation operation) {
	allocation_counter const counter;
	operation();
	return counter.count();
}

TEST(gh2_allocation, conversions_make_the_result_alone) {
	std::string narrow;
	for (int i = 0; i != 1000; ++i) {
		narrow += "caf\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80";
	}
	wide_string const wide = gh2::to_ustring(narrow);
	EXPECT_EQ(allocations([&] { gh2::to_ustring(narrow); }), 1U);
	EXPECT_EQ(allocations([&] { gh2::to_utf8(wide); }), 1U);
	EXPECT_EQ(allocations([&] { gh2::to_ustring(wide); }), 1U);
	EXPECT_EQ(allocations([&] { gh2::to_widechar(wide); }), 1U);
	EXPECT_EQ(allocations([&] { gh2::tolower(wide); }), 1U);
	EXPECT_EQ(allocations([&] { gh2::toupper(wide); }), 1U);
}

TEST(gh2_allocation, the_locales_encoding_takes_two_more) {
	wide_string const wide(1000, QUOR_W('a'));
	std::string const narrow(1000, 'a');
	EXPECT_EQ(allocations([&] { gh2::to_ansi(wide); }), 3U);
	EXPECT_EQ(allocations([&] { gh2::from_ansi(narrow); }), 3U);
}

} // namespace
