# quillery_library(NAME SOURCES file... LINK target...): one half of a folder.
function(quillery_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC quillery_options ${ARG_LINK})
endfunction()

# quillery_test(NAME SOURCES file... LINK target...): one Qt Test program, run by ctest without a screen.
function(quillery_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINK} Qt6::Test)
    target_compile_definitions(${name} PRIVATE QUILLERY_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data")
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 300)
endfunction()
