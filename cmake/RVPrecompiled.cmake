# The headers of Qt that nearly every source here reads, parsed once. A source still includes the headers that it uses:
# the test package_system_platform compiles each source alone and without this.
add_library(rv_precompiled OBJECT ${CMAKE_CURRENT_LIST_DIR}/precompiled.cpp)
set_target_properties(rv_precompiled PROPERTIES POSITION_INDEPENDENT_CODE ON)
target_link_libraries(rv_precompiled PRIVATE Qt6::Core Qt6::Xml)
target_precompile_headers(rv_precompiled PRIVATE
    <QCoreApplication>
    <QDebug>
    <QDomElement>
    <QHash>
    <QList>
    <QMap>
    <QRegularExpression>
    <QSet>
    <QString>
    <QStringList>
)

# rv_use_precompiled(target precompiled): a precompiled header needs the same setting of position-independent code in
# all targets. Shared libraries need such code, so programs have it, too.
function(rv_use_precompiled target precompiled)
    target_precompile_headers(${target} REUSE_FROM ${precompiled})
    if(UNIX)
        target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:-fPIC>)
    endif()
endfunction()
