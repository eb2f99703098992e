# Debian packages, from a build whose prefix is /usr (preset "debian"):
#     cmake --preset debian && cmake --build --preset debian
# A build with any other prefix packs an archive.
set(CPACK_PACKAGE_NAME tovangl)
set(CPACK_PACKAGE_CONTACT ${TOVANGL_MAINTAINER})
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set(CPACK_GENERATOR TXZ)
    include(CPack)
    return()
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development)
if(TARGET tovangl-chart OR TARGET tovangl-du)
    list(APPEND CPACK_COMPONENTS_ALL tools)
endif()
if(TOVANGL_BUILD_PYTHON)
    list(APPEND CPACK_COMPONENTS_ALL python)
endif()
# Each package has its own first line of the description.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(tovangl_debian_version ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})

# Dependencies come from the linked libraries. Qt loads the offscreen platform plugin at run time,
# so its package has to be listed explicitly.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/src)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
function(tovangl_find_plugin_package result)
    set(package "")
    file(GLOB_RECURSE plugins
        /usr/lib/${CMAKE_LIBRARY_ARCHITECTURE}/qt${tovangl_qt_major}/libqoffscreen.so)
    if(plugins)
        list(GET plugins 0 plugin)
        execute_process(COMMAND dpkg-query --search ${plugin}
            OUTPUT_VARIABLE found ERROR_QUIET OUTPUT_STRIP_TRAILING_WHITESPACE)
        string(REGEX REPLACE "[:,].*" "" package "${found}")
    endif()
    set(${result} "${package}" PARENT_SCOPE)
endfunction()
tovangl_find_plugin_package(tovangl_plugin_package)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libtovangl${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS ${tovangl_plugin_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS fonts-dejavu-core)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/debian/triggers)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "Bar and pie charts as PNG images
A small library that draws bar charts and pie charts into PNG images in
memory. It needs no display, and its interface hides the toolkit that it
paints with.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libtovangl-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (= ${tovangl_debian_version})")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "Bar and pie charts as PNG images (development files)
A small library that draws bar charts and pie charts into PNG images in
memory.

This package contains the headers, and the files with which CMake and
pkg-config find the library.")

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME tovangl-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS
    "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (>= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_TOOLS_DESCRIPTION "Bar and pie charts from the command line
Programs that draw bar charts and pie charts as PNG images from lines of
text. They need no display.")

set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-tovangl)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
string(JOIN ", " CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
    "python3 (>= 3.10)" python3-cffi-backend
    "${CPACK_DEBIAN_RUNTIME_PACKAGE_NAME} (>= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA
    ${PROJECT_SOURCE_DIR}/packaging/debian/python/postinst
    ${PROJECT_SOURCE_DIR}/packaging/debian/python/prerm)
set(CPACK_DEBIAN_PYTHON_DESCRIPTION "Bar and pie charts as PNG images (Python 3)
A small library that draws bar charts and pie charts into PNG images in
memory. It needs no display.

This package lets programs and notebooks in Python 3 draw with it.")

# The files of every package in /usr/share/doc.
string(TIMESTAMP tovangl_changelog_date "%a, %d %b %Y 00:00:00 +0000" UTC)
set(tovangl_changelog ${PROJECT_BINARY_DIR}/packaging/changelog.Debian)
configure_file(${PROJECT_SOURCE_DIR}/packaging/debian/changelog.in ${tovangl_changelog} @ONLY)
execute_process(COMMAND gzip -9nf ${tovangl_changelog})
foreach(component ${CPACK_COMPONENTS_ALL})
    string(TOUPPER ${component} upper)
    install(FILES ${tovangl_changelog}.gz ${PROJECT_SOURCE_DIR}/packaging/debian/copyright
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME}
        COMPONENT ${component})
endforeach()
include(CPack)
