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
  add_executable(${program} ${sources})
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
add_test(NAME exports.ident.library COMMAND ${ident_check} $<TARGET_FILE:zel_shared> "ZEL version")
add_test(NAME exports.ident.tool COMMAND ${ident_check} $<TARGET_FILE:zelpath> version "ZEL version")
