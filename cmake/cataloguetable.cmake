# Writes the catalogue texts of lib/frame/catalogue/*.json as a C++ table sorted
# by id, so that the library looks its texts up without reading anything at run
# time. The JSON files stay the source of the texts.
#
#   cmake -DCATALOGUE_DIR=<folder of the .json files> -DOUTPUT=<file> -P cataloguetable.cmake

# The languages in the order of their offsets, which keeps the table sorted.
set(languages nl fr en de es it)

# text as the body of a C++ string literal.
function(cpp_literal out text)
  string(REPLACE "\\" "\\\\" text "${text}")
  string(REPLACE "\"" "\\\"" text "${text}")
  string(REPLACE "\n" "\\n" text "${text}")
  string(REPLACE "\r" "\\r" text "${text}")
  string(REPLACE "\t" "\\t" text "${text}")
  set(${out} "${text}" PARENT_SCOPE)
endfunction()

set(table "// Generated from the catalogue files by cmake/cataloguetable.cmake; do not edit.\n")
string(APPEND table "// { id, text }, sorted by id.\n")
set(offset 0)
foreach(language IN LISTS languages)
  file(READ ${CATALOGUE_DIR}/${language}.json json)
  string(JSON count LENGTH "${json}")
  set(ids)
  if(count GREATER 0)
    math(EXPR last "${count} - 1")
    foreach(index RANGE ${last})
      string(JSON key MEMBER "${json}" ${index})
      if(NOT key MATCHES "^[0-9]+$")
        message(FATAL_ERROR "${language}.json: the id \"${key}\" is not a number")
      endif()
      list(APPEND ids ${key})
    endforeach()
  endif()
  list(SORT ids COMPARE NATURAL)
  foreach(key IN LISTS ids)
    string(JSON text GET "${json}" ${key})
    cpp_literal(literal "${text}")
    math(EXPR id "${key} + ${offset}")
    string(APPEND table "QOR_CATALOGUE_ENTRY(${id}, \"${literal}\")\n")
  endforeach()
  math(EXPR offset "${offset} + 10000")
endforeach()

# Rewritten only when it changed, so that an unchanged catalogue compiles nothing.
set(existing "")
if(EXISTS ${OUTPUT})
  file(READ ${OUTPUT} existing)
endif()
if(NOT existing STREQUAL table)
  file(WRITE ${OUTPUT} "${table}")
endif()
