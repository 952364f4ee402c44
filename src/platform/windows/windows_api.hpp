#ifndef QUOR_PLATFORM_WINDOWS_WINDOWS_API_HPP
#define QUOR_PLATFORM_WINDOWS_WINDOWS_API_HPP

#ifndef WIN32_LEAN_AND_MEAN
#  define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#  define NOMINMAX
#endif
#include <windows.h>

#endif
