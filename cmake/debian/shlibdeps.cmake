# Script of CPack, run before the packages are made: which libraries libzel needs, as dpkg-shlibdeps tells from its
# symbols.

file(GLOB_RECURSE libraries ${CPACK_TEMPORARY_DIRECTORY}/runtime/libzel.so.*.*)
set(scratch ${CPACK_TOPLEVEL_DIRECTORY}/shlibdeps)
file(WRITE ${scratch}/debian/control "") # dpkg-shlibdeps wants to stand in a source package
execute_process(
  COMMAND dpkg-shlibdeps -O ${libraries}
  WORKING_DIRECTORY ${scratch}
  OUTPUT_VARIABLE depends
  COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "^shlibs:Depends=|\n$" "" depends ${depends})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS ${depends})
