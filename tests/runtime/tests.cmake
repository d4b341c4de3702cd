qor_add_test(tst_conversion ${dir}/tst_conversion.cpp)
qor_add_test(tst_dates ${dir}/tst_dates.cpp)
qor_add_test(tst_codepage ${dir}/tst_codepage.cpp)
qor_add_test(tst_regionalsettings ${dir}/tst_regionalsettings.cpp)
