# Compiler settings of everything that is built here, kept in one interface target
# so that nothing leaks into projects that use the library.

add_library(quor_compiler INTERFACE)

target_compile_features(quor_compiler INTERFACE cxx_std_20)

if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  target_compile_options(quor_compiler INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
  if(PROJECT_IS_TOP_LEVEL)
    target_compile_options(quor_compiler INTERFACE -Werror)
  endif()
endif()

# A library that is closed again must really leave the process: the GNU compiler's
# unique symbols would pin it.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT WIN32)
  target_compile_options(quor_compiler INTERFACE -fno-gnu-unique)
endif()

if(QUOR_SANITIZE)
  target_compile_options(quor_compiler INTERFACE -fsanitize=${QUOR_SANITIZE} -fno-sanitize-recover=all
                                                 -fno-omit-frame-pointer)
  target_link_options(quor_compiler INTERFACE -fsanitize=${QUOR_SANITIZE})
endif()
if(QUOR_COVERAGE)
  target_compile_options(quor_compiler INTERFACE -fprofile-instr-generate -fcoverage-mapping)
  target_link_options(quor_compiler INTERFACE -fprofile-instr-generate)
endif()
if(QUOR_BUILD_FUZZ)
  target_compile_options(quor_compiler INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(quor_compiler INTERFACE -fsanitize=fuzzer-no-link)
endif()

find_program(QUOR_CCACHE ccache)
mark_as_advanced(QUOR_CCACHE)
if(QUOR_CCACHE AND PROJECT_IS_TOP_LEVEL AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${QUOR_CCACHE}")
endif()

if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()
