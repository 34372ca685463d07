# varn_add_theme(NAME): lays the theme directory NAME out in the build tree's theme repository, with the icon
# bundle that lets QIcon::fromTheme find the library's icons, and installs it from there.
#
# Qt looks a theme's icons up below ":/icons/<theme name>", which is where the bundle's files are mapped.
get_target_property(VARN_RCC Qt5::rcc IMPORTED_LOCATION)
add_custom_target(varn_themes ALL)
set(VARN_ICONS_DIR ${CMAKE_CURRENT_LIST_DIR}/../ThemeLibrary/resources/Icons)
set(VARN_STANDARD_ICONS_DIR ${CMAKE_CURRENT_LIST_DIR}/../ThemeLibrary/resources/StandardIcons)

function(varn_add_theme name)
    set(source ${CMAKE_CURRENT_SOURCE_DIR}/${name})
    set(target ${VARN_THEMES_DIR}/${name})
    file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE ${source} ${source}/*)
    set(outputs)
    foreach(file IN LISTS files)
        add_custom_command(OUTPUT ${target}/${file}
            COMMAND ${CMAKE_COMMAND} -E copy ${source}/${file} ${target}/${file}
            DEPENDS ${source}/${file} VERBATIM)
        list(APPEND outputs ${target}/${file})
    endforeach()

    set(bundle ${target}/Images/${name}/scalable/icons.rcc)
    varn_write_icon_collection(${name} ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc icons)
    add_custom_command(OUTPUT ${bundle}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${target}/Images/${name}/scalable
        COMMAND ${VARN_RCC} --binary --no-compress ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc -o ${bundle}
        DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc ${icons} VERBATIM)

    add_custom_target(theme_${name} DEPENDS ${outputs} ${bundle})
    add_dependencies(varn_themes theme_${name})
    install(DIRECTORY ${target} DESTINATION ${VARN_INSTALL_THEMES_DIR})
endfunction()

# Writes the resource collection of the icon theme `name` to `file` and its icons' paths to `iconsVariable`.
function(varn_write_icon_collection name file iconsVariable)
    file(GLOB icons CONFIGURE_DEPENDS ${VARN_ICONS_DIR}/*.svg ${VARN_STANDARD_ICONS_DIR}/*.svg)
    set(index ${CMAKE_CURRENT_BINARY_DIR}/${name}.index.theme)
    file(CONFIGURE OUTPUT ${index} @ONLY CONTENT
"[Icon Theme]
Name=@name@
Directories=scalable

[scalable]
Size=16
Type=Scalable
MinSize=1
MaxSize=512
")
    set(bundled)
    set(entries "<file alias=\"index.theme\">${index}</file>\n")
    # Under the icon names that freedesktop.org lists, Qt's dialogs and menus ask for icons themselves.
    set(names ${VARN_STANDARD_ICONS_DIR}/names.txt)
    file(STRINGS ${names} standardNames REGEX "^[a-z]")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${names})
    foreach(icon IN LISTS icons)
        get_filename_component(base ${icon} NAME)
        # Of two files of one name Qt shows the bundle's, so a theme's own icon goes into it.
        set(own ${CMAKE_CURRENT_SOURCE_DIR}/${name}/Images/${name}/scalable/${base})
        if(EXISTS ${own})
            set(icon ${own})
        endif()
        list(APPEND bundled ${icon})
        string(APPEND entries "<file alias=\"scalable/${base}\">${icon}</file>\n")
        string(REPLACE "." "\\." pattern ${base})
        set(aliases ${standardNames})
        list(FILTER aliases INCLUDE REGEX " ${pattern}$")
        foreach(alias IN LISTS aliases)
            string(REGEX REPLACE " .*" ".svg" alias ${alias})
            string(APPEND entries "<file alias=\"scalable/${alias}\">${icon}</file>\n")
        endforeach()
    endforeach()
    file(CONFIGURE OUTPUT ${file} @ONLY CONTENT
"<RCC><qresource prefix=\"/icons/@name@\">
@entries@</qresource></RCC>
")
    set(${iconsVariable} ${bundled} PARENT_SCOPE)
endfunction()
