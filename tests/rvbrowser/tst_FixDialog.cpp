#include "FaultyProducts.h"
#include "WrittenFile.h"

#include <CatalogueLoader.h>
#include <FixDialog.h>
#include <PaletteColors.h>

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

#include <memory>

using namespace Qt::StringLiterals;

class tst_FixDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { myFolder = std::make_unique<QTemporaryDir>(); }
    void cleanup() { delete myDialog; }

    void text();
    void diffIsRead();
    void keyboard();
    void longDiff();
    void bytes_data();
    void bytes();
    void applies();
    void cancels();
    void failsToApply();

private:
    QString path() const { return myFolder->filePath(u"a <b>.xml"_s); }
    /// Shows the dialogue for some findings of a catalogue.
    void open(const QByteArray &content, const QList<int> &findings);
    QLabel *heading() const { return myDialog->findChild<QLabel *>(u"fixText"_s); }
    QPlainTextEdit *diff() const { return myDialog->findChild<QPlainTextEdit *>(u"fixDiff"_s); }
    QPushButton *apply() const { return myDialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Apply); }

    std::unique_ptr<QTemporaryDir> myFolder;
    QPointer<FixDialog> myDialog;
};

void tst_FixDialog::open(const QByteArray &content, const QList<int> &findings)
{
    QVERIFY(writeFile(path(), content));
    CatalogueLoader loader;
    CataloguePointer catalogue;
    connect(&loader, &CatalogueLoader::loaded, this, [&](const CataloguePointer &loaded) { catalogue = loaded; });
    loader.start(path());
    QTRY_VERIFY_WITH_TIMEOUT(catalogue, 20000);
    auto plan = std::make_unique<FixPlan>(*catalogue, findings);
    QVERIFY2(plan->prepare(), qPrintable(plan->errorString()));
    myDialog = new FixDialog(std::move(plan), nullptr);
}

// Names are no markup, and the text is broken into lines.
void tst_FixDialog::text()
{
    open(FAULTY_PRODUCTS, { 0, 1 });
    QVERIFY(!myDialog->windowTitle().isEmpty());
    QCOMPARE(myDialog->size(), QSize(820, 460));
    QCOMPARE(heading()->text(), u"2 fix(es) change the file a <b>.xml like this:"_s);
    QCOMPARE(heading()->textFormat(), Qt::PlainText);
    QVERIFY(heading()->wordWrap());
    myDialog->show();
    QVERIFY(diff()->height() > 300); // what is left by the text and the buttons
}

void tst_FixDialog::diffIsRead()
{
    open(FAULTY_PRODUCTS, { 0 });
    QVERIFY(!diff()->accessibleName().isEmpty());
    QVERIFY(diff()->isReadOnly());
    QCOMPARE(diff()->lineWrapMode(), QPlainTextEdit::NoWrap);
    QCOMPARE(diff()->font().family(), QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    const QTextBlock first = diff()->document()->firstBlock();
    QTRY_COMPARE(first.layout()->formats().size(), 1); // in colours
}

// Return applies, and Tab leaves the text.
void tst_FixDialog::keyboard()
{
    open(FAULTY_PRODUCTS, { 0 });
    QVERIFY(apply()->isDefault());
    myDialog->show();
    myDialog->activateWindow();
    QTRY_VERIFY(apply()->hasFocus());
    diff()->setFocus();
    QTest::keyClick(diff(), Qt::Key_Tab);
    QVERIFY(!diff()->hasFocus());
}

// The first 512 KiB, in whole lines.
void tst_FixDialog::longDiff()
{
    constexpr int products = 2000;
    QByteArray content("<products>\n");
    QList<int> findings;
    for (int i = 0; i < products; ++i) {
        content += "<product type='T" + QByteArray::number(i) + "' article_id='" + QByteArray::number(i + 1)
                + "' name='" + QByteArray(200, 'n') + "' article_class='book' cover_type='hardcovr'/>\n";
        findings += i;
    }
    open(content + "</products>\n", findings);
    QVERIFY2(heading()->text().endsWith(u"\nOnly the first changes are shown."_s), qPrintable(heading()->text()));
    const QString shown = diff()->toPlainText();
    QVERIFY(shown.endsWith(u"/>\n"_s));
    constexpr int most = 512 * 1024;
    QVERIFY2(shown.size() <= most + 1 && shown.size() > most - 300, qPrintable(QString::number(shown.size())));
}

void tst_FixDialog::bytes_data()
{
    QTest::addColumn<QByteArray>("name");

    QTest::newRow("UTF-8") << QByteArray("M\xc3\xa4rz");
    QTest::newRow("Latin 1") << QByteArray("M\xe4rz");
}

void tst_FixDialog::bytes()
{
    QFETCH(QByteArray, name);
    const QByteArray encoding = name.size() == 4 ? "ISO-8859-1" : "UTF-8";
    open("<?xml version='1.0' encoding='" + encoding + "'?>\n<products>\n<product type='A' article_id='1' name='" + name
                 + "' article_class='book' cover_type='hardcovr'/>\n</products>\n",
         { 0 });
    QVERIFY2(diff()->toPlainText().contains(u"März"_s), qPrintable(diff()->toPlainText()));
}

void tst_FixDialog::applies()
{
    open(FAULTY_PRODUCTS, { 0, 1 });
    const QSignalSpy applied(myDialog, &FixDialog::applied);
    const QSignalSpy failed(myDialog, &FixDialog::failed);
    myDialog->show();
    apply()->click();
    QCOMPARE(applied.size(), 1);
    QCOMPARE(applied.constFirst().constFirst().toInt(), 2);
    QVERIFY(failed.isEmpty());
    QTRY_VERIFY(!myDialog);
    QVERIFY(readFile(path()).contains("'hardcover'"));
}

void tst_FixDialog::cancels()
{
    open(FAULTY_PRODUCTS, { 0 });
    myDialog->show();
    myDialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel)->click();
    QTRY_VERIFY(!myDialog);
    QCOMPARE(readFile(path()), QByteArray(FAULTY_PRODUCTS));
}

void tst_FixDialog::failsToApply()
{
    open(FAULTY_PRODUCTS, { 0 });
    const QSignalSpy applied(myDialog, &FixDialog::applied);
    const QSignalSpy failed(myDialog, &FixDialog::failed);
    QVERIFY(writeFile(path(), "<changed/>"));
    myDialog->show();
    apply()->click();
    QCOMPARE(failed.size(), 1);
    QVERIFY(!failed.constFirst().constFirst().toString().isEmpty());
    QVERIFY(applied.isEmpty());
    QTRY_VERIFY(!myDialog);
}

QTEST_MAIN(tst_FixDialog)
#include "tst_FixDialog.moc"
