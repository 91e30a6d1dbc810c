# One Google Benchmark program of all files, so that ratios are taken within one run.

find_package(benchmark REQUIRED)

file(GLOB sources CONFIGURE_DEPENDS bench/*.cpp)
if(sources)
  add_executable(zel_bench ${sources})
  set_target_properties(zel_bench PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bench)
  target_include_directories(zel_bench PRIVATE lib)
  target_link_libraries(zel_bench PRIVATE zel_static benchmark::benchmark_main)
endif()
