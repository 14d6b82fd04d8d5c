# Compiler options: the product's targets link to korvel-options, the tests to korvel-warnings.

set(KORVEL_SANITIZERS "" CACHE STRING
    "Sanitizers to build with, comma-separated (address,undefined)")

# What was compiled before need not be compiled again, in whatever folder.
find_program(CCACHE ccache)
if(CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR} CCACHE_NOHASHDIR=1
        CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_DEPEND=1 ${CCACHE})
endif()

add_library(korvel-warnings INTERFACE)
target_compile_options(korvel-warnings INTERFACE
    -Wall -Wextra -Wshadow -Wconversion -Woverloaded-virtual)

# Texts of the product say how they are encoded; those of tests are plain to read.
add_library(korvel-options INTERFACE)
target_link_libraries(korvel-options INTERFACE korvel-warnings)
target_compile_definitions(korvel-options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_USE_QSTRINGBUILDER)

# Resources without the times of their files, so that the same sources are built to the same bytes.
set(KORVEL_RESOURCES OPTIONS --format-version 1)

if(KORVEL_SANITIZERS)
    # Every object is instrumented, or a library built without would hide its own faults.
    add_compile_options(-fsanitize=${KORVEL_SANITIZERS} -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${KORVEL_SANITIZERS})
endif()

# Most of a source's time in the compiler goes into the toolkit's headers: those that most sources
# include are compiled once, for all targets of a folder and below.
function(korvel_share_headers folder)
    if(NOT TARGET korvel-headers)
        set(source ${PROJECT_BINARY_DIR}/headers.cpp)
        file(CONFIGURE OUTPUT ${source} CONTENT "")
        add_library(korvel-headers OBJECT ${source})
        target_link_libraries(korvel-headers PRIVATE Qt6::Core korvel-options)
        target_precompile_headers(korvel-headers PRIVATE
            <QByteArray> <QCoreApplication> <QDir> <QFile> <QHash> <QList> <QRegularExpression>
            <QSet> <QString> <QStringList> <algorithm> <functional> <memory> <optional>)
    endif()
    get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        get_target_property(libraries ${target} LINK_LIBRARIES)
        if(libraries MATCHES korvel-options AND NOT target STREQUAL korvel-headers)
            target_precompile_headers(${target} REUSE_FROM korvel-headers)
        endif()
    endforeach()
    get_property(subfolders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
    foreach(subfolder IN LISTS subfolders)
        korvel_share_headers(${subfolder})
    endforeach()
endfunction()
