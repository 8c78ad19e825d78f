# SPDX-License-Identifier: GPL-3.0-or-later
# How every target of the program is compiled.
add_library(quillery_options INTERFACE)
target_compile_features(quillery_options INTERFACE cxx_std_20)
target_include_directories(quillery_options INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_definitions(quillery_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
    QT_USE_QSTRINGBUILDER QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_compile_options(quillery_options INTERFACE -Wall -Wextra -Wpedantic)
if(QUILLERY_WERROR)
    target_compile_options(quillery_options INTERFACE -Werror)
endif()
if(QUILLERY_SANITIZE)
    target_compile_options(quillery_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=undefined
                                                      -fno-omit-frame-pointer)
    target_link_options(quillery_options INTERFACE -fsanitize=address,undefined)
endif()
if(QUILLERY_FUZZ)
    # Lets the fuzzer see which branches of our own code an input reaches.
    target_compile_options(quillery_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# ccache makes warm builds fast, and cannot look into precompiled headers, which make cold ones fast: one or the other.
find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE}")
    set(CMAKE_DISABLE_PRECOMPILE_HEADERS ON)
endif()
