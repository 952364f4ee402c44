#include <quor/strings/split_string.hpp>

#include <cstddef>

namespace QUOR_2_9::strings {
namespace {

template <class Text>
std::vector<Text> split(Text const &text, Text const &separator, int max_splits) {
	std::vector<Text> pieces;
	if (separator.empty()) {
		pieces.push_back(text);
		return pieces;
	}
	std::size_t const limit = max_splits > 0 ? static_cast<std::size_t>(max_splits) : 0;
	std::size_t start = 0;
	do {
		std::size_t const match = text.find(separator, start);
		if (match == Text::npos) {
			break;
		}
		pieces.emplace_back(text, start, match - start);
		start = match + separator.size();
	} while (limit == 0 || pieces.size() != limit);
	if (start < text.size()) {
		pieces.emplace_back(text, start, Text::npos);
	}
	return pieces;
}

} // namespace

std::vector<std::string> split_string(std::string const &text, std::string const &separator, int max_splits) {
	return split(text, separator, max_splits);
}

std::vector<std::string> split_string(std::string const &text, char const *separator, int max_splits) {
	return split(text, std::string(separator), max_splits);
}

std::vector<types::wide_string> split_string(types::wide_string const &text, types::wide_string const &separator,
                                             int max_splits) {
	return split(text, separator, max_splits);
}

std::vector<ustring8> split_string(ustring8 const &text, ustring8 const &separator, int max_splits) {
	return split(text, separator, max_splits);
}

std::vector<ustring8> split_string(ustring8 const &text, char const *separator, int max_splits) {
	return split(text, ustring8(separator), max_splits);
}

std::vector<ustring16> split_string(ustring16 const &text, ustring16 const &separator, int max_splits) {
	return split(text, separator, max_splits);
}

std::vector<ustring32> split_string(ustring32 const &text, ustring32 const &separator, int max_splits) {
	return split(text, separator, max_splits);
}

} // namespace QUOR_2_9::strings
