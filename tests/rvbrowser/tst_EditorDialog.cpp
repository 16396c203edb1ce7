#include <EditorChoice.h>
#include <EditorDialog.h>
#include <Settings.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

class tst_EditorDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void showsTheChoice();
    void commandOfItsOwn();
    void cancel();
    void unknownEditor();
    void fitsScreens();

private:
    /// Opens a dialogue for the settings.
    void open();
    void choose(const QString &editor) { myEditors->setCurrentIndex(myEditors->findData(editor)); }
    /// The meaning of the letters behind percent signs.
    QLabel *hint() const
    {
        for (auto *label : myDialog->findChildren<QLabel *>()) {
            if (label->text().contains(u"%f"_s))
                return label;
        }
        return nullptr;
    }
    EditorChoice saved() const { return EditorChoice::load(*mySettings); }

    std::unique_ptr<QTemporaryDir> myFolder;
    std::unique_ptr<Settings> mySettings;
    std::unique_ptr<EditorDialog> myDialog;
    QComboBox *myEditors = nullptr;
    QLineEdit *myCommand = nullptr;
    QPushButton *myOk = nullptr;
};

void tst_EditorDialog::init()
{
    myDialog.reset();
    myFolder = std::make_unique<QTemporaryDir>();
    mySettings = std::make_unique<Settings>(myFolder->filePath(u"settings.ini"_s));
}

void tst_EditorDialog::open()
{
    myDialog = std::make_unique<EditorDialog>(mySettings.get());
    myDialog->show();
    myEditors = myDialog->findChild<QComboBox *>(u"editors"_s);
    myCommand = myDialog->findChild<QLineEdit *>(u"editorCommand"_s);
    myOk = myDialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
}

void tst_EditorDialog::showsTheChoice()
{
    EditorChoice(u"kate"_s, u"mine %f"_s).save(mySettings.get());
    open();
    QCOMPARE(myEditors->currentData().toString(), u"kate"_s);
    QVERIFY(myCommand->text().startsWith("kate "_L1));
    QVERIFY(!myCommand->isEnabled());
    QVERIFY(!hint()->isEnabled());
    QVERIFY(myOk->isEnabled());
    QVERIFY(!myDialog->windowTitle().isEmpty());
}

void tst_EditorDialog::commandOfItsOwn()
{
    open();
    choose(EditorChoice::OWN);
    QCOMPARE(myCommand->text(), QString());
    QVERIFY(myCommand->isEnabled());
    QVERIFY(hint()->isEnabled());
    QVERIFY(!myOk->isEnabled()); // there is no command yet
    QTest::keyClicks(myCommand, u"mine %f"_s);
    QVERIFY(myOk->isEnabled());
    // A look at another editor does not lose it.
    choose(u"kate"_s);
    choose(EditorChoice::OWN);
    QCOMPARE(myCommand->text(), u"mine %f"_s);
    myOk->click();
    QVERIFY(!myDialog->isVisible());
    QCOMPARE(saved().id(), QString(EditorChoice::OWN));
    QCOMPARE(saved().ownCommand(), u"mine %f"_s);
}

void tst_EditorDialog::cancel()
{
    EditorChoice(u"kate"_s, QString()).save(mySettings.get());
    const auto pressKey = [this] { QTest::keyClick(myDialog.get(), Qt::Key_Escape); };
    const auto pressButton = [this] {
        myDialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Cancel)->click();
    };
    for (const std::function<void()> &cancel :
         { std::function<void()>(pressKey), std::function<void()>(pressButton) }) {
        open();
        choose(u"qtcreator"_s);
        cancel();
        QVERIFY(!myDialog->isVisible());
        QCOMPARE(saved().id(), u"kate"_s);
    }
}

// The list ends with the command of one's own.
void tst_EditorDialog::unknownEditor()
{
    qputenv("PATH", myFolder->path().toLocal8Bit()); // no editor is installed there
    qunsetenv("VISUAL");
    qunsetenv("EDITOR");
    open();
    QCOMPARE(myEditors->currentData().toString(), QString(EditorChoice::OWN));
    QCOMPARE(myEditors->currentIndex(), myEditors->count() - 1);
}

// The explanation is broken into lines.
void tst_EditorDialog::fitsScreens()
{
    open();
    QVERIFY2(myDialog->width() <= 640, qPrintable(QString::number(myDialog->width())));
    QCOMPARE(myCommand->minimumWidth(), myDialog->fontMetrics().averageCharWidth() * 50);
    QVERIFY(hint()->wordWrap());
    QVERIFY(hint()->isVisible());
}

QTEST_MAIN(tst_EditorDialog)
#include "tst_EditorDialog.moc"
