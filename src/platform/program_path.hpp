#ifndef QUOR_PLATFORM_PROGRAM_PATH_HPP
#define QUOR_PLATFORM_PROGRAM_PATH_HPP

namespace QUOR_2_9::platform {

/// Whether a `/` separates the directories in the path by which a program was started; a
/// `\` is always taken to do so.
bool slash_separates_program_path() noexcept;

} // namespace QUOR_2_9::platform

#endif
