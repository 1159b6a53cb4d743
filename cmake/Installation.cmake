# What an installed Marklink consists of: the shared library with its one header, a CMake package, a pkg-config file,
# the launcher and the shop script.
include(CMakePackageConfigHelpers)

install(TARGETS marklink EXPORT marklink LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(TARGETS marklink_app RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY include/marklink DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY docs/hilfe DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY shopscript/ DESTINATION ${CMAKE_INSTALL_DATADIR}/marklink/shopscript)

set(paketordner ${CMAKE_INSTALL_LIBDIR}/cmake/marklink)
install(EXPORT marklink NAMESPACE marklink:: DESTINATION ${paketordner} FILE marklink-ziele.cmake)
configure_package_config_file(cmake/marklink-config.cmake.in ${CMAKE_BINARY_DIR}/marklink-config.cmake
  INSTALL_DESTINATION ${paketordner})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/marklink-config-version.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/marklink-config.cmake ${CMAKE_BINARY_DIR}/marklink-config-version.cmake
  DESTINATION ${paketordner})

# The file finds its tree from its own place, so an installed tree can be moved.
file(RELATIVE_PATH zurueck ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
set(MARKLINK_PC_PREFIX "\${pcfiledir}/${zurueck}")
configure_file(cmake/marklink.pc.in ${CMAKE_BINARY_DIR}/marklink.pc @ONLY)
install(FILES ${CMAKE_BINARY_DIR}/marklink.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
