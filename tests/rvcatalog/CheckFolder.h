#ifndef CHECKFOLDER_H
#define CHECKFOLDER_H

#include "ProgramRun.h"
#include "RVCatalogue/SampleProduct.h"
#include "TestFolder.h"

/// A catalogue with a note, an error and a warning.
constexpr char FAULTS[] = "<p>\n"
                          "<product type='A' article_id='1' cover_type='hard'/>\n"
                          "<x/><product type='B' article_id='0'/>\n"
                          "<product type='Ä' article_id='3' page_price_class='\"x\"'/>\n"
                          "</p>\n";

/// A folder with catalogues, in which "rvcatalog check" runs.
class CheckFolder : public TestFolder
{
public:
    /// Writes clean.xml without findings, faults.xml with three and cut.xml,
    /// which ends too early. False if that fails.
    bool writeCatalogues() const
    {
        return write(QStringLiteral("clean.xml"), CLEAN_CATALOGUE) && write(QStringLiteral("faults.xml"), FAULTS)
                && write(QStringLiteral("cut.xml"), QByteArray(FAULTS).left(60));
    }
    ProgramRun check(const QStringList &arguments, const QByteArray &input = {},
                     const std::function<void()> &inChild = {}) const
    {
        return runProgram(path(), QStringLiteral(RVCATALOG), QStringList { QStringLiteral("check") } + arguments, input,
                          environmentWith({}), inChild);
    }
};

#endif
