#ifndef RVPRODUCTCHANGES_P_H
#define RVPRODUCTCHANGES_P_H

#include "RVProductChange.h"

#include <RVDistance.h>

#include <QCoreApplication>
#include <QList>

#include <utility>

/// Texts of changes, in the language of the program: English, unless it has a translation.
class RVChangeText
{
    Q_DECLARE_TR_FUNCTIONS(RVChangeText)
};

/// The values of one thing in both versions of a product.
template<typename T>
struct RVVersions
{
    T before;
    T after;

    bool differ() const { return !(before == after); }
};

/// Collects the differences between two versions of a product.
class RVProductChanges
{
public:
    /// Sets the item of all changes up to the next item; @p prefix comes before their labels. Changes without an item
    /// are added first.
    void beginItem(const QString &prefix, const QJsonObject &item);

    /// Adds a change unless the values are equal. An empty text counts as missing.
    void addText(QLatin1StringView subject, const QString &label, const RVVersions<QString> &texts);
    void addNumber(QLatin1StringView subject, const QString &label, const RVVersions<int> &numbers);
    void addBoolean(QLatin1StringView subject, const QString &label, const RVVersions<bool> &booleans);
    void addLength(QLatin1StringView subject, const QString &label, const RVVersions<RVDistance> &lengths);
    /// Adds values that are known to differ.
    void add(QLatin1StringView subject, const QString &label, const RVVersions<RVComparedValue> &values);

    QList<RVProductChange> take() { return std::exchange(myChanges, {}); }

private:
    QList<RVProductChange> myChanges;
    QString myPrefix;
    QJsonObject myItem;
};

/// A text of the catalogue, in quotes and whole.
RVComparedValue rvComparedText(const QString &text);
RVComparedValue rvComparedNumber(int number);

/// True for lengths that RVDistance calls equal; infinite lengths and NaN are equal to themselves as well.
bool rvSameLength(const RVDistance &a, const RVDistance &b);
/// Both lengths in millimetres, with enough digits to distinguish them.
RVVersions<RVComparedValue> rvComparedLengths(const RVVersions<RVDistance> &lengths);
QString rvMillimetres(const RVDistance &length);

#endif
