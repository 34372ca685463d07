# varn_add_theme(NAME): lays the theme directory NAME out in the build tree's theme repository and installs it from there.
add_custom_target(varn_themes ALL)

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
    add_custom_target(theme_${name} DEPENDS ${outputs})
    add_dependencies(varn_themes theme_${name})
    install(DIRECTORY ${source} DESTINATION ${VARN_INSTALL_THEMES_DIR})
endfunction()
