#ifndef QUOR_PLATFORM_DEBUG_LINE_HPP
#define QUOR_PLATFORM_DEBUG_LINE_HPP

namespace QUOR_2_9::platform {

/// Sends a zero-terminated UTF-8 text to the platform's debug channel, as it stands.
void debug_line(char const *text) noexcept;

} // namespace QUOR_2_9::platform

#endif
