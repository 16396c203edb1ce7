#ifndef CATALOGUESESSION_H
#define CATALOGUESESSION_H

#include "CatalogueLoader.h"
#include "CatalogueServices.h"
#include "CatalogueWatcher.h"

/// The catalogue that is open: loads it, puts it behind the services, and loads it again when its file or its
/// configuration changes. When loading fails or is cancelled, the catalogue before it stays.
class CatalogueSession : public QObject
{
    Q_OBJECT

public:
    explicit CatalogueSession(QObject *parent = nullptr);

    void open(const QString &fileName);
    /// Reads the open file again; starts over with the one that is being loaded, or that could not be while there is
    /// none.
    void reload();
    void cancel() { myLoader.cancel(); }
    bool isLoading() const { return myLoader.isLoading(); }
    /// The open catalogue; null until one was loaded.
    CataloguePointer catalogue() const { return myServices.catalogue(); }
    /// A copy of the open file as it was when it was opened; null until one was loaded.
    std::shared_ptr<const FileCopy> original() const { return myOriginal; }

Q_SIGNALS:
    void started(const QString &fileName);
    void progressed(int percent);
    /// Loading is over, with or without success; comes before the next two.
    void ended();
    void catalogueChanged();
    void failed(const LoadError &error);
    /// The open file is gone; it is read again when it comes back.
    void vanished(const QString &fileName);

private:
    void load(const QString &fileName, const std::shared_ptr<FileCopy> &copy);
    void take(const CataloguePointer &catalogue);
    void fail(const LoadError &error);
    void giveUp();
    void noticeChange();
    void catchUp();

    CatalogueServices myServices;
    CatalogueLoader myLoader;
    CatalogueWatcher myWatcher;
    QString myFileName; // what was to be loaded last
    CatalogueStamp myStamp; // when loading began
    std::shared_ptr<FileCopy> myOriginal;
    std::shared_ptr<FileCopy> myCopy; // of what is being loaded; null while a file is only loaded again
    bool myHasMissedChange = false; // of the open file, while another one was being loaded
};

#endif
