#include <gtest/gtest.h>

#include <string>

#include "platform/posix/native_path.hpp"

namespace {

using QUOR_2_9::platform::name_from_native;
using QUOR_2_9::platform::native_path;

TEST(native_path, units_become_utf_8_and_backslashes_slashes) {
	struct row {
		std::u16string path;
		std::string native;
	};
	for (auto const &[path, native] : {
	         row{u"a", "a"},
	         row{u"\\a\\\\b\\", "/a//b/"},
	         row{u"a/b", "a/b"},
	         row{u"\u007F\u0080\u07FF\u0800\uD7FF\uE000\uFFFF",
	             "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF"},
	         row{u"\U00010000\U0010FFFF", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
	         row{std::u16string(u"a\0b", 3), "a"},
	     }) {
		SCOPED_TRACE(native);
		auto const result = native_path(path);
		ASSERT_TRUE(result.has_value());
		EXPECT_EQ(*result, native);
	}
}

TEST(native_path, what_cannot_be_a_name_gives_nothing) {
	for (auto const &path :
	     {std::u16string(), std::u16string(1, u'\0'), std::u16string{0xD800}, std::u16string{0xDC00},
	      std::u16string{'a', 0xD800}, std::u16string{0xD800, 'a'}, std::u16string{0xD800, 0xD800, 0xDC00},
	      std::u16string{0xD800, 0}, std::u16string{0xDC00, 0xD800}, std::u16string{0xDBFF, 0xE000}}) {
		SCOPED_TRACE(testing::PrintToString(path));
		EXPECT_FALSE(native_path(path).has_value());
	}
}

TEST(name_from_native, every_code_point_makes_the_round_trip) {
	for (char32_t point = 1; point <= 0x10FFFF; ++point) {
		if ((point >= 0xD800 && point <= 0xDFFF) || point == '\\') {
			continue;
		}
		std::u16string wide;
		if (point < 0x10000) {
			wide.push_back(static_cast<char16_t>(point));
		} else {
			wide.push_back(static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10)));
			wide.push_back(static_cast<char16_t>(0xDC00 + ((point - 0x10000) & 0x3FF)));
		}
		auto const native = native_path(wide);
		ASSERT_TRUE(native.has_value()) << static_cast<unsigned long>(point);
		auto const back = name_from_native(*native);
		ASSERT_TRUE(back.has_value()) << static_cast<unsigned long>(point);
		ASSERT_EQ(*back, wide) << static_cast<unsigned long>(point);
	}
}

TEST(name_from_native, names_that_no_path_can_spell_give_nothing) {
	for (std::string const name : {"a\\b",
	                               "\x80",
	                               "\xBF",
	                               "\xC0\x80",
	                               "\xC1\xBF",
	                               "\xC2",
	                               "\xC2\x41",
	                               "\xE0\x80\x80",
	                               "\xE0\x9F\xBF",
	                               "\xE2\x82",
	                               "\xE2\x82\x41",
	                               "\xED\xA0\x80",
	                               "\xED\xBF\xBF",
	                               "\xF0\x80\x80\x80",
	                               "\xF0\x8F\xBF\xBF",
	                               "\xF4\x90\x80\x80",
	                               "\xF0\x90\x80",
	                               "\xF0\x90\x80\x41",
	                               "\xF8\x88\x80\x80\x80",
	                               "\xFE",
	                               "\xFF",
	                               "good\xFF"}) {
		SCOPED_TRACE(testing::PrintToString(name));
		EXPECT_FALSE(name_from_native(name).has_value());
	}
}

} // namespace
