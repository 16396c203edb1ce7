#include "PricesPanel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

QStringList cells(const OrderPrices::Line &line)
{
    const QString code = line.priceClass.toString();
    return { QString::number(line.count), line.priceClass.isFree() ? PricesPanel::tr("%1 (free)").arg(code) : code,
             line.purposes.join(u" · "_s) };
}

/// A table of its own width, so that counts, price classes and purposes stand below one another.
QString table(const QList<OrderPrices::Line> &lines)
{
    QString result = u"<table cellspacing='0' cellpadding='1'>"_s;
    for (const OrderPrices::Line &line : lines) {
        const QStringList texts = cells(line);
        result += u"<tr><td align='right'>%1&nbsp;×&nbsp;</td><td>%2</td><td>&nbsp;&nbsp;&nbsp;</td><td>%3</td></tr>"_s
                          .arg(texts.at(0), texts.at(1).toHtmlEscaped(), texts.at(2).toHtmlEscaped());
    }
    return result + "</table>"_L1;
}

QString plain(const QList<OrderPrices::Line> &lines)
{
    QStringList result;
    for (const OrderPrices::Line &line : lines)
        result += cells(line).join(u'\t');
    return result.join(u'\n');
}

}

PricesPanel::PricesPanel(QWidget *parent)
    : QGroupBox(tr("Price classes"), parent),
      myText(new QLabel),
      myButton(new QPushButton(tr("Copy")))
{
    myText->setObjectName(u"prices"_s);
    myText->setTextFormat(Qt::RichText);
    myText->setWordWrap(true);
    myText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    myButton->setObjectName(u"copy prices"_s);
    myButton->setAccessibleName(tr("Copy: %1").arg(title()));
    auto *layout = new QHBoxLayout(this);
    layout->addWidget(myText, 1);
    layout->addWidget(myButton, 0, Qt::AlignTop);
    setProduct(OrderPrices());
    connect(myButton, &QPushButton::clicked, this, &PricesPanel::copy);
}

void PricesPanel::setProduct(const OrderPrices &prices)
{
    myPrices = prices;
    myLines.clear();
    myText->clear();
    myText->setAccessibleName(QString());
    myButton->setEnabled(false);
}

void PricesPanel::setChoice(int pages, const RVArticleVariants &variants)
{
    myLines = myPrices.lines(pages, variants);
    const QString reason = myPrices.obstacle().isEmpty() ? tr("None of the choices has a price class.")
                                                         : myPrices.obstacle();
    myText->setText(myLines.isEmpty() ? reason.toHtmlEscaped() : table(myLines));
    myText->setAccessibleName(myLines.isEmpty() ? reason : plain(myLines));
    myButton->setEnabled(!myLines.isEmpty());
}

void PricesPanel::copy() const
{
    if (!myLines.isEmpty())
        QGuiApplication::clipboard()->setText(plain(myLines));
}
