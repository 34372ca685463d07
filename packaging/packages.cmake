# Debian packages: `scripts/package.sh` makes them. What the packages are called and need stands here.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME varn-common-theme)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each has its own
set(CPACK_PACKAGE_VENDOR "The Varn Common Theme maintainers")
set(CPACK_PACKAGE_CONTACT "The Varn Common Theme maintainers <maintainers@varn.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${VARN_PACKAGING_DIR}/compress.cmake)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS OFF)
set(version "(= ${PROJECT_VERSION})")
set(abi ${PROJECT_VERSION_MAJOR})
set(libraries "libvarn-common-theme${abi} ${version}, libvarn-common-utils${abi} ${version}")
# CPack writes scripts that call ldconfig unless it hears of others. There are none: a trigger does it.
foreach(key UTILS THEME)
    set(CPACK_DEBIAN_${key}_PACKAGE_CONTROL_EXTRA ${VARN_PACKAGING_DIR}/triggers none/postinst none/postrm)
endforeach()

# varn_package(COMPONENT NAME SECTION SUMMARY DETAILS DEPENDS)
function(varn_package component name section summary details depends)
    string(TOUPPER ${component} key)
    set(CPACK_DEBIAN_${key}_PACKAGE_NAME ${name} PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_PACKAGE_SECTION ${section} PARENT_SCOPE)
    set(CPACK_DEBIAN_${key}_PACKAGE_DEPENDS "${depends}" PARENT_SCOPE)
    set(CPACK_COMPONENT_${key}_DESCRIPTION "${summary}\n${details}" PARENT_SCOPE)
    set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${component} PARENT_SCOPE)

    set(documents ${CMAKE_BINARY_DIR}/packaging/${name})
    configure_file(${VARN_PACKAGING_DIR}/copyright ${documents}/copyright COPYONLY)
    configure_file(${VARN_PACKAGING_DIR}/changelog.in ${documents}/changelog @ONLY)
    install(DIRECTORY ${documents}/ DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${name} COMPONENT ${component}
        EXCLUDE_FROM_ALL)
endfunction()

varn_package(utils libvarn-common-utils${abi} libs "drawing helpers of the Varn themes"
    "Rounded boxes, recolored icons and marks for Qt 5 applications, as the\nlibrary of the Varn themes draws them." "")
varn_package(theme libvarn-common-theme${abi} libs "themes and a widget style for Qt 5 applications"
    "A theme is a directory of colors, brushes, fonts and icons. The library\napplies it to a Qt Widgets application, whose widgets it then paints."
    "libvarn-common-utils${abi} ${version}, libqt5svg5")
varn_package(development libvarn-dev libdevel "themes for Qt 5 applications (development files)"
    "Headers, CMake package and pkg-config files of the libraries that give\na Qt Widgets application the look of a theme."
    "${libraries}, varn-themes ${version}, qtbase5-dev (>= 5.15)")
varn_package(themes varn-themes misc "themes for Qt 5 applications (the themes)"
    "The themes that come with the library of the Varn themes, dark, light\nand with high contrast." "")
set(CPACK_DEBIAN_THEMES_PACKAGE_ARCHITECTURE all)
varn_package(tools varn-tools devel "themes for Qt 5 applications (programs)"
    "The gallery shows every widget in every state in a theme, and varn-theme\nmakes, compares and checks themes, for those who write them."
    "${libraries}, varn-themes ${version}")
if(TARGET varn_style)
    varn_package(plugin qt5-style-plugin-varn misc "themes for Qt 5 applications (style plugin)"
        "Lets any Qt 5 Widgets program wear a Varn theme without being rebuilt,\nby the styles varn, varn-dark, varn-light and so on."
        "${libraries}, varn-themes ${version}")
endif()
include(CPack)
