#include "platform/debug_line.hpp"

#define WIN32_LEAN_AND_MEAN
#define NOMINMAX
#include <windows.h>

namespace QUOR_2_9::platform {

void debug_line(char const *text) noexcept {
	OutputDebugStringA(text);
}

} // namespace QUOR_2_9::platform
