# The headers of Qt that nearly every source here reads, parsed once. A source still includes what it uses: "./dev lint" reads
# each without this, and so do the tests of the package.
add_library(rv_precompiled OBJECT ${CMAKE_CURRENT_LIST_DIR}/precompiled.cpp)
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
