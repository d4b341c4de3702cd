qor_add_test(tst_recordingplatform ${dir}/tst_recordingplatform.cpp)
qor_add_test(tst_qtplatform ${dir}/tst_qtplatform.cpp WIDGETS)
qor_add_test(tst_platform ${dir}/tst_platform.cpp)
