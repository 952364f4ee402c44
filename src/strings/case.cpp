#include <quor/strings/case.hpp>

#include <algorithm>
#include <cstddef>

#include <quor/debug/invalid_parameter.hpp>

#include "support/ascii.hpp"

namespace QUOR_2_9::strings {
namespace {

template <class Text>
Text lower_range(Text const &text, types::uint32 start, types::uint32 end) {
	std::size_t const first = start;
	std::size_t last = end == 0xFFFFFFFF ? text.size() : end;
	if (first < last && last > text.size()) {
		debug::invalid_parameter("string subscript out of range", "strings\\case", __LINE__);
		last = text.size();
	}
	Text result(text);
	for (std::size_t i = first; i < last; ++i) {
		result[i] = support::to_lower(result[i]);
	}
	return result;
}

template <class Text, class Change>
Text changed(Text const &text, Change change) {
	Text result(text);
	std::transform(result.begin(), result.end(), result.begin(), change);
	return result;
}

} // namespace

ustring8 lower_case(ustring8 const &text, types::uint32 start, types::uint32 end) {
	return lower_range(text, start, end);
}

ustring16 lower_case(ustring16 const &text, types::uint32 start, types::uint32 end) {
	return lower_range(text, start, end);
}

ustring32 lower_case(ustring32 const &text, types::uint32 start, types::uint32 end) {
	return lower_range(text, start, end);
}

ustring8 to_lower(ustring8 const &text) {
	return changed(text, support::to_lower<char>);
}

ustring16 to_lower(ustring16 const &text) {
	return changed(text, support::to_lower<types::wide_char>);
}

ustring32 to_lower(ustring32 const &text) {
	return changed(text, support::to_lower<types::utf32_char>);
}

ustring8 to_upper(ustring8 const &text) {
	return changed(text, support::to_upper<char>);
}

ustring16 to_upper(ustring16 const &text) {
	return changed(text, support::to_upper<types::wide_char>);
}

ustring32 to_upper(ustring32 const &text) {
	return changed(text, support::to_upper<types::utf32_char>);
}

} // namespace QUOR_2_9::strings
