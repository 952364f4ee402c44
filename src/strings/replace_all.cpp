#include <quor/strings/replace_all.hpp>

#include <cstddef>
#include <stdexcept>

namespace QUOR_2_9::strings {
namespace {

/// Builds the new text beside the old one, so that the work stays linear and `from`
/// and `to` may be the text itself.
template <class Text>
types::int32 replace(Text &text, Text const &from, Text const &to) {
	if (from.empty()) {
		throw std::length_error("replace_all: nothing to search for");
	}
	std::size_t match = text.find(from);
	if (match == Text::npos) {
		return 0;
	}
	Text result;
	result.reserve(text.size());
	types::uint32 count = 0;
	std::size_t start = 0;
	do {
		result.append(text, start, match - start).append(to);
		start = match + from.size();
		++count;
		match = text.find(from, start);
	} while (match != Text::npos);
	result.append(text, start, Text::npos);
	text.swap(result);
	return static_cast<types::int32>(count);
}

} // namespace

types::int32 replace_all(std::string &text, std::string const &from, std::string const &to) {
	return replace(text, from, to);
}

types::int32 replace_all(types::wide_string &text, types::wide_string const &from, types::wide_string const &to) {
	return replace(text, from, to);
}

types::int32 replace_all(ustring8 &text, ustring8 const &from, ustring8 const &to) {
	return replace(text, from, to);
}

types::int32 replace_all(ustring16 &text, ustring16 const &from, ustring16 const &to) {
	return replace(text, from, to);
}

types::int32 replace_all(ustring32 &text, ustring32 const &from, ustring32 const &to) {
	return replace(text, from, to);
}

namespace gh2 {

types::int32 replace_all(types::wide_string &text, types::wide_string const &from, types::wide_string const &to) {
	return replace(text, from, to);
}

} // namespace gh2

} // namespace QUOR_2_9::strings
