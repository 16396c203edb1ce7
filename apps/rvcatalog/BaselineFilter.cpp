#include "BaselineFilter.h"

#include "Commands.h"

#include <QTextStream>

using namespace Qt::StringLiterals;

namespace {

QString counted(qint64 number)
{
    return QString::number(number) + (number == 1 ? " finding"_L1 : " findings"_L1);
}

}

BaselineFilter::BaselineFilter(const Choice &choice)
    : myIsQuiet(choice.isQuiet),
      myBaseline(choice.writtenFileName.isEmpty() ? choice.fileName : choice.writtenFileName)
{
    if (!choice.writtenFileName.isEmpty())
        myMode = Mode::Write;
    else if (!choice.fileName.isEmpty())
        myMode = Mode::Compare;
}

bool BaselineFilter::begin(const Console &console)
{
    myConsole = console;
    switch (myMode) {
    case Mode::Off:
        break;
    case Mode::Compare:
        return myBaseline.read(console);
    case Mode::Write:
        return myBaseline.isReplaceable(console);
    }
    return true;
}

bool BaselineFilter::isKnown(const QString &catalogue, const RVCatalogueFinding &finding)
{
    switch (myMode) {
    case Mode::Off:
        return false;
    case Mode::Compare:
        return myBaseline.take(catalogue, finding);
    case Mode::Write:
        break;
    }
    myBaseline.add(catalogue, finding);
    return true;
}

void BaselineFilter::finish(const QString &catalogue, const RVCatalogueCheck &check)
{
    if (myMode == Mode::Compare)
        myBaseline.finish(catalogue, check);
}

int BaselineFilter::end(int exitCode, const Console &console) const
{
    if (myMode == Mode::Write)
        return write(exitCode, console);
    if (const qint64 mended = myBaseline.mended())
        note(console,
             u"%1 of the baseline %2 %3 mended; write it again"_s.arg(counted(mended), myBaseline.fileName(),
                                                                      mended == 1 ? u"is"_s : u"are"_s));
    return exitCode;
}

// The findings that an incomplete baseline lacks would fail later.
int BaselineFilter::write(int exitCode, const Console &console) const
{
    if (exitCode != EXIT_FINE || std::ferror(console.output) != 0) {
        QTextStream(console.messages) << "rvcatalog: no baseline was written, because not everything was checked\n";
        return exitCode;
    }
    if (!myBaseline.write(myConsole))
        return EXIT_UNREADABLE;
    note(console, u"wrote %1 to %2"_s.arg(counted(myBaseline.size()), myBaseline.fileName()));
    return exitCode;
}

void BaselineFilter::note(const Console &console, const QString &text) const
{
    if (!myIsQuiet)
        QTextStream(console.messages) << "rvcatalog: note: " << text << '\n';
}
