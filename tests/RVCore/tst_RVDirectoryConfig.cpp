#include <RVCore/RVDirectoryConfig.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

bool createFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly);
}

}

class tst_RVDirectoryConfig : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingToSearch();
    void searchesInOrder();
};

void tst_RVDirectoryConfig::nothingToSearch()
{
    QCOMPARE(RVDirectoryConfig::instance()->resource(u"icons/a.png"_s, false), u"icons/a.png"_s);
    QCOMPARE(RVDirectoryConfig::instance()->resource(u""_s, true), u""_s);
}

void tst_RVDirectoryConfig::searchesInOrder()
{
    const QTemporaryDir first;
    const QTemporaryDir second;
    QVERIFY(QDir(second.path()).mkpath(u"icons"_s));
    QVERIFY(createFile(second.filePath(u"icons/a.png"_s)));
    RVDirectoryConfig *config = RVDirectoryConfig::instance();
    config->addSearchDirectory(first.path());
    config->addSearchDirectory(second.path());
    QCOMPARE(config->resource(u"icons/a.png"_s, false), second.filePath(u"icons/a.png"_s));
    QCOMPARE(config->resource(u"icons/a.png"_s, true), second.filePath(u"icons/a.png"_s));
    QCOMPARE(config->resource(u"icons/b.png"_s, false), u"icons/b.png"_s);
    QCOMPARE(config->resource(u""_s, false), u""_s);
    QCOMPARE(config->resource(QString(), false), QString());
    const QString absolutePath = second.filePath(u"icons/a.png"_s);
    QCOMPARE(config->resource(absolutePath, false), absolutePath);

    QVERIFY(QDir(first.path()).mkpath(u"icons"_s));
    QVERIFY(createFile(first.filePath(u"icons/a.png"_s)));
    QCOMPARE(config->resource(u"icons/a.png"_s, false), first.filePath(u"icons/a.png"_s));
}

QTEST_APPLESS_MAIN(tst_RVDirectoryConfig)
#include "tst_RVDirectoryConfig.moc"
