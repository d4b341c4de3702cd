qor_add_test(tst_decimal ${dir}/tst_decimal.cpp)
qor_add_test(tst_invoicetotals ${dir}/tst_invoicetotals.cpp)
qor_add_test(tst_invoicejson ${dir}/tst_invoicejson.cpp)
target_compile_definitions(tst_invoicejson PRIVATE QOR_EINVOICE_TEST_DATA="${dir}/data")
