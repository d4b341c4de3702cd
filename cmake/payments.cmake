# The payment facts compiled into the payments layer as C++ tables, made at
# build time from the shared data files (cmake/paymenttables.cmake). To take a
# new release of the IBAN registry or of the National Bank's list of bank
# codes, replace the file under shared/data/ and build: the tables follow.
set(QOR_SHARED_DATA_DIR ${PROJECT_SOURCE_DIR}/../shared/data CACHE PATH
    "Folder of the IBAN registry and the Belgian bank codes")
set(QOR_IBAN_REGISTRY ${QOR_SHARED_DATA_DIR}/iban-structure.tsv)
set(QOR_BANK_CODES ${QOR_SHARED_DATA_DIR}/be-bank-codes.tsv)
set(QOR_IBAN_TABLE ${PROJECT_BINARY_DIR}/generated/ibanregistrytable.inc)
set(QOR_BANK_TABLE ${PROJECT_BINARY_DIR}/generated/belgianbanktable.inc)
add_custom_command(
  OUTPUT ${QOR_IBAN_TABLE} ${QOR_BANK_TABLE}
  COMMAND ${CMAKE_COMMAND} -DIBAN_REGISTRY=${QOR_IBAN_REGISTRY} -DBANK_CODES=${QOR_BANK_CODES}
          -DIBAN_OUTPUT=${QOR_IBAN_TABLE} -DBANK_OUTPUT=${QOR_BANK_TABLE}
          -P ${PROJECT_SOURCE_DIR}/cmake/paymenttables.cmake
  DEPENDS ${QOR_IBAN_REGISTRY} ${QOR_BANK_CODES} ${PROJECT_SOURCE_DIR}/cmake/paymenttables.cmake
  COMMENT "Compiling the IBAN registry and the Belgian bank codes into tables"
  VERBATIM)
target_sources(qor_payments PRIVATE ${QOR_IBAN_TABLE} ${QOR_BANK_TABLE})
target_include_directories(qor_payments PRIVATE ${PROJECT_BINARY_DIR}/generated)
