# One program, so that all ratios are taken within one run; against the shared library, which is what users link.

file(GLOB sources CONFIGURE_DEPENDS bench/*.cpp)
if(sources)
  add_executable(zel_bench ${sources})
  set_target_properties(zel_bench PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bench)
  target_link_libraries(zel_bench PRIVATE zel_shared)
endif()
