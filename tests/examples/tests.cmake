# The demo driven as a person would: its windows come from the demo's own
# library, which links the public shared libraries only, like the program.
if(TARGET qorgenlib-demo-form)
  add_executable(tst_demo ${CMAKE_CURRENT_LIST_DIR}/tst_demo.cpp)
  target_link_libraries(tst_demo PRIVATE qorgenlib-demo-form Qt6::Test)
  # The e-invoice it writes goes through the official rules (Java).
  target_compile_definitions(tst_demo PRIVATE QOR_EINVOICE_RULES="${QORGENLIB_EINVOICE_RULES}")
  add_test(NAME tst_demo COMMAND tst_demo)
  set_tests_properties(tst_demo PROPERTIES TIMEOUT 900 ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endif()

# The same demo on a real X display, typed into through the X server.
if(TARGET qorgenlib-demo)
  add_test(NAME demo_real_display
           COMMAND bash ${CMAKE_CURRENT_LIST_DIR}/realdisplay.sh $<TARGET_FILE:qorgenlib-demo>)
  set_tests_properties(demo_real_display PROPERTIES TIMEOUT 120)
endif()
