# What the wide streams make of pipes, with a UTF-8 locale, without one, and with one that
# isn't there.
if(WIN32)
  # There the locale is the user's, whatever the environment says; ASCII is in all of them.
  quor_example_test(wide_lines_ascii wide_lines 0 ALONE INPUT lines/ascii.txt OUTPUT lines/ascii.txt)
  return()
endif()

quor_example_test(wide_lines_utf8 wide_lines 0 ALONE ENVIRONMENT LC_ALL=C.UTF-8
  INPUT lines/utf8.txt OUTPUT lines/utf8.txt)
quor_example_test(wide_lines_utf8_malformed wide_lines 1 ALONE ENVIRONMENT LC_ALL=C.UTF-8
  INPUT lines/malformed.txt OUTPUT lines/malformed.txt ERRORS lines/errors.txt)
foreach(locale IN ITEMS C no_such_locale)
  quor_example_test(wide_lines_${locale} wide_lines 0 ALONE ENVIRONMENT LC_ALL=${locale}
    INPUT lines/ascii.txt OUTPUT lines/ascii.txt)
  quor_example_test(wide_lines_${locale}_not_ascii wide_lines 1 ALONE ENVIRONMENT LC_ALL=${locale}
    INPUT lines/utf8.txt OUTPUT lines/utf8_without_locale.txt ERRORS lines/errors.txt)
endforeach()
