# What a folder of the project is built into. A folder is a room: every source file in it belongs to its library, so
# that a new file needs no line here; configuring happens by itself when one comes or goes.

# The sources of `folder`; those of another platform (NAME_win.cpp, NAME_posix.cpp) are left out.
function(quillery_sources result folder)
    file(GLOB sources CONFIGURE_DEPENDS "${folder}/*.cpp" "${folder}/*.h")
    if(WIN32)
        list(FILTER sources EXCLUDE REGEX "_posix\\.cpp$")
    else()
        list(FILTER sources EXCLUDE REGEX "_win\\.cpp$")
    endif()
    set(${result} "${sources}" PARENT_SCOPE)
endfunction()

# quillery_library(NAME SOURCES file... LINK target...)
function(quillery_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC quillery_options ${ARG_LINK})
    # Looks for Q_OBJECT anew when a file has come or gone, which the build alone would not notice.
    set(list "${CMAKE_CURRENT_BINARY_DIR}/${name}.sources")
    file(CONFIGURE OUTPUT "${list}" CONTENT "${ARG_SOURCES}")
    set_target_properties(${name} PROPERTIES AUTOGEN_TARGET_DEPENDS "${list}")
endfunction()

# quillery_room(NAME LINK target... [MODEL unit... MODEL_LINK target...]): the library quillery_NAME of this folder. The
# units that MODEL names know no screen: they are the library quillery_NAME_model, which is linked to the other.
function(quillery_room name)
    cmake_parse_arguments(ARG "" "" "LINK;MODEL;MODEL_LINK" ${ARGN})
    quillery_sources(sources "${CMAKE_CURRENT_SOURCE_DIR}")
    if(ARG_MODEL)
        list(JOIN ARG_MODEL "|" units)
        set(model ${sources})
        list(FILTER model INCLUDE REGEX "/(${units})\\.(h|cpp)$")
        list(FILTER sources EXCLUDE REGEX "/(${units})\\.(h|cpp)$")
        quillery_library(quillery_${name}_model SOURCES ${model} LINK ${ARG_MODEL_LINK})
        list(APPEND ARG_LINK quillery_${name}_model)
    endif()
    quillery_library(quillery_${name} SOURCES ${sources} LINK ${ARG_LINK})
endfunction()

# quillery_function(NAME MODEL_LINK target... WINDOW_LINK target...): a function of the program, made of its rooms model/
# (quillery_NAME_model) and window/, or shared/ and a room for each of its windows, each on top of the one before it.
# quillery_NAME is all of them.
function(quillery_function name)
    cmake_parse_arguments(ARG "" "" "MODEL_LINK;WINDOW_LINK" ${ARGN})
    quillery_sources(sources "${CMAKE_CURRENT_SOURCE_DIR}/model")
    quillery_library(quillery_${name}_model SOURCES ${sources} LINK quillery_core ${ARG_MODEL_LINK})
    set(below quillery_${name}_model)
    foreach(room shared window entry viewer)
        if(IS_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}/${room}")
            quillery_sources(sources "${CMAKE_CURRENT_SOURCE_DIR}/${room}")
            quillery_library(quillery_${name}_${room} SOURCES ${sources} LINK ${below} ${ARG_WINDOW_LINK})
            set(below quillery_${name}_${room})
        endif()
    endforeach()
    add_library(quillery_${name} INTERFACE)
    target_link_libraries(quillery_${name} INTERFACE ${below})
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

# quillery_tests(LINK target...): a test program for each tst_<unit>.cpp of this folder.
function(quillery_tests)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    file(GLOB files CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/tst_*.cpp")
    foreach(file IN LISTS files)
        cmake_path(GET file STEM unit)
        quillery_test(${unit} SOURCES ${file} LINK ${ARG_LINK})
    endforeach()
endfunction()
