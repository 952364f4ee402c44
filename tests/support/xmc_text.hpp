#ifndef QUOR_TESTS_SUPPORT_XMC_TEXT_HPP
#define QUOR_TESTS_SUPPORT_XMC_TEXT_HPP

// What a loader has read, as one text that a test can compare:
//
//     app: m(de)=Used {n:7} meta; n(.)=x | lib:
//
// An argument shows its field string, with "," for each byte 0x01, and its type.

#include <map>
#include <string>

#include <quor/i18n/xmc_file_loader.hpp>

namespace quor_test {

using xmc_loader = QUOR_2_9::i18n::_private::xmc_file_loader;

inline std::string xmc_item(int type, std::string const &data) {
	if (type == 0) {
		return data;
	}
	std::string text = "{";
	for (char const c : data) {
		text += c == '\1' ? ',' : c;
	}
	return text + ":" + std::to_string(type) + "}";
}

inline std::string xmc_text(QUOR_2_9::i18n::catalog_t const &catalog) {
	std::string text;
	for (auto const &[key, message] : catalog) {
		text += text.empty() ? " " : "; ";
		text += key + "(" + message._orginal_locale() + ")=";
		bool literal = false;
		for (auto const &item : message) {
			// Two literals in a row would be a fault.
			text += literal && item.type() == 0 ? "#" : "";
			text += xmc_item(item.type(), item.data());
			literal = item.type() == 0;
		}
		text += message.meta().empty() ? "" : " meta " + message.meta();
		text += message.name() == key ? "" : " named " + message.name();
	}
	return text;
}

inline std::string xmc_text(xmc_loader::catalog_map const &catalogs) {
	std::string text;
	for (auto const &[name, catalog] : catalogs) {
		text += text.empty() ? "" : " | ";
		text.append(name).append(":").append(xmc_text(*catalog));
		text += catalog->name() == name ? "" : " named " + catalog->name();
	}
	return text;
}

// All that a loader has read, merged into nothing.
inline std::string xmc_text(xmc_loader &loader) {
	xmc_loader::catalog_map catalogs;
	loader.combine_data(catalogs);
	return xmc_text(catalogs);
}

} // namespace quor_test

#endif
