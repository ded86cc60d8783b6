# A build for sanitizers and fuzzing: the core, its programs and their tests, compiled as quickly as
# possible. Generated files are taken from a finished build.
foreach(folder IN ITEMS share samples)
    if(NOT IS_DIRECTORY ${FOLVERO_ASSETS_OF}/${folder})
        message(FATAL_ERROR "${FOLVERO_ASSETS_OF} has no ${folder}: build the preset \"release\" first")
    endif()
    file(CREATE_LINK ${FOLVERO_ASSETS_OF}/${folder} ${CMAKE_BINARY_DIR}/${folder} SYMBOLIC)
endforeach()
add_custom_target(resources)
add_custom_target(sample-pdfs)
add_custom_target(sample-book)
