# Finds the Qt that TOVANGL_QT names and defines tovangl_qt, the target for everything that links
# Qt. If TOVANGL_QT is unset, it takes Qt 5 if found and Qt 6 otherwise.
set(TOVANGL_QT "" CACHE STRING "Qt major version to build on: 5 or 6; empty: 5, else 6")
set_property(CACHE TOVANGL_QT PROPERTY STRINGS "" 5 6)

if(TOVANGL_QT STREQUAL "")
    find_package(Qt5 5.15 QUIET COMPONENTS Core Gui)
    if(Qt5_FOUND)
        set(tovangl_qt_major 5)
    else()
        set(tovangl_qt_major 6)
    endif()
elseif(TOVANGL_QT MATCHES "^[56]$")
    set(tovangl_qt_major ${TOVANGL_QT})
else()
    message(FATAL_ERROR "TOVANGL_QT is '${TOVANGL_QT}': it must be 5 or 6")
endif()

# The same choice as a package with components and targets, for hosts that link a static library.
set(tovangl_qt_package Qt${tovangl_qt_major})
set(tovangl_qt_components Core Gui)
if(tovangl_qt_major EQUAL 5)
    set(tovangl_qt_least 5.15)
else()
    set(tovangl_qt_least 6.4)
endif()
string(CONCAT tovangl_qt_pkgconfig
    "${tovangl_qt_package}Core >= ${tovangl_qt_least}, "
    "${tovangl_qt_package}Gui >= ${tovangl_qt_least}")
find_package(${tovangl_qt_package} ${tovangl_qt_least} REQUIRED
    COMPONENTS ${tovangl_qt_components})
list(TRANSFORM tovangl_qt_components PREPEND ${tovangl_qt_package}::
    OUTPUT_VARIABLE tovangl_qt_targets)

add_library(tovangl_qt INTERFACE)
target_link_libraries(tovangl_qt INTERFACE ${tovangl_qt_targets})
