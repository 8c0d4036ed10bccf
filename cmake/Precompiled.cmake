# The headers that most sources take are read once for all of them: a build from nothing takes g++ about
# two thirds of the time. The presets of clang leave this out, and so tell which source does not include what it
# uses.
option(FERNA_PRECOMPILED "Read the headers of the libraries once for all sources" OFF)

set(core_headers <algorithm> <array> <cmath> <functional> <map> <memory> <optional> <span> <string>
    <string_view> <variant> <vector> <QByteArray> <QDir> <QFile> <QFileInfo> <QImage> <QPainter>
    <QPainterPath> <QRegularExpression> <QString> <QStringList>)
set(widgets_headers ${core_headers} <QtWidgets>)
set(tests_headers ${core_headers} <gtest/gtest.h> <nlohmann/json.hpp>)
set(form_tests_headers ${widgets_headers} <gtest/gtest.h> <QTest>)

# ferna_precompiled(TARGET KIND LINKS target... OPTIONS option...): the sources of the target take the
# headers of their kind. Libraries and programs are compiled differently, so the kinds of the tests belong
# to programs. The first target of a kind says what is linked and how it is compiled.
function(ferna_precompiled target kind)
    if(NOT FERNA_PRECOMPILED)
        return()
    endif()
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "LINKS;OPTIONS")
    set(owner ferna_${kind}_headers)
    if(NOT TARGET ${owner})
        set(source ${CMAKE_BINARY_DIR}/${owner}.cpp)
        if(kind MATCHES tests)
            file(CONFIGURE OUTPUT ${source} CONTENT "int main() {}\n")
            add_executable(${owner} EXCLUDE_FROM_ALL ${source})
        else()
            file(CONFIGURE OUTPUT ${source} CONTENT "")
            add_library(${owner} STATIC EXCLUDE_FROM_ALL ${source})
        endif()
        target_link_libraries(${owner} PRIVATE ferna_options ${arg_LINKS})
        target_compile_options(${owner} PRIVATE ${arg_OPTIONS})
        target_precompile_headers(${owner} PRIVATE ${${kind}_headers})
    endif()
    target_precompile_headers(${target} REUSE_FROM ${owner})
    # Inside a precompiled header g++ 12 warns of what it inlines from the standard library, which it
    # takes for a copy behind the end of a short string.
    target_compile_options(${target} PRIVATE
        -Wno-array-bounds -Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread)
endfunction()
