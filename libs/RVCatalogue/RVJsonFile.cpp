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
    // The mark in front of a file is no letter of its first line; QString drops it.
    return rvAdvanced(RVFilePosition(), QString::fromUtf8(text.left(offset)).toUtf8(), '\0');
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
