find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui)
if(FOLVERO_DESKTOP)
    find_package(Qt6 6.4 REQUIRED COMPONENTS DBus LinguistTools Svg WebEngineWidgets Widgets)
endif()
if(BUILD_TESTING)
    find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
    find_package(GTest REQUIRED)
    find_package(OpenSSL 3 REQUIRED)
endif()
find_package(ZLIB REQUIRED)
find_package(pugixml REQUIRED)
find_package(CLI11 REQUIRED)
find_package(Threads REQUIRED)
find_package(PkgConfig REQUIRED)
pkg_check_modules(nettle REQUIRED IMPORTED_TARGET nettle)
pkg_check_modules(tidy REQUIRED IMPORTED_TARGET tidy)
pkg_check_modules(qpdf REQUIRED IMPORTED_TARGET libqpdf)
pkg_check_modules(minizip REQUIRED IMPORTED_TARGET minizip)
pkg_check_modules(deflate REQUIRED IMPORTED_TARGET libdeflate)
pkg_check_modules(isal REQUIRED IMPORTED_TARGET libisal)
pkg_check_modules(log4cplus REQUIRED IMPORTED_TARGET log4cplus)
# Its header declares different classes without the definitions that Debian's library was built with.
pkg_check_modules(httplib REQUIRED IMPORTED_TARGET cpp-httplib)
pkg_check_modules(turbojpeg REQUIRED IMPORTED_TARGET libturbojpeg)
# Names of languages.
pkg_check_modules(icu REQUIRED IMPORTED_TARGET icu-uc icu-i18n)
pkg_check_modules(sqlite REQUIRED IMPORTED_TARGET sqlite3)

if(CMAKE_SYSTEM_NAME STREQUAL "Linux")
    pkg_check_modules(seccomp REQUIRED IMPORTED_TARGET libseccomp)
endif()

# Debian ships MuPDF as a static library without a pkg-config file.
find_path(MUPDF_INCLUDE_DIR mupdf/fitz.h REQUIRED)
find_library(MUPDF_LIBRARY mupdf REQUIRED)
find_library(MUPDF_THIRD_LIBRARY mupdf-third REQUIRED)
add_library(mupdf INTERFACE)
target_include_directories(mupdf SYSTEM INTERFACE ${MUPDF_INCLUDE_DIR})
target_link_libraries(mupdf INTERFACE ${MUPDF_LIBRARY} ${MUPDF_THIRD_LIBRARY}
    harfbuzz freetype jbig2dec jpeg openjp2 gumbo mujs z m)

# libyuv has none, either.
find_path(YUV_INCLUDE_DIR libyuv.h REQUIRED)
find_library(YUV_LIBRARY yuv REQUIRED)
add_library(yuv INTERFACE)
target_include_directories(yuv SYSTEM INTERFACE ${YUV_INCLUDE_DIR})
target_link_libraries(yuv INTERFACE ${YUV_LIBRARY})

# Nor has libcsv.
find_path(CSV_INCLUDE_DIR csv.h REQUIRED)
find_library(CSV_LIBRARY csv REQUIRED)
add_library(libcsv INTERFACE)
target_include_directories(libcsv SYSTEM INTERFACE ${CSV_INCLUDE_DIR})
target_link_libraries(libcsv INTERFACE ${CSV_LIBRARY})
