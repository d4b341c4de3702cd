# The catalogue texts compiled into the frame layer as a sorted table, made at
# build time from lib/frame/catalogue/*.json (cmake/cataloguetable.cmake).
set(QOR_CATALOGUE_DIR ${PROJECT_SOURCE_DIR}/lib/frame/catalogue)
set(QOR_CATALOGUE_TABLE ${PROJECT_BINARY_DIR}/generated/cataloguetable.inc)
file(GLOB QOR_CATALOGUE_FILES CONFIGURE_DEPENDS ${QOR_CATALOGUE_DIR}/*.json)
add_custom_command(
  OUTPUT ${QOR_CATALOGUE_TABLE}
  COMMAND ${CMAKE_COMMAND} -DCATALOGUE_DIR=${QOR_CATALOGUE_DIR} -DOUTPUT=${QOR_CATALOGUE_TABLE}
          -P ${PROJECT_SOURCE_DIR}/cmake/cataloguetable.cmake
  DEPENDS ${QOR_CATALOGUE_FILES} ${PROJECT_SOURCE_DIR}/cmake/cataloguetable.cmake
  COMMENT "Compiling the catalogue texts into a table"
  VERBATIM)
target_sources(qor_frame PRIVATE ${QOR_CATALOGUE_TABLE})
target_include_directories(qor_frame PRIVATE ${PROJECT_BINARY_DIR}/generated)
