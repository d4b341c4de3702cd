qor_add_test(tst_cataloguedata ${dir}/tst_cataloguedata.cpp)
# The data is read from the source tree so the test does not depend on the loader.
target_compile_definitions(tst_cataloguedata PRIVATE
                           QOR_CATALOGUE_DIR="${CMAKE_SOURCE_DIR}/lib/catalogue")
