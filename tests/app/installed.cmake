# Builds and runs the project CONSUMER against the build tree BUILD, or against static libraries that it builds itself from
# SOURCE, then against what either installs, by CMake and by pkg-config, and at last against shared libraries that it builds
# itself, of the objects of the static ones. All of it below WORK.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(result)
        message(FATAL_ERROR "${ARGN}: ${result}\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(adopt way)
    run(${CMAKE_COMMAND} -S ${CONSUMER} -B ${WORK}/${way} -G ${GENERATOR} -DCMAKE_CXX_FLAGS=${FLAGS}
        -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0 ${ARGN})
    run(${CMAKE_COMMAND} --build ${WORK}/${way} --target ${targets})
    run(${WORK}/${way}/consumer)
endfunction()

file(REMOVE_RECURSE ${WORK})
set(targets all)
if(SOURCE)
    set(BUILD ${WORK}/source)
    set(ENV{XDG_DATA_DIRS} ${BUILD}/share)
    adopt(source -DSOURCE=${SOURCE} -DBUILD_SHARED_LIBS=OFF)
else()
    set(ENV{QT_PLUGIN_PATH} ${BUILD}/plugins)
    adopt(build-tree -DVarn_DIR=${BUILD}/${LIBDIR}/cmake/Varn)
endif()

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/prefix)
# Moved, so that nothing can lean on the place it was installed to.
file(RENAME ${WORK}/prefix ${WORK}/moved)
set(prefix ${WORK}/moved)
set(ENV{XDG_DATA_DIRS} ${prefix}/share)
set(ENV{QT_PLUGIN_PATH} ${prefix}/${LIBDIR}/qt5/plugins)
if(NOT SOURCE)
    run(${prefix}/bin/varn-theme list)
    run(${prefix}/bin/varn-gallery --list-pages)
endif()
adopt(installed -DCMAKE_PREFIX_PATH=${prefix})

find_program(PKG_CONFIG NAMES pkg-config pkgconf)
if(PKG_CONFIG)
    set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
    run(${PKG_CONFIG} --variable=themesdir varn-common-theme)
    string(STRIP "${output}" themes)
    run(${PKG_CONFIG} --cflags --libs varn-common-theme)
    separate_arguments(flags UNIX_COMMAND "${FLAGS} ${output}")
    run(${CXX} -std=c++17 -fPIC -DTHEMES_DIR="${themes}" ${CONSUMER}/main.cpp -o ${WORK}/by-pkg-config
        ${flags} -Wl,-rpath,${prefix}/${LIBDIR})
    run(${WORK}/by-pkg-config)
endif()

if(SOURCE)
    set(ENV{XDG_DATA_DIRS} ${BUILD}/share)
    set(ENV{QT_PLUGIN_PATH} ${BUILD}/plugins)
    set(targets consumer varn_style)
    adopt(source -DBUILD_SHARED_LIBS=ON -DVARN_BUILD_TOOLS=ON)
endif()
