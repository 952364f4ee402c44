#ifndef QUOR_TESTS_SUPPORT_XMC_FILE_TEXT_HPP
#define QUOR_TESTS_SUPPORT_XMC_FILE_TEXT_HPP

// Pieces of XMC files.
//
//     xmc(xmc_catalog("app", "de", {{"hello", "Hallo"}}) + xmc_include("more.xmc"))

#include <string>
#include <utility>
#include <vector>

namespace quor_test {

inline std::string xmc(std::string const &content) {
	return "<?xml version=\"1.0\"?><xmc version=\"1.1\">" + content + "</xmc>";
}

inline std::string xmc_catalog(std::string const &name, std::string const &language,
                               std::vector<std::pair<std::string, std::string>> const &messages) {
	std::string result = "<catalog name=\"" + name + "\" lang=\"" + language + "\">";
	for (auto const &[key, text] : messages) {
		result += "<msg name=\"" + key + "\">" + text + "</msg>";
	}
	return result + "</catalog>";
}

inline std::string xmc_include(std::string const &file) {
	return "<include file=\"" + file + "\"/>";
}

} // namespace quor_test

#endif
