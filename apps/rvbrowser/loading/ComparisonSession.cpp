#include "ComparisonSession.h"

#include <QLocale>

ComparisonSession::ComparisonSession(CatalogueSession *session, QObject *parent) : QObject(parent), mySession(session)
{
    connect(mySession, &CatalogueSession::catalogueChanged, this, &ComparisonSession::start);
    connect(&myLoader, &ComparisonLoader::progressed, this, &ComparisonSession::progressed);
    connect(&myLoader, &ComparisonLoader::compared, this, &ComparisonSession::take);
    connect(&myLoader, &ComparisonLoader::failed, this, [this](const LoadError &error) {
        Q_EMIT ended();
        Q_EMIT failed(error);
        watch();
    });
    connect(&myLoader, &ComparisonLoader::cancelled, this, &ComparisonSession::ended);
    connect(&myWatcher, &CatalogueWatcher::changed, this, [this] {
        if (myKind == Kind::File)
            start();
    });
    connect(&myWatcher, &CatalogueWatcher::vanished, this, [this] {
        if (myKind == Kind::File)
            Q_EMIT vanished(myWatcher.fileName());
    });
}

void ComparisonSession::compareWith(const QString &fileName)
{
    begin(Kind::File, fileName);
}

void ComparisonSession::compareWithOriginal()
{
    begin(Kind::Original, QString());
}

void ComparisonSession::swap()
{
    myIsOpenOld = !myIsOpenOld;
    start();
}

void ComparisonSession::close()
{
    const bool wasComparing = isComparing();
    myLoader.giveUp();
    myKind = Kind::None;
    myComparison = nullptr;
    if (wasComparing)
        Q_EMIT ended();
    Q_EMIT changed();
}

int ComparisonSession::indexInOpen(int product) const
{
    const ComparedProduct &compared = myComparison->at(product);
    if (compared.kind == (myIsComparedOpenOld ? RVChangeKind::Added : RVChangeKind::Removed))
        return -1;
    const RVProductType &type = myIsComparedOpenOld ? compared.oldType : compared.newType;
    return mySession->catalogue()->indexOf(type, myIsComparedOpenOld ? compared.oldPosition : compared.newPosition);
}

void ComparisonSession::begin(Kind kind, const QString &fileName)
{
    myKind = kind;
    myFileName = fileName;
    myIsOpenOld = false;
    Q_EMIT begun();
    start();
}

void ComparisonSession::start()
{
    if (!isActive() || !mySession->catalogue())
        return;
    const QString openName = mySession->catalogue()->fileName();
    const ComparedFile open { openName, openName };
    const ComparedFile another = other();
    if (another.path.isEmpty()) {
        Q_EMIT failed({ another.fileName, std::nullopt,
                        tr("no copy of the file could be kept when it was opened: %1")
                                .arg(mySession->original()->errorString()) });
        return;
    }
    myStamp = CatalogueStamp::of(myFileName);
    const ComparedFiles files = myIsOpenOld ? ComparedFiles { open, another } : ComparedFiles { another, open };
    myLoader.start(files);
    Q_EMIT started(files);
}

ComparedFile ComparisonSession::other() const
{
    if (myKind == Kind::File)
        return { myFileName, myFileName };
    const auto original = mySession->original();
    const QString time = QLocale().toString(original->begun().time(), QLocale::ShortFormat);
    return { tr("%1 of %2").arg(original->source(), time), original->fileName(), original };
}

void ComparisonSession::take(const ComparisonPointer &comparison)
{
    myComparison = comparison;
    myIsComparedOpenOld = myIsOpenOld;
    Q_EMIT ended();
    Q_EMIT changed();
    watch();
}

void ComparisonSession::watch()
{
    if (myKind == Kind::File)
        myWatcher.watch(myFileName, myStamp);
}
