#include "CatalogueFile.h"

CatalogueFile::CatalogueFile(const QString &name, const Console &console)
    : myName(name),
      myConsole(console),
      myInput(console.openInput(name)),
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
