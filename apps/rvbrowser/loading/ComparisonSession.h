#ifndef COMPARISONSESSION_H
#define COMPARISONSESSION_H

#include "CatalogueSession.h"
#include "ComparisonLoader.h"

/// Compares the open catalogue with another file, or with itself as it was when it was opened. Both are compared again
/// whenever one of them changes. If that fails or is cancelled, the comparison before it stays.
class ComparisonSession : public QObject
{
    Q_OBJECT

public:
    /// @p session outlives this.
    explicit ComparisonSession(CatalogueSession *session, QObject *parent = nullptr);

    /// Compares the file, as the old one, with the open catalogue. If none is open, this waits until one is loaded.
    void compareWith(const QString &fileName);
    void compareWithOriginal();
    /// The open catalogue becomes the old one, or the new one again.
    void swap();
    void close();
    void cancel() { myLoader.cancel(); }

    bool isComparing() const { return myLoader.isLoading(); }
    /// True from when a comparison is asked for until it is closed.
    bool isActive() const { return myKind != Kind::None; }
    ComparisonPointer comparison() const { return myComparison; } ///< The comparison; null until one was made.
    /// The number of a product of the comparison in the open catalogue; -1 if only the other one has it.
    int indexInOpen(int product) const;

Q_SIGNALS:
    /// Another comparison was asked for.
    void begun();
    /// Catalogues are being compared, or compared again.
    void started(const ComparedFiles &files);
    void progressed(int percent);
    /// Comparing is over, with or without success; comes before changed() and failed().
    void ended();
    /// There is another comparison, or none after it was closed.
    void changed();
    void failed(const LoadError &error);
    /// The other file is gone; it is compared again when it comes back.
    void vanished(const QString &fileName);

private:
    enum class Kind { None, File, Original };

    void start();
    void begin(Kind kind, const QString &fileName);
    ComparedFile other() const;
    void take(const ComparisonPointer &comparison);
    void watch();

    CatalogueSession *mySession;
    ComparisonLoader myLoader;
    CatalogueWatcher myWatcher; // of the other file
    CatalogueStamp myStamp; // when comparing began
    Kind myKind = Kind::None;
    QString myFileName; // of the other file
    bool myIsOpenOld = false; // the open catalogue is the old one
    bool myIsComparedOpenOld = false; // and was so in the comparison
    ComparisonPointer myComparison;
};

#endif
