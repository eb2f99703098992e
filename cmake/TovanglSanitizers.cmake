# TOVANGL_SANITIZE: a sanitizer list as the compiler takes it, e.g. "address,undefined" or "thread".
# It covers every target of the build, tests and programs included. A report names lines, and no
# more is told to the linker.
set(TOVANGL_SANITIZE "" CACHE STRING "Sanitizers to build with, as in -fsanitize=LIST")

if(TOVANGL_SANITIZE)
    add_compile_options(-fsanitize=${TOVANGL_SANITIZE} -fno-sanitize-recover=all
                        -fno-omit-frame-pointer -g1)
    add_link_options(-fsanitize=${TOVANGL_SANITIZE})
endif()
