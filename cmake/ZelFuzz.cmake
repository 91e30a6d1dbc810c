# One libFuzzer program per file of fuzz/; the library itself is instrumented through ZEL_SANITIZE.

if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  message(FATAL_ERROR "ZEL_BUILD_FUZZ needs clang: configure with CXX=clang++, or with the preset fuzz")
endif()

file(GLOB sources CONFIGURE_DEPENDS fuzz/*.cpp)
foreach(source IN LISTS sources)
  cmake_path(GET source STEM name)
  set(program zel_fuzz_${name})
  add_executable(${program} ${source} $<TARGET_OBJECTS:zelpath_objects>)
  set_target_properties(${program} PROPERTIES OUTPUT_NAME ${name} RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/fuzz)
  target_include_directories(${program} PRIVATE lib tool)
  target_compile_options(${program} PRIVATE -fsanitize=fuzzer)
  target_link_options(${program} PRIVATE -fsanitize=fuzzer)
  target_link_libraries(${program} PRIVATE zel_static)
endforeach()
