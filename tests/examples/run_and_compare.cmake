# Runs a program and holds what it does against what is expected:
#
#   cmake -DPROGRAM=... -DARGUMENTS="a|b|c" -DSTATUS=0 [-DOUTPUT=file] [-DERRORS=file]
#         -DWORK=dir -P run_and_compare.cmake
#
# Arguments are separated by "|". OUTPUT and ERRORS name files with the expected texts;
# without one the program must write nothing there. It runs in the current directory.
# With QUOR_UPDATE_EXPECTED in the environment the expected files are written anew.

string(REPLACE "|" ";" arguments "${ARGUMENTS}")
file(MAKE_DIRECTORY "${WORK}")
execute_process(COMMAND ${LAUNCHER} "${PROGRAM}" ${arguments}
  RESULT_VARIABLE status OUTPUT_FILE "${WORK}/output.txt" ERROR_FILE "${WORK}/errors.txt")

set(failed FALSE)
if(NOT status STREQUAL STATUS)
  message(SEND_ERROR "the exit status is ${status} and should be ${STATUS}")
  set(failed TRUE)
endif()

function(compare what file expected)
  if(DEFINED ENV{QUOR_UPDATE_EXPECTED} AND expected)
    configure_file("${file}" "${expected}" COPYONLY)
  endif()
  if(NOT expected)
    file(WRITE "${WORK}/nothing.txt" "")
    set(expected "${WORK}/nothing.txt")
  endif()
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files --ignore-eol "${file}" "${expected}" RESULT_VARIABLE differs
    ERROR_QUIET)
  if(differs)
    message(SEND_ERROR "the ${what} (${file}) differs from ${expected}:")
    execute_process(COMMAND diff -u "${expected}" "${file}")
    set(failed TRUE PARENT_SCOPE)
  endif()
endfunction()

compare("standard output" "${WORK}/output.txt" "${OUTPUT}")
compare("standard error stream" "${WORK}/errors.txt" "${ERRORS}")
if(failed)
  message(FATAL_ERROR "failed")
endif()
