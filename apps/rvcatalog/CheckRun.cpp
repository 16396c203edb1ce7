#include "CheckRun.h"

#include "BaselineFilter.h"
#include "CatalogueFile.h"
#include "CheckOptions.h"
#include "Commands.h"
#include "Configurations.h"
#include "FindingWriter.h"

using namespace Qt::StringLiterals;

namespace {

/// The findings in some consecutive products.
struct CheckedProducts
{
    qint64 count = 0;
    QList<RVCatalogueFinding> findings;
};

CheckedProducts checkedProducts(const QList<RVCatalogueProduct> &products)
{
    CheckedProducts result { products.size(), {} };
    for (const RVCatalogueProduct &product : products)
        result.findings += product.findings();
    return result;
}

}

CheckRun::CheckRun(FindingWriter *writer, const CheckOptions &options, const Configurations &configurations,
                   BaselineFilter *baseline, const Console &console)
    : myWriter(writer),
      myOptions(options),
      myConfigurations(configurations),
      myBaseline(baseline),
      myConsole(console),
      myProgressBar(console.messages)
{ }

void CheckRun::check(const QStringList &fileNames)
{
    myWriter->begin();
    for (const QString &fileName : fileNames) {
        if (!goesOn())
            return;
        ++mySummary.files;
        CatalogueFile file(fileName, myConsole);
        read(&file, fileName);
        myWriter->endFile(fileName);
    }
}

int CheckRun::end()
{
    myProgressBar.hide();
    mySummary.signal = Interruption::signal();
    myWriter->end(mySummary, exitCode());
    return exitCode();
}

bool CheckRun::goesOn() const
{
    return Interruption::signal() == 0 && std::ferror(myConsole.output) == 0;
}

int CheckRun::exitCode() const
{
    if (mySummary.signal != 0)
        return Interruption::exitCode(mySummary.signal);
    if (mySummary.unreadable > 0)
        return EXIT_UNREADABLE;
    return mySummary.errors > 0 || mySummary.warnings > 0 ? EXIT_PROBLEMS : EXIT_FINE;
}

void CheckRun::read(CatalogueFile *file, const QString &fileName)
{
    RVCatalogueReader &reader = file->reader();
    const RVCatalogueCheck catalogueCheck = myConfigurations.check(fileName);
    reader.setCheck(catalogueCheck, &myFiles, fileName);
    myOptions.limitThreads(&reader);
    const qint64 size = reader.size();
    reader.map(checkedProducts, [&](const CheckedProducts &checked) {
        mySummary.products += checked.count;
        write(fileName, checked.findings);
        myProgressBar.show(fileName, reader.bytesRead(), size);
        return goesOn();
    });
    if (!goesOn())
        return;
    write(fileName, reader.findings());
    if (reader.hasError())
        reportUnreadable(*file, fileName, { reader.errorPosition(), reader.errorString() });
    else
        myBaseline->finish(fileName, catalogueCheck);
}

// All findings pass here, so the known ones are left out here.
void CheckRun::write(const QString &fileName, const QList<RVCatalogueFinding> &findings)
{
    if (findings.isEmpty())
        return;
    myProgressBar.hide();
    for (const RVCatalogueFinding &finding : findings) {
        if (myBaseline->isKnown(fileName, finding))
            continue;
        mySummary.count(finding);
        if (!myOptions.isSummary && myWritten == myOptions.mostFindings) {
            ++mySummary.omitted;
        } else {
            ++myWritten;
            myWriter->finding(fileName, finding);
        }
    }
    myConsole.flush();
}

void CheckRun::reportUnreadable(const CatalogueFile &file, const QString &fileName, const Problem &problem)
{
    ++mySummary.unreadable;
    myProgressBar.hide();
    myConsole.flush();
    file.report({ problem.position, u"error: "_s + problem.text });
    myWriter->unreadable(fileName, problem);
}
