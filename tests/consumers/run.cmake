# Builds a consumer project from nothing, runs it and compares its output.
#
#   cmake -DMODE=... -D<variable>=... -P run.cmake
#
# MODE is
#   install           installs BUILD into PREFIX
#   package           makes the packages of BUILD and unpacks them below WORK
#   cmake             configures and builds SOURCE into WORK with OPTIONS, runs it
#   pkg_config        compiles PROGRAM against the module in PREFIX, runs it
# Programs for another system are run by the LAUNCHER, which finds the library in DLL_FOLDER;
# their lines may end in its way, and their files in SUFFIX. With NO_RUN they are built only.

cmake_minimum_required(VERSION 3.23)

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT code EQUAL 0)
    list(JOIN ARGN " " command)
    message(FATAL_ERROR "failed with ${code}: ${command}\n${output}")
  endif()
endfunction()

function(compare program)
  if(NO_RUN)
    return()
  endif()
  set(ENV{LD_LIBRARY_PATH} "${PREFIX}/lib")
  set(ENV{QUOR_WINE_PATH} "${DLL_FOLDER}")
  execute_process(COMMAND ${LAUNCHER} "${program}" RESULT_VARIABLE code OUTPUT_VARIABLE output ERROR_VARIABLE errors)
  if(LAUNCHER)
    string(REPLACE "\r\n" "\n" output "${output}")
  endif()
  file(READ "${CMAKE_CURRENT_LIST_DIR}/program/expected.txt" expected)
  if(NOT code EQUAL 0 OR NOT output STREQUAL expected OR NOT errors STREQUAL "")
    message(FATAL_ERROR "${program} ended with ${code}\n--- printed\n${output}--- expected\n${expected}--- errors\n${errors}")
  endif()
endfunction()

if(MODE STREQUAL "install")
  file(REMOVE_RECURSE "${PREFIX}")
  run("${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${PREFIX}")
elseif(MODE STREQUAL "package")
  file(REMOVE_RECURSE "${WORK}")
  run("${CPACK}" --config "${BUILD}/CPackConfig.cmake" -B "${WORK}/made")
  file(GLOB archive "${WORK}/made/quor-*.tar.gz")
  file(GLOB debian "${WORK}/made/quor_*.deb")
  file(MAKE_DIRECTORY "${WORK}/archive" "${WORK}/debian")
  run(tar -xzf "${archive}" -C "${WORK}/archive" --strip-components=1)
  run(dpkg-deb --extract "${debian}" "${WORK}/debian")
  foreach(file share/quor/xml/xmc.xsd share/quor/editors/vscode-settings.json share/mime/packages/quor-xmc.xml)
    foreach(root archive debian/usr)
      if(NOT EXISTS "${WORK}/${root}/${file}")
        message(FATAL_ERROR "${WORK}/${root} has no ${file}")
      endif()
    endforeach()
  endforeach()
elseif(MODE STREQUAL "cmake")
  file(REMOVE_RECURSE "${WORK}")
  separate_arguments(OPTIONS UNIX_COMMAND "${OPTIONS}")
  run("${CMAKE_COMMAND}" -G Ninja -S "${SOURCE}" -B "${WORK}" ${OPTIONS})
  run("${CMAKE_COMMAND}" --build "${WORK}")
  compare("${WORK}/consumer${SUFFIX}")
  if(EXISTS "${WORK}/abi_consumer" AND NOT NO_RUN)
    run("${WORK}/abi_consumer")
  endif()
elseif(MODE STREQUAL "pkg_config")
  file(MAKE_DIRECTORY "${WORK}")
  file(GLOB_RECURSE module "${PREFIX}/*/quor-2.9.pc")
  get_filename_component(module_dir "${module}" DIRECTORY)
  set(ENV{PKG_CONFIG_PATH} "${module_dir}")
  execute_process(COMMAND "${PKG_CONFIG}" --cflags --libs quor-2.9 RESULT_VARIABLE code OUTPUT_VARIABLE flags
    OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(NOT code EQUAL 0)
    message(FATAL_ERROR "pkg-config does not find the module quor-2.9 in ${module_dir}")
  endif()
  separate_arguments(flags UNIX_COMMAND "${flags}")
  separate_arguments(OPTIONS UNIX_COMMAND "${OPTIONS}")
  run("${COMPILER}" -std=c++17 ${OPTIONS} "${CMAKE_CURRENT_LIST_DIR}/program/main.cpp" -o "${WORK}/consumer${SUFFIX}" ${flags})
  compare("${WORK}/consumer${SUFFIX}")
else()
  message(FATAL_ERROR "no mode \"${MODE}\"")
endif()
