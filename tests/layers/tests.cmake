# The layers are enforced by include paths: building a file with the include
# path of a layer fails when it includes an outer layer. Both probes build on
# demand, so a failing one does not stop the normal build.
foreach(probe upward downward)
  add_library(layer_probe_${probe} OBJECT EXCLUDE_FROM_ALL ${dir}/${probe}_include.cpp)
  target_link_libraries(layer_probe_${probe} PRIVATE qor_validate)
  add_test(NAME layers_${probe}_include
           COMMAND ${CMAKE_COMMAND} --build ${PROJECT_BINARY_DIR} --target layer_probe_${probe})
  set_tests_properties(layers_${probe}_include PROPERTIES TIMEOUT 120 RUN_SERIAL TRUE)
endforeach()
# The upward probe passes only when the compiler cannot find the outer header.
set_tests_properties(layers_upward_include PROPERTIES PASS_REGULAR_EXPRESSION
                     "lib/clsqorgenlib.h: No such file or directory")
