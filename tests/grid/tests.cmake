qor_add_test(tst_gridsetup ${dir}/tst_gridsetup.cpp)
qor_add_test(tst_gridtranslation ${dir}/tst_gridtranslation.cpp)
qor_add_test(tst_listselection ${dir}/tst_listselection.cpp)
qor_add_test(tst_sortarray ${dir}/tst_sortarray.cpp ${dir}/literalsortarray.h)
