# Finds what PNG files are compressed with, as the list of targets tovangl_compressors: libdeflate,
# and ISA-L for the setting Fast where TOVANGL_ISAL is on. tovangl_fast_compressor names the one that
# Fast uses.
find_package(libdeflate REQUIRED)
set(tovangl_compressors libdeflate::libdeflate)
set(tovangl_compressor_packages libdeflate)
set(tovangl_compressor_pkgconfig libdeflate)
set(tovangl_fast_compressor libdeflate)

if(NOT DEFINED TOVANGL_ISAL)
    find_package(isal QUIET)
endif()
option(TOVANGL_ISAL "Compress with ISA-L where speed is asked for" ${isal_FOUND})
if(TOVANGL_ISAL)
    find_package(isal REQUIRED)
    list(APPEND tovangl_compressors isal::isal)
    list(APPEND tovangl_compressor_packages isal)
    list(APPEND tovangl_compressor_pkgconfig libisal)
    set(tovangl_fast_compressor ISA-L)
endif()
message(STATUS "tovangl: Compression::Fast uses ${tovangl_fast_compressor}")
