qor_add_test(tst_boxlayout ${dir}/tst_boxlayout.cpp)
