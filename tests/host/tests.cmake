qor_add_test(tst_lineeditadapter ${dir}/tst_lineeditadapter.cpp WIDGETS)
qor_add_test(tst_keyfilteradapter ${dir}/tst_keyfilteradapter.cpp WIDGETS)
qor_add_test(tst_dateeditadapter ${dir}/tst_dateeditadapter.cpp WIDGETS)
qor_add_test(tst_mainwindowadapter ${dir}/tst_mainwindowadapter.cpp WIDGETS)
