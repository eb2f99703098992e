# What is built. A project that adds this one as a subdirectory gets only the library, shared or
# static like its own libraries.
include(TovanglSummary)

# tovangl_part(name option text default [package...]): a part that can be built, and its line in the
# summary. A part that is on by default is off if a package is missing, so that a plain build never
# fails for lack of it. This is not cached, so that the next configuration looks again.
function(tovangl_part name option text default)
    set(lacking "")
    foreach(package ${ARGN})
        if(default AND NOT DEFINED ${option})
            find_package(${package} QUIET)
            if(NOT ${package}_FOUND)
                list(APPEND lacking ${package})
            endif()
        endif()
    endforeach()
    if(lacking)
        set(${option} OFF)
        set(${option} OFF PARENT_SCOPE)
    else()
        option(${option} ${text} ${default})
    endif()
    tovangl_summary_option("${name}" ${option} ${lacking})
endfunction()

if(tovangl_is_top_level)
    option(BUILD_SHARED_LIBS "Build a shared library" ON)
endif()
tovangl_part(Programs TOVANGL_BUILD_APPS "Build the command-line programs" ${tovangl_is_top_level}
    CLI11 nlohmann_json)
if(TOVANGL_BUILD_APPS)
    tovangl_part("CSV files" TOVANGL_CSV "Let tovangl-chart read CSV files" ON libcsv)
    tovangl_part("Tar archives" TOVANGL_TAR "Let tovangl-chart batch write tar archives" ON LibArchive)
endif()
# An interpreter without a sanitizer's runtime cannot load what was built with it.
if(TOVANGL_SANITIZE)
    set(tovangl_wants_python OFF)
else()
    set(tovangl_wants_python ${tovangl_is_top_level})
endif()
tovangl_part(Python TOVANGL_BUILD_PYTHON "Build the Python package" ${tovangl_wants_python} cffi)
tovangl_part(Tests TOVANGL_BUILD_TESTS "Build the tests" ${tovangl_is_top_level} GTest)
tovangl_part(Examples TOVANGL_BUILD_EXAMPLES "Build the examples" ${tovangl_is_top_level})
tovangl_part(Benchmarks TOVANGL_BUILD_BENCHMARKS "Build the benchmarks" OFF)
tovangl_part("Fuzz targets" TOVANGL_BUILD_FUZZERS "Build the fuzz targets (needs clang)" OFF)
# For builds with tests: they take two thirds of the time, but a source compiles even if it forgets one
# of these headers. Builds for users, and those through a compiler cache, parse them for each source.
option(TOVANGL_PRECOMPILED_HEADERS "Parse the headers that most sources include only once" OFF)
# For the same builds: a failing case then hides those after it, but most cases take less time than
# the start of a process with a sanitizer.
option(TOVANGL_TESTS_BY_PROGRAM "Run each test program once, instead of once for each case" OFF)
option(TOVANGL_INSTALL "Generate install rules" ${tovangl_is_top_level})
set(TOVANGL_MAINTAINER "The tovangl authors <authors@tovangl.example>" CACHE STRING
    "The maintainer that the packages name")
