// Text in the encodings that came before Unicode, to and from UTF-16.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <random>
#include <string>

#include <quor/quor.hpp>

#include "code_page/texts.hpp"
#include "frame/frame.hpp"

namespace bench_code_page {
namespace {

using quor::strings::code_page;
using quor::strings::ustring16;

constexpr std::size_t large = 1 << 20;
constexpr std::size_t small = 16;

struct source {
	encoding page;
	char const *name;
	char const *charset;
	char const *words;
	double most;
};

// Words as they come in such texts, one in four ASCII.
constexpr source sources[] = {
    {code_page::cp_1252, "1252 Western", "CP1252",
     "stra\u00DFe caf\u00E9 \u20AC \u00FCber words without marks pass more of them stand in this text than others do",
     1.0 / 3},
    {code_page::cp_1251, "1251 Cyrillic", "CP1251",
     "\u0441\u043B\u043E\u0432\u043E \u0442\u0435\u043A\u0441\u0442 \u044D\u0442\u043E word", 1.0 / 3},
    {code_page::cp_28597, "28597 Greek", "ISO-8859-7",
     "\u03BB\u03AD\u03BE\u03B7 \u03BA\u03B1\u03B9 \u03B1\u03C5\u03C4\u03CC word", 1.0 / 3},
    {code_page::cp_932, "932 Japanese", "CP932", "\u6F22\u5B57 \u3072\u3089\u304C\u306A \u65E5\u672C\u8A9E word", 1},
    {code_page::cp_936, "936 Chinese", "GBK", "\u6C49\u5B57 \u6587\u672C \u4E2D\u6587\u7684 word", 1},
    {code_page::cp_949, "949 Korean", "UHC", "\uD55C\uAD6D\uC5B4 \uAE00\uC790 \uB2E8\uC5B4 word", 1},
    {code_page::cp_950, "950 Chinese", "BIG5", "\u6F22\u5B57 \u6587\u5B57 \u7E41\u9AD4\u4E2D\u6587 word", 1},
    {code_page::utf_8, "UTF-8", "UTF-8", "stra\u00DFe \u20AC \u6F22\u5B57 \u0441\u043B\u043E\u0432\u043E word", 1},
};

std::string text_of(source const &from, std::size_t size) {
	code_page const page(from.page);
	std::string const words = page.encode(quor::strings::ustring8(from.words));
	// Whole words in random order.
	auto const list = quor::strings::split_string(words, std::string(" "), 0);
	std::mt19937 random(2900);
	std::string result;
	while (true) {
		std::string const &word = list[random() % list.size()];
		if (result.size() + word.size() + 1 > size) {
			result.append(size - result.size(), '.');
			return result;
		}
		result += word;
		result += ' ';
	}
}

class with_library : public converter {
public:
	explicit with_library(encoding page) : m_page(page) {}
	ustring16 decode(std::string const &bytes) override { return m_page.as_utf16(bytes); }
	std::string encode(ustring16 const &units) override { return m_page.encode(units); }

private:
	code_page m_page;
};

void describe() {
	compete(bench::library, [](sample const &text) -> converter * { return new with_library(text.page); });
}

bench::entry const added(&describe);

} // namespace

std::vector<sample> const &samples() {
	static std::vector<sample> const result = [] {
		std::vector<sample> list;
		for (std::size_t const size : {large, small}) {
			for (source const &from : sources) {
				std::string const bytes = text_of(from, size);
				std::string const name = std::string(from.name);
				list.push_back(
				    {from.page, from.name, from.charset, bytes, code_page(from.page).as_utf16(bytes), from.most});
			}
		}
		return list;
	}();
	return result;
}

void compete(char const *competitor, converter *(*make)(sample const &)) {
	for (sample const &text : samples()) {
		std::shared_ptr<converter> const converts(make(text));
		std::string const name = (text.bytes.size() == large ? "1 MB of " : "16 bytes of ") + std::string(text.name);
		if (converts->decode(text.bytes) != text.units || converts->encode(text.units) != text.bytes) {
			bench::disagree(name + " with " + competitor);
		}
		auto const items = static_cast<std::int64_t>(text.bytes.size());
		bench::operation("read " + name, competitor, [converts, &text, items](benchmark::State &state) {
			for (auto _ : state) {
				benchmark::DoNotOptimize(converts->decode(text.bytes));
			}
			state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * items);
		});
		bench::operation("write " + name, competitor, [converts, &text, items](benchmark::State &state) {
			for (auto _ : state) {
				benchmark::DoNotOptimize(converts->encode(text.units));
			}
			state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()) * items);
		});
	}
}

} // namespace bench_code_page
