# Finds a Python that has cffi and setuptools, and its headers: cffi_PYTHON and cffi_INCLUDE_DIR.
# The system's Python is preferred to one of the user's own, because it has the system's packages.
# What is built with either can be imported by both.
find_program(cffi_SYSTEM_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH)
find_program(cffi_OWN_PYTHON python3)
mark_as_advanced(cffi_SYSTEM_PYTHON cffi_OWN_PYTHON)

set(cffi_PYTHON "")
foreach(python ${cffi_SYSTEM_PYTHON} ${cffi_OWN_PYTHON})
    if(NOT cffi_PYTHON)
        execute_process(
            COMMAND ${python} -c
                "import cffi, setuptools, sysconfig; print(sysconfig.get_paths()['include'])"
            RESULT_VARIABLE result OUTPUT_VARIABLE include ERROR_QUIET
            OUTPUT_STRIP_TRAILING_WHITESPACE)
        if(result EQUAL 0 AND EXISTS ${include}/Python.h)
            set(cffi_PYTHON ${python})
            set(cffi_INCLUDE_DIR ${include})
        endif()
    endif()
endforeach()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(cffi REQUIRED_VARS cffi_PYTHON cffi_INCLUDE_DIR)
