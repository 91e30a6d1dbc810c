# What is installed where. The components are the Debian packages, runtime, dev and tool, and license, which those have
# in a form of their own.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(zel_cmake_dir ${CMAKE_INSTALL_LIBDIR}/cmake/zel)

# GNUInstallDirs lets a packager choose absolute directories, which no prefix stands before.
function(zel_below_prefix result directory)
  if(IS_ABSOLUTE ${directory})
    set(${result} ${directory} PARENT_SCOPE)
  else()
    set(${result} "\${prefix}/${directory}" PARENT_SCOPE)
  endif()
endfunction()

# --- Libraries and header ------------------------------------------------------------------------------------------

set_target_properties(zel_shared PROPERTIES EXPORT_NAME zel)
install(
  TARGETS zel_shared
  EXPORT zelTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
          COMPONENT runtime
          NAMELINK_COMPONENT dev
  INCLUDES
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(
  TARGETS zel_static
  EXPORT zelTargets
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev
  INCLUDES
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES lib/core/zel.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT dev)

# --- How programs find them ----------------------------------------------------------------------------------------

configure_package_config_file(cmake/zelConfig.cmake.in ${PROJECT_BINARY_DIR}/zelConfig.cmake
                              INSTALL_DESTINATION ${zel_cmake_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/zelConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/zelConfig.cmake ${PROJECT_BINARY_DIR}/zelConfigVersion.cmake
        DESTINATION ${zel_cmake_dir} COMPONENT dev)
install(EXPORT zelTargets NAMESPACE zel:: DESTINATION ${zel_cmake_dir} COMPONENT dev)

# The prefix is known only when installing (cmake --install --prefix), so zel.pc finds it from its own place.
if(IS_ABSOLUTE ${CMAKE_INSTALL_LIBDIR})
  set(zel_pc_prefix ${CMAKE_INSTALL_PREFIX})
else()
  file(RELATIVE_PATH zel_pc_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
  string(REGEX REPLACE "/$" "" zel_pc_prefix "\${pcfiledir}/${zel_pc_prefix}")
endif()
zel_below_prefix(zel_pc_includedir ${CMAKE_INSTALL_INCLUDEDIR})
zel_below_prefix(zel_pc_libdir ${CMAKE_INSTALL_LIBDIR})
configure_file(cmake/zel.pc.in ${PROJECT_BINARY_DIR}/zel.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/zel.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT dev)

# --- The tools and the manual --------------------------------------------------------------------------------------

install(TARGETS zelpath RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tool)
install(FILES tool/zelpath.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME zelpath
        COMPONENT tool)
install(FILES docs/man/zelpath.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
if(TARGET zel_tool)
  install(TARGETS zel_tool RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tool)
  install(FILES tool/zel/zel.bash DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME zel
          COMPONENT tool)
  install(FILES docs/man/zel.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
endif()
install(FILES docs/man/zel.3 DESTINATION ${CMAKE_INSTALL_MANDIR}/man3 COMPONENT dev)

install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT license)

# The packages of a project that includes this one are its own affair.
if(PROJECT_IS_TOP_LEVEL)
  include(cmake/ZelPackage.cmake)
endif()
