# SPDX-License-Identifier: GPL-3.0-or-later
# Activities built into the program: one folder each, listed once here.
set(LUMBRIDLE_ACTIVITIES mathrace stopthief pizza balloon spacerace geography cards calendar graphs typing mathtutor presidents lemonade candy)
set(LUMBRIDLE_ACTIVITY_LIBS ${LUMBRIDLE_ACTIVITIES})

# lumbridle_add_activity(name RULES files... WINDOWS files...)
# Builds <name>_rules (QtCore only, so widgets cannot creep into the rules) and <name> (its windows).
function(lumbridle_add_activity name)
    cmake_parse_arguments(ARG "" "" "RULES;WINDOWS" ${ARGN})
    add_library(${name}_rules STATIC ${ARG_RULES})
    target_link_libraries(${name}_rules PUBLIC shell_core Qt6::Core)
    target_include_directories(${name}_rules PUBLIC ${CMAKE_SOURCE_DIR})
    add_library(${name} STATIC ${ARG_WINDOWS})
    target_link_libraries(${name} PUBLIC ${name}_rules shell)
endfunction()

# lumbridle_add_test(name SOURCES files... LIBS libs...)
# One QtTest executable run by CTest headless, with data/ beside it.
function(lumbridle_add_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE Qt6::Test test_support ${ARG_LIBS})
    add_dependencies(${name} lumbridle_data)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LUMBRIDLE_DATA_DIR=${LUMBRIDLE_BIN_DIR};ASAN_OPTIONS=detect_leaks=1:abort_on_error=0;LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/lsan.supp:print_suppressions=0;UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1"
        TIMEOUT 600)
endfunction()
