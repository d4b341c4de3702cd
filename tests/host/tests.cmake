qor_add_test(tst_lineeditadapter ${dir}/tst_lineeditadapter.cpp WIDGETS)
