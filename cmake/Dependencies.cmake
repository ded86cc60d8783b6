find_package(Qt6 6.4 REQUIRED COMPONENTS Core DBus Gui LinguistTools Svg Test
    WebEngineWidgets Widgets)
find_package(OpenSSL 3 REQUIRED)
find_package(ZLIB REQUIRED)
find_package(pugixml REQUIRED)
find_package(CLI11 REQUIRED)
find_package(GTest REQUIRED)
find_package(Threads REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(nettle REQUIRED IMPORTED_TARGET nettle)
pkg_check_modules(tidy REQUIRED IMPORTED_TARGET tidy)
pkg_check_modules(webp REQUIRED IMPORTED_TARGET libwebp)
pkg_check_modules(log4cplus REQUIRED IMPORTED_TARGET log4cplus)
# Its header shows other classes without the settings that Debian built the library with.
pkg_check_modules(httplib REQUIRED IMPORTED_TARGET cpp-httplib)
pkg_check_modules(turbojpeg REQUIRED IMPORTED_TARGET libturbojpeg)

if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    pkg_check_modules(seccomp REQUIRED IMPORTED_TARGET libseccomp)
endif()

# Debian ships the PDF engine as a static library without a pkg-config file.
find_path(MUPDF_INCLUDE_DIR mupdf/fitz.h REQUIRED)
find_library(MUPDF_LIBRARY mupdf REQUIRED)
find_library(MUPDF_THIRD_LIBRARY mupdf-third REQUIRED)
add_library(mupdf INTERFACE)
target_include_directories(mupdf SYSTEM INTERFACE ${MUPDF_INCLUDE_DIR})
target_link_libraries(mupdf INTERFACE ${MUPDF_LIBRARY} ${MUPDF_THIRD_LIBRARY}
    harfbuzz freetype jbig2dec jpeg openjp2 gumbo mujs z m)

# The library that scales pixels comes without one as well.
find_path(YUV_INCLUDE_DIR libyuv.h REQUIRED)
find_library(YUV_LIBRARY yuv REQUIRED)
add_library(yuv INTERFACE)
target_include_directories(yuv SYSTEM INTERFACE ${YUV_INCLUDE_DIR})
target_link_libraries(yuv INTERFACE ${YUV_LIBRARY})
