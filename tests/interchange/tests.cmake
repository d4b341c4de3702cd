qor_add_test(tst_recordmethods ${dir}/tst_recordmethods.cpp)
qor_add_test(tst_recordcodec ${dir}/tst_recordcodec.cpp)
qor_add_test(tst_recordfile ${dir}/tst_recordfile.cpp)
