#include "catalog/document.hpp"

#include <utility>

#include "catalog/document_reader.hpp"

namespace quor_cli {

std::string const *argument_use::find(std::string_view name) const {
	for (attribute_use const &each : attributes) {
		if (each.name == name) {
			return &each.value;
		}
	}
	return nullptr;
}

std::string argument_use::name() const {
	std::string const *const value = find("name");
	return value != nullptr ? *value : std::string();
}

document read_document(std::string const &file, std::string const &text) {
	// The loader reads a zero byte behind each file too.
	std::string const read = text + '\0';
	line_table const lines(read);
	std::list<token_segment> segments = read_segments(read);
	document_reader reader(file, lines, segments);
	bool first = true;
	for (token_segment &segment : segments) {
		reader.read(segment, first);
		if (segment.fault) {
			reader.add_syntax_fault(*segment.fault, read);
		}
		first = false;
	}
	document result = reader.take();
	result.size = text.size();
	return result;
}

bool accepts_language(std::string const &request, std::string const &language) {
	quor::i18n::_private::xmc_file_loader loader;
	loader.handle_language(quor::strings::ustring8(request));
	return loader.is_lang_id_good(quor::strings::ustring8(language));
}

} // namespace quor_cli
