qor_add_test(tst_catalogue ${dir}/tst_catalogue.cpp)
qor_add_test(tst_clsqorgenlib ${dir}/tst_clsqorgenlib.cpp)
qor_add_test(tst_typelibrary ${dir}/tst_typelibrary.cpp)
qor_add_test(tst_robustness ${dir}/tst_robustness.cpp TIMEOUT 300)
