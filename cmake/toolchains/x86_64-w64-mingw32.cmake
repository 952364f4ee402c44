# Windows x86-64.
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(quor_mingw x86_64-w64-mingw32)
include("${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake")
