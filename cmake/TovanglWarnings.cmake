# tovangl_warnings(target): the project's warnings. They are errors only where TOVANGL_WERROR is on
# (developer and CI presets): a newer compiler must never fail a user's build.
option(TOVANGL_WERROR "Treat warnings as errors" OFF)

function(tovangl_warnings target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
        -Woverloaded-virtual -Wnon-virtual-dtor -Wsuggest-override)
    if(TOVANGL_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()

# tovangl_c99(target): a program in strict C99, which needs nothing but the library's C header. A
# sanitizer's runtime for C++ comes with the linker of C++.
function(tovangl_c99 target)
    set_target_properties(${target} PROPERTIES
        C_STANDARD 99
        C_STANDARD_REQUIRED ON
        C_EXTENSIONS OFF)
    target_compile_options(${target} PRIVATE -pedantic -Wall -Wextra)
    if(TOVANGL_WERROR)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    if(TOVANGL_SANITIZE)
        set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
    endif()
endfunction()
