qor_add_test(tst_gridsetup ${dir}/tst_gridsetup.cpp)
