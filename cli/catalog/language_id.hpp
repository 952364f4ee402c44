#ifndef QUOR_CLI_CATALOG_LANGUAGE_ID_HPP
#define QUOR_CLI_CATALOG_LANGUAGE_ID_HPP

#include <algorithm>
#include <string>

namespace quor_cli {

// An id as the library compares it.
inline std::string normalised_language(std::string id) {
	if (id.size() != 1) {
		std::replace(id.begin(), id.end(), '.', '_');
		std::replace(id.begin(), id.end(), '-', '_');
	}
	return id;
}

} // namespace quor_cli

#endif
