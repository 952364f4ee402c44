# Runs a program and holds what it does against what is expected:
#
#   cmake -DPROGRAM=... -DARGUMENTS="a|b|c" -DSTATUS=0 [-DOUTPUT=file] [-DERRORS=file]
#         [-DINPUT=file] [-DENVIRONMENT="A=b|C=d"] [-DFILES="a|b"] -DWORK=dir -P run_and_compare.cmake
#
# Arguments are separated by "|". OUTPUT and ERRORS name files with the expected texts;
# without one the program must write nothing there. INPUT is its standard input, else it has
# the caller's. It runs in the current directory.
# With ENVIRONMENT, which may be empty, the program gets this environment and no other, and
# runs in a directory that holds nothing but copies of the FILES; then the texts are
# compared byte by byte, else, and for another system, but for the line ends. A LAUNCHER runs
# programs for another system.
# With QUOR_UPDATE_EXPECTED in the environment the expected files are written anew.

string(REPLACE "|" ";" arguments "${ARGUMENTS}")
file(MAKE_DIRECTORY "${WORK}")
if(DEFINED ENVIRONMENT)
  string(REPLACE "|" ";" environment "${ENVIRONMENT}")
  string(REPLACE "|" ";" files "${FILES}")
  set(place "${WORK}/place")
  file(REMOVE_RECURSE "${place}")
  file(MAKE_DIRECTORY "${place}")
  foreach(file IN LISTS files)
    file(COPY "${file}" DESTINATION "${place}")
  endforeach()
  set(launcher env -i ${environment} ${LAUNCHER})
  set(line_ends "")
  if(LAUNCHER)
    set(line_ends --ignore-eol)
  endif()
else()
  set(place .)
  set(launcher ${LAUNCHER})
  set(line_ends --ignore-eol)
endif()
set(input "")
if(INPUT)
  set(input INPUT_FILE "${INPUT}")
endif()
execute_process(COMMAND ${launcher} "${PROGRAM}" ${arguments} WORKING_DIRECTORY "${place}" ${input}
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
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${line_ends} "${file}" "${expected}" RESULT_VARIABLE differs
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
