#ifndef BASELINE_H
#define BASELINE_H

#include "Console.h"

#include <QMap>
#include <QString>
#include <QStringList>

class QJsonObject;
class RVCatalogueCheck;
class RVCatalogueFinding;

/**
 * The findings of an old catalogue that are known, so that only new ones count. A finding is known by its file, rule,
 * product type and text, wherever in the file it stands; two that are the same need to be known twice.
 *
 * The file is JSON with a line for each finding, sorted, and names catalogues from its own folder on.
 */
class Baseline
{
public:
    /// Without a file nothing is known.
    explicit Baseline(const QString &fileName = QString());

    /// Reads the file. False, with a message, where that is impossible.
    bool read(const Console &console);
    /// Writes the file and puts it in the place of the one before. False, with a message, where that is impossible.
    bool write(const Console &console) const;

    /// Adds a finding of a catalogue to those that are known.
    void add(const QString &catalogue, const RVCatalogueFinding &finding);
    /// True for a finding that is known, as often as it is.
    bool take(const QString &catalogue, const RVCatalogueFinding &finding);
    /// All findings of the catalogue were taken. Those that are left are mended, unless their rule is off.
    void finish(const QString &catalogue, const RVCatalogueCheck &check);

    QString fileName() const { return myFileName; }
    qint64 size() const; ///< All that are known.
    qint64 mended() const { return myMended; } ///< In the catalogues that are finished.

private:
    struct Count
    {
        qint64 known = 0;
        qint64 left = 0;
    };
    /// By rule, product type and text.
    using Counts = QMap<QStringList, Count>;

    QString name(const QString &catalogue) const;
    QStringList key(const RVCatalogueFinding &finding) const;
    bool fail(const Console &console, const QString &text) const;
    bool readEntries(const QByteArray &text, const Console &console);
    QString readEntry(const QJsonObject &entry);

    QString myFileName;
    QMap<QString, Counts> myCounts; // by the name of the catalogue
    qint64 myMended = 0;
};

#endif
