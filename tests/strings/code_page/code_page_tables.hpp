#ifndef QUOR_TESTS_STRINGS_CODE_PAGE_TABLES_HPP
#define QUOR_TESTS_STRINGS_CODE_PAGE_TABLES_HPP

// What the tests of the code pages share: the tables, each read once, and ways to show bytes.

#include <map>
#include <string>
#include <vector>

#include <quor/quor.hpp>

#include "reference/code_pages.hpp"

namespace quor_test {

inline quor_reference::code_page_table const &table_of(unsigned page) {
	static std::map<unsigned, quor_reference::code_page_table> tables;
	auto found = tables.find(page);
	if (found == tables.end()) {
		found = tables.emplace(page, quor_reference::code_page_table(QUOR_CODE_PAGE_TABLES, page)).first;
	}
	return found->second;
}

inline QUOR_2_9::strings::code_page page_of(unsigned page) {
	return static_cast<QUOR_2_9::strings::code_page::encoding_type>(page);
}

// Tables only have characters of one unit.
inline QUOR_2_9::strings::ustring16 units_of(std::vector<unsigned> const &points) {
	QUOR_2_9::strings::ustring16 result;
	for (unsigned const point : points) {
		result.push_back(static_cast<QUOR_2_9::types::wide_char>(point));
	}
	return result;
}

inline std::string hex(std::string const &bytes) {
	std::string result;
	for (char const byte : bytes) {
		char const *const digits = "0123456789ABCDEF";
		result.push_back(digits[static_cast<unsigned char>(byte) >> 4]);
		result.push_back(digits[static_cast<unsigned char>(byte) & 15]);
	}
	return result;
}

} // namespace quor_test

#endif
