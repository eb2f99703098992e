# The program random_charts. It is built twice: here, and in the tree of another commit against the
# library of that one. So it takes nothing from the tests but sources that see the public headers alone.
add_executable(random_charts
    ${CMAKE_CURRENT_LIST_DIR}/CChartNotes.cpp
    ${CMAKE_CURRENT_LIST_DIR}/batch_run.cpp
    ${CMAKE_CURRENT_LIST_DIR}/random_chart.cpp
    ${CMAKE_CURRENT_LIST_DIR}/random_charts_main.cpp
    ${CMAKE_CURRENT_LIST_DIR}/random_inputs.cpp
    ${CMAKE_CURRENT_LIST_DIR}/../support/CAnyChart.cpp
    ${CMAKE_CURRENT_LIST_DIR}/../support/png_decoding.cpp)
target_include_directories(random_charts PRIVATE ${CMAKE_CURRENT_LIST_DIR}/..)
target_compile_features(random_charts PRIVATE cxx_std_17)
target_link_libraries(random_charts PRIVATE tovangl tovangl_qt)
tovangl_warnings(random_charts)
