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
