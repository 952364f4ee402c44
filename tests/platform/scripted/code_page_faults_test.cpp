#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include <quor/quor.hpp>

#include "platform/scripted/scripted_code_page.hpp"

namespace {

using quor::strings::code_page;
using quor::strings::ustring16;
using quor::strings::ustring8;
using quor_test::fresh_code_page;

constexpr char long_text[] = "a text that is longer than what is converted in the place that is there already; "
                             "it goes on for a while so that its room has to be taken first, and then some more. "
                             "It goes on for a while so that its room has to be taken first, and then even more. "
                             "It goes on for a while so that its room has to be taken first, and then that's it.";

std::string zero_terminated(std::string text) {
	return text + '\0';
}

TEST(code_page_faults, a_failing_service_gives_the_length_error_of_strings) {
	for (code_page::encoding_type const page :
	     {code_page::utf_8, code_page::cp_932, code_page::cp_1252, code_page::system_ansi, code_page::system_oem}) {
		for (std::string const &text : {std::string(), std::string("text"), std::string(long_text)}) {
			fresh_code_page();
			EXPECT_THROW(code_page(page).as_utf16(text), std::length_error);
			EXPECT_THROW(code_page(page).as_utf8(text), std::length_error);
			EXPECT_THROW(code_page(page).as_utf32(text), std::length_error);
			EXPECT_THROW(code_page(page).as_ustring(text), std::length_error);
			EXPECT_THROW(code_page(page).encode(ustring8(text)), std::length_error);
			EXPECT_THROW(code_page(page).encode(ustring16(text.begin(), text.end())), std::length_error);
		}
	}
}

TEST(code_page_faults, the_service_is_asked_for_the_system_page) {
	struct row {
		code_page::encoding_type page;
		unsigned system;
	};
	for (row const &expected :
	     {row{code_page::system_ansi, 0}, row{code_page::system_oem, 1}, row{code_page::system_oem_alt, 1},
	      row{code_page::utf_8, 65001}, row{code_page::cp_950, 950}, row{code_page::cp_28605, 28605}}) {
		auto &service = fresh_code_page();
		service.needed = 6;
		service.narrow = zero_terminated("bytes");
		service.wide = ustring16(QUOR_W("units\0"), 6);
		EXPECT_EQ(code_page(expected.page).encode(ustring16(QUOR_W("x"))), "bytes");
		EXPECT_EQ(code_page(expected.page).as_utf16("x"), QUOR_W("units"));
		for (auto const &call : service.calls) {
			EXPECT_EQ(call.page, expected.system);
			// With the zero that ends the text.
			EXPECT_EQ(call.length, 2);
		}
		EXPECT_FALSE(service.calls.empty());
	}
}

// A service that needs more room than a page should is asked for the size first.
TEST(code_page_faults, a_result_larger_than_expected_is_measured) {
	std::string const result(2000, 'r');
	auto &service = fresh_code_page();
	service.needed = 2001;
	service.narrow = zero_terminated(result);
	service.wide = ustring16(service.narrow.begin(), service.narrow.end());
	for (std::string const &text : {std::string("x"), std::string(long_text)}) {
		service.calls.clear();
		EXPECT_EQ(code_page(code_page::cp_1252).encode(ustring16(text.begin(), text.end())), result);
		EXPECT_EQ(code_page(code_page::cp_1252).as_utf16(text), ustring16(result.begin(), result.end()));
		// The last one has no room for the zero, and its answer of 0 doesn't matter.
		EXPECT_EQ(service.calls.back().out_size, 2000);
		EXPECT_TRUE(service.calls.back().has_out);
		EXPECT_EQ(service.calls.size(), 6U);
	}
}

TEST(code_page_faults, no_room_is_told_that_isnt_there) {
	auto &service = fresh_code_page();
	service.narrow = zero_terminated("r");
	service.wide = ustring16(QUOR_W("r\0"), 2);
	service.needed = 2;
	for (std::size_t size = 0; size != 300; ++size) {
		service.calls.clear();
		std::string const text(size, 'x');
		ustring16 const units(text.begin(), text.end());
		EXPECT_EQ(code_page(code_page::cp_932).encode(units), "r");
		EXPECT_EQ(code_page(code_page::utf_8).encode(units), "r");
		EXPECT_EQ(code_page(code_page::cp_932).as_utf16(text), QUOR_W("r"));
		for (auto const &call : service.calls) {
			EXPECT_LE(call.out_size, static_cast<int>(3 * (size + 1)));
			EXPECT_EQ(call.length, static_cast<int>(size + 1));
		}
	}
}

} // namespace
