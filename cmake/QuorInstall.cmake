# Install rules: the library, its headers, the CMake package, the pkg-config file, and what editors
# and desktops need to know catalogs.
# The build tree is a package too: find_package finds it in <build>/package.

include(CMakePackageConfigHelpers)

set(quor_module "quor-${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}")
set(quor_package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/${quor_module}")
set(quor_pkgconfig_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
set(quor_build_package_dir "${PROJECT_BINARY_DIR}/package")

install(TARGETS quor EXPORT quor-targets
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  FILE_SET HEADERS DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}")
install(EXPORT quor-targets NAMESPACE quor:: DESTINATION "${quor_package_dir}")

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/quor-config.cmake.in"
  "${quor_build_package_dir}/quor-config.cmake" INSTALL_DESTINATION "${quor_package_dir}"
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${quor_build_package_dir}/quor-config-version.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES "${quor_build_package_dir}/quor-config.cmake" "${quor_build_package_dir}/quor-config-version.cmake"
  DESTINATION "${quor_package_dir}")
export(EXPORT quor-targets NAMESPACE quor:: FILE "${quor_build_package_dir}/quor-targets.cmake")

# The pkg-config file finds the prefix from where it lies, so that an installed tree
# can be moved.
function(quor_relative_to_prefix variable directory)
  if(IS_ABSOLUTE "${directory}")
    set(${variable} "${directory}" PARENT_SCOPE)
  else()
    set(${variable} "\${prefix}/${directory}" PARENT_SCOPE)
  endif()
endfunction()

quor_relative_to_prefix(quor_pc_libdir "${CMAKE_INSTALL_LIBDIR}")
quor_relative_to_prefix(quor_pc_includedir "${CMAKE_INSTALL_INCLUDEDIR}")
if(IS_ABSOLUTE "${quor_pkgconfig_dir}")
  set(quor_pc_prefix "${CMAKE_INSTALL_PREFIX}")
else()
  file(RELATIVE_PATH quor_pc_up "/${quor_pkgconfig_dir}" "/")
  string(REGEX REPLACE "/$" "" quor_pc_up "${quor_pc_up}")
  set(quor_pc_prefix "\${pcfiledir}/${quor_pc_up}")
endif()
set(quor_pc_cflags "-I\${includedir}")
if(WIN32 AND BUILD_SHARED_LIBS)
  string(APPEND quor_pc_cflags " -DQUOR_DLL_IMPORT")
endif()
get_target_property(quor_pc_library quor OUTPUT_NAME)
set(quor_pc_libs "-L\${libdir} -l${quor_pc_library}")
if(WIN32 AND NOT BUILD_SHARED_LIBS)
  string(APPEND quor_pc_libs " -lwinmm")
endif()
configure_file("${PROJECT_SOURCE_DIR}/cmake/quor.pc.in" "${quor_build_package_dir}/${quor_module}.pc" @ONLY)
install(FILES "${quor_build_package_dir}/${quor_module}.pc" DESTINATION "${quor_pkgconfig_dir}")

install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/share/xml" "${PROJECT_SOURCE_DIR}/share/editors"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/quor")
install(FILES "${PROJECT_SOURCE_DIR}/share/mime/quor-xmc.xml" DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages")
