// The wide layer over a service that fails, or that answers another size the second time.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include <quor/strings/gh2/wide_text.hpp>

#include "platform/scripted/scripted_code_page.hpp"

namespace {

namespace gh2 = QUOR_2_9::strings::gh2;
using QUOR_2_9::types::wide_string;
using quor_test::fresh_code_page;

TEST(wide_text_faults, empty_text_asks_no_service) {
	auto const &service = fresh_code_page();
	EXPECT_EQ(gh2::to_ustring(""), wide_string());
	EXPECT_EQ(gh2::to_ustring(std::string()), wide_string());
	EXPECT_EQ(gh2::to_utf8(wide_string()), "");
	EXPECT_TRUE(service.calls.empty());
}

TEST(wide_text_faults, the_service_is_asked_for_the_size_and_for_all_units) {
	auto &service = fresh_code_page();
	service.needed = 3;
	service.wide = QUOR_W("xyz");
	EXPECT_EQ(gh2::to_ustring(std::string("ab\0c", 4)), QUOR_W("xyz"));
	ASSERT_EQ(service.calls.size(), 2U);
	for (std::size_t call = 0; call != 2; ++call) {
		EXPECT_EQ(service.calls[call].page, 65001U);
		EXPECT_EQ(service.calls[call].length, 4);
		EXPECT_EQ(service.calls[call].has_out, call == 1);
	}
	EXPECT_EQ(service.calls[1].out_size, 3);

	service = {};
	service.needed = 2;
	service.narrow = "uv";
	EXPECT_EQ(gh2::to_utf8(wide_string(QUOR_W("a\0b\0c"), 5)), "uv");
	ASSERT_EQ(service.calls.size(), 2U);
	EXPECT_EQ(service.calls[0].length, 5);
	EXPECT_EQ(service.calls[1].out_size, 2);
}

TEST(wide_text_faults, a_service_that_fails_gives_empty_text) {
	auto &service = fresh_code_page();
	service.wide = QUOR_W("xyz");
	service.narrow = "xyz";
	EXPECT_EQ(gh2::to_ustring("abc"), wide_string());
	EXPECT_EQ(gh2::to_utf8(QUOR_W("abc")), "");
	EXPECT_EQ(service.calls.size(), 2U);
}

TEST(wide_text_faults, what_a_shorter_second_answer_leaves_is_cut) {
	auto &service = fresh_code_page();
	service.needed = 10;
	service.wide = QUOR_W("xy");
	service.narrow = std::string("u\0v", 3);
	EXPECT_EQ(gh2::to_ustring("abc"), QUOR_W("xy"));
	EXPECT_EQ(gh2::to_utf8(QUOR_W("abc")), "u");
	service.needed = 2;
	service.wide = QUOR_W("wxyz");
	EXPECT_EQ(gh2::to_ustring("abc"), QUOR_W("wx"));
	service.wide.clear();
	EXPECT_EQ(gh2::to_ustring("abc"), wide_string());
}

} // namespace
