# Windows x86, 32 bits. Floating arithmetic rounds each operation to its own type, as on 64
# bits, and not to that of the old coprocessor.
set(CMAKE_SYSTEM_PROCESSOR x86)
set(quor_mingw i686-w64-mingw32)
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")
include("${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake")
