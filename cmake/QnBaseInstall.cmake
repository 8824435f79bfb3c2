# Install rules: the library, its headers under include/base, a CMake package
# configuration (find_package(QnBase CONFIG)) and a pkg-config file.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS qnbase EXPORT QnBaseTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
if(QNBASE_RUNTIME_DLLS)
    install(FILES ${QNBASE_RUNTIME_DLLS} DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
install(EXPORT QnBaseTargets
    NAMESPACE QnBase::
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/QnBase)

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/QnBaseConfig.cmake.in
    ${PROJECT_BINARY_DIR}/QnBaseConfig.cmake
    INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/QnBase)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/QnBaseConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/QnBaseConfig.cmake
              ${PROJECT_BINARY_DIR}/QnBaseConfigVersion.cmake
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/QnBase)

configure_file(${PROJECT_SOURCE_DIR}/cmake/qnbase.pc.in ${PROJECT_BINARY_DIR}/qnbase.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/qnbase.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
