# Finds what PNG files are compressed with, as the list of targets tovangl_compressors: libdeflate, and
# zlib, which finds where its streams can be joined.
find_package(libdeflate REQUIRED)
find_package(ZLIB REQUIRED)
set(tovangl_compressors libdeflate::libdeflate ZLIB::ZLIB)
set(tovangl_compressor_packages libdeflate ZLIB)
set(tovangl_compressor_pkgconfig libdeflate zlib)
