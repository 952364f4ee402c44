// The C library's converters, opened once. They write into room that is there already,
// from which the string is made.

#include <cstddef>
#include <memory>
#include <string>

#include <iconv.h>

#include "transcode/texts.hpp"

namespace bench_transcode {
namespace {

constexpr char const *competitor = "iconv";

class converter {
public:
	converter(char const *to, char const *from) : m_handle(::iconv_open(to, from)) {}
	converter(converter const &) = delete;
	converter &operator=(converter const &) = delete;
	~converter() { ::iconv_close(m_handle); }

	template <class Unit, class Text>
	std::basic_string<Unit> operator()(Text const &text) const {
		// Four bytes for each unit are enough for every pair of encodings.
		std::size_t const room = 4 * text.size();
		Unit *const begin = scratch<Unit>(room / sizeof(Unit) + 1);
		// The text isn't written to.
		char *in = reinterpret_cast<char *>(const_cast<typename Text::value_type *>(text.data()));
		char *out = reinterpret_cast<char *>(begin);
		std::size_t in_left = text.size() * sizeof(typename Text::value_type);
		std::size_t out_left = room;
		if (::iconv(m_handle, &in, &in_left, &out, &out_left) == static_cast<std::size_t>(-1)) {
			bench::disagree("iconv");
		}
		return std::basic_string<Unit>(begin, (room - out_left) / sizeof(Unit));
	}

private:
	iconv_t m_handle;
};

template <class Unit, class Text>
void compete_with(sample const &text, conversion const &what, Text const &from, char const *to_name,
                  char const *from_name) {
	auto const with = std::make_shared<converter>(to_name, from_name);
	compete(text, what, competitor, [&from, with] { return with->template operator()<Unit>(from); });
}

void describe() {
	constexpr char const *utf8 = "UTF-8";
	constexpr char const *utf16 = "UTF-16LE";
	constexpr char const *utf32 = "UTF-32LE";
	for (sample const &text : samples()) {
		compete_with<char16_t>(text, utf8_to_utf16, text.utf8, utf16, utf8);
		compete_with<char32_t>(text, utf8_to_utf32, text.utf8, utf32, utf8);
		compete_with<char>(text, utf16_to_utf8, text.utf16, utf8, utf16);
		compete_with<char32_t>(text, utf16_to_utf32, text.utf16, utf32, utf16);
		compete_with<char>(text, utf32_to_utf8, text.utf32, utf8, utf32);
		compete_with<char16_t>(text, utf32_to_utf16, text.utf32, utf16, utf32);
	}
	limit_all(competitor, 1, 0, [](sample const &text) { return text.is_long; });
}

bench::entry const added(&describe);

} // namespace
} // namespace bench_transcode
