#include "CheckRun.h"

#include "CatalogueFile.h"
#include "CheckOptions.h"
#include "Commands.h"

using namespace Qt::StringLiterals;

namespace {

/// The findings in some consecutive products.
struct CheckedProducts
{
    qint64 count = 0;
    QList<RVCatalogueFinding> findings;
};

CheckedProducts findingsOf(const QList<RVCatalogueProduct> &products)
{
    CheckedProducts result { products.size(), {} };
    for (const RVCatalogueProduct &product : products)
        result.findings += product.findings();
    return result;
}

}

CheckRun::CheckRun(FindingWriter *writer, const CheckOptions &options, const Console &console)
    : myWriter(writer),
      myOptions(options),
      myConsole(console),
      myProgressBar(console.messages)
{ }

void CheckRun::check(const QString &fileName)
{
    ++mySummary.files;
    CatalogueFile file(fileName, myConsole);
    RVCatalogueReader &reader = file.reader();
    reader.setCheck(myOptions.check);
    const qint64 size = reader.size();
    reader.map(findingsOf, [&](const CheckedProducts &checked) {
        mySummary.products += checked.count;
        write(fileName, checked.findings);
        myProgressBar.show(fileName, reader.bytesRead(), size);
        return true;
    });
    write(fileName, reader.findings());
    if (reader.hasError())
        reportUnreadable(file, fileName, { reader.errorPosition(), reader.errorString() });
}

int CheckRun::end()
{
    myProgressBar.hide();
    myWriter->end(mySummary, exitCode());
    return exitCode();
}

int CheckRun::exitCode() const
{
    if (mySummary.unreadable > 0)
        return EXIT_UNREADABLE;
    return mySummary.errors > 0 || mySummary.warnings > 0 ? EXIT_PROBLEMS : EXIT_FINE;
}

// All findings pass here, so this is where some of them are left out.
void CheckRun::write(const QString &fileName, const QList<RVCatalogueFinding> &findings)
{
    if (!findings.isEmpty())
        myProgressBar.hide();
    for (const RVCatalogueFinding &finding : findings) {
        mySummary.count(finding.severity());
        myWriter->finding(fileName, finding);
    }
}

void CheckRun::reportUnreadable(const CatalogueFile &file, const QString &fileName, const Problem &problem)
{
    ++mySummary.unreadable;
    myProgressBar.hide();
    std::fflush(myConsole.output);
    file.report({ problem.position, u"error: "_s + problem.text });
    myWriter->unreadable(fileName, problem);
}
