#include "RVConfigurationTree_p.h"

RVFilePosition RVConfigurationTree::inFile(const RVFilePosition &position) const
{
    const QByteArray line = encodedText.split('\n').value(position.line - 1);
    const QByteArray before = line.left(position.column - 1);
    const QString letters = QString::fromUtf8(QByteArray::fromPercentEncoding(before, RV_CONFIGURATION_MARK));
    // A place behind the end of the line, such as that of a missing quote, keeps its distance from the end.
    return { position.line, letters.size() + position.column - before.size() };
}
