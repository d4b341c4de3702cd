qor_add_test(tst_codepage ${dir}/tst_codepage.cpp)
