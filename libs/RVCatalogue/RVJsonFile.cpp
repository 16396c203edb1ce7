#include "RVConfigurationTree_p.h"
#include "RVFilePosition_p.h"

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
    QString before = QString::fromUtf8(text.left(offset));
    if (before.startsWith(QChar::ByteOrderMark))
        before.remove(0, 1);
    return rvAdvanced(RVFilePosition(), before.toUtf8(), '\0');
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
