# The API reference: Doxygen over the public headers, as hosts read them.
#   cmake --build build --target docs      ->  build/docs/api/html/index.html
# Not part of "all". Any Doxygen warning fails the target (and its test).
find_program(QOR_DOXYGEN doxygen)
if(NOT QOR_DOXYGEN)
  return()
endif()
set(QOR_DOCS_DIR ${PROJECT_BINARY_DIR}/docs/api)
get_property(public_headers GLOBAL PROPERTY QOR_PUBLIC_HEADERS)
list(JOIN public_headers " " QOR_DOCS_INPUT)
string(APPEND QOR_DOCS_INPUT " ${PROJECT_SOURCE_DIR}/docs/api.md")
configure_file(${PROJECT_SOURCE_DIR}/docs/Doxyfile.in ${PROJECT_BINARY_DIR}/docs/Doxyfile @ONLY)
add_custom_target(docs
  COMMAND ${CMAKE_COMMAND} -E make_directory ${QOR_DOCS_DIR}
  COMMAND ${QOR_DOXYGEN} ${PROJECT_BINARY_DIR}/docs/Doxyfile
  WORKING_DIRECTORY ${PROJECT_BINARY_DIR}/docs
  COMMENT "API reference in ${QOR_DOCS_DIR}/html"
  VERBATIM)
