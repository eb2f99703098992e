# Adds random_charts, as it is here, to the build of another commit: that one is configured with this
# file as CMAKE_PROJECT_tovangl_INCLUDE. What the program links is there at the end, when the call
# is made; the file must be named now.
cmake_language(EVAL CODE
    "cmake_language(DEFER CALL include [[${CMAKE_CURRENT_LIST_DIR}/random_charts.cmake]])")
