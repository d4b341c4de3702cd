# What a consumer gets: the libraries, the public headers under
# include/qorgenlib, a CMake package (qorGenLib::Core, qorGenLib::Widgets),
# one pkg-config file per library, and a Debian package made by CPack.
include(CMakePackageConfigHelpers)

qor_public_headers(
  lib/clsqorgenlib.h lib/clsqorgenlibdefaults.h lib/publisheddefault.h lib/clsqoreinvoice.h
  lib/typelibrary.h lib/frame/qorenums.h lib/frame/windowsize.h
  platform/platform.h platform/clock.h platform/dialogpresenter.h platform/sound.h
  platform/filesystem.h platform/processes.h platform/desktop.h platform/keyboard.h
  platform/coreplatform.h calculator/calculatorsession.h calculator/calculatorpresenter.h
  platform/recordingplatform.h platform/recordedevent.h
  runtime/regionalsettings.h runtime/runtimeerror.h runtime/variant.h runtime/propertybag.h
  einvoice/decimal.h einvoice/party.h einvoice/vatcategory.h einvoice/allowancecharge.h
  einvoice/invoiceline.h einvoice/payment.h einvoice/invoiceamounts.h einvoice/invoice.h
  einvoice/invoicetotals.h einvoice/invoicejson.h einvoice/ublwriter.h einvoice/ublreader.h
  payments/paymentcheck.h payments/iban.h payments/ibanregistry.h payments/bic.h
  payments/belgianbanks.h payments/creditorreference.h payments/epcpayload.h payments/qrcode.h
  host/*.h host/controls/*.h)
set(QOR_PACKAGE_TARGETS qorGenLib)
if(QORGENLIB_BUILD_WIDGETS)
  qor_public_headers(platform/qt/qtplatform.h host/qt/*.h)
  list(APPEND QOR_PACKAGE_TARGETS qorGenLibWidgets)
endif()

set(QOR_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/qorGenLib)
foreach(target IN LISTS QOR_PACKAGE_TARGETS)
  get_target_property(export_name ${target} EXPORT_NAME)
  install(TARGETS ${target} EXPORT qorGenLib${export_name}Targets
          LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime
                  NAMELINK_COMPONENT dev
          ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT dev
          RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime
          INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} ${CMAKE_INSTALL_INCLUDEDIR}/qorgenlib)
  install(EXPORT qorGenLib${export_name}Targets NAMESPACE qorGenLib::
          DESTINATION ${QOR_CMAKE_DIR} COMPONENT dev)
endforeach()

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/qorGenLibConfig.cmake.in
  ${PROJECT_BINARY_DIR}/qorGenLibConfig.cmake INSTALL_DESTINATION ${QOR_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/qorGenLibConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/qorGenLibConfig.cmake
        ${PROJECT_BINARY_DIR}/qorGenLibConfigVersion.cmake
        DESTINATION ${QOR_CMAKE_DIR} COMPONENT dev)

# pkg-config: qorgenlib (Qt Core only) and qorgenlib-widgets.
# The files find their prefix from where they lie, so an installed tree can move.
file(RELATIVE_PATH QOR_PC_TO_PREFIX /root/${CMAKE_INSTALL_LIBDIR}/pkgconfig /root)
set(QOR_PC_LIBDIR "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
set(QOR_PC_INCLUDEDIR "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
if(IS_ABSOLUTE ${CMAKE_INSTALL_LIBDIR})
  set(QOR_PC_LIBDIR ${CMAKE_INSTALL_LIBDIR})
endif()
if(IS_ABSOLUTE ${CMAKE_INSTALL_INCLUDEDIR})
  set(QOR_PC_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR})
endif()
set(QOR_PC_FILES qorgenlib)
if(QORGENLIB_BUILD_WIDGETS)
  list(APPEND QOR_PC_FILES qorgenlib-widgets)
endif()
foreach(pc IN LISTS QOR_PC_FILES)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/${pc}.pc.in ${PROJECT_BINARY_DIR}/${pc}.pc.in @ONLY)
  file(GENERATE OUTPUT ${PROJECT_BINARY_DIR}/${pc}.pc INPUT ${PROJECT_BINARY_DIR}/${pc}.pc.in)
  install(FILES ${PROJECT_BINARY_DIR}/${pc}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
          COMPONENT dev)
endforeach()

# Debian packages: libqorgenlib (libraries, qorgen, the demo), libqorgenlib-dev and
# python3-qorgenlib.
set(CPACK_PACKAGE_NAME libqorgenlib)
set(CPACK_PACKAGE_VENDOR "qorGenLib developers")
set(CPACK_PACKAGE_CONTACT "qorGenLib developers <qorgenlib@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY ${PROJECT_DESCRIPTION})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime dev)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libqorgenlib${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_DEV_PACKAGE_NAME libqorgenlib-dev)
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS
    "libqorgenlib${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION}), qt6-base-dev (>= 6.4), qt6-multimedia-dev (>= 6.4)")
set(CPACK_COMPONENT_DEV_DEPENDS runtime)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
# python3-qorgenlib: the Python package, for the interpreter it was built for.
if(QORGENLIB_BUILD_PYTHON)
  list(APPEND CPACK_COMPONENTS_ALL python)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-qorgenlib)
  set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
  math(EXPR qor_next_python_minor "${Python3_VERSION_MINOR} + 1")
  set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
      "python3 (>= ${Python3_VERSION_MAJOR}.${Python3_VERSION_MINOR}), python3 (<< ${Python3_VERSION_MAJOR}.${qor_next_python_minor})")
endif()
include(CPack)
