# One GoogleTest program per folder of the library, zelpath by its command line, and checks of
# the built files themselves.

find_package(GTest REQUIRED)
include(GoogleTest)
enable_testing()

set(zel_test_dir ${PROJECT_BINARY_DIR}/tests)

foreach(folder IN ITEMS core spaces path map)
  file(GLOB sources CONFIGURE_DEPENDS tests/${folder}/*.cpp)
  if(NOT sources)
    continue()
  endif()
  set(program zel_test_${folder})
  add_executable(${program} ${sources} tests/support/failingMalloc.cpp)
  set_target_properties(${program} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${zel_test_dir})
  target_include_directories(${program} PRIVATE lib tests)
  # g++ 12 sees overlaps in std::string when it optimises, where there are none.
  target_compile_options(${program} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
  target_link_libraries(${program} PRIVATE zel_static GTest::gtest_main)
  target_link_options(${program} PRIVATE LINKER:--wrap=malloc,--wrap=calloc)
  gtest_discover_tests(${program} TEST_PREFIX ${folder}. DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60)
endforeach()

add_test(NAME tool.zelpath COMMAND ${PROJECT_SOURCE_DIR}/tests/tool/zelpath.sh $<TARGET_FILE_DIR:zelpath>)
if(TARGET zel_tool)
  add_test(NAME tool.zel COMMAND ${PROJECT_SOURCE_DIR}/tests/tool/zel.sh $<TARGET_FILE_DIR:zel_tool>)
endif()

# gcov, and clang's sanitizers, add symbols of their own to the library's.
if(NOT ZEL_COVERAGE AND NOT (ZEL_SANITIZE AND CMAKE_CXX_COMPILER_ID MATCHES "Clang"))
  add_test(NAME exports.symbols COMMAND ${PROJECT_SOURCE_DIR}/tests/exports/check.sh ${CMAKE_NM}
                                        $<TARGET_FILE:zel_shared> ${PROJECT_SOURCE_DIR}/lib/zel.exports)
endif()

set(ident_check ${PROJECT_SOURCE_DIR}/tests/exports/ident.sh ${CMAKE_STRIP})
add_test(NAME exports.ident.shared COMMAND ${ident_check} $<TARGET_FILE:zel_shared> "ZEL version")
add_test(NAME exports.ident.tool COMMAND ${ident_check} $<TARGET_FILE:zelpath> version "ZEL version")

# --- The public header alone, included twice, by every compiler present --------------------------------------------

set(warnings -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wundef -Werror)
set(header ${PROJECT_SOURCE_DIR}/lib/core/zel.h)
foreach(case IN ITEMS gcc:c:c99 gcc:c:c11 clang:c:c99 clang:c:c11 g++:c++:c++17 g++:c++:c++20 clang++:c++:c++17
                      clang++:c++:c++20)
  string(REPLACE ":" ";" case ${case})
  list(POP_FRONT case compiler language standard)
  find_program(ZEL_${compiler} ${compiler})
  if(ZEL_${compiler})
    add_test(NAME header.${compiler}.${standard} COMMAND ${ZEL_${compiler}} -std=${standard} ${warnings} -fsyntax-only
                                                         -include ${header} -x ${language} ${header})
  endif()
endforeach()

# --- Programs that are built, and an installed copy, built by itself: instrumentation is not what is installed ------

add_executable(zel_example_rename examples/rename.c)
target_link_libraries(zel_example_rename PRIVATE zel_shared)
add_executable(zel_example_bits examples/bits.cpp)
target_link_libraries(zel_example_bits PRIVATE zel_static)
set(examples_arguments $<TARGET_FILE:zel_example_rename> $<TARGET_FILE:zel_example_bits>)

set(work ${zel_test_dir}/install)
foreach(check IN ITEMS examples copy subproject package pkgconfig completion readme)
  add_test(NAME install.${check}
           COMMAND ${PROJECT_SOURCE_DIR}/tests/install/check.sh ${check} ${PROJECT_SOURCE_DIR} ${work}
                   ${CMAKE_GENERATOR} ${CMAKE_C_COMPILER} ${CMAKE_CXX_COMPILER} ${${check}_arguments})
  # Flags of the environment are meant for the build around these.
  set_tests_properties(install.${check} PROPERTIES TIMEOUT 300 ENVIRONMENT_MODIFICATION
                                                   "CFLAGS=unset:;CXXFLAGS=unset:;LDFLAGS=unset:")
endforeach()
add_test(NAME install.symbols
         COMMAND ${PROJECT_SOURCE_DIR}/tests/exports/check.sh ${CMAKE_NM} ${work}/copy/prefix/lib/libzel.so
                 ${PROJECT_SOURCE_DIR}/lib/zel.exports ${PROJECT_SOURCE_DIR}/tests/exports/needs.txt)
set_tests_properties(install.copy PROPERTIES FIXTURES_SETUP zel_copy)
set_tests_properties(install.package install.pkgconfig install.completion install.readme install.symbols
                     PROPERTIES FIXTURES_REQUIRED zel_copy)
