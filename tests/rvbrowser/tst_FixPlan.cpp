#include "FaultyProducts.h"
#include "WrittenFile.h"

#include <CatalogueLoader.h>
#include <FixPlan.h>

#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

#include <memory>

using namespace Qt::StringLiterals;

class tst_FixPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void one();
    void all();
    void withoutFix();
    void overlapping();
    void changedFile();
    void changedWhileShown();
    void missingFile();
    void writeProtected();

private:
    QString path() const { return myFolder->filePath(u"100% of \"it\".xml"_s); }
    void write(const QByteArray &content);
    QByteArray content() const { return readFile(path()); }
    CataloguePointer load();

    std::unique_ptr<QTemporaryDir> myFolder;
};

void tst_FixPlan::init()
{
    myFolder = std::make_unique<QTemporaryDir>();
    write(FAULTY_PRODUCTS);
}

void tst_FixPlan::write(const QByteArray &content)
{
    QVERIFY(writeFile(path(), content));
}

CataloguePointer tst_FixPlan::load()
{
    CatalogueLoader loader;
    CataloguePointer result;
    QSignalSpy loaded(&loader, &CatalogueLoader::loaded);
    connect(&loader, &CatalogueLoader::loaded, [&result](const CataloguePointer &catalogue) { result = catalogue; });
    loader.start(path());
    loaded.wait(20000);
    return result;
}

void tst_FixPlan::one()
{
    const CataloguePointer catalogue = load();
    QVERIFY(catalogue);
    FixPlan plan(*catalogue, { 2 });
    QVERIFY2(plan.prepare(), qPrintable(plan.errorString()));
    QCOMPARE(plan.count(), 1);
    QCOMPARE(plan.leftOut(), 0);
    QList<QByteArray> lines = plan.diff().split('\n');
    lines.removeIf([](const QByteArray &line) {
        return (!line.startsWith('-') && !line.startsWith('+')) || line.startsWith("---") || line.startsWith("+++");
    });
    QCOMPARE(lines.size(), 2);
    QVERIFY(lines.at(0).startsWith("-<product type='DUN2'") && lines.at(0).contains("'spirall'"));
    QVERIFY(lines.at(1).startsWith("+<product type='DUN2'") && lines.at(1).contains("'spiral'"));
    QCOMPARE(content(), QByteArray(FAULTY_PRODUCTS)); // to look is not to change
    QVERIFY2(plan.save(), qPrintable(plan.errorString()));
    QCOMPARE(content(), QByteArray(FAULTY_PRODUCTS).replace("spirall", "spiral"));
}

void tst_FixPlan::all()
{
    const CataloguePointer catalogue = load();
    FixPlan plan(*catalogue, { 0, 1, 2, 3, 4 });
    QVERIFY2(plan.prepare(), qPrintable(plan.errorString()));
    QCOMPARE(plan.count(), 3);
    QVERIFY2(plan.save(), qPrintable(plan.errorString()));
    QCOMPARE(content(),
             QByteArray(FAULTY_PRODUCTS)
                     .replace("spirall", "spiral")
                     .replace("hardcovr", "hardcover")
                     .replace("'A4'", "'600cm2'"));
}

void tst_FixPlan::withoutFix()
{
    const CataloguePointer catalogue = load();
    FixPlan plan(*catalogue, { 3, 4 });
    QCOMPARE(plan.count(), 0);
    QVERIFY(plan.prepare());
    QCOMPARE(plan.diff(), QByteArray());
    QVERIFY(plan.save());
    QCOMPARE(content(), QByteArray(FAULTY_PRODUCTS));
}

// One fix that is asked for twice is made once.
void tst_FixPlan::overlapping()
{
    const CataloguePointer catalogue = load();
    FixPlan plan(*catalogue, { 2, 2 });
    QVERIFY(plan.prepare());
    QVERIFY(plan.save());
    QCOMPARE(content(), QByteArray(FAULTY_PRODUCTS).replace("spirall", "spiral"));
}

void tst_FixPlan::changedFile()
{
    const CataloguePointer catalogue = load();
    const QByteArray changed = "\n" + QByteArray(FAULTY_PRODUCTS);
    write(changed);
    FixPlan plan(*catalogue, { 2 });
    QVERIFY(!plan.prepare());
    QCOMPARE(plan.errorString(), u"the file was changed since it was loaded; load it again with F5"_s);
    QVERIFY(!plan.save());
    QCOMPARE(content(), changed);
}

void tst_FixPlan::changedWhileShown()
{
    const CataloguePointer catalogue = load();
    FixPlan plan(*catalogue, { 2 });
    QVERIFY(plan.prepare());
    const QByteArray changed = QByteArray(FAULTY_PRODUCTS).replace("Two", "Zwei");
    write(changed);
    QVERIFY(!plan.save());
    QVERIFY(!plan.errorString().isEmpty());
    QCOMPARE(content(), changed);
}

void tst_FixPlan::missingFile()
{
    const CataloguePointer catalogue = load();
    QVERIFY(QFile::remove(path()));
    FixPlan plan(*catalogue, { 2 });
    QVERIFY(!plan.prepare());
    QVERIFY(!plan.save());
    QVERIFY(!QFile::exists(path()));
}

// The superuser may write to it all the same.
void tst_FixPlan::writeProtected()
{
    QVERIFY(QFile::setPermissions(path(), QFile::ReadOwner));
    const CataloguePointer catalogue = load();
    FixPlan plan(*catalogue, { 2 });
    QVERIFY(plan.prepare());
    if (::geteuid() == 0) {
        QVERIFY(plan.save());
        return;
    }
    QVERIFY(!plan.save());
    QCOMPARE(plan.errorString(), u"the file is write-protected"_s);
    QCOMPARE(content(), QByteArray(FAULTY_PRODUCTS));
}

QTEST_MAIN(tst_FixPlan)
#include "tst_FixPlan.moc"
