# The layers are enforced by include paths: building a file with the include
# path of a layer fails when it includes an outer layer. Both probes build on
# demand, so a failing one does not stop the normal build.
foreach(probe upward downward)
  add_library(layer_probe_${probe} OBJECT EXCLUDE_FROM_ALL ${dir}/${probe}_include.cpp)
  # The include path of the identifier checks, their private uses included.
  target_include_directories(layer_probe_${probe} PRIVATE
                             $<TARGET_PROPERTY:qor_validate,INCLUDE_DIRECTORIES>)
  add_test(NAME layers_${probe}_include
           COMMAND ${CMAKE_COMMAND} --build ${PROJECT_BINARY_DIR} --target layer_probe_${probe})
  set_tests_properties(layers_${probe}_include PROPERTIES TIMEOUT 120 RUN_SERIAL TRUE)
endforeach()
# The upward probe passes only when the compiler cannot find the outer header.
set_tests_properties(layers_upward_include PROPERTIES PASS_REGULAR_EXPRESSION
                     "lib/clsqorgenlib.h: No such file or directory")

# Between siblings: every subsystem sees the subsystems it USES and no other,
# not even those its siblings use. One probe per subsystem, built with its
# include path, asks for one header of every other subsystem; the pairs come
# from the subsystem list of CMakeLists.txt, so a new subsystem is probed too.
get_property(subsystems GLOBAL PROPERTY QOR_SUBSYSTEMS)
add_custom_target(layer_probes_siblings)
# A subsystem whose folder is still empty has nothing to probe with or for.
set(built)
foreach(name IN LISTS subsystems)
  file(GLOB headers ${PROJECT_SOURCE_DIR}/${name}/*.h)
  if(headers)
    list(APPEND built ${name})
  endif()
endforeach()
foreach(name IN LISTS built)
  get_property(uses GLOBAL PROPERTY QOR_SUBSYSTEM_USES_${name})
  set(probe "// Generated: which sibling headers ${name}/ sees.\n")
  foreach(other IN LISTS built)
    if(other STREQUAL name)
      continue()
    endif()
    file(GLOB headers RELATIVE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/${other}/*.h)
    list(GET headers 0 header)
    if(other IN_LIST uses)
      string(APPEND probe "#if !__has_include(\"${header}\")\n"
             "#error \"${name} does not see ${other}, which it uses\"\n#endif\n")
    else()
      string(APPEND probe "#if __has_include(\"${header}\")\n"
             "#error \"${name} sees ${other}, which it does not use\"\n#endif\n")
    endif()
  endforeach()
  file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/layer_probe_${name}.cpp CONTENT "${probe}")
  add_library(layer_probe_${name} OBJECT EXCLUDE_FROM_ALL
              ${CMAKE_CURRENT_BINARY_DIR}/layer_probe_${name}.cpp)
  # The subsystem's own include path, its private uses included.
  target_include_directories(layer_probe_${name} PRIVATE
                             $<TARGET_PROPERTY:qor_${name},INCLUDE_DIRECTORIES>)
  add_dependencies(layer_probes_siblings layer_probe_${name})
endforeach()
add_test(NAME layers_siblings
         COMMAND ${CMAKE_COMMAND} --build ${PROJECT_BINARY_DIR} --target layer_probes_siblings)
set_tests_properties(layers_siblings PROPERTIES TIMEOUT 300 RUN_SERIAL TRUE)
