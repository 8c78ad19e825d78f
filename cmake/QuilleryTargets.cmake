# SPDX-License-Identifier: GPL-3.0-or-later
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

# What most files include is compiled once: for the rooms without widgets, for those with them, and for the tests, which
# take longer to compile than to run and are not optimized.
set(core_headers <QByteArray> <QDate> <QDir> <QFile> <QList> <QString> <QStringList> <algorithm> <array> <functional>
    <memory> <optional> <vector>)
set(widget_headers ${core_headers} <QAction> <QApplication> <QKeyEvent> <QLabel> <QLineEdit> <QPainter> <QPushButton>
    <QScrollArea> <QStackedWidget> <QTimer> <QVBoxLayout> <QWidget>)
set(test_options $<$<OR:$<CONFIG:Release>,$<BOOL:${QUILLERY_SANITIZE}>>:-O0>)
file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/headers.cpp" CONTENT "")

# quillery_headers(NAME HEADERS header... LINK target... [OPTIONS option...])
function(quillery_headers name)
    cmake_parse_arguments(ARG "" "" "HEADERS;LINK;OPTIONS" ${ARGN})
    add_library(${name} OBJECT EXCLUDE_FROM_ALL "${PROJECT_BINARY_DIR}/headers.cpp")
    target_link_libraries(${name} PRIVATE quillery_options ${ARG_LINK})
    target_compile_options(${name} PRIVATE ${ARG_OPTIONS})
    target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
endfunction()
quillery_headers(quillery_core_headers HEADERS ${core_headers} LINK Qt6::Core)
quillery_headers(quillery_widget_headers HEADERS ${widget_headers} LINK Qt6::Widgets)
quillery_headers(quillery_test_headers HEADERS ${widget_headers} LINK Qt6::Widgets OPTIONS ${test_options})

# Whether one of the targets is Qt6::Widgets or links it.
function(quillery_has_widgets result)
    set(${result} OFF PARENT_SCOPE)
    foreach(target IN LISTS ARGN)
        set(found OFF)
        if(target STREQUAL "Qt6::Widgets")
            set(found ON)
        elseif(TARGET ${target})
            get_target_property(links ${target} INTERFACE_LINK_LIBRARIES)
            if(links)
                quillery_has_widgets(found ${links})
            endif()
        endif()
        if(found)
            set(${result} ON PARENT_SCOPE)
            return()
        endif()
    endforeach()
endfunction()

# quillery_library(NAME SOURCES file... LINK target...)
function(quillery_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC quillery_options ${ARG_LINK})
    quillery_has_widgets(has_widgets ${ARG_LINK})
    if(has_widgets)
        target_precompile_headers(${name} REUSE_FROM quillery_widget_headers)
    else()
        target_precompile_headers(${name} REUSE_FROM quillery_core_headers)
    endif()
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

# Adds the target quillery_NAME and its macro QUILLERY_HAS_NAME to `optional`, where the option QUILLERY_NAME is on and
# the library is found.
function(quillery_optional name header library)
    string(TOUPPER ${name} upper)
    if(NOT QUILLERY_${upper})
        return()
    endif()
    find_path(${upper}_INCLUDE_DIR ${header})
    find_library(${upper}_LIBRARY ${library})
    if(NOT ${upper}_INCLUDE_DIR OR NOT ${upper}_LIBRARY)
        message(STATUS "Without ${library}, which is not here")
        return()
    endif()
    add_library(quillery_${name} INTERFACE)
    target_include_directories(quillery_${name} SYSTEM INTERFACE "${${upper}_INCLUDE_DIR}")
    target_link_libraries(quillery_${name} INTERFACE "${${upper}_LIBRARY}")
    target_compile_definitions(quillery_${name} INTERFACE QUILLERY_HAS_${upper})
    list(APPEND optional quillery_${name})
    set(optional ${optional} PARENT_SCOPE)
endfunction()

# quillery_function(NAME MODEL_LINK target... WINDOW_LINK target...): a function of the program, made of its rooms
# model/ (quillery_NAME_model) and window/, or shared/ and a room for each of its windows, each on top of the one before
# it. quillery_NAME is all of them.
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

# quillery_module(NAME SOURCES file... LINK target...): the module NAME, a library that `ProgramModule` loads when it is
# first used. It lies beside the program and shares nothing with it but Qt.
function(quillery_module name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_library(quillery_${name}_module MODULE ${ARG_SOURCES})
    target_link_libraries(quillery_${name}_module PRIVATE quillery_options ${ARG_LINK})
    set_target_properties(quillery_${name}_module PROPERTIES PREFIX "" OUTPUT_NAME ${name} AUTOMOC OFF
        CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
        LIBRARY_OUTPUT_DIRECTORY "${QUILLERY_PROGRAM_DIR}/modules")
    if(UNIX)
        install(TARGETS quillery_${name}_module LIBRARY DESTINATION lib/quillery)
    endif()
endfunction()

# Under wine the disk of this machine is the drive Z, and what works a window a hundred times takes minutes.
set(test_disk "")
set(test_seconds 900)
if(CMAKE_CROSSCOMPILING)
    set(test_disk "Z:")
    set(test_seconds 3600)
endif()

# quillery_test(NAME SOURCES file... LINK target...): one Qt Test program, run by ctest without a screen.
function(quillery_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE ${ARG_LINK} Qt6::Test)
    target_compile_options(${name} PRIVATE ${test_options})
    if(TARGET quillery_unsynced)
        target_sources(${name} PRIVATE $<TARGET_OBJECTS:quillery_unsynced>)
    endif()
    quillery_has_widgets(has_widgets ${ARG_LINK})
    if(has_widgets)
        target_precompile_headers(${name} REUSE_FROM quillery_test_headers)
    endif()
    target_compile_definitions(${name} PRIVATE QUILLERY_TEST_DATA="${test_disk}${PROJECT_SOURCE_DIR}/tests/data")
    add_test(NAME ${name} COMMAND ${name})
    # The second is for the modules of the program.
    set_tests_properties(${name} PROPERTIES TIMEOUT ${test_seconds}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_PLUGIN_PATH=${QUILLERY_PROGRAM_DIR};LC_ALL=C.UTF-8")
endfunction()

# quillery_tests(LINK target...): a test program for each tst_<unit>.cpp of this folder that is of this platform.
function(quillery_tests)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    quillery_sources(files "${CMAKE_CURRENT_SOURCE_DIR}")
    list(FILTER files INCLUDE REGEX "/tst_[^/]+\\.cpp$")
    foreach(file IN LISTS files)
        cmake_path(GET file STEM unit)
        string(REGEX REPLACE "_(posix|win)$" "" unit "${unit}")
        quillery_test(${unit} SOURCES ${file} LINK ${ARG_LINK})
    endforeach()
endfunction()
