#include "PageCountChooser.h"

#include "WheelGuard.h"

#include <QComboBox>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStackedLayout>

using namespace Qt::StringLiterals;

namespace {

/// A list view lays out all its rows at once.
constexpr int LONGEST_LIST = 5000;
constexpr int LIST_CHARACTERS = 12;

}

PageCountChooser::PageCountChooser(QWidget *parent)
    : QWidget(parent),
      myPages(false),
      myPhotos(true),
      myLayout(new QStackedLayout(this)),
      myList(new QComboBox),
      myNumber(new QSpinBox)
{
    myList->setObjectName(u"pageCounts"_s);
    myList->setAccessibleName(tr("Page count"));
    myList->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    myList->setMinimumContentsLength(LIST_CHARACTERS);
    myList->setModel(&myPages);
    myNumber->setObjectName(u"pageNumber"_s);
    myNumber->setAccessibleName(tr("Page count"));
    myNumber->setKeyboardTracking(false);
    myLayout->addWidget(myList);
    myLayout->addWidget(myNumber);
    new WheelGuard(myList);
    new WheelGuard(myNumber);
    // A label hands the focus only to what takes it.
    setFocusPolicy(Qt::StrongFocus);
    setFocusProxy(myList);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    connect(myList, &QComboBox::currentIndexChanged, this, &PageCountChooser::setRow);
    connect(myNumber, &QSpinBox::valueChanged, this, &PageCountChooser::setPages);
}

void PageCountChooser::setPageCounts(const RVPageCountOrganization &pageCounts, bool isPhotos)
{
    const bool isValid = pageCounts.isValid();
    const bool isLong = isValid && pageCounts.numberOfPackages() > LONGEST_LIST;
    const QSignalBlocker listBlocker(myList);
    const QSignalBlocker numberBlocker(myNumber);
    myPageCounts = pageCounts;
    myRow = -1;
    RVPageCountOrganizationListModel &model = isPhotos ? myPhotos : myPages;
    model.setPageOrganization(isValid && !isLong ? pageCounts : RVPageCountOrganization());
    if (myList->model() != &model)
        myList->setModel(&model);
    myList->setCurrentIndex(-1); // setRow() chooses one of a list that is shown
    myNumber->setRange(pageCounts.minPages(), pageCounts.maxPages());
    myNumber->setSingleStep(qMax(1, pageCounts.pageIncrement()));
    QWidget *shown = isLong ? static_cast<QWidget *>(myNumber) : myList;
    myLayout->setCurrentWidget(shown);
    setFocusProxy(shown);
    setEnabled(isValid);
    if (isValid)
        setRow(0);
    else
        Q_EMIT rowChanged(-1);
}

void PageCountChooser::setPages(int pages)
{
    const int row = myPageCounts.countPackages(myPageCounts.constrain(pages));
    if (myPageCounts.isValid())
        setRow(qBound(0, row, myPageCounts.numberOfPackages() - 1));
}

int PageCountChooser::pages() const
{
    return myPageCounts.pagesWithNExtraPackages(qMax(0, myRow));
}

void PageCountChooser::setRow(int row)
{
    if (!myPageCounts.isValid() || row < 0 || row >= myPageCounts.numberOfPackages())
        return;
    const bool isNew = row != myRow;
    myRow = row;
    const QSignalBlocker listBlocker(myList);
    const QSignalBlocker numberBlocker(myNumber);
    if (myLayout->currentWidget() == myList)
        myList->setCurrentIndex(row);
    myNumber->setValue(pages());
    if (isNew)
        Q_EMIT rowChanged(row);
}
