# What is built. A project that adds this one as a subdirectory gets the library alone, shared or
# static as its own libraries are.

# tovangl_option_if_found(option text package...): on by default where these packages are at hand, so
# that a plain build never fails for want of them.
function(tovangl_option_if_found option text)
    set(default ${tovangl_is_top_level})
    foreach(package ${ARGN})
        if(default AND NOT DEFINED ${option})
            find_package(${package} QUIET)
            if(NOT ${package}_FOUND)
                message(STATUS "tovangl: there is no ${package}, so ${option} is off")
                set(default OFF)
            endif()
        endif()
    endforeach()
    option(${option} ${text} ${default})
endfunction()

if(tovangl_is_top_level)
    option(BUILD_SHARED_LIBS "Build a shared library" ON)
endif()
tovangl_option_if_found(TOVANGL_BUILD_APPS "Build the command-line programs" CLI11 nlohmann_json)
tovangl_option_if_found(TOVANGL_BUILD_TESTS "Build the tests" GTest)
option(TOVANGL_BUILD_EXAMPLES "Build the examples" ${tovangl_is_top_level})
option(TOVANGL_BUILD_BENCHMARKS "Build the benchmarks" OFF)
option(TOVANGL_BUILD_FUZZERS "Build the fuzz targets, which clang can" OFF)
option(TOVANGL_INSTALL "Generate install rules" ${tovangl_is_top_level})
set(TOVANGL_MAINTAINER "The tovangl authors <authors@tovangl.example>" CACHE STRING
    "Who the packages name")
