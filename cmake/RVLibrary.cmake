# The common parts of the libraries: their headers are included and installed in the same way.

if(RV_INSTALL)
    include(CMakePackageConfigHelpers)
    include(GNUInstallDirs)
endif()

# rv_add_shared_library(RVName SOURCES... HEADERS... LOCAL_SYMBOLS map)
# Makes the shared library libRVName.so with the export macro of RVNameExport.h; the target is RV::Name. The map lists
# the symbols that the linker hides.
function(rv_add_shared_library name)
    cmake_parse_arguments(arg "" "LOCAL_SYMBOLS" "SOURCES;HEADERS" ${ARGN})
    if(NOT arg_LOCAL_SYMBOLS)
        set(arg_LOCAL_SYMBOLS ${PROJECT_SOURCE_DIR}/cmake/local_symbols.map)
    endif()
    string(REGEX REPLACE "^RV" "" short_name ${name})
    string(TOUPPER ${name}_LIBRARY build_macro)

    add_library(${name} SHARED ${arg_SOURCES})
    add_library(RV::${short_name} ALIAS ${name})
    set_target_properties(${name} PROPERTIES
        EXPORT_NAME ${short_name}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
    )
    target_compile_definitions(${name} PRIVATE ${build_macro})
    target_compile_features(${name} PUBLIC cxx_std_17)
    if(UNIX AND NOT APPLE)
        target_link_options(${name} PRIVATE LINKER:--version-script=${arg_LOCAL_SYMBOLS})
        set_property(TARGET ${name} APPEND PROPERTY LINK_DEPENDS ${arg_LOCAL_SYMBOLS})
    endif()
    rv_add_headers(${name} PUBLIC ${arg_HEADERS})
endfunction()

# rv_add_headers(RVName PUBLIC|INTERFACE HEADERS...)
# Headers are included as <RVName/Header.h> and as "Header.h", in the tree and installed.
function(rv_add_headers name scope)
    target_sources(${name} ${scope}
        FILE_SET HEADERS
        BASE_DIRS ${PROJECT_SOURCE_DIR}/libs
        FILES ${ARGN}
    )
    target_include_directories(${name} ${scope}
        $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/${name}>
    )
    if(RV_INSTALL)
        rv_install_library(${name})
    endif()
endfunction()

# rv_install_library(RVName)
# The CMake package RVName finds the dependencies in RVNameConfig.cmake.in. The install component RVName has the files
# for running programs, and RVNameDevelopment those for building them.
function(rv_install_library name)
    set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${name})
    set(development ${name}Development)
    install(TARGETS ${name}
        EXPORT ${name}Targets
        RUNTIME COMPONENT ${name}
        LIBRARY COMPONENT ${name} NAMELINK_COMPONENT ${development}
        ARCHIVE COMPONENT ${development}
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT ${development}
    )
    install(EXPORT ${name}Targets
        NAMESPACE RV::
        DESTINATION ${package_dir}
        COMPONENT ${development}
    )
    set(translations_dir ${CMAKE_INSTALL_DATADIR}/${name}/translations)
    configure_package_config_file(${name}Config.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/${name}Config.cmake
        INSTALL_DESTINATION ${package_dir}
        PATH_VARS translations_dir
    )
    write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/${name}ConfigVersion.cmake
        COMPATIBILITY SameMinorVersion
    )
    install(
        FILES
            ${CMAKE_CURRENT_BINARY_DIR}/${name}Config.cmake
            ${CMAKE_CURRENT_BINARY_DIR}/${name}ConfigVersion.cmake
        DESTINATION ${package_dir}
        COMPONENT ${development}
    )
endfunction()

# rv_find_translations(RVName)
# The library finds its translations from its own place, so the installed tree can be moved.
function(rv_find_translations name)
    include(GNUInstallDirs)
    file(RELATIVE_PATH data /${CMAKE_INSTALL_LIBDIR} /${CMAKE_INSTALL_DATADIR})
    target_compile_definitions(${name} PRIVATE RV_DATA_FROM_LIBRARY="${data}")
    target_link_libraries(${name} PRIVATE ${CMAKE_DL_LIBS})
endfunction()

# rv_install_pkg_config(RVName)
# Installs the pkg-config file RVName.pc, made from RVName.pc.in. The installed tree can be moved: the file computes its
# prefix from its own place.
function(rv_install_pkg_config name)
    if(NOT RV_INSTALL)
        return()
    endif()
    file(RELATIVE_PATH RV_PC_PREFIX /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
    string(REGEX REPLACE "/$" "" RV_PC_PREFIX ${RV_PC_PREFIX})
    configure_file(${name}.pc.in ${name}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
        COMPONENT ${name}Development
    )
endfunction()
