# Layers as object libraries whose include path holds only what they may see.
#
# Every layer gets a folder of its own in the build tree with links to its
# headers, at the same relative paths as in the source tree. A layer's
# include path is that folder plus the folders of the layers it depends on, so
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

# qor_layer(name DIRS folder... [DEPENDS layer...] [LIBS library...])
function(qor_layer name)
  cmake_parse_arguments(L "" "" "DIRS;DEPENDS;LIBS" ${ARGN})
  set(stage ${PROJECT_BINARY_DIR}/layers/${name})
  # One link per header, so that a sub-folder (platform/qt) is not seen by
  # the folder above it.
  foreach(dir IN LISTS L_DIRS)
    file(MAKE_DIRECTORY ${stage}/${dir})
    file(GLOB headers CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}
         ${PROJECT_SOURCE_DIR}/${dir}/*.h)
    foreach(header IN LISTS headers)
      if(NOT EXISTS ${stage}/${header})
        file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${header} ${stage}/${header} SYMBOLIC)
      endif()
    endforeach()
  endforeach()
  qor_sources(sources ${L_DIRS})
  if(sources)
    add_library(${name} OBJECT ${sources})
    set(scope PUBLIC)
  else()
    # A subsystem whose folder is still empty only passes its path on.
    add_library(${name} INTERFACE)
    set(scope INTERFACE)
  endif()
  target_include_directories(${name} ${scope} $<BUILD_INTERFACE:${stage}>)
  target_link_libraries(${name} ${scope} ${L_DEPENDS} ${L_LIBS})
  set_property(GLOBAL APPEND PROPERTY QOR_LAYERS ${name})
endfunction()

# qor_library(name LAYERS layer... [DEPENDS library...] [LIBS library...])
# One library made of the objects of its layers.
function(qor_library name)
  cmake_parse_arguments(L "" "" "LAYERS;DEPENDS;LIBS" ${ARGN})
  add_library(${name})
  # Directly linked object libraries give their objects to the library.
  foreach(layer IN LISTS L_LAYERS)
    target_link_libraries(${name} PUBLIC $<BUILD_INTERFACE:${layer}>)
  endforeach()
  target_link_libraries(${name} PUBLIC ${L_DEPENDS} ${L_LIBS})
endfunction()
