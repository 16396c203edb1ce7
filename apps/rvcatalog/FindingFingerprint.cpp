#include "FindingFingerprint.h"

#include <RVCatalogueFinding.h>

#include <QCryptographicHash>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

QString findingTextWithoutLines(const RVCatalogueFinding &finding)
{
    static const QRegularExpression line(u"\\bline [0-9]+"_s);
    return finding.text().replace(line, u"line"_s);
}

QByteArray findingFingerprint(const RVCatalogueFinding &finding)
{
    constexpr QChar separator = u'\0'; // XML cannot have it
    const QString identity = finding.rule().name() + separator + finding.productType() + separator
            + findingTextWithoutLines(finding);
    return QCryptographicHash::hash(identity.toUtf8(), QCryptographicHash::Sha256).toHex();
}
