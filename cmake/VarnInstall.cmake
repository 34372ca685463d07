# Installing, in components that are the packages of packaging/: utils, theme, development, themes, tools, plugin.
include(CMakePackageConfigHelpers)
set(VARN_INSTALL_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/Varn)
set(VARN_INSTALL_PKGCONFIG_DIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
set(VARN_EXPORTS ${CMAKE_CURRENT_LIST_DIR}/exports.map)
set(VARN_STATIC_PLUGIN varnStylePlugin)
set(VARN_PACKAGING_DIR ${CMAKE_CURRENT_LIST_DIR}/../packaging)

# varn_install_library(TARGET COMPONENT): a library that exports what it means to, and its pkg-config file.
function(varn_install_library target component)
    # No define of CMake's own: static and shared libraries are made of the same objects.
    set_target_properties(${target} PROPERTIES DEFINE_SYMBOL "")
    get_target_property(type ${target} TYPE)
    if(type STREQUAL SHARED_LIBRARY)
        target_link_options(${target} PRIVATE LINKER:--version-script=${VARN_EXPORTS})
        set_target_properties(${target} PROPERTIES LINK_DEPENDS ${VARN_EXPORTS})
    endif()
    install(TARGETS ${target} EXPORT VarnTargets
        LIBRARY COMPONENT ${component} NAMELINK_COMPONENT development
        ARCHIVE COMPONENT development)

    # The path from the file to the prefix, so that both may be moved together.
    file(RELATIVE_PATH VARN_PREFIX /prefix/${VARN_INSTALL_PKGCONFIG_DIR} /prefix)
    if(NOT BUILD_SHARED_LIBS)
        set(VARN_LINK_PLUGIN "-Wl,-u,${VARN_STATIC_PLUGIN} ")
        if(TARGET Qt5::DBus)
            set(VARN_REQUIRES_DBUS ", Qt5DBus >= 5.15")
        endif()
    endif()
    string(REPLACE _ - name ${target})
    configure_file(${VARN_PACKAGING_DIR}/${name}.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc
        DESTINATION ${VARN_INSTALL_PKGCONFIG_DIR} COMPONENT development)
endfunction()

# The CMake package, installed and in the build tree, which is laid out like what is installed.
function(varn_install_packages)
    set(package ${CMAKE_BINARY_DIR}/${VARN_INSTALL_CMAKE_DIR})
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/VarnConfig.cmake.in ${package}/VarnConfig.cmake
        INSTALL_DESTINATION ${VARN_INSTALL_CMAKE_DIR} PATH_VARS VARN_INSTALL_THEMES_DIR)
    write_basic_package_version_file(${package}/VarnConfigVersion.cmake COMPATIBILITY SameMajorVersion)
    install(FILES ${package}/VarnConfig.cmake ${package}/VarnConfigVersion.cmake
        DESTINATION ${VARN_INSTALL_CMAKE_DIR} COMPONENT development)
    install(EXPORT VarnTargets NAMESPACE Varn:: DESTINATION ${VARN_INSTALL_CMAKE_DIR} COMPONENT development)
    export(EXPORT VarnTargets NAMESPACE Varn:: FILE ${package}/VarnTargets.cmake)
    if(PROJECT_IS_TOP_LEVEL)
        include(${VARN_PACKAGING_DIR}/packages.cmake)
    endif()
endfunction()
