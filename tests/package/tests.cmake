# The installed package as a program of its own uses it (examples/consumer).
if(BUILD_SHARED_LIBS)
  add_test(NAME package_consumer
           COMMAND bash ${dir}/consumer.sh ${PROJECT_BINARY_DIR} ${PROJECT_SOURCE_DIR})
  set_tests_properties(package_consumer PROPERTIES TIMEOUT 600 RUN_SERIAL TRUE)
endif()
find_program(QOR_DPKG_DEB dpkg-deb)
if(BUILD_SHARED_LIBS AND QOR_DPKG_DEB)
  add_test(NAME package_debian COMMAND bash ${dir}/debian.sh ${PROJECT_BINARY_DIR})
  set_tests_properties(package_debian PROPERTIES TIMEOUT 600 RUN_SERIAL TRUE)
endif()
