# Settings that apply only if this tree is built on its own, not as a part of another project.

get_property(RV_MULTI_CONFIG GLOBAL PROPERTY GENERATOR_IS_MULTI_CONFIG)
if(NOT RV_MULTI_CONFIG AND NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Kind of build" FORCE)
endif()

add_compile_options(
    "$<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:-Wall;-Wextra;-Wpedantic;-Wshadow;-Wnon-virtual-dtor;-Woverloaded-virtual>"
)
# clang links the runtime of the sanitizers only into programs.
if(UNIX AND NOT APPLE AND NOT RV_FUZZ)
    add_link_options(LINKER:--no-undefined)
endif()

# ccache is used if it is found, unless -DCMAKE_CXX_COMPILER_LAUNCHER=… is given. ccache compares precompiled headers
# with all their definitions, and no source uses the time of the build.
find_program(CCACHE_PROGRAM ccache)
mark_as_advanced(CCACHE_PROGRAM)
if(CCACHE_PROGRAM AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM}
    )
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endif()

# An installed program finds the libraries beside it in every prefix; in /usr the system finds them.
include(GNUInstallDirs)
if(APPLE)
    set(CMAKE_INSTALL_RPATH "@loader_path/../${CMAKE_INSTALL_LIBDIR}")
elseif(UNIX AND NOT CMAKE_INSTALL_PREFIX MATCHES "^/usr/?$")
    set(CMAKE_INSTALL_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")
endif()

if(BUILD_TESTING)
    enable_testing()
endif()
