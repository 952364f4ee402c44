#ifndef QUOR_PLATFORM_FILE_STATUS_HPP
#define QUOR_PLATFORM_FILE_STATUS_HPP

#include <cstdint>
#include <optional>

#include <quor/types/widths.hpp>

namespace QUOR_2_9::platform {

/// Bits of a mode word. They are made from the file's type and permissions, never taken
/// over from the system's own word, in which the bits have other meanings.
enum mode_bits : unsigned {
	mode_owner_read = 0x0100,
	mode_directory = 0x4000,
	mode_regular = 0x8000,
};

/// What tells one file from all others, whatever path leads to it.
struct file_identity {
	std::uint64_t volume = 0;
	/// 0 where the file system doesn't tell its files apart.
	std::uint64_t index = 0;

	/// Whether both are known to be the same file.
	bool is_same_as(file_identity const &other) const noexcept {
		return index != 0 && index == other.index && volume == other.volume;
	}
};

struct file_status {
	unsigned mode = 0;
	file_identity identity;
};

/// The state of what a path leads to, links followed; nothing where the path can't be
/// examined. A path ends at its first zero unit, an empty path leads nowhere.
std::optional<file_status> status(types::wide_string const &path);

} // namespace QUOR_2_9::platform

#endif
