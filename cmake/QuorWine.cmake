# How the programs of a cross build run.
#
# Those for Windows run under Wine where it is installed: the script <build>/wine/run becomes
# CMAKE_CROSSCOMPILING_EMULATOR. Afterwards QUOR_PROGRAMS_DO_NOT_RUN
# tells whether programs of this build can't run here, for the property DISABLED of their
# tests; a small one is tried once.

set(QUOR_PROGRAMS_DO_NOT_RUN OFF)
if(NOT CMAKE_CROSSCOMPILING)
  return()
endif()

if(WIN32 AND NOT CMAKE_CROSSCOMPILING_EMULATOR)
  # Debian's command is a shell script, which drops what it can't have as a variable of its own
  # from the environment (a.b=c); the program behind it doesn't.
  if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    find_program(QUOR_WINE NAMES wine64 wine HINTS /usr/lib/wine)
  else()
    find_program(QUOR_WINE NAMES wine HINTS /usr/lib/wine)
  endif()
  find_program(QUOR_WINE_SERVER NAMES wineserver64 wineserver HINTS /usr/lib/wine)
  if(NOT QUOR_WINE_SERVER)
    set(QUOR_WINE_SERVER "")
  endif()
  mark_as_advanced(QUOR_WINE QUOR_WINE_SERVER)
  if(QUOR_WINE)
    set(quor_wine_path "${PROJECT_BINARY_DIR}/src")
    foreach(runtime libstdc++-6.dll libgcc_s_seh-1.dll libgcc_s_dw2-1.dll libwinpthread-1.dll)
      execute_process(COMMAND "${CMAKE_CXX_COMPILER}" -print-file-name=${runtime} OUTPUT_VARIABLE file
        OUTPUT_STRIP_TRAILING_WHITESPACE)
      if(IS_ABSOLUTE "${file}")
        get_filename_component(folder "${file}" DIRECTORY)
        get_filename_component(folder "${folder}" REALPATH)
        list(APPEND quor_wine_path "${folder}")
      endif()
    endforeach()
    list(REMOVE_DUPLICATES quor_wine_path)
    configure_file("${PROJECT_SOURCE_DIR}/cmake/wine/run.in" "${PROJECT_BINARY_DIR}/wine/run" @ONLY
      FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
    set(CMAKE_CROSSCOMPILING_EMULATOR "${PROJECT_BINARY_DIR}/wine/run")
  endif()
endif()

if(NOT DEFINED QUOR_TARGET_RUNS)
  set(trial "${PROJECT_BINARY_DIR}/CMakeFiles/trial")
  file(WRITE "${trial}.cpp" "int main() { return 42; }\n")
  set(status "no way to run programs for ${CMAKE_SYSTEM_NAME} ${CMAKE_SYSTEM_PROCESSOR}")
  if(CMAKE_CROSSCOMPILING_EMULATOR)
    separate_arguments(flags UNIX_COMMAND "${CMAKE_CXX_FLAGS}")
    execute_process(COMMAND "${CMAKE_CXX_COMPILER}" ${flags} "${trial}.cpp" -o "${trial}.exe")
    execute_process(COMMAND ${CMAKE_CROSSCOMPILING_EMULATOR} "${trial}.exe" RESULT_VARIABLE status TIMEOUT 300
      OUTPUT_QUIET ERROR_QUIET)
  endif()
  if(status EQUAL 42)
    set(QUOR_TARGET_RUNS ON CACHE INTERNAL "Whether the target's programs run here")
  else()
    set(QUOR_TARGET_RUNS OFF)
  endif()
endif()
if(NOT QUOR_TARGET_RUNS)
  set(QUOR_PROGRAMS_DO_NOT_RUN ON)
  message(WARNING "quor: programs for ${CMAKE_SYSTEM_NAME} ${CMAKE_SYSTEM_PROCESSOR} don't run here (${status}): "
    "the tests are built and linked, and NOT RUN")
endif()
