#ifndef QUOR_TESTS_STRINGS_GH2_WIDE_ROWS_HPP
#define QUOR_TESTS_STRINGS_GH2_WIDE_ROWS_HPP

// Texts in UTF-8 and in wide units that stand for each other.

#include <string>
#include <vector>

#include <quor/types/widths.hpp>

namespace quor_test {

using QUOR_2_9::types::wide_char;
using QUOR_2_9::types::wide_string;

struct pair_row {
	char const *name;
	std::string utf8;
	wide_string wide;
};

inline std::vector<pair_row> pairs() {
	return {
	    {"empty", "", QUOR_W("")},
	    {"ASCII", "plain", QUOR_W("plain")},
	    {"two bytes", "caf\xC3\xA9", QUOR_W("caf\u00E9")},
	    {"three bytes", "\xE2\x82\xAC", QUOR_W("\u20AC")},
	    {"four bytes are a standard pair", "\xF0\x9F\x98\x80", QUOR_W("\U0001F600")},
	    {"last code point", "\xF4\x8F\xBF\xBF", QUOR_W("\U0010FFFF")},
	    {"first pair", "\xF0\x90\x80\x80", QUOR_W("\U00010000")},
	    {"last unit", "\xEF\xBF\xBF", wide_string(1, wide_char(0xFFFF))},
	    {"byte order mark stays",
	     "\xEF\xBB\xBF"
	     "a",
	     wide_string{wide_char(0xFEFF), wide_char('a')}},
	};
}

inline void append_utf8(std::string &text, unsigned int code_point) {
	auto const put = [&text](unsigned int byte) { text.push_back(static_cast<char>(byte)); };
	if (code_point < 0x80) {
		put(code_point);
	} else if (code_point < 0x800) {
		put(0xC0 + code_point / 64);
		put(0x80 + code_point % 64);
	} else if (code_point < 0x10000) {
		put(0xE0 + code_point / 4096);
		put(0x80 + code_point / 64 % 64);
		put(0x80 + code_point % 64);
	} else {
		put(0xF0 + code_point / 262144);
		put(0x80 + code_point / 4096 % 64);
		put(0x80 + code_point / 64 % 64);
		put(0x80 + code_point % 64);
	}
}

inline void append_utf16(wide_string &text, unsigned int code_point) {
	if (code_point < 0x10000) {
		text.push_back(static_cast<wide_char>(code_point));
	} else {
		text.push_back(static_cast<wide_char>(0xD800 + (code_point - 0x10000) / 1024));
		text.push_back(static_cast<wide_char>(0xDC00 + (code_point - 0x10000) % 1024));
	}
}

// Every code point but 0 and the surrogates, in order.
inline pair_row every_code_point() {
	pair_row all{"every code point", {}, {}};
	for (unsigned int code_point = 1; code_point != 0x110000; ++code_point) {
		if (code_point == 0xD800) {
			code_point = 0xE000;
		}
		append_utf8(all.utf8, code_point);
		append_utf16(all.wide, code_point);
	}
	return all;
}

// Each unit that there is, halves of pairs too.
inline wide_string every_unit() {
	wide_string units;
	for (unsigned int unit = 0; unit != 0x10000; ++unit) {
		units.push_back(static_cast<wide_char>(unit));
	}
	return units;
}

} // namespace quor_test

#endif
