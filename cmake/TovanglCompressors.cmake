# Finds what PNG files are compressed with, as the list of targets tovangl_compressors: libdeflate,
# zlib, which finds where its streams can be joined, and ISA-L for the setting Fast where TOVANGL_ISAL
# is on.
find_package(libdeflate REQUIRED)
find_package(ZLIB REQUIRED)
set(tovangl_compressors libdeflate::libdeflate ZLIB::ZLIB)
set(tovangl_compressor_packages libdeflate ZLIB)
set(tovangl_compressor_pkgconfig libdeflate zlib)

find_package(isal QUIET)
option(TOVANGL_ISAL "Compress with ISA-L where speed is asked for" ${isal_FOUND})
if(TOVANGL_ISAL)
    find_package(isal REQUIRED)
    list(APPEND tovangl_compressors isal::isal)
    list(APPEND tovangl_compressor_packages isal)
    list(APPEND tovangl_compressor_pkgconfig libisal)
endif()

set(tovangl_isal_lacking "")
if(NOT isal_FOUND)
    set(tovangl_isal_lacking libisal)
endif()
tovangl_summary_option("ISA-L" TOVANGL_ISAL ${tovangl_isal_lacking})
