qor_add_test(tst_catalogue ${dir}/tst_catalogue.cpp)
qor_add_test(tst_clsqorgenlib ${dir}/tst_clsqorgenlib.cpp TIMEOUT 300)
qor_add_test(tst_typelibrary ${dir}/tst_typelibrary.cpp)
qor_add_test(tst_publisheddefaults ${dir}/tst_publisheddefaults.cpp)
qor_add_test(tst_clsqoreinvoice ${dir}/tst_clsqoreinvoice.cpp)
target_compile_definitions(tst_clsqoreinvoice PRIVATE
  QOR_EINVOICE_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/einvoice")
