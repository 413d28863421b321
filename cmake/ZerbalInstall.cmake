include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS zerbal zerbal-cli EXPORT zerbalTargets
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(DIRECTORY include/zerbal DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT zerbalTargets NAMESPACE zerbal:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zerbal)
configure_package_config_file(cmake/zerbalConfig.cmake.in
  "${CMAKE_CURRENT_BINARY_DIR}/zerbalConfig.cmake"
  INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zerbal)
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/zerbalConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/zerbalConfig.cmake"
              "${CMAKE_CURRENT_BINARY_DIR}/zerbalConfigVersion.cmake"
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/zerbal)
