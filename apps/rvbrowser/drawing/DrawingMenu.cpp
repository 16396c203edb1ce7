#include "DrawingMenu.h"

#include "DrawingPrint.h"
#include "DrawingWidget.h"

#include <Drawing.h>
#include <DrawingExport.h>

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace {

/// "*.svg" in "SVG drawing (*.svg)" makes "svg".
QString suffixOf(const QString &filter)
{
    return filter.section(u"*."_s, 1).chopped(1);
}

/// The title of a drawing as the name of a file.
QString fileNameFor(const QString &title)
{
    QString name = title;
    return name.replace(u'/', u'_') + ".svg"_L1;
}

}

DrawingMenu::DrawingMenu(const QString &title, DrawingWidget *widget) : QMenu(title, widget), myWidget(widget)
{
    addAction(tr("&Copy"), this, &DrawingMenu::copy);
    addAction(tr("&Save as…"), this, &DrawingMenu::chooseFile);
    addSeparator();
    addAction(tr("&Print…"), this, &DrawingMenu::print);
    addAction(tr("Print pre&view…"), this, &DrawingMenu::preview);
}

std::shared_ptr<Drawing> DrawingMenu::drawing() const
{
    return myWidget->drawing();
}

void DrawingMenu::copy() const
{
    const std::shared_ptr<Drawing> copied = drawing();
    const DrawingExport files(*copied);
    auto *mime = new QMimeData;
    mime->setImageData(files.image());
    mime->setData(u"image/svg+xml"_s, files.content(DrawingExport::Format::Svg));
    mime->setData(u"application/pdf"_s, files.content(DrawingExport::Format::Pdf));
    QApplication::clipboard()->setMimeData(mime);
}

void DrawingMenu::save(const QString &fileName)
{
    myFolder = QFileInfo(fileName).path();
    const std::shared_ptr<Drawing> saved = drawing();
    const QString failure = DrawingExport(*saved).write(fileName);
    if (failure.isNull())
        return;
    auto *box = new QMessageBox(QMessageBox::Warning, tr("The drawing was not saved"),
                                tr("%1 cannot be written: %2.").arg(QDir::toNativeSeparators(fileName), failure),
                                QMessageBox::Ok, myWidget->window());
    box->setObjectName(u"saveFailure"_s);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void DrawingMenu::chooseFile()
{
    auto *dialog = new QFileDialog(myWidget->window(), tr("Save the drawing"), myFolder);
    dialog->setObjectName(u"saveDrawing"_s);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setNameFilters({ tr("SVG drawing (*.svg)"), tr("PDF page (*.pdf)"), tr("PNG picture (*.png)") });
    dialog->setDefaultSuffix(u"svg"_s);
    connect(dialog, &QFileDialog::filterSelected, dialog,
            [dialog](const QString &filter) { dialog->setDefaultSuffix(suffixOf(filter)); });
    connect(dialog, &QFileDialog::fileSelected, this, &DrawingMenu::save);
    dialog->selectFile(fileNameFor(drawing()->title()));
    dialog->open();
}

void DrawingMenu::print()
{
    const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    const DrawingPrint page(drawing());
    page.setUp(printer.get());
    auto *dialog = new QPrintDialog(printer.get(), myWidget->window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, qOverload<QPrinter *>(&QPrintDialog::accepted), this,
            [page, printer] { page.paint(printer.get()); });
    dialog->open();
}

void DrawingMenu::preview()
{
    const auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    const DrawingPrint page(drawing());
    page.setUp(printer.get());
    auto *dialog = new QPrintPreviewDialog(printer.get(), myWidget->window());
    dialog->setObjectName(u"printPreview"_s);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // The lambda holds the printer for as long as the dialogue lives.
    connect(dialog, &QPrintPreviewDialog::paintRequested, this,
            [page, printer](QPrinter *shown) { page.paint(shown); });
    dialog->open();
}
