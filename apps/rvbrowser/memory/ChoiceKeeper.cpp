#include "ChoiceKeeper.h"

#include "ProductView.h"

#include <chrono>

using namespace std::chrono_literals;

namespace {

/// The time after which a choice is kept. It is longer than a key that is held needs from one line of a list to the
/// next.
constexpr auto WAIT = 1s;

}

ChoiceKeeper::ChoiceKeeper(ProductView *view, Settings *settings) : myView(view), myMemory(settings)
{
    myTimer.setSingleShot(true);
    myTimer.setInterval(WAIT);
    connect(&myTimer, &QTimer::timeout, this, &ChoiceKeeper::keep);
    connect(myView, &ProductView::choiceChanged, this, &ChoiceKeeper::noteChange);
}

void ChoiceKeeper::show(const CataloguePointer &catalogue, int product)
{
    leave();
    myView->setProduct(catalogue, product);
    setProduct(*catalogue, product);
    if (myFileName.isEmpty())
        return;
    if (const auto choice = myMemory.choice(myFileName, myType))
        myView->setChoice(*choice);
    myHasChange = false; // nothing was chosen that is not remembered
    myMemory.setLastProduct(myFileName, myType);
}

void ChoiceKeeper::update(const CataloguePointer &catalogue, int product)
{
    leave();
    myView->updateProduct(catalogue, product);
    setProduct(*catalogue, product);
}

void ChoiceKeeper::leave()
{
    keep();
    myFileName.clear();
}

int ChoiceKeeper::lastProduct(const LoadedCatalogue &catalogue) const
{
    return catalogue.indexOf(myMemory.lastProduct(catalogue.fileName()));
}

void ChoiceKeeper::keep()
{
    if (!myHasChange)
        return;
    myHasChange = false;
    myMemory.setChoice(myFileName, myType, myView->choice());
}

void ChoiceKeeper::noteChange()
{
    if (myFileName.isEmpty())
        return;
    myHasChange = true;
    myTimer.start();
}

void ChoiceKeeper::setProduct(const LoadedCatalogue &catalogue, int product)
{
    const RVProductType type = catalogue.at(product).type;
    if (!type.isValid() || !catalogue.isSold(product))
        return;
    myFileName = catalogue.fileName();
    myType = type;
}
