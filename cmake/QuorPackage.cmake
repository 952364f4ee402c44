# Packages: cpack in the build folder makes a .deb and a .tar.gz of what is installed.
# The .deb goes to /usr; the other one can be unpacked anywhere.

set(CPACK_GENERATOR "DEB;TGZ")
set(CPACK_PACKAGE_NAME quor)
set(CPACK_PACKAGE_VENDOR "quor")
set(CPACK_PACKAGE_CONTACT "quor developers <developers@quor.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_DESCRIPTION "Message catalogs with typed, formatted arguments, layered configuration, serialization\
 buffers, Unicode strings, number and text conversion, XML parsers, code pages, calendar, timer and files.")
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
find_program(QUOR_DPKG_SHLIBDEPS dpkg-shlibdeps)
mark_as_advanced(QUOR_DPKG_SHLIBDEPS)
if(QUOR_DPKG_SHLIBDEPS)
  set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
else()
  set(CPACK_DEBIAN_PACKAGE_DEPENDS "libc6, libstdc++6")
endif()

include(CPack)
