#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include <sys/mman.h>
#include <unistd.h>

#include <quor/quor.hpp>

#include "platform/code_page.hpp"
#include "platform/posix/code_pages/system_page.hpp"
#include "platform/posix/code_pages/unit_sink.hpp"
#include "reference/code_pages.hpp"
#include "support/c_locale.hpp"
#include "support/made_locale.hpp"

namespace {

using quor::platform::multi_byte_to_wide;
using quor::platform::wide_to_multi_byte;
using units = std::u16string;

constexpr int none = 0;

std::vector<unsigned> all_pages() {
	std::vector<unsigned> pages = quor_reference::all_code_pages();
	pages.insert(pages.end(), {0U, 1U, 65001U});
	return pages;
}

units read(unsigned page, std::string const &text) {
	units result(text.size(), u'#');
	int const count = multi_byte_to_wide(page, text.data(), static_cast<int>(text.size()), result.data(),
	                                     static_cast<int>(result.size()));
	result.resize(static_cast<std::size_t>(count));
	return result;
}

std::string written(unsigned page, units const &text) {
	std::string result(text.size() * 3, '#');
	int const count = wide_to_multi_byte(page, text.data(), static_cast<int>(text.size()), result.data(),
	                                     static_cast<int>(result.size()));
	result.resize(static_cast<std::size_t>(count));
	return result;
}

TEST(posix_code_page, malformed_utf8_gives_one_replacement_for_each_bad_part) {
	struct row {
		std::string bytes;
		units expected;
	};
	for (row const &expected : {
	         row{"\x80", u"\uFFFD"},
	         row{"\xBF\xBF", u"\uFFFD\uFFFD"},
	         row{"\xC0\x80", u"\uFFFD\uFFFD"},
	         row{"\xC1\xBF", u"\uFFFD\uFFFD"},
	         row{"\xC2", u"\uFFFD"},
	         row{"\xC2\x80", u"\u0080"},
	         row{"\xC2\x41", u"\uFFFD\x41"},
	         row{"\xDF\xBF", u"\u07FF"},
	         row{"\xDF\xC0", u"\uFFFD\uFFFD"},
	         row{"\xE0\x80\x80", u"\uFFFD\uFFFD\uFFFD"},
	         row{"\xE0\x9F\xBF", u"\uFFFD\uFFFD\uFFFD"},
	         row{"\xE0\xA0\x80", u"\u0800"},
	         row{"\xE0\xA0", u"\uFFFD"},
	         row{"\xE1\x80\xE2\xF0\x91\x92\xF1\xBF\x41", u"\uFFFD\uFFFD\uFFFD\uFFFD\x41"},
	         row{"\xED\x9F\xBF", u"\uD7FF"},
	         row{"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},
	         row{"\xED\xBF\xBF", u"\uFFFD\uFFFD\uFFFD"},
	         row{"\xEE\x80\x80", u"\uE000"},
	         row{"\xEF\xBF\xBF", u"\uFFFF"},
	         row{"\xEF\xBF", u"\uFFFD"},
	         row{"\xEF\xBF\x41", u"\uFFFD\x41"},
	         row{"\xF0\x8F\xBF\xBF", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
	         row{"\xF0\x90\x80\x80", u"\U00010000"},
	         row{"\xF0\x90\x80", u"\uFFFD"},
	         row{"\xF0\x90\x80\x41", u"\uFFFD\x41"},
	         row{"\xF0\x90\x41", u"\uFFFD\x41"},
	         row{"\xF4\x8F\xBF\xBF", u"\U0010FFFF"},
	         row{"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
	         row{"\xF5\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
	         row{"\xF8\x88\x80\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD"},
	         row{"\xFE\xFF", u"\uFFFD\uFFFD"},
	     }) {
		// Alone, and at every place of the steps.
		for (std::size_t before = 0; before != 40; ++before) {
			std::string const bytes = std::string(before, 'x') + expected.bytes;
			units const result = units(before, u'x') + expected.expected;
			EXPECT_EQ(read(65001, bytes), result) << before;
			std::string const more = bytes + std::string(40, 'y');
			EXPECT_EQ(read(65001, more), result + units(40, u'y')) << before;
		}
	}
}

TEST(posix_code_page, every_code_point_goes_through_utf8) {
	units text;
	std::string expected;
	for (char32_t point = 0; point != 0x110000; ++point) {
		auto const byte = [&](char32_t value) {
			expected.push_back(static_cast<char>(static_cast<unsigned char>(value)));
		};
		if (point >= 0xD800 && point <= 0xDFFF) {
			continue;
		}
		if (point < 0x80) {
			byte(point);
		} else if (point < 0x800) {
			byte(0xC0 | point >> 6);
		} else if (point < 0x10000) {
			byte(0xE0 | point >> 12);
			byte(0x80 | (point >> 6 & 63));
		} else {
			byte(0xF0 | point >> 18);
			byte(0x80 | (point >> 12 & 63));
			byte(0x80 | (point >> 6 & 63));
		}
		if (point >= 0x80) {
			byte(0x80 | (point & 63));
		}
		if (point < 0x10000) {
			text.push_back(static_cast<char16_t>(point));
		} else {
			text.push_back(static_cast<char16_t>(0xD800 + ((point - 0x10000) >> 10)));
			text.push_back(static_cast<char16_t>(0xDC00 + (point & 0x3FF)));
		}
	}
	EXPECT_TRUE(written(65001, text) == expected);
	EXPECT_TRUE(read(65001, expected) == text);
	auto const size = static_cast<int>(text.size());
	EXPECT_EQ(wide_to_multi_byte(65001, text.data(), size, nullptr, 0), static_cast<int>(expected.size()));
	EXPECT_EQ(multi_byte_to_wide(65001, expected.data(), static_cast<int>(expected.size()), nullptr, 0), size);
}

TEST(posix_code_page, half_a_pair_is_a_replacement_in_utf8_and_a_question_mark_elsewhere) {
	struct row {
		units text;
		std::string utf8;
		std::string other;
	};
	units const high(1, 0xD83D);
	units const low(1, 0xDE00);
	std::string const bad = "\xEF\xBF\xBD";
	for (row const &expected : {
	         row{high, bad, "?"},
	         row{low, bad, "?"},
	         row{low + high, bad + bad, "??"},
	         row{high + high, bad + bad, "??"},
	         row{high + low, "\xF0\x9F\x98\x80", "?"},
	         row{high + u"x" + low, bad + "x" + bad, "?x?"},
	         row{high + high + low, bad + "\xF0\x9F\x98\x80", "??"},
	         row{high + low + low, "\xF0\x9F\x98\x80" + bad, "??"},
	     }) {
		for (std::size_t before = 0; before != 70; ++before) {
			for (char16_t const filler : {u'x', u'\u00E9'}) {
				units const text = units(before, filler) + expected.text;
				std::string const front = written(65001, units(before, filler) + u"|");
				std::string const utf8 = front.substr(0, front.size() - 1) + expected.utf8;
				EXPECT_EQ(written(65001, text), utf8);
				EXPECT_EQ(wide_to_multi_byte(65001, text.data(), static_cast<int>(text.size()), nullptr, 0),
				          static_cast<int>(utf8.size()));
				std::string const other = std::string(before, filler == u'x' ? 'x' : '\xE9') + expected.other;
				EXPECT_EQ(written(1252, text), other);
				EXPECT_EQ(wide_to_multi_byte(1252, text.data(), static_cast<int>(text.size()), nullptr, 0),
				          static_cast<int>(other.size()));
				std::string const kanji = std::string(before, filler == u'x' ? 'x' : '?') + expected.other;
				EXPECT_EQ(written(932, text), kanji);
				EXPECT_EQ(wide_to_multi_byte(932, text.data(), static_cast<int>(text.size()), nullptr, 0),
				          static_cast<int>(kanji.size()));
			}
		}
	}
}

TEST(posix_code_page, lone_and_cut_lead_bytes_are_bad_alone) {
	struct row {
		unsigned page;
		std::string bytes;
		units expected;
	};
	std::string const zero(1, '\0');
	for (row const &expected : {
	         row{932, "\x81", u"\uFFFD"},           row{932, "\x81" + zero, units(u"\uFFFD\0", 2)},
	         row{932, "\x81 ", u"\uFFFD "},         row{932, "\x81\x7F", u"\uFFFD\x7F"},
	         row{932, "\x81\xFD", u"\uFFFD\uF8F1"}, row{932, "\x81\xAD", u"\uFFFD"},
	         row{932, "\x85@", u"\uFFFD"},          row{932, "\x81\x81\x40", u"\uFF1D@"},
	         row{932, "\x80", u"\u0080"},           row{932, "\x5C\x7E", u"\x5C\x7E"},
	         row{932, "\xA0\xFF", u"\uF8F0\uF8F3"}, row{936, "\x81", u"\uFFFD"},
	         row{936, "\x81\x7F", u"\uFFFD\x7F"},   row{936, "\x81\xFF", u"\uFFFD\uF8F5"},
	         row{936, "\xFF\x81", u"\uF8F5\uFFFD"}, row{936, "\x80", u"\u20AC"},
	         row{949, "\x81[", u"\uFFFD["},         row{949, "\x81\x80", u"\uFFFD\u0080"},
	         row{949, "\xC9\xA1", u"\uE000"},       row{949, "\xC9\x41", u"\uFFFD"},
	         row{949, "\xFE\xFE", u"\uE0BB"},       row{950, "\xA1\x80", u"\uFFFD\u0080"},
	         row{950, "\xC6\xA1", u"\uF6B1"},       row{950, "\xFE\xFE", u"\uE310"},
	         row{950, "\x81@", u"\uEEB8"},          row{950, "\xA1\xA0", u"\uFFFD\uFFFD"},
	     }) {
		for (std::size_t before = 0; before != 40; ++before) {
			std::string const bytes = std::string(before, 'x') + expected.bytes;
			EXPECT_EQ(read(expected.page, bytes), units(before, u'x') + expected.expected) << expected.page;
			EXPECT_EQ(multi_byte_to_wide(expected.page, bytes.data(), static_cast<int>(bytes.size()), nullptr, 0),
			          static_cast<int>(before + expected.expected.size()));
		}
	}
}

TEST(posix_code_page, arguments_that_mean_nothing_give_0) {
	char16_t wide[8] = {};
	char narrow[8] = {};
	for (unsigned const page : all_pages()) {
		EXPECT_EQ(multi_byte_to_wide(page, nullptr, 1, wide, 8), none);
		EXPECT_EQ(multi_byte_to_wide(page, nullptr, -1, wide, 8), none);
		EXPECT_EQ(multi_byte_to_wide(page, "x", 0, wide, 8), none);
		EXPECT_EQ(multi_byte_to_wide(page, "x", 1, wide, -1), none);
		EXPECT_EQ(wide_to_multi_byte(page, nullptr, 1, narrow, 8), none);
		EXPECT_EQ(wide_to_multi_byte(page, nullptr, -1, narrow, 8), none);
		EXPECT_EQ(wide_to_multi_byte(page, u"x", 0, narrow, 8), none);
		EXPECT_EQ(wide_to_multi_byte(page, u"x", 1, narrow, -1), none);
	}
	for (unsigned const page : {2U, 5U, 437U, 931U, 951U, 1249U, 1259U, 28600U, 28604U, 65000U, 4294967295U}) {
		EXPECT_EQ(multi_byte_to_wide(page, "x", -1, wide, 8), none) << page;
		EXPECT_EQ(wide_to_multi_byte(page, u"x", -1, narrow, 8), none) << page;
	}
}

TEST(posix_code_page, a_length_below_0_means_up_to_and_with_the_first_zero) {
	char16_t wide[8] = {};
	char narrow[8] = {};
	for (unsigned const page : all_pages()) {
		for (int const length : {-1, -2, std::numeric_limits<int>::min()}) {
			EXPECT_EQ(multi_byte_to_wide(page, "ab\0cd", length, nullptr, 0), 3);
			EXPECT_EQ(multi_byte_to_wide(page, "ab\0cd", length, wide, 8), 3);
			EXPECT_EQ(units(wide, 4), units(u"ab\0\0", 4));
			EXPECT_EQ(wide_to_multi_byte(page, u"ab\0cd", length, nullptr, 0), 3);
			EXPECT_EQ(wide_to_multi_byte(page, u"ab\0cd", length, narrow, 8), 3);
			EXPECT_EQ(std::string(narrow, 4), std::string("ab\0\0", 4));
			// Without room the size is told, as without a place.
			EXPECT_EQ(multi_byte_to_wide(page, "ab", length, wide, 0), 3);
			EXPECT_EQ(wide_to_multi_byte(page, u"ab", length, narrow, 0), 3);
		}
		EXPECT_EQ(multi_byte_to_wide(page, "ab\0cd", 5, nullptr, 0), 5);
		EXPECT_EQ(wide_to_multi_byte(page, u"ab\0cd", 5, nullptr, 0), 5);
	}
}

// Every amount of room: what fits is written, no part of a character and nothing behind.
template <class Text, class Out, class Convert>
void check_every_room(Text const &text, Out const &whole, Convert convert) {
	for (std::size_t room = 1; room <= whole.size() + 2; ++room) {
		Out out(whole.size() + 4, '#');
		int const answer = convert(text, out.data(), static_cast<int>(room));
		ASSERT_EQ(answer, room < whole.size() ? 0 : static_cast<int>(whole.size())) << room;
		std::size_t const kept =
		    static_cast<std::size_t>(std::mismatch(whole.begin(), whole.end(), out.begin()).first - whole.begin());
		ASSERT_LE(kept, room);
		ASSERT_GE(kept + 3, std::min(room, whole.size()));
		ASSERT_EQ(out.substr(kept), Out(out.size() - kept, '#')) << room;
	}
}

TEST(posix_code_page, every_amount_of_room_is_filled_with_whole_characters) {
	struct row {
		unsigned page;
		units text;
	};
	units const plain(20, u'x');
	for (row const &one : {
	         row{65001, plain + u"\u00E9\u20AC\U0001F600\uFFFD" + plain + u"\U0001F600\U0001F601\u20AC\u00E9"},
	         row{65001, u"\U0001F600\U0001F600\U0001F600\U0001F600\U0001F600\U0001F600\U0001F600\U0001F600\U0001F600"},
	         // A pair at the end of a step takes a byte more than the units before it.
	         row{65001, units(15, u'\u20AC') + u"\U0001F600" + units(17, u'\u20AC') + u"\U0001F600x"},
	         row{932, plain + u"\u65E5x\u672C\u8A9E" + plain + u"\uFF71\u65E5"},
	         row{936,
	             u"\u6C49\u5B57\u20AC\u6C49\u5B57\u20AC\u6C49\u5B57\u20ACx\u6C49\u5B57\u20AC\u6C49\u5B57\u20AC\uE000"},
	         row{949, u"\uD55C" + plain + u"\uAD6D\uC5B4"},
	         row{950, plain + plain + u"\u7E41x\u9AD4"},
	         row{1251, plain + u"\u0434\u0430\u20AC" + plain + u"\u0434\u0430\u2014" + plain},
	     }) {
		SCOPED_TRACE(one.page);
		std::string const bytes = written(one.page, one.text);
		ASSERT_EQ(read(one.page, bytes), one.text);
		check_every_room(one.text, bytes, [&](units const &text, char *out, int room) {
			return wide_to_multi_byte(one.page, text.data(), static_cast<int>(text.size()), out, room);
		});
		check_every_room(bytes, one.text, [&](std::string const &text, char16_t *out, int room) {
			return multi_byte_to_wide(one.page, text.data(), static_cast<int>(text.size()), out, room);
		});
	}
}

TEST(posix_code_page, the_size_told_is_the_size_written) {
	for (unsigned const page : all_pages()) {
		for (unsigned unit = 0; unit != 0x10000; ++unit) {
			char16_t const text = static_cast<char16_t>(unit);
			char out[4];
			ASSERT_EQ(wide_to_multi_byte(page, &text, 1, nullptr, 0), wide_to_multi_byte(page, &text, 1, out, 4))
			    << page << ' ' << unit;
		}
	}
}

// Many copies of a few pages of memory, one behind the other.
class large_text {
public:
	large_text(std::string const &piece, std::size_t size) : m_size(size) {
		std::string block;
		while (block.size() < block_size) {
			block += piece;
		}
		int const file = ::memfd_create("text", 0);
		m_usable = file != -1 && ::write(file, block.data(), block_size) == static_cast<ssize_t>(block_size);
		m_start =
		    static_cast<char *>(::mmap(nullptr, size, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
		m_usable = m_usable && m_start != MAP_FAILED;
		for (std::size_t at = 0; m_usable && at != size; at += block_size) {
			m_usable = ::mmap(m_start + at, block_size, PROT_READ, MAP_SHARED | MAP_FIXED, file, 0) != MAP_FAILED;
		}
		::close(file);
	}
	large_text(large_text const &) = delete;
	large_text &operator=(large_text const &) = delete;
	~large_text() { ::munmap(m_start, m_size); }

	static constexpr std::size_t block_size = std::size_t(1) << 24;
	bool usable() const { return m_usable; }
	template <class Unit>
	Unit const *as() const {
		return reinterpret_cast<Unit const *>(m_start);
	}

private:
	std::size_t m_size;
	char *m_start = nullptr;
	bool m_usable = false;
};

constexpr int largest = std::numeric_limits<int>::max();

TEST(posix_code_page, the_largest_size_is_that_of_31_bits) {
	EXPECT_EQ(quor::platform::size_result(0), 0);
	EXPECT_EQ(quor::platform::size_result(largest - 1U), largest - 1);
	EXPECT_EQ(quor::platform::size_result(largest), largest);
	EXPECT_EQ(quor::platform::size_result(largest + 1ULL), 0);
	EXPECT_EQ(quor::platform::size_result(1ULL << 32), 0);
	EXPECT_EQ(quor::platform::size_result((1ULL << 32) + 1), 0);
}

// The first zero lies behind what a length can tell.
TEST(posix_code_page, an_endless_text_gives_0) {
	large_text const text("xx", std::size_t(1) << 31);
	ASSERT_TRUE(text.usable());
	void *const last = const_cast<char *>(text.as<char>()) + (std::size_t(1) << 31) - large_text::block_size;
	ASSERT_NE(
	    ::mmap(last, large_text::block_size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED, -1, 0),
	    MAP_FAILED);
	std::fill_n(static_cast<char *>(last), large_text::block_size - 1, 'x');
	// 2147483647 bytes and the zero.
	EXPECT_EQ(multi_byte_to_wide(1252, text.as<char>(), -1, nullptr, 0), 0);
	EXPECT_EQ(multi_byte_to_wide(1252, text.as<char>() + 1, -1, nullptr, 0), largest);
}

TEST(posix_code_page, charsets_have_their_pages) {
	struct row {
		char const *name;
		unsigned page;
	};
	for (row const &expected : {
	         row{"UTF-8", 65001},
	         row{"utf8", 65001},
	         row{"ANSI_X3.4-1968", 65001},
	         row{"US-ASCII", 65001},
	         row{"", 65001},
	         row{"EUC-JP", 65001},
	         row{"GB18030", 65001},
	         row{"ISO-8859-10", 65001},
	         row{"ISO-8859-16", 65001},
	         row{"ISO-8859-", 65001},
	         row{"ISO-8859-1", 28591},
	         row{"ISO8859-1", 28591},
	         row{"iso_8859-2", 28592},
	         row{"ISO-8859-3", 28593},
	         row{"ISO-8859-4", 28594},
	         row{"ISO-8859-5", 28595},
	         row{"ISO-8859-6", 28596},
	         row{"ISO-8859-7", 28597},
	         row{"ISO-8859-8", 28598},
	         row{"ISO-8859-9", 28599},
	         row{"ISO-8859-15", 28605},
	         row{"CP1250", 1250},
	         row{"CP1251", 1251},
	         row{"windows-1252", 1252},
	         row{"CP1253", 1253},
	         row{"CP1254", 1254},
	         row{"CP1255", 1255},
	         row{"CP1256", 1256},
	         row{"CP1257", 1257},
	         row{"CP1258", 1258},
	         row{"CP1259", 65001},
	         row{"KOI8-R", 20866},
	         row{"KOI8-U", 21866},
	         row{"KOI8-T", 65001},
	         row{"SHIFT_JIS", 932},
	         row{"SJIS", 932},
	         row{"GBK", 936},
	         row{"GB2312", 936},
	         row{"EUC-KR", 949},
	         row{"eucKR", 949},
	         row{"CP949", 949},
	         row{"UHC", 949},
	         row{"BIG5", 950},
	         row{"Big5", 950},
	         row{"BIG5-HKSCS", 65001},
	         row{"WINDOWS-31J", 932},
	         row{"eucCN", 936},
	         row{"CP1250x", 65001},
	     }) {
		EXPECT_EQ(quor::platform::page_of_charset(expected.name), expected.page) << expected.name;
	}
}

TEST(posix_code_page, pages_of_the_process_follow_the_locale) {
	// No locale is set: UTF-8.
	EXPECT_EQ(quor::platform::system_page(), 65001U);
	for (unsigned const page : {0U, 1U}) {
		EXPECT_EQ(read(page, "\xC3\xA9"), u"\u00E9");
		EXPECT_EQ(written(page, u"\u00E9\u20AC"), "\xC3\xA9\xE2\x82\xAC");
	}
	quor_test::c_locale const utf8("C.UTF-8");
	EXPECT_EQ(read(0, "\xC3\xA9"), u"\u00E9");
}

TEST(posix_code_page, pages_of_the_process_follow_a_legacy_locale) {
	struct row {
		char const *charset;
		char const *rules;
		unsigned page;
	};
	for (row const &expected : {row{"KOI8-R", "ru_RU", 20866}, row{"EUC-KR", "ko_KR", 949}}) {
		quor_test::made_locale const locale(expected.charset, expected.rules);
		if (!locale.is_set()) {
			continue;
		}
		EXPECT_EQ(quor::platform::system_page(), expected.page) << expected.charset;
		EXPECT_EQ(read(0, "\xC1\xC2"), read(expected.page, "\xC1\xC2")) << expected.charset;
		EXPECT_EQ(written(1, u"\u00E9\u0434"), written(expected.page, u"\u00E9\u0434")) << expected.charset;
		quor::strings::code_page const page(quor::strings::code_page::system_ansi);
		EXPECT_EQ(page.as_utf16("\xC1\xC2"), read(expected.page, "\xC1\xC2")) << expected.charset;
	}
	EXPECT_EQ(quor::platform::system_page(), 65001U);
}

TEST(posix_code_page, threads_convert_at_the_same_time) {
	std::vector<std::thread> threads;
	std::vector<int> agreed(4, 0);
	for (std::size_t index = 0; index != agreed.size(); ++index) {
		threads.emplace_back([&agreed, index] {
			for (unsigned const page : all_pages()) {
				std::string bytes;
				for (int byte = 1; byte != 256; ++byte) {
					bytes += {static_cast<char>(0xB0), static_cast<char>(byte), ' '};
				}
				quor::strings::code_page const encoding(
				    page == 65001 ? quor::strings::code_page::utf_8
				    : page < 2    ? quor::strings::code_page::system_ansi
				                  : static_cast<quor::strings::code_page::encoding_type>(page));
				units const once = encoding.as_utf16(bytes);
				units const again = encoding.as_utf16(encoding.encode(once));
				agreed[index] += once.size() == read(page, bytes).size() && !again.empty() ? 1 : 0;
			}
		});
	}
	for (std::thread &thread : threads) {
		thread.join();
	}
	EXPECT_EQ(agreed, std::vector<int>(4, static_cast<int>(all_pages().size())));
}

} // namespace
