#ifndef QUOR_TESTS_STRINGS_TEXT_ROWS_HPP
#define QUOR_TESTS_STRINGS_TEXT_ROWS_HPP

// What the tests of the string operations share: texts in other widths, random texts,
// and texts made visible in a failure's message.

#include <cstddef>
#include <random>
#include <sstream>
#include <string>

#include "reference/text.hpp"

namespace quor_test {

// The units of a text as hexadecimal numbers.
template <class Text>
std::string shown(Text const &text) {
	std::ostringstream out;
	out << std::hex << '[';
	for (auto const unit : quor_reference::units_of(text)) {
		out << ' ' << unit;
	}
	out << " ]";
	return out.str();
}

// The bytes of `text`, one a unit, in another class.
template <class Text>
Text widened(std::string const &text) {
	return quor_reference::text_of<Text>(quor_reference::units_of(text));
}

// A random text of up to `longest` pieces, each one of `pieces`.
template <class Pieces>
quor_reference::numbers random_text(std::mt19937 &random, Pieces const &pieces, std::size_t longest) {
	quor_reference::numbers text;
	std::size_t const count = random() % (longest + 1);
	for (std::size_t i = 0; i != count; ++i) {
		auto const &piece = pieces[random() % pieces.size()];
		text.insert(text.end(), piece.begin(), piece.end());
	}
	return text;
}

} // namespace quor_test

#endif
