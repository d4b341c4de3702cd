qor_add_test(tst_recordmethods ${dir}/tst_recordmethods.cpp)
