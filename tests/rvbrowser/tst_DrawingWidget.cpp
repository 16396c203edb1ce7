#include <Drawing.h>
#include <DrawingMenu.h>
#include <DrawingPrint.h>
#include <DrawingWidget.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPainter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

class RedDrawing : public Drawing
{
public:
    QString title() const override { return u"A5/A6 page"_s; }
    QSizeF sheetSize(int reduction) const override { return QSizeF(200, 100) / reduction; }
    void paint(QPainter *painter, const QRectF &sheet, int) const override { painter->fillRect(sheet, Qt::red); }
};

class RedWidget : public DrawingWidget
{
public:
    explicit RedWidget(QWidget *parent) : DrawingWidget(u"&Red"_s, parent) { }

    std::unique_ptr<Drawing> drawing() const override { return std::make_unique<RedDrawing>(); }
};

/// The PDF page that a printer writes; empty if it writes none.
template<typename Paint>
QByteArray printed(const QString &fileName, Paint paint)
{
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(fileName);
    paint(&printer);
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}

class tst_DrawingWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void button();
    void menuOpens();
    void menuIsEnabled();
    void choosesAFile();
    void suffixFollowsTheFormat();
    void failure();
    void prints();
    void previews();

private:
    QAction *action(int index) const { return myDrawing->menu()->actions().at(index); }

    std::unique_ptr<QWidget> myWindow;
    RedWidget *myDrawing = nullptr;
    QTemporaryDir myFolder;
};

void tst_DrawingWidget::init()
{
    myWindow = std::make_unique<QWidget>();
    myWindow->resize(600, 400);
    myDrawing = new RedWidget(myWindow.get());
    myDrawing->setGeometry(100, 50, 300, 200);
    myWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(myWindow.get()));
}

// Small, in the upper right corner, and not in the way of the Tab key.
void tst_DrawingWidget::button()
{
    const auto *button = myDrawing->findChild<QToolButton *>(u"drawingButton"_s);
    QCOMPARE(button->geometry().topRight(), myDrawing->rect().topRight());
    QCOMPARE(button->size(), button->sizeHint());
    QCOMPARE(button->iconSize(), QSize(12, 12));
    QVERIFY(!button->icon().isNull());
    QVERIFY(button->autoRaise());
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    QVERIFY(!button->toolTip().isEmpty());
    QCOMPARE(button->accessibleName(), u"Copy, save or print: Red"_s);
    myDrawing->resize(200, 100);
    QCOMPARE(button->geometry().topRight(), myDrawing->rect().topRight());
}

void tst_DrawingWidget::menuOpens()
{
    const QPoint place(20, 30);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, myDrawing->mapToGlobal(place));
    QApplication::sendEvent(myDrawing, &event);
    QVERIFY(myDrawing->menu()->isVisible());
    QCOMPARE(myDrawing->menu()->pos(), myDrawing->mapToGlobal(place));
    myDrawing->menu()->close();
    auto *button = myDrawing->findChild<QToolButton *>(u"drawingButton"_s);
    button->click();
    QVERIFY(myDrawing->menu()->isVisible());
    QCOMPARE(myDrawing->menu()->pos(), button->mapToGlobal(button->rect().bottomLeft()));
    myDrawing->menu()->close();
}

// While the drawing is shown, also in a window that is minimised for the moment.
void tst_DrawingWidget::menuIsEnabled()
{
    const QAction *menu = myDrawing->menu()->menuAction();
    QVERIFY(menu->isEnabled());
    QHideEvent minimised;
    QSpontaneKeyEvent::setSpontaneous(&minimised);
    qApp->notify(myDrawing, &minimised);
    QVERIFY(menu->isEnabled());
    myDrawing->hide();
    QVERIFY(!menu->isEnabled());
    myDrawing->show();
    QVERIFY(menu->isEnabled());
    QVERIFY(!RedWidget(nullptr).menu()->menuAction()->isEnabled());
}

