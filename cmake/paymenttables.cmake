# Writes the payment facts as C++ tables the payments layer compiles in:
# - the IBAN registry (country, BBAN format) as one character class per BBAN
#   position: n a digit, a an upper-case letter, c a letter or digit;
# - the Belgian bank identification codes (ranges of the first three BBAN
#   digits) with their BIC and bank name.
#
#   cmake -DIBAN_REGISTRY=<iban-structure.tsv> -DBANK_CODES=<be-bank-codes.tsv>
#         -DIBAN_OUTPUT=<file> -DBANK_OUTPUT=<file> -P paymenttables.cmake

cmake_policy(SET CMP0007 NEW)
# text as the body of a C++ string literal.
function(cpp_literal out text)
  string(REPLACE "\\" "\\\\" text "${text}")
  string(REPLACE "\"" "\\\"" text "${text}")
  set(${out} "${text}" PARENT_SCOPE)
endfunction()

# The data lines of a tab-separated file: comments and the header left out.
function(data_lines out file)
  file(STRINGS ${file} lines ENCODING UTF-8)
  set(kept)
  set(header_seen FALSE)
  foreach(line IN LISTS lines)
    if(line MATCHES "^#" OR line STREQUAL "")
      continue()
    endif()
    if(NOT header_seen)
      set(header_seen TRUE)
      continue()
    endif()
    # Keep the tabs as list separators.
    string(REPLACE ";" "," line "${line}")
    list(APPEND kept "${line}")
  endforeach()
  set(${out} "${kept}" PARENT_SCOPE)
endfunction()

# "3!n7!n2!n" -> "nnnnnnnnnnnn"
function(bban_classes out format)
  set(classes "")
  string(REGEX MATCHALL "[0-9]+![nac]" parts "${format}")
  string(REGEX REPLACE "[0-9]+![nac]" "" rest "${format}")
  if(NOT rest STREQUAL "")
    message(FATAL_ERROR "IBAN registry: BBAN format \"${format}\" is not of fixed length")
  endif()
  foreach(part IN LISTS parts)
    string(REGEX MATCH "^([0-9]+)!([nac])$" _ "${part}")
    string(REPEAT "${CMAKE_MATCH_2}" ${CMAKE_MATCH_1} run)
    string(APPEND classes "${run}")
  endforeach()
  set(${out} "${classes}" PARENT_SCOPE)
endfunction()

# Rewritten only when it changed, so that unchanged facts compile nothing.
function(write_if_changed file text)
  set(existing "")
  if(EXISTS ${file})
    file(READ ${file} existing)
  endif()
  if(NOT existing STREQUAL text)
    file(WRITE ${file} "${text}")
  endif()
endfunction()

set(table "// Generated from the IBAN registry by cmake/paymenttables.cmake; do not edit.\n")
string(APPEND table "// { country, BBAN character classes }\n")
data_lines(lines ${IBAN_REGISTRY})
foreach(line IN LISTS lines)
  string(REPLACE "\t" ";" fields "${line}")
  list(GET fields 0 country)
  list(GET fields 2 format)
  if(NOT country MATCHES "^[A-Z][A-Z]$")
    message(FATAL_ERROR "IBAN registry: \"${country}\" is not a country code")
  endif()
  bban_classes(classes "${format}")
  string(APPEND table "QOR_IBAN_COUNTRY(\"${country}\", \"${classes}\")\n")
endforeach()
write_if_changed(${IBAN_OUTPUT} "${table}")

set(table "// Generated from the Belgian bank codes by cmake/paymenttables.cmake; do not edit.\n")
string(APPEND table "// { first code, last code, BIC, bank }, in the order of the list.\n")
data_lines(lines ${BANK_CODES})
foreach(line IN LISTS lines)
  string(REPLACE "\t" ";" fields "${line}")
  list(LENGTH fields count)
  if(count LESS 4)
    message(FATAL_ERROR "Bank codes: \"${line}\" has not four fields")
  endif()
  list(GET fields 0 first)
  list(GET fields 1 last)
  list(GET fields 2 bic)
  list(GET fields 3 bank)
  if(NOT first MATCHES "^[0-9][0-9][0-9]$" OR NOT last MATCHES "^[0-9][0-9][0-9]$")
    message(FATAL_ERROR "Bank codes: \"${line}\" has no range of three-digit codes")
  endif()
  cpp_literal(bank "${bank}")
  # Leading zeros would make octal numbers.
  math(EXPR first "1${first} - 1000")
  math(EXPR last "1${last} - 1000")
  string(APPEND table "QOR_BELGIAN_BANK(${first}, ${last}, \"${bic}\", u8\"${bank}\")\n")
endforeach()
write_if_changed(${BANK_OUTPUT} "${table}")
