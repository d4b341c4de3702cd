qor_add_test(tst_iban ${dir}/tst_iban.cpp)
qor_add_test(tst_bic ${dir}/tst_bic.cpp)
qor_add_test(tst_belgianbanks ${dir}/tst_belgianbanks.cpp)
qor_add_test(tst_creditorreference ${dir}/tst_creditorreference.cpp)
qor_add_test(tst_epcpayload ${dir}/tst_epcpayload.cpp)
qor_add_test(tst_paymentmethods ${dir}/tst_paymentmethods.cpp)
qor_add_test(tst_qrcode ${dir}/tst_qrcode.cpp)
# The comparison with python-stdnum over a million generated identifiers.
add_executable(paymentverdicts ${dir}/paymentverdicts.cpp)
target_include_directories(paymentverdicts PRIVATE ${PROJECT_SOURCE_DIR})
target_link_libraries(paymentverdicts PRIVATE qorGenLibInternal)
add_test(NAME payments_against_stdnum
         COMMAND /usr/bin/python3 ${dir}/compare_stdnum.py $<TARGET_FILE:paymentverdicts>)
set_tests_properties(payments_against_stdnum PROPERTIES TIMEOUT 600)
