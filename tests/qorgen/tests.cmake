# The bridge: codec, model host controls and session as units, and the
# program itself driven as a separate process through `qorgen batch` and `qorgen call`.
qor_add_test(tst_jsoncodec ${dir}/tst_jsoncodec.cpp)
target_link_libraries(tst_jsoncodec PRIVATE qorgenbridge)


qor_add_test(tst_hostobjects ${dir}/tst_hostobjects.cpp)

qor_add_test(tst_session ${dir}/tst_session.cpp)
target_link_libraries(tst_session PRIVATE qorgenbridge)
