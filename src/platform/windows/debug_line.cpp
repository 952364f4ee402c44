#include "platform/debug_line.hpp"

#include "platform/windows/windows_api.hpp"

namespace QUOR_2_9::platform {

void debug_line(char const *text) noexcept {
	OutputDebugStringA(text);
}

} // namespace QUOR_2_9::platform
