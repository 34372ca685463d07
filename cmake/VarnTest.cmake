# varn_add_test(NAME LABEL SOURCES...): a QtTest program, run off screen at scale 1 with a home directory of its own.
#
# The sources see VARN_THEME_REPOSITORY, the build tree's theme repository. Statics keep the first theme they see, so a
# class or family that needs a theme of its own has a program of its own.
set(VARN_TEST_PROGRAMS ${PROJECT_BINARY_DIR}/tests)
set(VARN_TEST_HOME ${PROJECT_BINARY_DIR}/tests/home)
set(VARN_TEST_ENVIRONMENT
    QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=1 QT_FONT_DPI=96 LC_ALL=C.UTF-8
    HOME=${VARN_TEST_HOME} XDG_CONFIG_HOME=${VARN_TEST_HOME} XDG_DATA_HOME=${VARN_TEST_HOME}
    XDG_CACHE_HOME=${VARN_TEST_HOME} XDG_RUNTIME_DIR=${VARN_TEST_HOME} QT_LOGGING_RULES=
    LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/leaks.supp:print_suppressions=0
    UBSAN_OPTIONS=print_stacktrace=1)
file(MAKE_DIRECTORY ${VARN_TEST_HOME})
file(CHMOD ${VARN_TEST_HOME} DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

# Leak suppressions name functions of Qt, which is built without frame pointers: only the slow unwinder sees them,
# and a dozen frames are enough for it.
list(APPEND VARN_TEST_ENVIRONMENT ASAN_OPTIONS=fast_unwind_on_malloc=0:malloc_context_size=12)

set(VARN_TEST_TIMEOUT 120)
if(VARN_SANITIZE)
    set(VARN_TEST_TIMEOUT 600)
endif()

function(varn_add_test name label)
    add_executable(${name} ${ARGN})
    varn_compile_options(${name})
    target_link_libraries(${name} PRIVATE varn_common_theme varn_test_support Qt5::Test)
    target_compile_definitions(${name} PRIVATE VARN_THEME_REPOSITORY="${VARN_THEMES_DIR}")
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${VARN_TEST_PROGRAMS})
    varn_add_test_command(${name} ${label} ${name})
endfunction()

# varn_add_test_command(NAME LABEL COMMAND...): any other command that fails or passes, in the same surroundings.
function(varn_add_test_command name label)
    add_test(NAME ${name} COMMAND ${ARGN})
    set_tests_properties(${name} PROPERTIES
        LABELS ${label} ENVIRONMENT "${VARN_TEST_ENVIRONMENT}" TIMEOUT ${VARN_TEST_TIMEOUT})
endfunction()

# varn_add_lint(PROGRAM [FILE...]): a check of the sources themselves, a Python program of tools/. FILEs are what else
# it is given. It passes with exit code 0 and says with 77 that this machine lacks what it needs.
find_package(Python3 COMPONENTS Interpreter)
function(varn_add_lint program)
    if(Python3_FOUND)
        get_filename_component(name ${program} NAME_WE)
        add_test(NAME ${name} COMMAND ${Python3_EXECUTABLE} -B ${PROJECT_SOURCE_DIR}/tools/${program} ${ARGN})
        set_tests_properties(${name} PROPERTIES LABELS lint SKIP_RETURN_CODE 77 TIMEOUT 120)
    endif()
endfunction()
