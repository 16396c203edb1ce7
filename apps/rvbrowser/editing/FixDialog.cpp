#include "FixDialog.h"

#include "DiffColors.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStringDecoder>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize USUAL_DIALOG_SIZE(820, 460);
constexpr qsizetype MOST_BYTES = qsizetype(512) * 1024;

/// The bytes as text; where they are not UTF-8, each of them is a letter.
QString textOf(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString result = decoder.decode(bytes);
    if (decoder.hasError())
        result = QString::fromLatin1(bytes);
    return result.remove(QChar::Null);
}

}

FixDialog::FixDialog(std::unique_ptr<FixPlan> plan, QWidget *parent) : QDialog(parent), myPlan(std::move(plan))
{
    setObjectName(u"fixDialog"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Apply fixes"));
    auto *text = new QLabel(heading());
    text->setObjectName(u"fixText"_s);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    auto *diff = new QPlainTextEdit;
    diff->setObjectName(u"fixDiff"_s);
    diff->setAccessibleName(tr("Lines that change"));
    diff->setReadOnly(true);
    diff->setLineWrapMode(QPlainTextEdit::NoWrap);
    diff->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    new DiffColors(diff->document(), palette());
    diff->setPlainText(textOf(shownDiff()));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Apply | QDialogButtonBox::Cancel);
    connect(buttons->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, &FixDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &FixDialog::reject);
    buttons->button(QDialogButtonBox::Apply)->setDefault(true);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(diff, 1);
    layout->addWidget(buttons);
    buttons->button(QDialogButtonBox::Apply)->setFocus();
    resize(USUAL_DIALOG_SIZE);
}

void FixDialog::accept()
{
    if (myPlan->save())
        Q_EMIT applied(myPlan->count());
    else
        Q_EMIT failed(myPlan->errorString());
    QDialog::accept();
}

QString FixDialog::heading() const
{
    QString result = tr("%n fix(es) change the file %1 like this:", nullptr, myPlan->count())
                             .arg(QFileInfo(myPlan->fileName()).fileName());
    if (myPlan->leftOut() > 0)
        result += u'\n' + tr("%n more touch the same places; apply them afterwards.", nullptr, myPlan->leftOut());
    if (shownDiff().size() < myPlan->diff().size())
        result += u'\n' + tr("Only the first changes are shown.");
    return result;
}

// Whole lines; the last line of a short diff ends as well.
QByteArray FixDialog::shownDiff() const
{
    const QByteArray diff = myPlan->diff();
    return diff.first(diff.lastIndexOf('\n', MOST_BYTES) + 1);
}
