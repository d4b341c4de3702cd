# The Python package through pytest, with the interpreter it was built for and
# the package folder of the build tree.
if(QORGENLIB_BUILD_PYTHON)
  add_test(NAME python_pytest
           COMMAND ${Python3_EXECUTABLE} -m pytest -q -p no:cacheprovider
                   ${PROJECT_SOURCE_DIR}/python/tests)
  set_tests_properties(python_pytest PROPERTIES TIMEOUT 240
                       ENVIRONMENT "PYTHONPATH=${QOR_PYTHON_PACKAGE_DIR};QORGENLIB_EINVOICE_RULES=${QORGENLIB_EINVOICE_RULES}")
endif()
