qor_add_test(tst_calculatorengine ${dir}/tst_calculatorengine.cpp)
qor_add_test(tst_vatrates ${dir}/tst_vatrates.cpp)
qor_add_test(tst_calculatorhelp ${dir}/tst_calculatorhelp.cpp)
qor_add_test(tst_calculatorforms ${dir}/tst_calculatorforms.cpp WIDGETS TIMEOUT 120)