// The name is that of the drawing; the folder is that of the last file.
void tst_DrawingWidget::choosesAFile()
{
    QFile::remove(myFolder.filePath(u"a.svg"_s));
    for (int i = 0; i < 2; ++i) {
        action(1)->trigger();
        QPointer<QFileDialog> dialog(myWindow->findChild<QFileDialog *>(u"saveDrawing"_s));
        QVERIFY(dialog);
        QVERIFY(dialog->isVisible());
        QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
        QCOMPARE(QFileInfo(dialog->selectedFiles().value(0)).fileName(), u"A5_A6 page.svg"_s);
        if (i == 1)
            QCOMPARE(dialog->directory().absolutePath(), myFolder.path());
        dialog->selectFile(myFolder.filePath(i == 0 ? u"a"_s : u"b"_s));
        static_cast<QDialog *>(dialog)->accept();
        QVERIFY(QFileInfo::exists(myFolder.filePath(i == 0 ? u"a.svg"_s : u"b.svg"_s)));
        QTRY_VERIFY(!dialog);
    }
}

void tst_DrawingWidget::suffixFollowsTheFormat()
{
    action(1)->trigger();
    auto *dialog = myWindow->findChild<QFileDialog *>(u"saveDrawing"_s);
    QCOMPARE(dialog->nameFilters().size(), 3);
    for (const QString &suffix : { u"pdf"_s, u"png"_s, u"svg"_s }) {
        const QStringList filters = dialog->nameFilters().filter(u"(*."_s + suffix + u')');
        QCOMPARE(filters.size(), 1);
        Q_EMIT dialog->filterSelected(filters.constFirst());
        QCOMPARE(dialog->defaultSuffix(), suffix);
    }
}

// A file whose name looks like markup is named as it is, and the box does not stay.
void tst_DrawingWidget::failure()
{
    myDrawing->menu()->save(u"/nowhere/<b>a</b>.svg"_s);
    QPointer<QMessageBox> box(myWindow->findChild<QMessageBox *>(u"saveFailure"_s));
    QVERIFY(box && box->isVisible());
    QCOMPARE(box->textFormat(), Qt::PlainText);
    QVERIFY(box->text().startsWith(u"/nowhere/<b>a</b>.svg cannot be written"_s));
    box->close();
    QTRY_VERIFY(!box);
}

// The printer knows the drawing's name and the side of the paper before the user sees the dialogue.
void tst_DrawingWidget::prints()
{
    action(3)->trigger();
    QPointer<QPrintDialog> dialog(myWindow->findChild<QPrintDialog *>());
    QVERIFY(dialog);
    QVERIFY(dialog->isVisible());
    QPrinter *printer = dialog->printer();
    QCOMPARE(printer->docName(), u"A5/A6 page"_s);
    QCOMPARE(printer->pageLayout().orientation(), QPageLayout::Landscape);
    QCOMPARE(printer->resolution(), QPrinter(QPrinter::HighResolution).resolution());
    const QString fileName = myFolder.filePath(u"printed.pdf"_s);
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(fileName);
    Q_EMIT dialog->accepted(printer);
    QVERIFY(QFileInfo(fileName).size() > 0);
    dialog->close();
    QTRY_VERIFY(!dialog);
}

void tst_DrawingWidget::previews()
{
    action(4)->trigger();
    QPointer<QPrintPreviewDialog> dialog(myWindow->findChild<QPrintPreviewDialog *>(u"printPreview"_s));
    QVERIFY(dialog);
    QVERIFY(dialog->isVisible());
    QCOMPARE(dialog->printer()->docName(), u"A5/A6 page"_s);
    QCOMPARE(dialog->printer()->pageLayout().orientation(), QPageLayout::Landscape);
    const QByteArray page = printed(myFolder.filePath(u"preview.pdf"_s),
                                    [&](QPrinter *printer) { Q_EMIT dialog->paintRequested(printer); });
    QVERIFY(page.startsWith("%PDF-"));
    dialog->close();
    QTRY_VERIFY(!dialog);
}

QTEST_MAIN(tst_DrawingWidget)
#include "tst_DrawingWidget.moc"
