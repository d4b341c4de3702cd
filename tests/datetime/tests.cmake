qor_add_test(tst_dateentry ${dir}/tst_dateentry.cpp)
