# quor_tests(<folder> FILES <file>... [LIBRARIES <target>...] [LABELS <label>...])
#
# One test program for a folder of tests: tests/<folder>/<header>_test.cpp for each
# public header include/quor/<folder>/<header>.hpp. Every case becomes a CTest test
# of its own named <folder>.<suite>.<case>, labelled <folder>.<labels>. The label `counted`
# marks what the thread sanitizer runs. In a cross build a whole program is one CTest test,
# named <program>, as a program takes long to start there; it is disabled where
# QUOR_PROGRAMS_DO_NOT_RUN is set.
#
# quor_internal_tests(<folder> FILES <file>... [PLATFORM <object library>])
#
# The same for tests that reach private headers: linked to the library's objects
# instead of the shared library, with src/ on the include path, and with
# another platform where PLATFORM names one.

find_package(Threads REQUIRED)
if(CMAKE_CROSSCOMPILING)
  # No target but the native one has a package of the test framework.
  set(QUOR_GOOGLETEST_SOURCE /usr/src/googletest CACHE PATH "Sources of the test framework, for cross builds")
  add_library(quor_googletest STATIC "${QUOR_GOOGLETEST_SOURCE}/googletest/src/gtest-all.cc"
    "${QUOR_GOOGLETEST_SOURCE}/googletest/src/gtest_main.cc")
  target_include_directories(quor_googletest SYSTEM PUBLIC "${QUOR_GOOGLETEST_SOURCE}/googletest/include")
  target_include_directories(quor_googletest PRIVATE "${QUOR_GOOGLETEST_SOURCE}/googletest")
  target_link_libraries(quor_googletest PUBLIC Threads::Threads)
  set(quor_test_libraries quor_googletest)
else()
  include(GoogleTest)
  find_package(GTest REQUIRED)
  set(quor_test_libraries GTest::gtest GTest::gtest_main)
endif()

# The test framework's headers are compiled once.
add_library(quor_test_framework STATIC "${PROJECT_SOURCE_DIR}/tests/support/framework.cpp")
target_link_libraries(quor_test_framework PUBLIC quor_compiler ${quor_test_libraries})
target_include_directories(quor_test_framework PUBLIC "${PROJECT_SOURCE_DIR}/tests")
target_precompile_headers(quor_test_framework PRIVATE <gtest/gtest.h> <algorithm> <map> <random> <string> <vector>)

# Replaces the global operator new of the programs that link it, see its header.
add_library(quor_allocation_counter STATIC "${PROJECT_SOURCE_DIR}/tests/support/allocation_counter.cpp")
target_link_libraries(quor_allocation_counter PUBLIC quor_compiler)
target_include_directories(quor_allocation_counter PUBLIC "${PROJECT_SOURCE_DIR}/tests")
if(WIN32)
  # It can't reach what a DLL allocates, that of the language's runtime included.
  target_link_options(quor_allocation_counter INTERFACE -static)
endif()

function(quor_add_test_program name folder)
  cmake_parse_arguments(PARSE_ARGV 2 test "" "" "FILES;LIBRARIES;LABELS")
  list(TRANSFORM test_FILES PREPEND "${PROJECT_SOURCE_DIR}/tests/${folder}/")
  add_executable(${name} ${test_FILES})
  target_link_libraries(${name} PRIVATE quor_test_framework Threads::Threads ${test_LIBRARIES})
  target_precompile_headers(${name} REUSE_FROM quor_test_framework)
  string(REPLACE "/" "." prefix "${folder}")
  # A single label for each test, as the discovery loses all but the first.
  list(JOIN test_LABELS "." label)
  string(PREPEND label "${prefix}.")
  if(CMAKE_CROSSCOMPILING)
    add_test(NAME ${name} COMMAND ${name} --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES TIMEOUT 600 LABELS "${label}" DISABLED ${QUOR_PROGRAMS_DO_NOT_RUN})
    return()
  endif()
  gtest_discover_tests(${name} TEST_PREFIX "${prefix}." DISCOVERY_MODE PRE_TEST
    DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300 LABELS "${label}")
endfunction()

function(quor_tests folder)
  cmake_parse_arguments(PARSE_ARGV 1 test "" "" "FILES;LIBRARIES;LABELS")
  string(REPLACE "/" "_" name "${folder}")
  quor_add_test_program(test_${name} ${folder} FILES ${test_FILES} LIBRARIES quor ${test_LIBRARIES} LABELS ${test_LABELS})
endfunction()

function(quor_internal_tests folder)
  cmake_parse_arguments(PARSE_ARGV 1 test "" "PLATFORM" "FILES;LIBRARIES;LABELS")
  string(REPLACE "/" "_" name "${folder}")
  if(NOT test_PLATFORM)
    set(test_PLATFORM quor_platform)
  endif()
  quor_add_test_program(test_internal_${name} ${folder} FILES ${test_FILES}
    LIBRARIES quor_objects ${test_PLATFORM} ${test_LIBRARIES} LABELS ${test_LABELS})
  target_include_directories(test_internal_${name} PRIVATE "${PROJECT_SOURCE_DIR}/include" "${PROJECT_SOURCE_DIR}/src")
endfunction()
