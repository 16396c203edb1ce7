#ifndef BASELINE_H
#define BASELINE_H

#include "Console.h"

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

class QJsonObject;
class RVCatalogueCheck;
class RVCatalogueFinding;

/**
 * The known findings of an old catalogue, so that only new ones count. A finding is known by its file, rule, product
 * type and text, at any place in the file; two equal findings must be known twice.
 *
 * The file is JSON with a line for each finding, sorted. Its names of catalogues are relative to its folder. The name
 * "-" is that of the standard input and output.
 */
class Baseline
{
public:
    /// A baseline without known findings.
    explicit Baseline(const QString &fileName = QString());

    /// Reads the file. False, with a message, if that is impossible.
    bool read(const Console &console);
    /// Writes the file and replaces the old one. False, with a message, if that is impossible.
    bool write(const Console &console) const;
    /// True if there is no file, or one that may be an old baseline. False, with a message, for any other one.
    bool isReplaceable(const Console &console) const;

    /// Adds a finding of a catalogue to the known ones.
    void add(const QString &catalogue, const RVCatalogueFinding &finding);
    /// True for a known finding, as many times as it is known.
    bool take(const QString &catalogue, const RVCatalogueFinding &finding);
    /// Ends a catalogue. Its findings that were not taken are mended, unless their rule is off.
    void finish(const QString &catalogue, const RVCatalogueCheck &check);

    QString fileName() const { return myFileName; }
    qint64 size() const; ///< The number of known findings.
    qint64 mended() const { return myMended; } ///< The number of mended findings in the finished catalogues.

private:
    struct Count
    {
        qint64 known = 0;
        qint64 left = 0;
    };
    /// The findings by rule, product type and text.
    using Counts = QMap<QStringList, Count>;

    QString name(const QString &catalogue) const;
    QStringList key(const RVCatalogueFinding &finding) const;
    bool fail(const Console &console, const QString &text) const;
    bool readEntries(const QByteArray &text, const Console &console);
    QString readEntry(const QJsonObject &entry);

    QString myFileName;
    QMap<QString, Counts> myCounts; // by the name of the catalogue
    mutable QHash<QString, QString> myNames; // of the catalogues, because a finding asks for it
    qint64 myMended = 0;
};

#endif
