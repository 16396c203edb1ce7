#ifndef FINDINGLINE_H
#define FINDINGLINE_H

#include <RVCatalogueFinding.h>

#include <QString>

/// The pieces of a finding in the formats for people.
/// @{
/// "file:line:column".
QString placeText(const QString &fileName, const RVFilePosition &position);
/// The type of the product, ": " and the text; only the text if there is no type. One line.
QString typedText(const RVCatalogueFinding &finding);
/// The file of a related place of a finding in @p fileName.
QString fileOf(const RVRelatedPlace &place, const QString &fileName);
/// "file:line:column: severity: type: text [rule]", and a line "file:line:column: note: text" for each related place,
/// with line feeds between them.
QString findingLines(const QString &fileName, const RVCatalogueFinding &finding);
/// @}

#endif
