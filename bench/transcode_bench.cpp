// Text between UTF-8, UTF-16 and UTF-32, a string in and a string out.

#include <cstddef>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <quor/quor.hpp>

#include "frame/frame.hpp"
#include "transcode/texts.hpp"

namespace bench_transcode {
namespace {

using quor::strings::ustring16;
using quor::strings::ustring32;
using quor::strings::ustring8;

constexpr std::size_t large = 1 << 20;
constexpr std::size_t small = 32;

struct source {
	char const *name;
	char32_t const *words;
	bool has_pairs;
};

// Words as they come in such texts.
constexpr source sources[] = {
    {"ASCII", U"plain words that stand in a text of some length, 1234 numbers; and other things", false},
    {"Latin",
     U"stra\u00DFe caf\u00E9 \u00FCber words without marks pass more of them stand in this text than others do", false},
    {"CJK",
     U"\u6F22\u5B57\u4EEE\u540D\u6DF7\u3058\u308A\u6587\u306F\u3001 "
     U"\u65E5\u672C\u8A9E\u306E\u6587\u7AE0\u3067\u3059\u3002 "
     U"\u4E2D\u6587\u7684\u8BCD\u8BED\uFF0C\u6CA1\u6709\u7A7A\u683C\u7684\u53E5\u5B50\u3002 \uD55C\uAD6D\uC5B4\uB294 "
     U"\u8A08\u7B97\u6A5F\u79D1\u5B66\u3068\u60C5\u5831\u51E6\u7406\u306B\u3064\u3044\u3066\u3002",
     false},
    {"mixed",
     U"word \u6F22\u5B57 caf\u00E9 \u0441\u043B\u043E\u0432\u043E \u20AC \u03BB\u03AD\u03BE\u03B7 text 12 "
     U"\u65E5\u672C\u8A9E stra\u00DFe",
     false},
    {"mixed with emoji",
     U"word \u6F22\u5B57 caf\u00E9 \u0441\u043B\u043E\u0432\u043E \U0001F600 text \U0001F680 of \u20AC 12", true},
};

std::size_t bytes_in_utf8(char32_t point) {
	return point < 0x80 ? 1 : point < 0x800 ? 2 : point < 0x10000 ? 3 : 4;
}

void add_point(sample &to, char32_t point) {
	to.utf32 += static_cast<quor::types::utf32_char>(point);
	to.utf8 += quor::strings::utf32_to_utf8(ustring32(1, static_cast<quor::types::utf32_char>(point)));
	if (point < 0x10000) {
		to.utf16 += static_cast<quor::types::wide_char>(point);
	} else {
		to.utf16 += static_cast<quor::types::wide_char>(0xD7C0 + (point >> 10));
		to.utf16 += static_cast<quor::types::wide_char>(0xDC00 + (point & 0x3FF));
	}
}

// Whole words in random order, and points where no word fits.
sample made(source const &from, std::size_t size) {
	std::vector<std::u32string> words(1);
	for (char32_t const point : std::u32string_view(from.words)) {
		if (point == U' ') {
			words.emplace_back();
		} else {
			words.back() += point;
		}
	}
	std::string const amount = size == large ? "1 MB of " : "32 bytes of ";
	sample result{
	    amount + from.name, size == large, from.name == std::string_view("ASCII"), from.has_pairs, {}, {}, {}};
	std::mt19937 random(2900);
	while (result.utf8.size() != size) {
		std::u32string const &word = words[random() % words.size()];
		for (char32_t const point : word + U' ') {
			add_point(result, result.utf8.size() + bytes_in_utf8(point) <= size ? point : U'.');
			if (result.utf8.size() == size) {
				break;
			}
		}
	}
	return result;
}

template <auto Member>
std::string_view of(sample const &text) {
	return bytes_of(text.*Member);
}

constexpr char const *copy_of_result = "a copy of the result";
constexpr char const *copy_of_source = "a copy of the source";

void compare_with_copies(sample const &text) {
	compete(text, utf8_to_utf16, copy_of_result, [&text] { return ustring16(text.utf16); });
	compete(text, utf8_to_utf32, copy_of_result, [&text] { return ustring32(text.utf32); });
	compete(text, utf16_to_utf8, copy_of_result, [&text] { return ustring8(text.utf8); });
	compete(text, utf16_to_utf32, copy_of_result, [&text] { return ustring32(text.utf32); });
	compete(text, utf32_to_utf8, copy_of_result, [&text] { return ustring8(text.utf8); });
	compete(text, utf32_to_utf16, copy_of_result, [&text] { return ustring16(text.utf16); });
	time_only(text, utf16_to_utf8, copy_of_source, [&text] { return ustring16(text.utf16); });
	time_only(text, utf32_to_utf8, copy_of_source, [&text] { return ustring32(text.utf32); });
	time_only(text, utf32_to_utf16, copy_of_source, [&text] { return ustring32(text.utf32); });
}

void describe() {
	for (sample const &text : samples()) {
		compete(text, utf8_to_utf16, bench::library, [&text] { return quor::strings::utf8_to_utf16(text.utf8); });
		compete(text, utf8_to_utf32, bench::library, [&text] { return quor::strings::utf8_to_utf32(text.utf8); });
		compete(text, utf16_to_utf8, bench::library, [&text] { return quor::strings::utf16_to_utf8(text.utf16); });
		compete(text, utf16_to_utf32, bench::library, [&text] { return quor::strings::utf16_to_utf32(text.utf16); });
		compete(text, utf32_to_utf8, bench::library, [&text] { return quor::strings::utf32_to_utf8(text.utf32); });
		compete(text, utf32_to_utf16, bench::library, [&text] { return quor::strings::utf32_to_utf16(text.utf32); });
		if (text.is_ascii && text.is_long) {
			compare_with_copies(text);
		}
	}
	// No conversion can do with less than reading the source and writing the result, so that it is
	// the longer of the two that a copy is comparable for.
	auto const is_wanted = [](sample const &text) { return text.is_ascii && text.is_long; };
	limit_some(copy_of_result, {&utf8_to_utf16, &utf8_to_utf32, &utf16_to_utf32}, 1.5, is_wanted);
	limit_some(copy_of_source, {&utf16_to_utf8, &utf32_to_utf8, &utf32_to_utf16}, 1.5, is_wanted);
}

bench::entry const added(&describe);

} // namespace

conversion const utf8_to_utf16 = {"UTF-8 to UTF-16", &of<&sample::utf16>, true};
conversion const utf8_to_utf32 = {"UTF-8 to UTF-32", &of<&sample::utf32>, false};
conversion const utf16_to_utf8 = {"UTF-16 to UTF-8", &of<&sample::utf8>, false};
conversion const utf16_to_utf32 = {"UTF-16 to UTF-32", &of<&sample::utf32>, false};
conversion const utf32_to_utf8 = {"UTF-32 to UTF-8", &of<&sample::utf8>, false};
conversion const utf32_to_utf16 = {"UTF-32 to UTF-16", &of<&sample::utf16>, true};

std::vector<sample> const &samples() {
	static std::vector<sample> const result = [] {
		std::vector<sample> list;
		for (std::size_t const size : {large, small}) {
			for (source const &from : sources) {
				list.push_back(made(from, size));
			}
		}
		return list;
	}();
	return result;
}

} // namespace bench_transcode
