#ifndef QUOR_BENCH_TRANSCODE_TEXTS_HPP
#define QUOR_BENCH_TRANSCODE_TEXTS_HPP

// What all competitors convert: texts of several kinds, each once long and once short, in
// the three encodings.

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include <quor/quor.hpp>

#include "frame/frame.hpp"

namespace bench_transcode {

struct sample {
	std::string name;
	bool is_long;
	bool is_ascii;
	/// Code points above U+FFFF, of which the library makes other pairs than the rest of
	/// the world: only conversions to UTF-8 and UTF-32 can be compared.
	bool has_pairs;
	quor::strings::ustring8 utf8;
	quor::strings::ustring16 utf16;
	quor::strings::ustring32 utf32;
};

std::vector<sample> const &samples();

/// A conversion, and what it must give, as bytes.
struct conversion {
	char const *name;
	std::string_view (*expected)(sample const &);
	bool to_utf16;
};

extern conversion const utf8_to_utf16;
extern conversion const utf8_to_utf32;
extern conversion const utf16_to_utf8;
extern conversion const utf16_to_utf32;
extern conversion const utf32_to_utf8;
extern conversion const utf32_to_utf16;

inline std::string operation_name(conversion const &what, sample const &text) {
	return what.name + (", " + text.name);
}

/// The bytes of a string of any kind.
template <class Text>
std::string_view bytes_of(Text const &text) {
	return {reinterpret_cast<char const *>(text.data()), static_cast<std::size_t>(text.size()) * sizeof(*text.data())};
}

/// Measures `convert()`.
template <class Convert>
void time_only(sample const &text, conversion const &what, char const *competitor, Convert const &convert) {
	bench::operation(operation_name(what, text), competitor, [convert](benchmark::State &state) {
		for (auto _ : state) {
			benchmark::DoNotOptimize(convert());
		}
	});
}

/// Compares the string that `convert()` gives with what it must be, then measures it.
template <class Convert>
void compete(sample const &text, conversion const &what, char const *competitor, Convert const &convert) {
	if (text.has_pairs && what.to_utf16) {
		return;
	}
	if (bytes_of(convert()) != what.expected(text)) {
		bench::disagree(operation_name(what, text) + " with " + competitor);
	}
	time_only(text, what, competitor, convert);
}

/// The library takes at most `most` times the competitor's time, in the conversions `of` the texts
/// that `which(text)` names.
template <class Which>
void limit_some(char const *competitor, std::initializer_list<conversion const *> of, double most, Which which,
                double aim = 0) {
	for (sample const &text : samples()) {
		for (conversion const *what : of) {
			if (which(text) && !(text.has_pairs && what->to_utf16)) {
				bench::limit(operation_name(*what, text), competitor, most, aim);
			}
		}
	}
}

/// The same in all conversions.
template <class Which>
void limit_all(char const *competitor, double most, double aim, Which which) {
	limit_some(competitor,
	           {&utf8_to_utf16, &utf8_to_utf32, &utf16_to_utf8, &utf16_to_utf32, &utf32_to_utf8, &utf32_to_utf16}, most,
	           which, aim);
}

/// For a competitor that writes into room that it is given: room for `units`, which stays.
template <class Unit>
Unit *scratch(std::size_t units) {
	static std::vector<Unit> room;
	if (room.size() < units) {
		room.resize(units);
	}
	return room.data();
}

} // namespace bench_transcode

#endif
