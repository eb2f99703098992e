# What `cmake --install` installs. All paths are relative, so that the installed tree can be moved.
# Components: runtime, development, tools; bindings/python adds python.
include(CMakePackageConfigHelpers)

set(tovangl_config_dir ${CMAKE_INSTALL_LIBDIR}/cmake/tovangl)
set(tovangl_pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

install(TARGETS tovangl EXPORT tovanglTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/tovangl
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development
    FILES_MATCHING PATTERN "*.h")

# find_package(tovangl): a static library needs the Qt and the compressors that it was built on.
if(BUILD_SHARED_LIBS)
    set(tovangl_dependencies "")
else()
    foreach(package ${tovangl_compressor_packages})
        string(APPEND tovangl_find_compressors "find_dependency(${package})\n")
        # Of the others CMake knows itself how to find them.
        if(EXISTS ${PROJECT_SOURCE_DIR}/cmake/Find${package}.cmake)
            install(FILES ${PROJECT_SOURCE_DIR}/cmake/Find${package}.cmake
                DESTINATION ${tovangl_config_dir} COMPONENT development)
        endif()
    endforeach()
    configure_file(${PROJECT_SOURCE_DIR}/cmake/static_dependencies.cmake.in
        ${CMAKE_CURRENT_BINARY_DIR}/static_dependencies.cmake @ONLY)
    file(READ ${CMAKE_CURRENT_BINARY_DIR}/static_dependencies.cmake tovangl_dependencies)
endif()
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/tovanglConfig.cmake.in
    ${CMAKE_CURRENT_BINARY_DIR}/tovanglConfig.cmake
    INSTALL_DESTINATION ${tovangl_config_dir}
    NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/tovanglConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(EXPORT tovanglTargets NAMESPACE tovangl::
    DESTINATION ${tovangl_config_dir} COMPONENT development)
install(FILES
    ${CMAKE_CURRENT_BINARY_DIR}/tovanglConfig.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/tovanglConfigVersion.cmake
    DESTINATION ${tovangl_config_dir} COMPONENT development)

# pkg-config
set(tovangl_pc_private "")
if(NOT BUILD_SHARED_LIBS)
    list(JOIN tovangl_compressor_pkgconfig ", " tovangl_pc_compressors)
    set(tovangl_pc_private "Requires.private: ${tovangl_qt_pkgconfig}, ${tovangl_pc_compressors}
Libs.private: -Wl,-z,nodelete ${CMAKE_THREAD_LIBS_INIT} -lstdc++ -lm
")
endif()
file(RELATIVE_PATH tovangl_pc_libdir ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH tovangl_pc_includedir ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
file(RELATIVE_PATH tovangl_pc_to_prefix
    ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" tovangl_pc_to_prefix ${tovangl_pc_to_prefix})
configure_file(${PROJECT_SOURCE_DIR}/cmake/tovangl.pc.in
    ${CMAKE_CURRENT_BINARY_DIR}/tovangl.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/tovangl.pc
    DESTINATION ${tovangl_pkgconfig_dir} COMPONENT development)

# The programs, with the files that belong to each. They find the library by a relative run path,
# wherever the prefix is moved. In a system prefix the loader finds it anyway, and distributions
# forbid a run path.
if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    file(RELATIVE_PATH tovangl_bin_to_lib
        ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
    set(tovangl_run_path "$ORIGIN/${tovangl_bin_to_lib}")
endif()

# A system's manual pages are compressed.
function(tovangl_prepare_page result name)
    set(page ${CMAKE_CURRENT_BINARY_DIR}/${name}.1)
    configure_file(${PROJECT_SOURCE_DIR}/apps/man/${name}.1 ${page} COPYONLY)
    if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
        execute_process(COMMAND gzip -9nkf ${page})
        set(page ${page}.gz)
    endif()
    set(${result} ${page} PARENT_SCOPE)
endfunction()

function(tovangl_install_program name)
    tovangl_prepare_page(page ${name})
    set(completions ${PROJECT_SOURCE_DIR}/apps/completions)
    set_target_properties(${name} PROPERTIES INSTALL_RPATH "${tovangl_run_path}")
    install(TARGETS ${name} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT tools)
    install(FILES ${page}
        DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tools)
    install(FILES ${completions}/${name}.bash RENAME ${name}
        DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT tools)
    install(FILES ${completions}/_${name}
        DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/vendor-completions COMPONENT tools)
    install(FILES ${completions}/${name}.fish
        DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT tools)
endfunction()

foreach(program tovangl-chart tovangl-du)
    if(TARGET ${program})
        tovangl_install_program(${program})
    endif()
endforeach()
if(TARGET tovangl-chart)
    get_target_property(tovangl_chart_binary_dir tovangl-chart BINARY_DIR)
    install(FILES ${tovangl_chart_binary_dir}/chart.schema.json
        DESTINATION ${CMAKE_INSTALL_DATADIR}/tovangl COMPONENT tools)
endif()
