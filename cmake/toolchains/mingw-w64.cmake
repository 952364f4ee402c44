# Windows, cross-built with Debian's compilers (POSIX threads variant). Included by the
# toolchain files beside it, which set `quor_mingw` to the target.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_CXX_COMPILER ${quor_mingw}-g++-posix)
set(CMAKE_RC_COMPILER ${quor_mingw}-windres)
# An exception crosses the border of a module only where all of them share one runtime.
set(CMAKE_EXE_LINKER_FLAGS_INIT -shared-libgcc)
set(CMAKE_SHARED_LINKER_FLAGS_INIT -shared-libgcc)
set(CMAKE_MODULE_LINKER_FLAGS_INIT -shared-libgcc)
list(APPEND CMAKE_FIND_ROOT_PATH /usr/${quor_mingw})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
