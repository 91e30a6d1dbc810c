# The header from which the identification strings take release number, date, time and tag. It is written anew when a
# source changes, so that the date is that of the build and a build without changes stays one.

math(EXPR zel_release_major "${PROJECT_VERSION_MAJOR} + 100")
math(EXPR zel_release_minor "${PROJECT_VERSION_MINOR} + 100")
string(SUBSTRING ${zel_release_major} 1 2 zel_release_major)
string(SUBSTRING ${zel_release_minor} 1 2 zel_release_minor)

set(zel_datestamp_dir ${PROJECT_BINARY_DIR}/generated)
file(GLOB_RECURSE zel_datestamp_inputs CONFIGURE_DEPENDS lib/*.cpp lib/*.h lib/*.inc tool/*.cpp tool/*.h)

add_custom_command(
  OUTPUT ${zel_datestamp_dir}/datestampFields.h
  COMMAND
    ${CMAKE_COMMAND} -D SOURCE_DIR=${PROJECT_SOURCE_DIR} -D OUTPUT=${zel_datestamp_dir}/datestampFields.h -D
    RELEASE=${zel_release_major}.${zel_release_minor} -P ${PROJECT_SOURCE_DIR}/cmake/writeDatestamp.cmake
  DEPENDS ${zel_datestamp_inputs} cmake/writeDatestamp.cmake cmake/datestampFields.h.in
  VERBATIM)
add_custom_target(zel_datestamp DEPENDS ${zel_datestamp_dir}/datestampFields.h)

function(zel_use_datestamp target)
  add_dependencies(${target} zel_datestamp)
  target_include_directories(${target} PRIVATE ${zel_datestamp_dir})
endfunction()
