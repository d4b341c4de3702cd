# Headers the build writes: the export macros of the two libraries and the
# version. They are installed beside the public headers.
file(MAKE_DIRECTORY ${QOR_GENERATED_DIR})
configure_file(${PROJECT_SOURCE_DIR}/cmake/qorgenlib_version.h.in
               ${QOR_GENERATED_DIR}/qorgenlib_version.h @ONLY)
configure_file(${PROJECT_SOURCE_DIR}/cmake/qorgenlib_export.h.in
               ${QOR_GENERATED_DIR}/qorgenlib_export.h @ONLY)
foreach(header qorgenlib_version.h qorgenlib_export.h)
  file(MAKE_DIRECTORY ${QOR_PUBLIC_DIR}/qorgenlib)
  if(NOT EXISTS ${QOR_PUBLIC_DIR}/qorgenlib/${header})
    file(CREATE_LINK ${QOR_GENERATED_DIR}/${header} ${QOR_PUBLIC_DIR}/qorgenlib/${header}
         SYMBOLIC)
  endif()
  install(FILES ${QOR_GENERATED_DIR}/${header}
          DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/qorgenlib COMPONENT dev)
endforeach()
