# A build for sanitizers and fuzzing: the core, its programs and their tests, compiled as quickly as can
# be. What scripts and other programs of ours make is taken from a finished build.
foreach(folder IN ITEMS share samples)
    if(NOT IS_DIRECTORY ${FOLVERO_ASSETS_OF}/${folder})
        message(FATAL_ERROR "${FOLVERO_ASSETS_OF} has no ${folder}: build the preset \"release\" first")
    endif()
    file(CREATE_LINK ${FOLVERO_ASSETS_OF}/${folder} ${CMAKE_BINARY_DIR}/${folder} SYMBOLIC)
endforeach()
add_custom_target(resources)
add_custom_target(sample-pdfs)

# Half of the time of a compilation goes into the same headers each time. Ordinary builds do without
# this, so that a header that a file forgets to include is noticed.
function(folvero_precompile target)
    target_precompile_headers(${target} PRIVATE ${ARGN} <QByteArray> <QDir> <QFile> <QFileInfo>
        <QRectF> <QString> <QStringList> <algorithm> <atomic> <functional> <map> <memory> <optional>
        <string> <vector>)
endfunction()
folvero_precompile(folvero-core <pugixml.hpp>)
