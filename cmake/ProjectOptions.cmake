# SPDX-License-Identifier: MIT
# One interface target carries the language standard and the warnings, a second
# one what concerns Qt; every target of ours links the first, those above calc/
# the second.
add_library(project_options INTERFACE)
target_compile_features(project_options INTERFACE cxx_std_20)
target_compile_options(project_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion
    # Dates rest on exact floating-point steps: no fused multiply-add.
    -ffp-contract=off)
target_include_directories(project_options INTERFACE ${PROJECT_SOURCE_DIR}/src)

if(ORVALEN_SANITIZE)
    target_compile_options(project_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(project_options INTERFACE -fsanitize=address,undefined)
else()
    # Where it was built is told by no program. Debian's flags say so too, but not in
    # a folder whose name has a blank. Optimising at link time, the linker compiles.
    set(where "-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.")
    target_compile_options(project_options INTERFACE "${where}")
    target_link_options(project_options INTERFACE "${where}")
endif()

include(cmake/Hardening.cmake)

if(CMAKE_INTERPROCEDURAL_OPTIMIZATION)
    target_link_options(project_options INTERFACE -flto=auto) # on all processors
endif()

add_library(project_qt_options INTERFACE)
target_link_libraries(project_qt_options INTERFACE project_options)
target_compile_definitions(project_qt_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CONTEXTLESS_CONNECT
    QT_NO_FOREACH
    QT_NO_KEYWORDS
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_URL_CAST_FROM_STRING
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
