# The bridge: codec, model host controls and session as units, and the
# program itself driven as a separate process.
qor_add_test(tst_jsoncodec ${dir}/tst_jsoncodec.cpp)
target_link_libraries(tst_jsoncodec PRIVATE qorgenbridge)
qor_add_test(tst_jsonwriter ${dir}/tst_jsonwriter.cpp)
target_link_libraries(tst_jsonwriter PRIVATE qorgenbridge)

qor_add_test(tst_hostobjects ${dir}/tst_hostobjects.cpp)

qor_add_test(tst_session ${dir}/tst_session.cpp)
target_link_libraries(tst_session PRIVATE qorgenbridge)

# The program as a separate process; a million requests pass through the
# memory test (left out under the sanitizers).
set(tst_qorgen_timeout 300)
set(tst_qorgenmemory_timeout 90)
foreach(process_test tst_qorgen tst_qorgenmemory)
  qor_add_test(${process_test} ${dir}/${process_test}.cpp ${dir}/qorgenprocess.h
               TIMEOUT ${${process_test}_timeout})
  target_compile_definitions(${process_test} PRIVATE QORGEN_PATH="$<TARGET_FILE:qorgen>")
  add_dependencies(${process_test} qorgen)
endforeach()
target_compile_definitions(tst_qorgen PRIVATE
  QOR_EINVOICE_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/einvoice" QOR_EINVOICE_RULES="${QORGENLIB_EINVOICE_RULES}")
