// What conversions of code pages ask the heap for.

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <string>

#include <quor/quor.hpp>

#include "support/allocation_counter.hpp"

namespace {

using quor::strings::code_page;
using quor::strings::ustring16;
using quor_test::allocation_counter;
using quor_test::allocation_failure;

TEST(code_page_allocation, short_texts_take_no_memory) {
	for (code_page::encoding_type const type :
	     {code_page::utf_8, code_page::cp_932, code_page::cp_1251, code_page::system_ansi}) {
		code_page const page(type);
		std::string const bytes = "short";
		ustring16 const units(QUOR_W("short"));
		allocation_counter const counter;
		EXPECT_EQ(page.encode(units).size(), 5U);
		EXPECT_EQ(page.as_utf16(bytes).size(), 5U);
		EXPECT_EQ(counter.count(), 0U) << static_cast<int>(type);
	}
}

// The result may take a second block, where the first one was much too large.
TEST(code_page_allocation, long_texts_take_the_result_and_little_more) {
	std::string const bytes(100000, '\xA4');
	for (code_page::encoding_type const type :
	     {code_page::utf_8, code_page::cp_936, code_page::cp_949, code_page::cp_1251}) {
		code_page const page(type);
		ustring16 units;
		std::string back;
		{
			allocation_counter const counter;
			units = page.as_utf16(bytes);
			EXPECT_LE(counter.count(), 2U) << static_cast<int>(type);
		}
		EXPECT_LE(units.capacity(), units.size() / 3 * 4 + 8) << static_cast<int>(type);
		{
			allocation_counter const counter;
			back = page.encode(units);
			EXPECT_LE(counter.count(), 2U) << static_cast<int>(type);
		}
		EXPECT_LE(back.capacity(), back.size() / 3 * 4 + 8) << static_cast<int>(type);
	}
}

TEST(code_page_allocation, a_failing_heap_throws) {
	std::string const bytes(1000, 'x');
	ustring16 const units(1000, QUOR_W('x'));
	for (code_page::encoding_type const type : {code_page::utf_8, code_page::cp_936, code_page::cp_1251}) {
		code_page const page(type);
		{
			allocation_failure const failure(0);
			EXPECT_THROW(page.as_utf16(bytes), std::bad_alloc);
		}
		{
			allocation_failure const failure(0);
			EXPECT_THROW(page.encode(units), std::bad_alloc);
		}
	}
}

} // namespace
