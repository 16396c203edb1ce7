#include "OrderLinesPanel.h"

#include "OrderLine.h"
#include "TextLabel.h"

#include <RVArticleVariants.h>

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QPushButton>

using namespace Qt::StringLiterals;

OrderLinesPanel::OrderLinesPanel(QWidget *parent)
    : QGroupBox(tr("Order lines"), parent),
      myNames(createTextLabel(u"optionNames"_s))
{
    auto *layout = new QGridLayout(this);
    layout->setVerticalSpacing(4);
    auto *label = new QLabel(tr("Customer:"));
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    layout->addWidget(label, 0, 0);
    layout->addWidget(myNames, 0, 1, 1, 2);
    addLine(layout, tr("P&roject file:"), u"projectFile"_s);
    addLine(layout, tr("Order tra&nsfer:"), u"orderTransfer"_s);
    addLine(layout, tr("Order te&xt:"), u"orderText"_s);
}

void OrderLinesPanel::setVariants(const RVArticleVariants &variants, const QStringList &names)
{
    myNames->setText(names.isEmpty() ? u"–"_s : names.join(u" · "_s));
    showLine(ProjectFile, variants.toKTX());
    showLine(OrderTransfer, variants.toXTCI().toKTX());
    showLine(OrderText, variants.toOrderTxt());
}

void OrderLinesPanel::showLine(Line line, const QString &text)
{
    myLines.at(line)->setText(text);
    myButtons.at(line)->setEnabled(!text.isEmpty());
}

void OrderLinesPanel::copy(Line line) const
{
    const QString text = myLines.at(line)->text();
    if (!text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
}

void OrderLinesPanel::addLine(QGridLayout *layout, const QString &label, const QString &objectName)
{
    auto *line = new OrderLine;
    line->setObjectName(objectName);
    auto *name = new QLabel(label);
    name->setBuddy(line);
    name->setContentsMargins(0, line->frameWidth() + 2, 0, 0); // on a line with the text
    auto *button = new QPushButton(tr("Copy"));
    button->setObjectName("copy "_L1 + objectName);
    button->setEnabled(false);
    button->setAccessibleName(tr("Copy: %1").arg(QString(label).remove(u'&')));
    const int row = layout->rowCount();
    layout->addWidget(name, row, 0, Qt::AlignTop);
    layout->addWidget(line, row, 1);
    layout->addWidget(button, row, 2, Qt::AlignTop);
    const Line which = Line(myLines.size());
    myLines += line;
    myButtons += button;
    connect(button, &QPushButton::clicked, this, [this, which] { copy(which); });
}
