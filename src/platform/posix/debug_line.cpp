#include "platform/debug_line.hpp"

#include <cstdio>

namespace QUOR_2_9::platform {

void debug_line(char const *text) noexcept {
	std::fputs(text, stderr);
}

} // namespace QUOR_2_9::platform
