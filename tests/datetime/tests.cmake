qor_add_test(tst_dateentry ${dir}/tst_dateentry.cpp)
qor_add_test(tst_timeentry ${dir}/tst_timeentry.cpp)
qor_add_test(tst_calendarhelpers ${dir}/tst_calendarhelpers.cpp)
qor_add_test(tst_publicholidays ${dir}/tst_publicholidays.cpp)
