# varn_add_resources(SOURCES): what the library carries with it, as source files: icons, cursors and style sheets.
#
# Icons lie in binary collections: "icons" by the library's names, "standard" by those of desktop icons
# (StandardIcons/names.txt), "index" makes an icon theme of them. They are embedded as they are, as the library maps
# them itself, the first one below two roots.
get_target_property(VARN_RCC Qt5::rcc IMPORTED_LOCATION)
set(VARN_RESOURCES_DIR ${PROJECT_SOURCE_DIR}/ThemeLibrary/resources)

function(varn_add_resources sourcesVariable)
    set(folder ${VARN_RESOURCES_DIR})
    file(GLOB_RECURSE files CONFIGURE_DEPENDS ${folder}/*)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${folder}/StandardIcons/names.txt)

    set(icons ${files})
    list(FILTER icons INCLUDE REGEX "/Icons/.*\\.svg$")
    varn_write_collection(icons ${icons})
    file(STRINGS ${folder}/StandardIcons/names.txt standard REGEX "^[a-z]")
    list(TRANSFORM standard REPLACE "(.*) (.*)" "\\1.svg=${folder}/Icons/\\2")
    # The few that the library has under no name of its own.
    list(TRANSFORM standard REPLACE "/Icons/([^.]*)\\.svg$" "/StandardIcons/\\1.svg")
    varn_write_collection(standard ${standard})
    varn_write_collection(index ${folder}/index.theme)

    set(embedded ${files})
    list(FILTER embedded INCLUDE REGEX "/Cursors/")
    list(TRANSFORM embedded REPLACE "(.*/)(.*)" "Cursors/\\2=\\1\\2")
    foreach(name icons standard index)
        set(collection ${CMAKE_CURRENT_BINARY_DIR}/${name})
        add_custom_command(OUTPUT ${collection}.rcc
            COMMAND ${VARN_RCC} --binary --format-version 1 --no-compress ${collection}.qrc -o ${collection}.rcc
            DEPENDS ${collection}.qrc ${files} VERBATIM)
        list(APPEND embedded BRELK/ThemeLibrary/${name}.rcc=${collection}.rcc)
    endforeach()
    varn_write_collection(internalRC ${embedded})
    qt5_add_resources(sources ${CMAKE_CURRENT_BINARY_DIR}/internalRC.qrc OPTIONS --no-compress)
    qt5_add_resources(sources ${folder}/ThemeLibrary.qrc)
    set(${sourcesVariable} ${sources} PARENT_SCOPE)
endfunction()

# varn_write_collection(NAME FILE...): NAME.qrc of files, each under its own name or as "NAME=FILE".
function(varn_write_collection name)
    set(entries)
    foreach(file IN LISTS ARGN)
        get_filename_component(alias ${file} NAME)
        if(file MATCHES "^(.*)=(.*)$")
            set(alias ${CMAKE_MATCH_1})
            set(file ${CMAKE_MATCH_2})
        endif()
        string(APPEND entries "<file alias=\"${alias}\">${file}</file>\n")
    endforeach()
    file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc @ONLY
        CONTENT "<RCC><qresource prefix=\"/\">\n@entries@</qresource></RCC>\n")
endfunction()
