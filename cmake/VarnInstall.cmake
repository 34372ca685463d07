include(CMakePackageConfigHelpers)

set(VARN_INSTALL_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Varn)
install(EXPORT VarnTargets NAMESPACE Varn:: DESTINATION ${VARN_INSTALL_CMAKE_DIR})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/VarnConfig.cmake.in
    ${CMAKE_BINARY_DIR}/cmake/VarnConfig.cmake
    INSTALL_DESTINATION ${VARN_INSTALL_CMAKE_DIR}
    PATH_VARS VARN_INSTALL_THEMES_DIR)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/cmake/VarnConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/cmake/VarnConfig.cmake
              ${CMAKE_BINARY_DIR}/cmake/VarnConfigVersion.cmake
        DESTINATION ${VARN_INSTALL_CMAKE_DIR})
