# Lets a program store a file and holds it against what is expected, byte by byte:
#
#   cmake -DPROGRAM=... -DFORMAT=... -DEXPECTED=file -DWORK=dir -P store_and_compare.cmake

file(MAKE_DIRECTORY "${WORK}")
set(file "${WORK}/stored.${FORMAT}")
file(REMOVE "${file}")
execute_process(COMMAND ${LAUNCHER} "${PROGRAM}" ${FORMAT} store "${file}" RESULT_VARIABLE status OUTPUT_VARIABLE output
  ERROR_VARIABLE output)
if(NOT status EQUAL 0 OR output)
  message(FATAL_ERROR "the exit status is ${status}, and it wrote: ${output}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files "${file}" "${EXPECTED}" RESULT_VARIABLE differs)
if(differs)
  message(FATAL_ERROR "${file} differs from ${EXPECTED}")
endif()
