# The service with command lines of every form, files and environments.
# quor_service_test(<name> <status> [NO_FILE] [ARGUMENTS <word>...] [ENVIRONMENT <name=value>...]
#                   [OUTPUT <file>] [ERRORS <file>] [FILES <file>...])
function(quor_service_test name status)
  cmake_parse_arguments(PARSE_ARGV 2 service "NO_FILE" "OUTPUT;ERRORS" "FILES")
  if(NOT service_NO_FILE)
    list(APPEND service_FILES examples/config/pellwick.cfg examples/config/laptop.cfg)
  endif()
  set(texts "")
  if(service_OUTPUT)
    list(APPEND texts OUTPUT service/${service_OUTPUT})
  endif()
  if(service_ERRORS)
    list(APPEND texts ERRORS service/${service_ERRORS})
  endif()
  quor_example_test(service_${name} configured_service ${status} ALONE ${texts} FILES ${service_FILES}
    ${service_UNPARSED_ARGUMENTS})
endfunction()

# Where settings come from: nobody, a file, the environment, the command line, all of them.
quor_service_test(defaults 0 NO_FILE OUTPUT defaults.txt)
quor_service_test(file 0 OUTPUT file.txt)
quor_service_test(environment 0 NO_FILE OUTPUT environment.txt
  ENVIRONMENT HOME=/home/mina LOG_LEVEL=trace node=wren server.port=7000 Backup.Keep_Days=7
              "server.name=Attic archive" "server.status=\"https://status.example/x y\"")
quor_service_test(precedence 0 OUTPUT precedence.txt
  ARGUMENTS -log_level=debug -backup.keep_days=7
  ENVIRONMENT LOG_LEVEL=trace server.port=7000 VERBOSE=on)
if(NOT WIN32) # where no entry is empty
  quor_service_test(empty_environment_entry 0 NO_FILE OUTPUT empty_environment_entry.txt
    ENVIRONMENT VERBOSE= sync.paused=1)
endif()

# What tools/demo and the README show.
quor_service_test(demo 0 OUTPUT demo.txt
  ARGUMENTS -log_level=debug -sync.peers.names heron wren -backup.keep_days=7 ENVIRONMENT LOG_LEVEL=trace VERBOSE=on)

# Each form of the command line.
quor_service_test(switch_alone 0 OUTPUT switch.txt ARGUMENTS -verbose)
quor_service_test(switch_slash 0 OUTPUT switch.txt ARGUMENTS /verbose)
quor_service_test(switch_before_key 0 OUTPUT switch_before_key.txt ARGUMENTS -verbose -sync.paused /log_level=debug)
foreach(form "next_argument:-server.port|9000" "equals:-server.port=9000" "colon:-server.port:9000"
        "colon_equals:-server.port:=9000" "slash:/server.port=9000" "slash_next_argument:/server.port|9000"
        "dollar:-server.port$9000" "case_and_separators:-SERVER/Port=9000" "backslash:-server\\port=9000")
  string(REGEX MATCH "^([^:]*):(.*)$" form "${form}")
  set(name ${CMAKE_MATCH_1})
  string(REPLACE "|" ";" words "${CMAKE_MATCH_2}")
  quor_service_test(${name} 0 OUTPUT value.txt ARGUMENTS ${words})
endforeach()
quor_service_test(list_commas 0 OUTPUT list.txt ARGUMENTS -sync.peers.names=heron,wren,dunlin)
quor_service_test(list_arguments 0 OUTPUT list.txt ARGUMENTS -sync.peers.names heron wren dunlin)
quor_service_test(list_colon 0 OUTPUT list.txt ARGUMENTS -sync.peers.names:heron,wren,dunlin)
quor_service_test(list_of_one 0 OUTPUT list_of_one.txt ARGUMENTS -sync.peers.names heron)
quor_service_test(list_with_path 0 OUTPUT list_with_path.txt ARGUMENTS -backup.folders Documents /srv/photos -verbose)
quor_service_test(list_comma_at_end 0 OUTPUT list_comma_at_end.txt ARGUMENTS -sync.peers.names=heron,)
quor_service_test(list_quoted_comma 0 OUTPUT list_quoted_comma.txt
  ARGUMENTS "-sync.peers.names=\"heron, wren\",dunlin")
quor_service_test(dollar_with_comma 0 OUTPUT dollar_with_comma.txt ARGUMENTS "-server.name$Attic,basement")
quor_service_test(empty_value 0 OUTPUT empty_value.txt ARGUMENTS -server.name=)
quor_service_test(quoted_value 0 OUTPUT quoted_value.txt ARGUMENTS "-server.name=\"Attic, basement\"" -server.host
  "\"a b\"")
quor_service_test(twice 0 OUTPUT value.txt ARGUMENTS -server.port=1 -server.port=9000)
quor_service_test(no_key 0 OUTPUT no_key.txt ARGUMENTS other -verbose -log_level=debug more)
quor_service_test(path_as_key 0 OUTPUT path_as_key.txt ERRORS path_as_key_errors.txt
  ARGUMENTS -backup.folders /srv/photos)
quor_service_test(double_dash 0 OUTPUT file.txt ERRORS double_dash_errors.txt ARGUMENTS --server.port=9000)
quor_service_test(plus_equals 0 OUTPUT file.txt ERRORS plus_equals_errors.txt ARGUMENTS -server.port+=9000)
quor_service_test(blank_in_value 0 OUTPUT blank_in_value.txt ARGUMENTS "-server.name=Attic archive")
quor_service_test(blank_in_key 0 OUTPUT file.txt ERRORS blank_in_key_errors.txt ARGUMENTS "-log_level debug")
quor_service_test(unknown_keys 0 OUTPUT file.txt ERRORS unknown_keys_errors.txt
  ARGUMENTS -sevrer.port=9000 -sync.peer=a,b -x)
quor_service_test(help 0 OUTPUT help.txt ARGUMENTS -help)

# Which file is read.
quor_service_test(file_by_command_line 0 OUTPUT laptop.txt ARGUMENTS -cfg_file=laptop.cfg)
quor_service_test(file_by_environment 0 OUTPUT laptop.txt ENVIRONMENT CFG_FILE=laptop.cfg)
quor_service_test(file_by_both 0 OUTPUT laptop.txt ARGUMENTS -cfg_file laptop.cfg ENVIRONMENT CFG_FILE=pellwick.cfg)
quor_service_test(file_missing 1 ERRORS file_missing_errors.txt ARGUMENTS -cfg_file=no_such_file.cfg)
quor_service_test(file_is_directory 1 ERRORS file_is_directory_errors.txt ARGUMENTS -cfg_file=.)
quor_service_test(file_bad_key 1 ERRORS file_bad_key_errors.txt ARGUMENTS -cfg_file=one_byte_key.cfg
  FILES examples/broken/one_byte_key.cfg)

# All that the sources hold. On Windows every program has entries of the system's, too.
if(WIN32)
  return()
endif()
quor_service_test(dump 0 OUTPUT dump.txt ARGUMENTS -log_level=debug -sync.peers.names heron wren -dump
  ENVIRONMENT HOME=/home/mina LANG=en_GB.UTF-8 "PATH=/usr/bin:/bin" "A==b" server.port=7000)
quor_service_test(dump_no_file 0 NO_FILE OUTPUT dump_no_file.txt ARGUMENTS /dump)
