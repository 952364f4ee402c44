# The library is made of parts, one folder each under include/quor and src. Each
# folder's CMakeLists.txt names its public headers and its sources:
#
#   quor_part(strings HEADERS unichar.hpp transcode.hpp SOURCES unichar.cpp transcode.cpp)
#
# HEADERS are relative to include/quor/<folder>, SOURCES to src/<folder>.

set_property(GLOBAL PROPERTY QUOR_HEADERS "")
set_property(GLOBAL PROPERTY QUOR_SOURCES "")

function(quor_part folder)
  cmake_parse_arguments(PARSE_ARGV 1 part "" "" "HEADERS;SOURCES")
  if(part_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "quor_part(${folder}): unknown arguments ${part_UNPARSED_ARGUMENTS}")
  endif()
  if(folder STREQUAL ".")
    set(prefix "")
  else()
    set(prefix "${folder}/")
  endif()
  foreach(header IN LISTS part_HEADERS)
    set_property(GLOBAL APPEND PROPERTY QUOR_HEADERS "quor/${prefix}${header}")
  endforeach()
  foreach(source IN LISTS part_SOURCES)
    set_property(GLOBAL APPEND PROPERTY QUOR_SOURCES "${PROJECT_SOURCE_DIR}/src/${prefix}${source}")
  endforeach()
endfunction()
