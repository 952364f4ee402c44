#ifndef QUOR_SYSTEM_EXAMINE_HPP
#define QUOR_SYSTEM_EXAMINE_HPP

#include <optional>

#include <quor/strings/ustring.hpp>

#include "platform/file_status.hpp"
#include "system/wide_path.hpp"

namespace QUOR_2_9::system::detail {

using platform::file_identity;

/// All that the status queries answer about one path, from one look, and what file it is.
struct examined_path {
	bool is_file;
	bool is_directory;
	bool is_readable;
	file_identity identity;
};

/// Nothing where the path can't be examined.
template <class Text>
std::optional<examined_path> examine(Text const &path) {
	auto const found = platform::status(to_wide(path));
	if (!found) {
		return std::nullopt;
	}
	auto const has = [mode = found->mode](platform::mode_bits bit) { return (mode & bit) != 0; };
	return examined_path{has(platform::mode_regular), has(platform::mode_directory), has(platform::mode_owner_read),
	                     found->identity};
}

} // namespace QUOR_2_9::system::detail

#endif
