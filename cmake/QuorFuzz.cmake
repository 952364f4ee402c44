# quor_fuzz_target(<target> [INTERNAL] [LIBRARIES <target>...])
#
# One fuzz target: tests/fuzz/<target>_fuzz.cpp with LLVMFuzzerTestOneInput, seeds in
# tests/fuzz/corpus/<target>/, words for the engine in tests/fuzz/<target>.dict where
# there is such a file. INTERNAL targets reach private headers: they are linked to the
# library's objects, with src/ on the include path.
#
# With QUOR_BUILD_FUZZ it is linked to the compiler's fuzzing engine (<target>_fuzz; run
# it with tools/fuzz). Every other build makes a program that replays the seeds
# (<target>_replay) and runs it as the CTest test fuzz.<target>.

function(quor_fuzz_target target)
  cmake_parse_arguments(PARSE_ARGV 1 fuzz "INTERNAL" "" "LIBRARIES")
  set(source "${PROJECT_SOURCE_DIR}/tests/fuzz/${target}_fuzz.cpp")
  set(corpus "${PROJECT_SOURCE_DIR}/tests/fuzz/corpus/${target}")
  if(QUOR_BUILD_FUZZ)
    set(program ${target}_fuzz)
    add_executable(${program} "${source}")
    target_link_options(${program} PRIVATE -fsanitize=fuzzer)
    add_test(NAME fuzz.${target} COMMAND ${program} -runs=0 "${corpus}")
  else()
    set(program ${target}_replay)
    add_executable(${program} "${source}" "${PROJECT_SOURCE_DIR}/tests/fuzz/replay_main.cpp")
    add_test(NAME fuzz.${target} COMMAND ${program} "${corpus}")
  endif()
  if(fuzz_INTERNAL)
    set(library quor_objects quor_platform)
    target_include_directories(${program} PRIVATE "${PROJECT_SOURCE_DIR}/include" "${PROJECT_SOURCE_DIR}/src")
  else()
    set(library quor)
  endif()
  target_link_libraries(${program} PRIVATE ${library} quor_compiler ${fuzz_LIBRARIES})
  target_include_directories(${program} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  set_tests_properties(fuzz.${target} PROPERTIES TIMEOUT 300 LABELS fuzz DISABLED ${QUOR_PROGRAMS_DO_NOT_RUN})
  set_property(GLOBAL APPEND PROPERTY QUOR_FUZZ_TARGETS ${target})
endfunction()
