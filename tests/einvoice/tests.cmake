qor_add_test(tst_decimal ${dir}/tst_decimal.cpp)
qor_add_test(tst_invoicetotals ${dir}/tst_invoicetotals.cpp)
qor_add_test(tst_invoicejson ${dir}/tst_invoicejson.cpp)
target_compile_definitions(tst_invoicejson PRIVATE QOR_EINVOICE_TEST_DATA="${dir}/data")
qor_add_test(tst_ublreader ${dir}/tst_ublreader.cpp)
target_compile_definitions(tst_ublreader PRIVATE QOR_EINVOICE_TEST_DATA="${dir}")
# Runs the official rules (Java) on every document written: one call per test.
qor_add_test(tst_ublvalidation ${dir}/tst_ublvalidation.cpp TIMEOUT 900)
target_compile_definitions(tst_ublvalidation PRIVATE
  QOR_EINVOICE_TEST_DATA="${dir}" QOR_EINVOICE_RULES="${QORGENLIB_EINVOICE_RULES}")
qor_add_test(tst_peppolexamples ${dir}/tst_peppolexamples.cpp TIMEOUT 900)
target_compile_definitions(tst_peppolexamples PRIVATE QOR_EINVOICE_RULES="${QORGENLIB_EINVOICE_RULES}")
# The library's own rule check, each broken model proved by the official rules in one run.
qor_add_test(tst_rulecheck ${dir}/tst_rulecheck.cpp TIMEOUT 900)
target_compile_definitions(tst_rulecheck PRIVATE
  QOR_EINVOICE_TEST_DATA="${dir}" QOR_EINVOICE_RULES="${QORGENLIB_EINVOICE_RULES}")
# The e-invoice reader's and writer's own XML cursor and builder against Qt's.
qor_add_test(tst_xmlcursor ${dir}/tst_xmlcursor.cpp)
target_compile_definitions(tst_xmlcursor PRIVATE
  QOR_EINVOICE_TEST_DATA="${dir}" QOR_EINVOICE_RULES="${QORGENLIB_EINVOICE_RULES}")
qor_add_test(tst_xmlbuilder ${dir}/tst_xmlbuilder.cpp)
target_compile_definitions(tst_xmlbuilder PRIVATE QOR_EINVOICE_TEST_DATA="${dir}")
