# The Debian packages: libzel1, libzel-dev and zelpath, by cpack from a build that was configured for /usr.

set(zel_maintainer "zel maintainers <maintainers@example.org>" CACHE STRING "Maintainer of the packages")

# Without a Debian revision: these packages are made by the project itself, and the first that Debian makes of the same
# release, -1, counts as newer.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zel)
set(CPACK_PACKAGE_VENDOR zel)
set(CPACK_PACKAGE_CONTACT ${zel_maintainer})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
                                                WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL runtime dev tool)
set(CPACK_DEB_COMPONENT_INSTALL ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE zel)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "names between the languages and formats of chip design")
set(zel_about
    "zel turns the names of cells, instances, nets and buses, as hardware
description languages, netlists and file formats spell them, into one
canonical form and back, and parses and prints hierarchical paths.")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libzel${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "${zel_about}\n.\nThis package holds the shared library.")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME libzel-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "libzel${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEV_DESCRIPTION
    "${zel_about}\n.\nThis package holds the header, the static library, and what CMake and\npkg-config read.")

set(CPACK_DEBIAN_TOOL_PACKAGE_NAME zelpath)
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_TOOL_DESCRIPTION
    "${zel_about}\n.\nThis package holds zelpath, which shows one name in every syntax, and zel,\nwhich maps, checks and explains names and files of names.")

# The trigger runs ldconfig once for all packages that are installed together. CPack would write maintainer scripts that
# run it as well for every shared library that it sees, and it looks for them only to ask for their dependencies; those
# are found by a script of ours.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS OFF)
file(WRITE ${PROJECT_BINARY_DIR}/debian/triggers "activate-noawait ldconfig\n")
file(WRITE ${PROJECT_BINARY_DIR}/debian/shlibs
     "libzel ${PROJECT_VERSION_MAJOR} libzel${PROJECT_VERSION_MAJOR} (>= ${PROJECT_VERSION})\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/debian/triggers
                                               ${PROJECT_BINARY_DIR}/debian/shlibs)

# --- What Debian wants beside the files; left out when installing otherwise ----------------------------------------

string(TIMESTAMP zel_changelog_date "%a, %d %b %Y %H:%M:%S +0000" UTC)
configure_file(cmake/debian/changelog.in ${PROJECT_BINARY_DIR}/debian/changelog @ONLY)
configure_file(cmake/debian/copyright.in ${PROJECT_BINARY_DIR}/debian/copyright @ONLY)
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER ${component} COMPONENT)
  install(
    FILES ${PROJECT_BINARY_DIR}/debian/copyright ${PROJECT_BINARY_DIR}/debian/changelog
    DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${COMPONENT}_PACKAGE_NAME}
    COMPONENT ${component}
    EXCLUDE_FROM_ALL)
endforeach()
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/debian/compress.cmake
                            ${PROJECT_SOURCE_DIR}/cmake/debian/shlibdeps.cmake)

include(CPack)
