qor_add_test(tst_boxlayout ${dir}/tst_boxlayout.cpp)
qor_add_test(tst_sound ${dir}/tst_sound.cpp)
qor_add_test(tst_msgboxe ${dir}/tst_msgboxe.cpp WIDGETS TIMEOUT 120)
target_compile_definitions(tst_msgboxe PRIVATE QOR_TEST_FONT_DIR="/usr/share/fonts/truetype/dejavu")
