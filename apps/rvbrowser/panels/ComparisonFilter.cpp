#include "ComparisonFilter.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>

using namespace Qt::StringLiterals;

ComparisonFilter::ComparisonFilter(QWidget *parent) : QWidget(parent), myKind(new QComboBox), mySearch(new QLineEdit)
{
    using Kind = ComparisonModel::Kind;
    myKind->setObjectName(u"changeKinds"_s);
    myKind->setAccessibleName(tr("Kind of change"));
    myKind->addItem(tr("All changes"), int(Kind::Any));
    myKind->addItem(tr("Added"), int(Kind::Added));
    myKind->addItem(tr("Removed"), int(Kind::Removed));
    myKind->addItem(tr("Changed"), int(Kind::Changed));
    myKind->addItem(tr("Renamed"), int(Kind::Renamed));
    mySearch->setObjectName(u"searchChanges"_s);
    mySearch->setAccessibleName(tr("Search changes"));
    mySearch->setPlaceholderText(tr("Search product, change, value"));
    mySearch->setClearButtonEnabled(true);
    mySearch->setAcceptDrops(false); // a file that is dropped here is to be opened
    connect(myKind, &QComboBox::currentIndexChanged, this, &ComparisonFilter::changed);
    connect(mySearch, &QLineEdit::textChanged, this, &ComparisonFilter::changed);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(myKind);
    layout->addWidget(mySearch);
}

ComparisonModel::Kind ComparisonFilter::kind() const
{
    return ComparisonModel::Kind(myKind->currentData().toInt());
}

QString ComparisonFilter::search() const
{
    return mySearch->text();
}

void ComparisonFilter::clear()
{
    myKind->setCurrentIndex(0);
    mySearch->clear();
    mySearch->setFocus(Qt::OtherFocusReason);
}
