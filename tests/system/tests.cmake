# A helper program the tests start as a separate process.
add_executable(qor_systemhelper ${dir}/systemhelper.cpp)
target_link_libraries(qor_systemhelper PRIVATE qorGenLibInternal)

qor_add_test(tst_profilefile ${dir}/tst_profilefile.cpp)
qor_add_test(tst_settingsfile ${dir}/tst_settingsfile.cpp TIMEOUT 120)
qor_add_test(tst_processes ${dir}/tst_processes.cpp)
qor_add_test(tst_startup ${dir}/tst_startup.cpp)
qor_add_test(tst_screenhelpers ${dir}/tst_screenhelpers.cpp)
foreach(test tst_settingsfile tst_processes tst_startup)
  add_dependencies(${test} qor_systemhelper)
  target_compile_definitions(${test} PRIVATE QOR_SYSTEM_HELPER="$<TARGET_FILE:qor_systemhelper>")
endforeach()
