# Settings that all our targets link to.
add_library(folvero-settings INTERFACE)
target_compile_options(folvero-settings INTERFACE
    -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual -Wconversion
    -Wno-sign-conversion -Werror)
# In a unity build a source comes after others, whose names it may use again, and every class is in an included file.
if(NOT CMAKE_UNITY_BUILD)
    target_compile_options(folvero-settings INTERFACE -Wshadow)
elseif(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    target_compile_options(folvero-settings INTERFACE -Wno-subobject-linkage)
endif()
# Log records contain source file names, but must not contain the build machine's paths.
target_compile_options(folvero-settings INTERFACE -fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=)
target_compile_definitions(folvero-settings INTERFACE
    QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS)
# An index beyond the end of a container ends the program before it reads or writes there.
target_compile_definitions(folvero-settings INTERFACE _GLIBCXX_ASSERTIONS)
# Resolves function addresses at start and makes their table read-only (full RELRO).
target_link_options(folvero-settings INTERFACE -Wl,-z,now)

set(FOLVERO_SANITIZE "" CACHE STRING "Sanitizers to build with, as -fsanitize takes them")
if(FOLVERO_SANITIZE)
    add_compile_options(-fsanitize=${FOLVERO_SANITIZE} -fno-omit-frame-pointer
        -fno-sanitize-recover=all)
    add_link_options(-fsanitize=${FOLVERO_SANITIZE})
    add_compile_definitions(FOLVERO_SANITIZED)
endif()

option(FOLVERO_FUZZ "Build the fuzz harnesses; the preset \"fuzz\" sets what else that takes" OFF)
set(FOLVERO_ASSETS_OF "" CACHE PATH
    "Build no more than the core, with the resources and sample documents of this build folder")

if(FOLVERO_ASSETS_OF)
    set(FOLVERO_DESKTOP OFF)
endif()

# The same headers take half of each compilation's time. clang-tidy reads no precompiled headers of another compiler,
# and notices missing includes without them.
option(FOLVERO_PRECOMPILE "Precompile the headers that most sources include" ON)
function(folvero_precompile target)
    if(NOT FOLVERO_PRECOMPILE)
        return()
    endif()
    target_precompile_headers(${target} PRIVATE ${ARGN} <QByteArray> <QDir> <QFile> <QFileInfo>
        <QRectF> <QString> <QStringList> <algorithm> <atomic> <functional> <map> <memory> <optional>
        <string> <vector>)
endfunction()
