// The converters of Boost.Locale that need none of its backends.

#include <boost/locale/encoding_utf.hpp>

#include "transcode/texts.hpp"

namespace bench_transcode {
namespace {

constexpr char const *competitor = "Boost.Locale";

template <class Unit, class Text>
std::basic_string<Unit> converted(Text const &text) {
	return boost::locale::conv::utf_to_utf<Unit>(text.data(), text.data() + text.size());
}

void describe() {
	for (sample const &text : samples()) {
		compete(text, utf8_to_utf16, competitor, [&text] { return converted<char16_t>(text.utf8); });
		compete(text, utf8_to_utf32, competitor, [&text] { return converted<char32_t>(text.utf8); });
		compete(text, utf16_to_utf8, competitor, [&text] { return converted<char>(text.utf16); });
		compete(text, utf16_to_utf32, competitor, [&text] { return converted<char32_t>(text.utf16); });
		compete(text, utf32_to_utf8, competitor, [&text] { return converted<char>(text.utf32); });
		compete(text, utf32_to_utf16, competitor, [&text] { return converted<char16_t>(text.utf32); });
	}
	limit_all(competitor, 1, 0, [](sample const &text) { return text.is_long; });
}

bench::entry const added(&describe);

} // namespace
} // namespace bench_transcode
