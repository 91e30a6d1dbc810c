# One GoogleTest program per folder, one C99 program per file of tests/c, and checks of the built files themselves.

find_package(GTest REQUIRED)
include(GoogleTest)
enable_testing()

set(zel_test_dir ${PROJECT_BINARY_DIR}/tests)

foreach(folder IN ITEMS core spaces path tool)
  file(GLOB sources CONFIGURE_DEPENDS tests/${folder}/*.cpp)
  if(NOT sources)
    continue()
  endif()
  set(program zel_test_${folder})
  add_executable(${program} ${sources} tests/support/failingMalloc.cpp)
  set_target_properties(${program} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${zel_test_dir})
  target_include_directories(${program} PRIVATE lib tests)
  target_link_libraries(${program} PRIVATE zel_static GTest::gtest_main)
  if(folder STREQUAL "tool")
    target_sources(${program} PRIVATE $<TARGET_OBJECTS:zelpath_objects>)
    target_include_directories(${program} PRIVATE tool)
    target_compile_definitions(${program} PRIVATE ZELPATH_PROGRAM="$<TARGET_FILE:zelpath>")
    add_dependencies(${program} zelpath)
  endif()
  gtest_discover_tests(${program} TEST_PREFIX ${folder}. DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60)
endforeach()

file(GLOB sources CONFIGURE_DEPENDS tests/c/*.c)
foreach(source IN LISTS sources)
  cmake_path(GET source STEM name)
  set(program zel_test_c_${name})
  add_executable(${program} ${source})
  set_target_properties(${program} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${zel_test_dir})
  target_link_libraries(${program} PRIVATE zel_shared)
  add_test(NAME c.${name} COMMAND ${program})
endforeach()

# gcov, and clang's sanitizers, add symbols of their own to the library's.
if(NOT ZEL_COVERAGE AND NOT (ZEL_SANITIZE AND CMAKE_CXX_COMPILER_ID MATCHES "Clang"))
  add_test(NAME exports.symbols COMMAND ${PROJECT_SOURCE_DIR}/tests/exports/check.sh ${CMAKE_NM}
                                        $<TARGET_FILE:zel_shared> ${PROJECT_SOURCE_DIR}/lib/zel.exports)
endif()

set(ident_check ${PROJECT_SOURCE_DIR}/tests/exports/ident.sh ${CMAKE_STRIP})
add_test(NAME exports.ident.shared COMMAND ${ident_check} $<TARGET_FILE:zel_shared> "ZEL version")
add_test(NAME exports.ident.tool COMMAND ${ident_check} $<TARGET_FILE:zelpath> version "ZEL version")

# --- The public header alone, by every compiler present ------------------------------------------------------------

set(header_check ${PROJECT_SOURCE_DIR}/tests/header/check.sh)
foreach(compiler IN ITEMS gcc clang)
  find_program(ZEL_${compiler} ${compiler})
  if(ZEL_${compiler})
    add_test(NAME header.${compiler} COMMAND ${header_check} ${ZEL_${compiler}}
                                             ${PROJECT_SOURCE_DIR}/tests/header/header.c
                                             ${PROJECT_SOURCE_DIR}/lib/core c99 c11)
  endif()
endforeach()
foreach(compiler IN ITEMS g++ clang++)
  find_program(ZEL_${compiler} ${compiler})
  if(ZEL_${compiler})
    add_test(NAME header.${compiler} COMMAND ${header_check} ${ZEL_${compiler}}
                                             ${PROJECT_SOURCE_DIR}/tests/header/header.cpp
                                             ${PROJECT_SOURCE_DIR}/lib/core c++17 c++20)
  endif()
endforeach()

# --- The examples --------------------------------------------------------------------------------------------------

add_executable(zel_example_rename examples/rename.c)
target_link_libraries(zel_example_rename PRIVATE zel_shared)
add_executable(zel_example_bits examples/bits.cpp)
target_link_libraries(zel_example_bits PRIVATE zel_static)
foreach(example IN ITEMS rename bits)
  set_target_properties(zel_example_${example} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${zel_test_dir})
  add_test(NAME examples.${example} COMMAND ${PROJECT_SOURCE_DIR}/tests/install/${example}.sh
                                            $<TARGET_FILE:zel_example_${example}>)
endforeach()

# --- An installed copy, built by itself: instrumentation is not what is installed -----------------------------------

set(install_checks ${PROJECT_SOURCE_DIR}/tests/install)
set(work ${zel_test_dir}/install)
set(prefix ${work}/copy/prefix)
set(compilers ${CMAKE_C_COMPILER} ${CMAKE_CXX_COMPILER})

add_test(NAME install.copy COMMAND ${install_checks}/install.sh ${PROJECT_SOURCE_DIR} ${work}/copy ${CMAKE_GENERATOR}
                                   ${compilers})
add_test(NAME install.subproject COMMAND ${install_checks}/cmake.sh ${PROJECT_SOURCE_DIR} ${work}/subproject
                                         ${CMAKE_GENERATOR} ${compilers} subproject)
add_test(NAME install.package COMMAND ${install_checks}/cmake.sh ${PROJECT_SOURCE_DIR} ${work}/package
                                      ${CMAKE_GENERATOR} ${compilers} package ${prefix})
add_test(NAME install.pkgconfig COMMAND ${install_checks}/pkgconfig.sh ${PROJECT_SOURCE_DIR} ${work}/pkgconfig
                                        ${compilers} ${prefix})
add_test(NAME install.completion COMMAND ${install_checks}/completion.sh ${PROJECT_SOURCE_DIR} ${prefix}
                                         ${work}/package/build/c_zel)
add_test(NAME install.readme COMMAND ${install_checks}/readme.sh ${PROJECT_SOURCE_DIR} ${work}/readme
                                     ${CMAKE_GENERATOR} ${CMAKE_C_COMPILER} ${prefix})
add_test(NAME install.symbols
         COMMAND ${PROJECT_SOURCE_DIR}/tests/exports/check.sh ${CMAKE_NM} ${prefix}/lib/libzel.so
                 ${PROJECT_SOURCE_DIR}/lib/zel.exports ${PROJECT_SOURCE_DIR}/tests/exports/needs.txt)

set_tests_properties(install.copy PROPERTIES FIXTURES_SETUP zel_copy)
set_tests_properties(install.package PROPERTIES FIXTURES_SETUP zel_consumers)
set_tests_properties(install.package install.pkgconfig install.completion install.readme install.symbols
                     PROPERTIES FIXTURES_REQUIRED zel_copy)
set_tests_properties(install.completion PROPERTIES FIXTURES_REQUIRED "zel_copy;zel_consumers")
# Flags of the environment are meant for the build around these.
set_tests_properties(
  install.copy install.subproject install.package install.pkgconfig install.completion install.readme
  PROPERTIES TIMEOUT 300 ENVIRONMENT_MODIFICATION "CFLAGS=unset:;CXXFLAGS=unset:;LDFLAGS=unset:")
