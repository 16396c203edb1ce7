#include "CatalogueFile.h"

using namespace Qt::StringLiterals;

CatalogueFile::CatalogueFile(const QString &name, const Console &console)
    : myName(name),
      myConsole(console),
      myInput(name == "-"_L1 ? console.openInput() : nullptr),
      myReader(myInput ? RVCatalogueReader(myInput.get()) : RVCatalogueReader(name))
{ }

bool CatalogueFile::reportError() const
{
    if (myReader.hasError())
        report({ myReader.errorPosition(), myReader.errorString() });
    return myReader.hasError();
}

bool CatalogueFile::finish()
{
    myReader.finish();
    return !reportError();
}
