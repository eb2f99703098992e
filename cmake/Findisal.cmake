# Finds ISA-L and defines the target isal::isal.
find_path(isal_INCLUDE_DIR isa-l/igzip_lib.h)
find_library(isal_LIBRARY NAMES isal)
mark_as_advanced(isal_INCLUDE_DIR isal_LIBRARY)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(isal REQUIRED_VARS isal_LIBRARY isal_INCLUDE_DIR)

if(isal_FOUND AND NOT TARGET isal::isal)
    add_library(isal::isal UNKNOWN IMPORTED)
    set_target_properties(isal::isal PROPERTIES
        IMPORTED_LOCATION ${isal_LIBRARY}
        INTERFACE_INCLUDE_DIRECTORIES ${isal_INCLUDE_DIR})
endif()
