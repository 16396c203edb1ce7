#include "RVConfigurationTree_p.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonParseError>

namespace {

class RVJsonFile
{
    Q_DECLARE_TR_FUNCTIONS(RVCheckConfiguration)

public:
    static std::optional<RVConfigurationFault> read(const QByteArray &text, RVConfigurationTree *tree);
};

RVFilePosition positionAt(const QByteArray &text, qsizetype offset)
{
    const QByteArray before = text.left(offset);
    const qsizetype lineBegin = before.lastIndexOf('\n') + 1;
    QString line = QString::fromUtf8(before.mid(lineBegin));
    if (line.startsWith(QChar::ByteOrderMark))
        line.remove(0, 1);
    return { before.count('\n') + 1, line.size() + 1 };
}

std::optional<RVConfigurationFault> RVJsonFile::read(const QByteArray &text, RVConfigurationTree *tree)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError)
        return RVConfigurationFault { tr("this is no JSON: %1").arg(error.errorString()),
                                      positionAt(text, error.offset) };
    if (!document.isObject())
        return RVConfigurationFault { tr("this is no JSON object"), RVFilePosition() };
    tree->root = document.object();
    return std::nullopt;
}

}

std::optional<RVConfigurationFault> rvReadJson(const QByteArray &text, RVConfigurationTree *tree)
{
    return RVJsonFile::read(text, tree);
}
