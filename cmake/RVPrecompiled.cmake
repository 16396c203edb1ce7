# The headers of Qt that nearly every source here reads, parsed once. A source still includes what it uses: "./dev lint" reads
# each without this, and so does a test of the package.
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

# rv_use_precompiled(target precompiled): a compiler takes what it has precompiled only for code that is independent of its
# position in the same way. That of a shared library has to be, so that of a program is, too.
function(rv_use_precompiled target precompiled)
    target_precompile_headers(${target} REUSE_FROM ${precompiled})
    if(UNIX)
        target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:-fPIC>)
    endif()
endfunction()
