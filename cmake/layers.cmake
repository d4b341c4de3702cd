# Layers as object libraries whose include path holds only what they may see.
#
# Every layer gets a folder of its own in the build tree with links to its
# headers, at the same relative paths as in the source tree. A layer's include
# path is that folder plus the folders of the layers it depends on, so
# "#include "lib/clsqorgenlib.h"" from validate/ finds no such file.

# The .cpp, .h and .qrc files of the given folders (not their sub-folders).
function(qor_sources out)
  set(files)
  foreach(dir IN LISTS ARGN)
    file(GLOB found CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${dir}/*.cpp
         ${PROJECT_SOURCE_DIR}/${dir}/*.h ${PROJECT_SOURCE_DIR}/${dir}/*.qrc)
    list(APPEND files ${found})
  endforeach()
  set(${out} ${files} PARENT_SCOPE)
endfunction()

# Links every header of the given folders (not sub-folders) into stage.
function(qor_stage_headers stage)
  foreach(dir IN LISTS ARGN)
    file(MAKE_DIRECTORY ${stage}/${dir})
    file(GLOB headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}
         ${PROJECT_SOURCE_DIR}/${dir}/*.h)
    foreach(header IN LISTS headers)
      if(NOT EXISTS ${stage}/${header})
        file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${header} ${stage}/${header} SYMBOLIC)
      endif()
    endforeach()
  endforeach()
endfunction()

# qor_layer(name DIRS folder... [DEPENDS layer...] [USES layer...] [LIBS library...])
# One link per header, so that a sub-folder (platform/qt) is not seen by the
# folder above it. What a layer DEPENDS on is seen by the layers that name it
# in turn (the inner layers); what it USES is seen by the layer alone (its
# siblings). QOR_LAYER_EXPORTS names the define that marks the layer's code as
# part of the library that exports it.
function(qor_layer name)
  cmake_parse_arguments(L "" "" "DIRS;DEPENDS;USES;LIBS" ${ARGN})
  set(L_EXPORTS ${QOR_LAYER_EXPORTS})
  set(stage ${PROJECT_BINARY_DIR}/layers/${name})
  qor_stage_headers(${stage} ${L_DIRS})
  qor_sources(sources ${L_DIRS})
  if(sources)
    add_library(${name} OBJECT ${sources})
    set(scope PUBLIC)
    set(own_scope PRIVATE)
    if(L_EXPORTS)
      target_compile_definitions(${name} PRIVATE ${L_EXPORTS})
    endif()
  else()
    # A subsystem whose folder is still empty only passes its path on.
    add_library(${name} INTERFACE)
    set(scope INTERFACE)
    set(own_scope INTERFACE)
  endif()
  target_include_directories(${name} ${scope} $<BUILD_INTERFACE:${stage}>
                             $<BUILD_INTERFACE:${QOR_GENERATED_DIR}>)
  target_link_libraries(${name} ${scope} ${L_DEPENDS} ${L_LIBS})
  if(L_USES)
    target_link_libraries(${name} ${own_scope} ${L_USES})
  endif()
endfunction()

# qor_subsystem(folder [USES sibling...] [LIBS library...])
# A subsystem: the layer qor_<folder>, which sees the frame services and the
# sibling subsystems it names, and no other; LIBS are outside libraries it
# needs. The subsystems and what each may use are kept for the façade, the
# libraries and the layer test.
function(qor_subsystem folder)
  cmake_parse_arguments(S "" "" "USES;LIBS" ${ARGN})
  list(TRANSFORM S_USES PREPEND qor_ OUTPUT_VARIABLE uses)
  qor_layer(qor_${folder} DIRS ${folder} DEPENDS qor_frame USES ${uses} LIBS ${S_LIBS})
  set_property(GLOBAL APPEND PROPERTY QOR_SUBSYSTEMS ${folder})
  set_property(GLOBAL PROPERTY QOR_SUBSYSTEM_USES_${folder} ${S_USES})
endfunction()

# qor_library(name EXPORT_NAME n LAYERS layer... [DEPENDS library...] [LIBS library...])
# Two libraries made of the objects of the layers:
# - name, shared unless BUILD_SHARED_LIBS is off, exporting only the public
#   API and showing consumers only the public headers;
# - nameInternal, static, which the tests, benchmarks and the bridge link to
#   reach every layer.
function(qor_library name)
  cmake_parse_arguments(L "" "EXPORT_NAME" "LAYERS;DEPENDS;LIBS" ${ARGN})
  add_library(${name})
  add_library(qorGenLib::${L_EXPORT_NAME} ALIAS ${name})
  set_target_properties(${name} PROPERTIES EXPORT_NAME ${L_EXPORT_NAME}
                        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
  # A symbol the library needs from another must be exported there: say so
  # when the library is linked, not when its first user is.
  if(NOT QORGENLIB_SANITIZE)
    target_link_options(${name} PRIVATE LINKER:--no-undefined)
  endif()
  add_library(${name}Internal STATIC)
  # Directly linked object libraries give their objects to the library.
  foreach(layer IN LISTS L_LAYERS)
    target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:${layer}>)
    target_link_libraries(${name}Internal PUBLIC ${layer})
  endforeach()
  target_include_directories(${name} PUBLIC
    $<BUILD_INTERFACE:${QOR_PUBLIC_DIR}> $<BUILD_INTERFACE:${QOR_PUBLIC_DIR}/qorgenlib>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/qorgenlib>)
  target_link_libraries(${name} PUBLIC ${L_DEPENDS} ${L_LIBS})
  set(internal_depends)
  foreach(dep IN LISTS L_DEPENDS)
    list(APPEND internal_depends ${dep}Internal)
  endforeach()
  target_link_libraries(${name}Internal PUBLIC ${internal_depends} ${L_LIBS})
endfunction()

# qor_public_headers(pattern...): the headers (paths or globs relative to the
# source root) a consumer includes as <qorgenlib/path>, staged in the build
# tree exactly as they are installed.
function(qor_public_headers)
  foreach(pattern IN LISTS ARGN)
    file(GLOB headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}
         ${PROJECT_SOURCE_DIR}/${pattern})
    foreach(header IN LISTS headers)
      get_filename_component(dir ${header} DIRECTORY)
      file(MAKE_DIRECTORY ${QOR_PUBLIC_DIR}/qorgenlib/${dir})
      if(NOT EXISTS ${QOR_PUBLIC_DIR}/qorgenlib/${header})
        file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${header} ${QOR_PUBLIC_DIR}/qorgenlib/${header}
             SYMBOLIC)
      endif()
      set_property(GLOBAL APPEND PROPERTY QOR_PUBLIC_HEADERS ${PROJECT_SOURCE_DIR}/${header})
      install(FILES ${PROJECT_SOURCE_DIR}/${header}
              DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/qorgenlib/${dir} COMPONENT dev)
    endforeach()
  endforeach()
endfunction()
