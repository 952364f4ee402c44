#ifndef QUOR_SYSTEM_READABLE_SIZE_HPP
#define QUOR_SYSTEM_READABLE_SIZE_HPP

#include <cstdint>
#include <optional>

#include "platform/file_stream.hpp"
#include "system/wide_path.hpp"

namespace QUOR_2_9::system::detail {

/// The size of a file that `load_file` can open, -1 where the system gives none; nothing
/// where it can't be opened. The file is closed again.
template <class Text>
std::optional<std::int64_t> readable_size(Text const &path) {
	platform::input_file file(to_wide(path));
	return file.is_open() ? std::optional(file.size()) : std::nullopt;
}

} // namespace QUOR_2_9::system::detail

#endif
