qor_add_test(tst_textfilters ${dir}/tst_textfilters.cpp)
qor_add_test(tst_amounts ${dir}/tst_amounts.cpp)
qor_add_test(tst_editing ${dir}/tst_editing.cpp)
qor_add_test(tst_scanbm ${dir}/tst_scanbm.cpp)
