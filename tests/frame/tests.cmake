qor_add_test(tst_messageboxlogic ${dir}/tst_messageboxlogic.cpp)
