qor_add_test(tst_boxlayout ${dir}/tst_boxlayout.cpp)
qor_add_test(tst_sound ${dir}/tst_sound.cpp)
