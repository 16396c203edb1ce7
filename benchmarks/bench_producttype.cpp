// Finding the family of a product code, compared with a regular expression that is compiled once.
#include "Comparison.h"

#include <RVProductType.h>

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

struct Type
{
    QString name;
    std::size_t hash = 0;
};

Type normaliseWithExpression(const QString &code)
{
    static const QRegularExpression family = [] {
        QRegularExpression expression(u"((?:DUN|DUNS)\\d+)"_s);
        expression.optimize();
        return expression;
    }();
    const QRegularExpressionMatch match = family.match(code);
    const QString name = match.hasMatch() ? match.captured(1) : code;
    return { name, qHash(name, 0) };
}

/// A copy of the code and its hash, which every type has.
Type hashed(const QString &code)
{
    return { code, qHash(code, 0) };
}

bool sameType(const RVProductType &ours, const Type &theirs)
{
    return ours.toString() == theirs.name && ours.calcHashValue() == theirs.hash;
}

QStringList familyCodes()
{
    const QStringList endings { u"_30"_s, u""_s, u"_21x28_HC"_s, u"A"_s, u"_matt"_s };
    QStringList result;
    for (int i = 0; i < CORPUS_SIZE; ++i)
        result += (i % 5 == 0 ? u"DUNS"_s : u"DUN"_s) + QString::number(i % 99 + 1) + endings.at(i % endings.size());
    return result;
}

QStringList otherCodes()
{
    const QStringList beginnings { u"VIR"_s, u"KUR"_s, u"QO"_s, u"DOS"_s, u"TEV"_s, u"JOT_"_s, u"BIX"_s };
    const QStringList endings { u""_s, u"_A3"_s, u"_panorama"_s };
    QStringList result;
    for (int i = 0; i < CORPUS_SIZE; ++i)
        result += beginnings.at(i % beginnings.size()) + QString::number(i) + endings.at(i % endings.size());
    return result;
}

}

void addBenchmarks()
{
    const auto normalise = [](const QString &code) { return RVProductType(code); };
    Comparison("RVProductType_family", familyCodes(), normalise)
            .against("expression", normaliseWithExpression, sameType)
            .above(familyCodes(), hashed);
    Comparison("RVProductType_other", otherCodes(), normalise)
            .against("expression", normaliseWithExpression, sameType)
            .above(otherCodes(), hashed);
}
